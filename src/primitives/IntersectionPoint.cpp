#include "primitives/RequireChecks.h"

#include "math/AnalyticKernel.h"

#include <limits>

// Nothing of this class is inline: its table of virtual functions, too, has to be this library's own.

IntAna2d_IntPoint::IntAna2d_IntPoint()
    : paramOnFirst(std::numeric_limits<double>::max()),
      paramOnSecond(std::numeric_limits<double>::max()),
      value(std::numeric_limits<double>::max(), std::numeric_limits<double>::max()),
      secondIsImplicit(false)
{
}

IntAna2d_IntPoint::IntAna2d_IntPoint(double x, double y, double onFirst, double onSecond)
    : paramOnFirst(onFirst),
      paramOnSecond(onSecond),
      value(x, y),
      secondIsImplicit(false)
{
}

IntAna2d_IntPoint::IntAna2d_IntPoint(double x, double y, double onFirst)
    : paramOnFirst(onFirst),
      paramOnSecond(std::numeric_limits<double>::max()),
      value(x, y),
      secondIsImplicit(true)
{
}

IntAna2d_IntPoint::IntAna2d_IntPoint(const IntAna2d_IntPoint& other) = default;

IntAna2d_IntPoint& IntAna2d_IntPoint::operator=(const IntAna2d_IntPoint& other) = default;

void IntAna2d_IntPoint::SetValue(double x, double y, double onFirst)
{
    value.SetCoord(x, y);
    paramOnFirst = onFirst;
    secondIsImplicit = true;
}

void IntAna2d_IntPoint::SetValue(double x, double y, double onFirst, double onSecond)
{
    value.SetCoord(x, y);
    paramOnFirst = onFirst;
    paramOnSecond = onSecond;
    secondIsImplicit = false;
}

double IntAna2d_IntPoint::ParamOnFirst() const
{
    return paramOnFirst;
}

double IntAna2d_IntPoint::ParamOnSecond() const
{
    return paramOnSecond;
}

double IntAna2d_IntPoint::X() const
{
    return value.X();
}

double IntAna2d_IntPoint::Y() const
{
    return value.Y();
}

const gp_Pnt2d& IntAna2d_IntPoint::Value() const
{
    return value;
}

bool IntAna2d_IntPoint::SecondIsImplicit() const
{
    return secondIsImplicit;
}
