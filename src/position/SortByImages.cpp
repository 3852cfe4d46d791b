#include "position/SortByImages.h"

#include "primitives/Tolerance.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace math::detail
{

namespace
{

constexpr std::size_t InsertionBlock = 32;

class WalkedBefore
{
public:
    WalkedBefore(const std::vector<double>& images, bool upward) : m_images(images), m_upward(upward)
    {
    }

    bool operator()(const Station& station, const Station& other) const
    {
        return LiesBefore(Last(station), Last(other)) && LiesBefore(First(station), First(other));
    }

    /// Tells, without tolerance, that neither end of the images of `next` lies before those of `station`. Stations that
    /// follow one another like this never change places.
    bool IsInOrder(const Station& station, const Station& next) const
    {
        return m_upward ? First(station) <= First(next) && Last(station) <= Last(next)
                        : First(station) >= First(next) && Last(station) >= Last(next);
    }

private:
    double First(const Station& station) const
    {
        return m_images[station.imagesBegin];
    }

    double Last(const Station& station) const
    {
        return m_images[station.imagesEnd - 1];
    }

    bool LiesBefore(double image, double otherImage) const
    {
        return !AreEqual(image, otherImage) && (m_upward ? image < otherImage : image > otherImage);
    }

    const std::vector<double>& m_images;
    bool m_upward;
};

using Iterator = std::vector<Station>::iterator;

/// A station before the very first goes to the front at once; any other walks back from where it stands.
void SortByInsertion(Iterator first, Iterator last, const WalkedBefore& before)
{
    for (Iterator current = first; current != last; ++current)
    {
        Iterator target = current;
        if (before(*current, *first))
        {
            target = first;
        }
        else
        {
            while (target != first && before(*current, *(target - 1)))
            {
                --target;
            }
        }
        std::rotate(target, current, current + 1);
    }
}

/// Merges two sorted neighbours. A station of the second comes first only if it is walked before.
std::vector<Station> Merge(Iterator first, Iterator middle, Iterator last, const WalkedBefore& before)
{
    std::vector<Station> merged;
    merged.reserve(static_cast<std::size_t>(last - first));
    Iterator left = first;
    Iterator right = middle;
    while (left != middle && right != last)
    {
        merged.push_back(before(*right, *left) ? *right++ : *left++);
    }
    merged.insert(merged.end(), left, middle);
    merged.insert(merged.end(), right, last);
    return merged;
}

} // namespace

void SortByImages(std::vector<Station>& stations, const std::vector<double>& images, bool upward)
{
    const WalkedBefore before(images, upward);
    const auto isOutOfOrder = [&](const Station& station, const Station& next) {
        return !before.IsInOrder(station, next);
    };
    if (std::adjacent_find(stations.begin(), stations.end(), isOutOfOrder) == stations.end())
    {
        return;
    }
    const std::size_t count = stations.size();
    const auto at = [&](std::size_t index) {
        return stations.begin() + static_cast<std::ptrdiff_t>(std::min(index, count));
    };
    for (std::size_t block = 0; block < count; block += InsertionBlock)
    {
        SortByInsertion(at(block), at(block + InsertionBlock), before);
    }
    for (std::size_t width = InsertionBlock; width < count; width *= 2)
    {
        for (std::size_t block = 0; block + width < count; block += 2 * width)
        {
            const std::vector<Station> merged = Merge(at(block), at(block + width), at(block + 2 * width), before);
            std::copy(merged.begin(), merged.end(), at(block));
        }
    }
}

} // namespace math::detail
