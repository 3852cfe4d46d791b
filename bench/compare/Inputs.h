#pragma once

#include "math/CPolyPosMap.h"
#include "math/CPolyline.h"
#include "math/CSegment.h"
#include "math/Primitives.h"

#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

// Inputs made at random from fixed seeds. Every list is made once and lives as long as the program.

namespace bench
{

using math::DPOINT2;

struct Stretch
{
    DPOINT2 from;
    DPOINT2 to;
};

struct Beeline
{
    DPOINT2 point;
    double angle;
};

struct Circle
{
    DPOINT2 centre;
    double radius;
};

struct Arc
{
    DPOINT2 centre;
    double radius;
    double start;
    double sweep;
};

struct Ellipse
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;
};

struct EllipseArc
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;
    double start;
    double sweep;
};

template <typename First, typename Second>
struct Two
{
    First first;
    Second second;
};

struct Coefficients
{
    double a;
    double b;
    double c;
    double d;
};

struct SegmentAndParameter
{
    math::CSegment segment;
    double t;
};

struct SegmentAndPoint
{
    math::CSegment segment;
    DPOINT2 point;
};

/// An outline, some positions on it and some points beside it.
struct OutlineInput
{
    math::CPolyline outline;
    double position;
    DPOINT2 point;
};

struct MapAndPosition
{
    math::CPolyPosMap map;
    double position;
};

using MapPair = Two<math::CPolyPosMap, math::CPolyPosMap>;

/// The same numbers on every platform.
class Random
{
public:
    explicit Random(std::uint64_t seed) : m_engine(seed)
    {
    }

    double Between(double low, double high)
    {
        return low + (high - low) * (static_cast<double>(m_engine() >> 11) * 0x1p-53);
    }

    bool Coin()
    {
        return (m_engine() >> 63) != 0;
    }

    std::size_t Below(std::size_t limit)
    {
        return static_cast<std::size_t>(m_engine() % limit);
    }

private:
    std::mt19937_64 m_engine;
};

inline constexpr std::size_t InputCount = 4096;
inline constexpr std::size_t EllipseInputCount = 1024;

// Curves in a square of 10 by 10, about as large as the square

const std::vector<Two<Stretch, Stretch>>& StretchPairs();
const std::vector<Two<Beeline, Circle>>& BeelinesAndCircles();
const std::vector<Two<Stretch, Circle>>& StretchesAndCircles();
const std::vector<Two<Beeline, Arc>>& BeelinesAndArcs();
const std::vector<Two<Stretch, Arc>>& StretchesAndArcs();
const std::vector<Two<Circle, Circle>>& CirclePairs();
const std::vector<Two<Circle, Arc>>& CirclesAndArcs();
const std::vector<Two<Arc, Arc>>& ArcPairs();
const std::vector<Two<Beeline, Ellipse>>& BeelinesAndEllipses();
const std::vector<Two<Stretch, Ellipse>>& StretchesAndEllipses();
const std::vector<Two<Beeline, EllipseArc>>& BeelinesAndEllipseArcs();
const std::vector<Two<Stretch, EllipseArc>>& StretchesAndEllipseArcs();
const std::vector<Two<Ellipse, Ellipse>>& EllipsePairs();
const std::vector<Two<Circle, Ellipse>>& CirclesAndEllipses();
const std::vector<Two<Arc, Ellipse>>& ArcsAndEllipses();
const std::vector<Two<Ellipse, EllipseArc>>& EllipsesAndEllipseArcs();
const std::vector<Two<Circle, EllipseArc>>& CirclesAndEllipseArcs();
const std::vector<Two<Arc, EllipseArc>>& ArcsAndEllipseArcs();
const std::vector<Two<EllipseArc, EllipseArc>>& EllipseArcPairs();

// Equations

/// Quadratics (d is not used): half of them with two real roots, half with none.
const std::vector<Coefficients>& Quadratics();

/// Cubics, from three roots or from one root and a quadratic without roots.
const std::vector<Coefficients>& Cubics();

// Segments

enum class Kind
{
    Line,
    Arc,
    Bezier
};

const std::vector<SegmentAndParameter>& SegmentsAndParameters(Kind kind);
const std::vector<SegmentAndPoint>& SegmentsAndPoints(Kind kind);

// Outlines

/// Closed outlines of `count` straight segments with the length 1 each: a position is the length up to it.
const std::vector<OutlineInput>& StraightOutlines(std::size_t count);

/// Closed outlines of `count` segments, every second an arc.
const std::vector<OutlineInput>& CurvedOutlines(std::size_t count);

// Maps

enum class MapKind
{
    Plain,         ///< both columns rise all the way; joints off the whole positions
    Seam,          ///< the same, begun in the middle of the source
    JumpsAndFlats, ///< a jump and a flat among every ten steps
    Staircase      ///< small corners, for smoothing
};

/// Maps of `joints` joints between polylines of as many segments. There are more of the small ones.
const std::vector<math::CPolyPosMap>& Maps(std::size_t joints, MapKind kind);

/// Two maps that follow one another.
const std::vector<MapPair>& MapPairs(std::size_t joints, MapKind kind);

/// Maps with a source position each.
const std::vector<MapAndPosition>& MapsAndPositions(std::size_t joints);

/// Sizes of outlines and maps.
inline constexpr std::size_t OutlineSizes[] = {10, 100, 1000, 10000};
inline constexpr std::size_t MapSizes[] = {10, 100, 1000, 10000, 100000};

} // namespace bench
