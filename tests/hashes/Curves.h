#pragma once

#include "Source.h"

// Curves and pairs of curves: at random, and placed so that they touch, share ends, lie on one another or nearly so.

namespace math::hashes
{

struct Stretch
{
    DPOINT2 a;
    DPOINT2 b;
};

struct Beeline
{
    DPOINT2 point;
    double angle;
};

/// A circle, or an arc of it.
struct Arc
{
    DPOINT2 centre;
    double radius;
    double start;
    double sweep;
};

/// An ellipse, or an arc of it.
struct EllipseArc
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;
    double start;
    double sweep;
};

Stretch RandomStretch(Source& source);
Arc RandomArc(Source& source);
EllipseArc RandomEllipseArc(Source& source);

struct TwoStretches
{
    Stretch first;
    Stretch second;
};
TwoStretches RandomStretches(Source& source);

struct TwoBeelines
{
    Beeline first;
    Beeline second;
};
TwoBeelines RandomBeelines(Source& source);

struct BeelineAndStretch
{
    Beeline beeline;
    Stretch stretch;
};
BeelineAndStretch RandomBeelineAndStretch(Source& source);

struct BeelineAndArc
{
    Beeline beeline;
    Arc arc;
};
BeelineAndArc RandomBeelineAndArc(Source& source);

struct StretchAndArc
{
    Stretch stretch;
    Arc arc;
};
StretchAndArc RandomStretchAndArc(Source& source);

struct TwoArcs
{
    Arc first;
    Arc second;
};
TwoArcs RandomArcs(Source& source);

struct BeelineAndEllipse
{
    Beeline beeline;
    EllipseArc ellipse;
};
BeelineAndEllipse RandomBeelineAndEllipse(Source& source);

struct StretchAndEllipse
{
    Stretch stretch;
    EllipseArc ellipse;
};
StretchAndEllipse RandomStretchAndEllipse(Source& source);

struct ArcAndEllipse
{
    Arc arc;
    EllipseArc ellipse;
};
ArcAndEllipse RandomArcAndEllipse(Source& source);

struct TwoEllipses
{
    EllipseArc first;
    EllipseArc second;
};
TwoEllipses RandomEllipses(Source& source);

/// A point on the curve, at an end of it, near it, or anywhere.
/// @{
DPOINT2 PointBy(Source& source, const Stretch& stretch);
DPOINT2 PointBy(Source& source, const Arc& arc);
DPOINT2 PointBy(Source& source, const EllipseArc& ellipse);
/// @}

} // namespace math::hashes
