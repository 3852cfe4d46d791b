#pragma once

#include <cstddef>
#include <vector>

namespace math::detail
{

/// A place on a source, and where its images stand in a list: those of one place follow one another in the order in
/// which the destination is walked.
struct Station
{
    double place;
    std::size_t imagesBegin;
    std::size_t imagesEnd;

    bool HasNoImages() const
    {
        return imagesBegin == imagesEnd;
    }
};

/// Brings stations into the order in which their images are walked; they must have images and ascend by place.
///
/// One station comes before another only if both ends of its images lie before both ends of the other's by more than
/// the tolerance. Stations whose images share an end are neither before nor after one another, and that relation does
/// not carry over from pair to pair, so the order is no strict weak order. Up to 32 stations are sorted by insertion, as
/// the sorts of standard libraries treat short ranges: equivalent ones keep their order. Longer lists are sorted so in
/// blocks of 32, which are merged, equivalent stations in order. Either is safe with such a relation and gives the same
/// result on every platform.
void SortByImages(std::vector<Station>& stations, const std::vector<double>& images, bool upward);

} // namespace math::detail
