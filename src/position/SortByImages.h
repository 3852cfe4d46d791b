#pragma once

#include <map>
#include <vector>

namespace math::detail
{

/// Places on a source and their images, each list in the order in which the destination is walked.
using ImageTable = std::map<double, std::vector<double>>;

/// Brings places into the order in which their images are walked; they must be given ascending and be in the table.
///
/// One place comes before another only if both ends of its image list lie before both ends of the other's by more than
/// the tolerance. Places whose lists share an end are neither before nor after one another, and that relation does not
/// carry over from pair to pair, so the order is no strict weak order. Up to 32 places are sorted by insertion, as the
/// sorts of standard libraries treat short ranges: places that compare equivalent keep their order. Longer lists are
/// sorted so in blocks of 32, which are merged, equivalent places in order. Either is safe with such a relation and
/// gives the same result on every platform.
void SortByImages(std::vector<double>& places, const ImageTable& images, bool upward);

} // namespace math::detail
