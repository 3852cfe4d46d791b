#include "primitives/RequireChecks.h"

#include "math/AnalyticKernel.h"

#include <Standard_OutOfRange.hxx>
#include <StdFail_NotDone.hxx>

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection()
    : isDone(false),
      isParallel(false),
      isIdentical(false),
      isEmpty(false),
      pointCount(0)
{
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Lin2d& first, const gp_Lin2d& second)
    : IntAna2d_AnaIntersection()
{
    Perform(first, second);
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Circ2d& first, const gp_Circ2d& second)
    : IntAna2d_AnaIntersection()
{
    Perform(first, second);
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Lin2d& line, const gp_Circ2d& circle)
    : IntAna2d_AnaIntersection()
{
    Perform(line, circle);
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const IntAna2d_AnaIntersection& other) = default;

IntAna2d_AnaIntersection& IntAna2d_AnaIntersection::operator=(const IntAna2d_AnaIntersection& other) = default;

// Elements that meet in single points, or nowhere.
void IntAna2d_AnaIntersection::SetPointCount(int count)
{
    isParallel = false;
    isIdentical = false;
    isEmpty = count == 0;
    pointCount = count;
}

// Parallel lines or concentric circles.
void IntAna2d_AnaIntersection::SetCoincidence(bool areIdentical)
{
    isParallel = true;
    isIdentical = areIdentical;
    isEmpty = !areIdentical;
    pointCount = 0;
}

bool IntAna2d_AnaIntersection::IsDone() const
{
    return isDone;
}

bool IntAna2d_AnaIntersection::IsParallel() const
{
    return isParallel;
}

bool IntAna2d_AnaIntersection::IsIdentical() const
{
    return isIdentical;
}

bool IntAna2d_AnaIntersection::IsEmpty() const
{
    return isEmpty;
}

int IntAna2d_AnaIntersection::PointCount() const
{
    return pointCount;
}

const IntAna2d_IntPoint& IntAna2d_AnaIntersection::Point(int n) const
{
    if (!isDone)
    {
        throw StdFail_NotDone();
    }
    if (n < 1 || n > pointCount)
    {
        throw Standard_OutOfRange();
    }
    return points[n - 1];
}
