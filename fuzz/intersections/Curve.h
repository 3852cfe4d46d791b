#pragma once

#include "Decoder.h"

#include "math/Primitives.h"

#include <array>
#include <vector>

// The curves of the intersection family as one record, how an input tells them, and how far a point is from them.

namespace fuzz
{

/// One of the six kinds of curves by the letter of its kind. Its points lie elsewhere, in places that a caller of a
/// member may also name as outputs.
struct Curve
{
    /// B beeline, L stretch, C circle, A arc, E ellipse, F elliptical arc.
    char kind = 'B';
    const math::DPOINT2* p = nullptr; ///< point, first end, or centre
    const math::DPOINT2* q = nullptr; ///< second end
    double angle = 0.0;
    double a = 0.0; ///< radius or semi-axis
    double b = 0.0;
    double rotation = 0.0;
    double start = 0.0;
    double sweep = 0.0;
};

/// Takes a curve of a kind from the input. `points` are the places of its two points.
Curve NextCurve(Decoder& decoder, char kind, math::DPOINT2* points);

/// A curve of clear size near the origin, on which points are found to a millionth.
bool IsTame(const Curve& curve);

/// The distance of a point from a tame curve that is no ellipse, by a plain second method.
double DistanceFrom(const Curve& curve, const math::DPOINT2& point);

/// How far a point is from a tame ellipse: about its distance in units of the semi-axes.
double EllipseResidual(const Curve& curve, const math::DPOINT2& point);

/// The laws of a member of the family at one pair of curves: `index` counts the members.
void CheckMember(int index, Decoder& decoder);

/// The laws of primitives, of the kernel and of equations at some numbers.
void CheckPrimitive(Decoder& decoder);
void CheckKernel(Decoder& decoder);
void CheckEquation(Decoder& decoder);

} // namespace fuzz
