#pragma once

#include "support/catalogue/Answer.h"

#include "math/QorMath.h"

#include <gp_Ax22d.hxx>
#include <gp_Ax2d.hxx>
#include <gp_Circ2d.hxx>
#include <gp_Lin2d.hxx>
#include <gp_Pnt2d.hxx>
#include <gp_Vec2d.hxx>

#include <atomic>
#include <cstdint>
#include <utility>
#include <vector>

namespace math::test
{

/// An extension record with a list of its own, so that a clone asks for memory twice. Counts the records alive.
class Tag : public CPolyline::CExtendParam
{
public:
    explicit Tag(double value) : values(5, value)
    {
        ++alive;
    }
    Tag(const Tag& other) : CExtendParam(other), values(other.values)
    {
        ++alive;
    }
    Tag& operator=(const Tag& other) = delete;
    ~Tag() override
    {
        --alive;
    }

    CExtendParam* Clone() const override
    {
        return new Tag(*this);
    }

    std::vector<double> values;
    static std::atomic<int> alive;
};

struct Ellipse
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;
    double start; ///< of an arc of it
    double sweep; ///< of an arc of it
};

struct Arc
{
    DPOINT2 centre;
    double radius;
    double start;
    double sweep;
};

/// Operands for every operation of the interface. They are plain cases: curves cross, maps compose, lists grow.
struct Setting
{
    /// @param variant  settings of different variants differ in every number
    explicit Setting(int variant);

    /// The bits of all operands.
    Answer Bits() const;

    double x;
    double y;
    double z;
    double angle; ///< radians
    int whole;
    int otherWhole;
    std::int64_t longWhole;
    std::int64_t otherLongWhole;

    DPOINT2 p;
    DPOINT2 q;
    DPOINT2 r;
    DPOINT2 s;
    LineD2D line;
    LineD2D otherLine;
    ArcD arcRecord;
    DRECT box;
    DRECT otherBox;

    Arc arc;
    Arc otherArc;
    Ellipse ellipse;
    Ellipse otherEllipse;
    std::vector<DPOINT2> points; ///< holds one point; vector forms write here
    std::vector<double> roots;   ///< holds one number; vector forms write here

    gp_Vec2d vector;
    gp_Vec2d otherVector;
    gp_Lin2d kernelLine;
    gp_Lin2d otherKernelLine;
    gp_Circ2d kernelCircle;
    gp_Circ2d otherKernelCircle;
    IntAna2d_IntPoint kernelPoint;
    IntAna2d_AnaIntersection kernelResult;

    CSegment straight;
    CSegment curved;
    CSegment bezier;
    CPolyline outline;      ///< closed, 4 segments, one of them an arc, with a Tag
    CPolyline otherOutline; ///< open, more segments, with a Tag

    double position;
    PosRangeD forward;
    PosRangeD otherForward;
    PosRangeD wrapping;
    std::vector<PosRangeD> ranges; ///< one for each of 3 source segments
    std::vector<int> segmentMap;
    std::vector<std::pair<double, double>> pairs;

    CPolyPosMap map;       ///< from 4 segments to 5
    CPolyPosMap seamMap;   ///< from 5 segments to 6, over the seam of its source
    CPolyPosMap staircase; ///< from 4 segments to 4, with a corner that smoothing takes out
    CPolyPosMap downward;  ///< from 4 segments to 5, its source runs down
    CPolyPosMap firstHalf; ///< from 4 segments to 5, the part up to the middle
    CPolyPosMap secondHalf;
};

} // namespace math::test
