#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>

namespace math
{

namespace
{

struct EllipseShape
{
    double a;
    double b;
    double rotation;
};

// Wider than DoubleTolerance: near the axes the construction loses its direction to rounding.
bool AreEqualRotations(double rotation, double other)
{
    return std::abs(rotation - other) < 1e-06;
}

double ClampedToUnit(double value)
{
    if (value > 1.0)
    {
        return 1.0;
    }
    return value < -1.0 ? -1.0 : value;
}

// Rytz's construction: the images of the semi-axes are conjugate semi-diameters of the image.
EllipseShape ScaleEllipseRytz(const EllipseShape& shape, double factor)
{
    const double growth = factor * factor - 1.0;
    const double cosine = std::cos(shape.rotation);
    const double sine = std::sin(shape.rotation);
    const double tangent = std::tan(shape.rotation);

    // Lengths p and q of the two semi-diameters and the angle between them.
    const double p = std::sqrt(growth * (cosine * cosine) + 1.0) * shape.a;
    const double q = std::sqrt(growth * (sine * sine) + 1.0) * shape.b;
    const double between = std::atan(1.0 / (tangent * factor)) + std::atan(tangent / factor);
    const double sineBetween = std::sin(between);

    const double differenceSquared = p * p + q * q - p * 2.0 * q * sineBetween;
    const double difference = std::sqrt(differenceSquared);
    const double mean = std::sqrt(differenceSquared * 0.25 + q * q - (q - sineBetween * p) * q);
    const double a = mean + difference * 0.5;
    const double b = mean - difference * 0.5;

    const double w = (std::cos(between) * p) / (mean * 2.0);
    const double u = std::sqrt(1.0 - w * w);
    const double v = std::sqrt(b * b + q * q - u * q * 2.0 * b);
    const double turn = std::asin(ClampedToUnit((w * b) / v));
    const double imageOfFirst = std::atan2(sine * shape.a, cosine * shape.a * factor);
    return {a, b, RegularizeIncludedRadian(turn + (imageOfFirst - between))};
}

EllipseShape ScaledAlongX(const EllipseShape& shape, double factor)
{
    const auto& [a, b, rotation] = shape;
    if (detail::AreEqual(factor, 1.0))
    {
        return shape;
    }
    if (factor < 0.0)
    {
        return ScaledAlongX({a, b, RegularizeIncludedRadian(-rotation)}, -factor);
    }
    if (AreEqualRotations(rotation, 0.0) || AreEqualRotations(rotation, detail::Pi))
    {
        return {a * factor, b, rotation};
    }
    if (AreEqualRotations(rotation, detail::HalfPi))
    {
        return {a, b * factor, rotation};
    }
    if (detail::HalfPi < rotation && rotation < detail::Pi)
    {
        const EllipseShape mirrored = ScaledAlongX({a, b, RegularizeIncludedRadian(-rotation)}, factor);
        return {mirrored.a, mirrored.b, RegularizeIncludedRadian(-mirrored.rotation)};
    }
    return ScaleEllipseRytz(shape, factor);
}

// Along y the ellipse is seen from a frame turned by a quarter turn.
EllipseShape ScaledAlongY(const EllipseShape& shape, double factor)
{
    if (shape.a > shape.b)
    {
        const double turned = RegularizeIncludedRadian(shape.rotation - detail::HalfPi);
        const EllipseShape scaled = ScaledAlongX({shape.a, shape.b, turned}, factor);
        return {scaled.a, scaled.b, RegularizeIncludedRadian(scaled.rotation + detail::HalfPi)};
    }
    // The same ellipse with its axes exchanged needs no turn.
    const EllipseShape scaled = ScaledAlongX({shape.b, shape.a, shape.rotation}, factor);
    return {scaled.b, scaled.a, scaled.rotation};
}

} // namespace

bool ScaleEllipse(double* a, double* b, double* rotation, double factor)
{
    const EllipseShape scaled = ScaledAlongX({*a, *b, *rotation}, factor);
    *a = scaled.a;
    *b = scaled.b;
    *rotation = scaled.rotation;
    return true;
}

bool ScaleEllipse(double* a, double* b, double* rotation, double factorX, double factorY)
{
    const EllipseShape scaled = ScaledAlongY(ScaledAlongX({*a, *b, *rotation}, factorX), factorY);
    *a = scaled.a;
    *b = scaled.b;
    *rotation = scaled.rotation;
    return true;
}

} // namespace math
