#pragma once

#include "math/CPolyline.h"

#include <optional>
#include <string>
#include <vector>

namespace example::tour
{

/// An unbounded straight line. Its direction only tells in which order crossings are listed.
struct Beeline
{
    math::DPOINT2 point;
    double degrees = 0; ///< from -180 to 180
};

enum class CrossingKind
{
    Point,  ///< inside a segment, or at the free end of an open outline
    Node,   ///< where two segments meet
    Stretch ///< the segment lies on the beeline
};

struct Crossing
{
    CrossingKind kind = CrossingKind::Point;
    double along = 0;    ///< way from the beeline's point in its direction; negative behind it
    double alongEnd = 0; ///< of a stretch: where the beeline leaves it; else the same as `along`
    math::DPOINT2 point; ///< of a stretch: where the beeline enters it
    std::size_t outline = 0;
    int segment = 0; ///< at a node: the segment that begins there
    double ratio = 0;
};

/// The unit vector of the direction.
math::DPOINT2 DirectionOf(const Beeline& beeline);

/// A beeline through the middle of the outline's box, steeply downhill.
Beeline DefaultBeeline(const math::CPolyline& outline);

/// Every place where the beeline meets an outline, in the order along the beeline.
///
/// Where it passes through the node between two segments, one crossing stands for both. A segment that lies on the
/// beeline is one crossing, and its ends are none of their own.
std::vector<Crossing> CrossingsOf(const Beeline& beeline, const std::vector<math::CPolyline>& outlines);

/// The letters by which the table and the picture call a crossing: A to Z, AA, AB and so on.
std::string CrossingName(std::size_t index);

} // namespace example::tour
