#pragma once

#include "Source.h"

#include "math/QorMath.h"

namespace math::hashes
{

/// The bulge of an arc: often that of a half or a quarter circle, or one by the tolerance of straight segments.
double RandomBulge(Source& source);

/// A line or an arc, perhaps of no length.
CSegment RandomPiece(Source& source);

/// Any segment: a line, an arc, a Bezier curve, one without geometry, or a line that keeps the slot of an arc.
CSegment RandomSegment(Source& source);

/// A parameter: an end, beside an end, between or beyond the ends.
double RandomParameter(Source& source);

/// An outline of lines and arcs, closed half of the time, with repeated and nearly repeated points. Without extension.
CPolyline RandomOutline(Source& source);

/// An extension record with a value; counts the records that were destroyed.
class Tag : public CPolyline::CExtendParam
{
public:
    explicit Tag(int number) : value(number)
    {
    }
    Tag(const Tag& other) : CExtendParam(other), value(other.value)
    {
    }
    Tag& operator=(const Tag& other) = delete;
    ~Tag() override
    {
        ++destroyed;
    }
    CExtendParam* Clone() const override
    {
        return new Tag(*this);
    }

    int value;
    static int destroyed;
};

/// The value of an extension record, or -1 if there is none.
int ValueOf(const CPolyline::CExtendParam* param);

} // namespace math::hashes
