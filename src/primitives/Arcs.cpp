#include "primitives/RequireChecks.h"

#include "math/AnalyticKernel.h"
#include "math/Primitives.h"
#include "primitives/Direction.h"
#include "primitives/Distance.h"
#include "primitives/Outputs.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math
{

namespace
{

bool IsCentreOnTheLeft(double bulge)
{
    return (0.0 < bulge && bulge <= 1.0) || bulge <= -1.0;
}

DPOINT2 CentreOfArc(const DPOINT2& first, const DPOINT2& second, double chordLength, double bulge,
                    double distanceFromChord)
{
    const double middleX = (first.x + second.x) * 0.5;
    const double middleY = (first.y + second.y) * 0.5;
    // Along the left normal of the chord.
    const double stepX = distanceFromChord * (-(second.y - first.y) / chordLength);
    const double stepY = distanceFromChord * ((second.x - first.x) / chordLength);
    if (IsCentreOnTheLeft(bulge))
    {
        return {middleX + stepX, middleY + stepY};
    }
    return {middleX - stepX, middleY - stepY};
}

} // namespace

DPOINT2 GetPointInCircle(const DPOINT2& centre, double radius, double radian)
{
    return {centre.x + std::cos(radian) * radius, centre.y + std::sin(radian) * radius};
}

bool SolveArc(DPOINT2 first, DPOINT2 second, double bulge, DPOINT2* centre, double* radius, double* startRadian,
              double* sweep)
{
    const double chordLength = detail::Distance(first, second);
    if (detail::IsZero(chordLength) || detail::IsZero(bulge))
    {
        return false;
    }
    if (centre == nullptr && radius == nullptr && startRadian == nullptr && sweep == nullptr)
    {
        return false;
    }
    const double solvedSweep = 4.0 * std::atan(bulge);
    const double solvedRadius = std::abs((chordLength * 0.5) / std::sin(solvedSweep * 0.5));
    const double distanceFromChord = std::abs(std::cos(solvedSweep * 0.5) * solvedRadius);
    const DPOINT2 solvedCentre = CentreOfArc(first, second, chordLength, bulge, distanceFromChord);
    detail::Write(solvedSweep, sweep);
    detail::Write(solvedRadius, radius);
    detail::Write(solvedCentre, centre);
    if (startRadian != nullptr)
    {
        *startRadian = detail::DirectionBetween(solvedCentre, first);
    }
    return true;
}

bool CreateCircleFrom3Point(const DPOINT2& p1, const DPOINT2& p2, const DPOINT2& p3, DPOINT2* centre, double* radius)
{
    if (centre == nullptr || radius == nullptr)
    {
        return false;
    }
    try
    {
        const gce_MakeCirc2d made(gp_Pnt2d(p1.x, p1.y), gp_Pnt2d(p2.x, p2.y), gp_Pnt2d(p3.x, p3.y));
        if (!made.IsDone())
        {
            return false;
        }
        const gp_Circ2d& circle = made.Value();
        *centre = {circle.Location().X(), circle.Location().Y()};
        *radius = circle.Radius();
        return true;
    }
    catch (...)
    {
        return false;
    }
}

} // namespace math
