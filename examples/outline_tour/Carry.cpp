#include "Carry.h"

#include "common/Problem.h"
#include "common/Text.h"

#include "math/CPolyPosMapUtilies.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace example::tour
{

namespace
{

using math::CPolyline;
using math::CPolyPosMap;
using math::CPolyPosMapUtilies;
using math::PosRangeD;

constexpr int StepCount = 12;

/// Ends of a cut nearer than this would be read as the whole outline, or leave a piece of no length.
constexpr double SamePosition = 1e-6;

/// Images that differ by less come from one place: a composition rounds more often than a single map.
constexpr double SameImage = 1e-6;

/// Tells whether one of the positions is the given one. On a closed outline the first and the last are one place.
bool Holds(const std::vector<double>& positions, double position, const CPolyline& outline)
{
    return std::any_of(positions.begin(), positions.end(), [&](double other) {
        const double distance = std::abs(other - position);
        const double overTheSeam = std::abs(SegmentCount(outline) - distance);
        return distance < SameImage || (outline.IsClosed() && overTheSeam < SameImage);
    });
}

/// The images of a position. An empty map is one of which nothing survived here, not one that changes nothing.
std::vector<double> RawImages(const CPolyPosMap& map, double position)
{
    return map.IsEmpty() ? std::vector<double>() : map * position;
}

std::vector<double> NormalizedImages(const CPolyPosMap& map, double position)
{
    std::vector<double> images;
    for (const double raw : RawImages(map, position))
    {
        images.push_back(PosRangeD::NormalizePos(raw, map.DstSegmentCount()));
    }
    return images;
}

/// Finds the images of a position of the piece, each once, and holds them against those of the maps one by one. Those
/// that only the seam of the piece brings come last.
void FindImages(const Carrying& carrying, const Rebuild& rebuild, CarriedPosition& carried)
{
    const std::vector<double> stepByStep = NormalizedImages(rebuild.map, carried.onOutline);
    std::vector<double> composed;
    for (const double raw : RawImages(carrying.pieceToRebuilt, carried.onPiece))
    {
        const double position = PosRangeD::NormalizePos(raw, carrying.pieceToRebuilt.DstSegmentCount());
        if (!Holds(composed, position, rebuild.outline))
        {
            composed.push_back(position);
            carried.images.push_back(
                {raw, position, PlaceAt(rebuild.outline, position), !Holds(stepByStep, position, rebuild.outline)});
        }
    }
    std::stable_partition(carried.images.begin(), carried.images.end(),
                          [](const Image& image) { return !image.throughSeam; });
    std::copy_if(stepByStep.begin(), stepByStep.end(), std::back_inserter(carried.missed),
                 [&](double position) { return !Holds(composed, position, rebuild.outline); });
}

std::string CutText(const PosRangeD& cut)
{
    return Short(cut.start, 6) + ":" + Short(cut.end, 6);
}

} // namespace

PosRangeD ChooseCut(const std::optional<PosRangeD>& wanted, const CPolyline& outline)
{
    const int count = SegmentCount(outline);
    if (!wanted)
    {
        return PosRangeD(std::floor(0.08 * count) + 0.25, std::floor(0.46 * count) + 0.5);
    }
    const bool inside = wanted->start >= 0 && wanted->end >= 0 && wanted->start <= count && wanted->end <= count;
    if (!inside)
    {
        throw Problem("the cut " + CutText(*wanted) + " leaves the outline, whose positions are 0 to " +
                      std::to_string(count));
    }
    if (std::abs(wanted->start - wanted->end) < SamePosition)
    {
        throw Problem("the cut " + CutText(*wanted) + " is no stretch: its two positions are one");
    }
    if (wanted->start > wanted->end && !outline.IsClosed())
    {
        throw Problem("the cut " + CutText(*wanted) + " runs backwards, and the outline is open: no way over the seam");
    }
    return *wanted;
}

Carrying CarryPositions(const CPolyline& outline, const PosRangeD& cut, const Rebuild& rebuild)
{
    Carrying carrying;
    carrying.cut = cut;
    carrying.pieceToOutline = CPolyPosMapUtilies::GeneratePosMapFromCadByPosrange2OriginCad(cut, SegmentCount(outline));
    carrying.pieceToRebuilt = carrying.pieceToOutline * rebuild.map;
    const int segments = carrying.pieceToOutline.SrcSegmentCount();
    for (int step = 0; step <= StepCount; ++step)
    {
        CarriedPosition carried;
        carried.onPiece = double(segments) * step / StepCount;
        carried.onOutline = NormalizedImages(carrying.pieceToOutline, carried.onPiece).at(0);
        carried.point = PlaceAt(outline, carried.onOutline).point;
        FindImages(carrying, rebuild, carried);
        carrying.positions.push_back(carried);
    }
    return carrying;
}

} // namespace example::tour
