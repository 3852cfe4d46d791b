#include "Pieces.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace example::story
{

namespace
{

using Joint = std::pair<double, double>;

/// Adds where on the way from one value to another, told from 0 to 1, multiples of the count are passed.
void AddSeams(double from, double to, int count, std::vector<double>& cuts)
{
    const double low = std::min(from, to);
    const double high = std::max(from, to);
    for (double seam = count * (std::floor(low / count) + 1); seam < high; seam += count)
    {
        cuts.push_back((seam - from) / (to - from));
    }
}

/// Moves both ends by whole laps, so that their middle lies on the lap from 0 to the count.
std::pair<double, double> Wrapped(double from, double to, int count)
{
    const double middle = (from + to) / 2;
    const double laps = math::PosRangeD::NormalizePos(middle, count) - middle;
    return {from + laps, to + laps};
}

PieceKind KindOf(const Joint& from, const Joint& to)
{
    if (from.first == to.first)
    {
        return PieceKind::Jump;
    }
    return from.second == to.second ? PieceKind::Flat : PieceKind::Straight;
}

Piece PieceBetween(const Joint& from, const Joint& to, const math::CPolyPosMap& map)
{
    const auto [sourceFrom, sourceTo] = Wrapped(from.first, to.first, map.SrcSegmentCount());
    const auto [destinationFrom, destinationTo] = Wrapped(from.second, to.second, map.DstSegmentCount());
    return {KindOf(from, to), sourceFrom, sourceTo, destinationFrom, destinationTo};
}

} // namespace

std::vector<Piece> PiecesOf(const math::CPolyPosMap& map)
{
    std::vector<Piece> pieces;
    const std::vector<Joint>& joints = map.PosPairs();
    for (std::size_t i = 1; i < joints.size(); ++i)
    {
        const Joint& from = joints[i - 1];
        const Joint& to = joints[i];
        std::vector<double> cuts = {0.0, 1.0};
        AddSeams(from.first, to.first, map.SrcSegmentCount(), cuts);
        AddSeams(from.second, to.second, map.DstSegmentCount(), cuts);
        std::sort(cuts.begin(), cuts.end());
        const auto at = [&](double t) {
            return Joint(from.first + t * (to.first - from.first), from.second + t * (to.second - from.second));
        };
        for (std::size_t k = 1; k < cuts.size(); ++k)
        {
            pieces.push_back(PieceBetween(at(cuts[k - 1]), at(cuts[k]), map));
        }
    }
    return pieces;
}

} // namespace example::story
