#include "position/SortByImages.h"

#include "primitives/Tolerance.h"

#include <algorithm>
#include <cstddef>

namespace math::detail
{

namespace
{

constexpr std::size_t InsertionBlock = 32;

class WalkedBefore
{
public:
    WalkedBefore(const ImageTable& images, bool upward) : m_images(images), m_upward(upward)
    {
    }

    bool operator()(double place, double otherPlace) const
    {
        const std::vector<double>& own = m_images.find(place)->second;
        const std::vector<double>& other = m_images.find(otherPlace)->second;
        return LiesBefore(own.back(), other.back()) && LiesBefore(own.front(), other.front());
    }

private:
    bool LiesBefore(double image, double otherImage) const
    {
        return !AreEqual(image, otherImage) && (m_upward ? image < otherImage : image > otherImage);
    }

    const ImageTable& m_images;
    bool m_upward;
};

using Iterator = std::vector<double>::iterator;

/// A place before the very first goes to the front at once; any other walks back from where it stands.
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

/// Merges two sorted neighbours. A place of the second comes first only if it is walked before.
std::vector<double> Merge(Iterator first, Iterator middle, Iterator last, const WalkedBefore& before)
{
    std::vector<double> merged;
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

void SortByImages(std::vector<double>& places, const ImageTable& images, bool upward)
{
    const WalkedBefore before(images, upward);
    const std::size_t count = places.size();
    const auto at = [&](std::size_t index) {
        return places.begin() + static_cast<std::ptrdiff_t>(std::min(index, count));
    };
    for (std::size_t block = 0; block < count; block += InsertionBlock)
    {
        SortByInsertion(at(block), at(block + InsertionBlock), before);
    }
    for (std::size_t width = InsertionBlock; width < count; width *= 2)
    {
        for (std::size_t block = 0; block + width < count; block += 2 * width)
        {
            const std::vector<double> merged = Merge(at(block), at(block + width), at(block + 2 * width), before);
            std::copy(merged.begin(), merged.end(), at(block));
        }
    }
}

} // namespace math::detail
