#include "primitives/RequireChecks.h"

#include "math/AnalyticKernel.h"

#include <cmath>
#include <limits>

#include <StdFail_NotDone.hxx>
#include <gp.hxx>
#include <gp_Dir2d.hxx>

namespace
{

// Below it two points are too near each other for a bisector between them.
constexpr double SmallDistance = std::numeric_limits<double>::epsilon();

gp_Ax2d AxisAlongX(const gp_Pnt2d& centre)
{
    return {centre, gp_Dir2d(1.0, 0.0)};
}

// Square to the way from p to q.
gp_Dir2d NormalDirection(const gp_Pnt2d& p, const gp_Pnt2d& q)
{
    return {p.Y() - q.Y(), q.X() - p.X()};
}

gp_Lin2d PerpendicularBisector(const gp_Pnt2d& p, const gp_Pnt2d& q)
{
    return {gp_Pnt2d((p.X() + q.X()) / 2.0, (p.Y() + q.Y()) / 2.0), NormalDirection(p, q)};
}

struct Bisectors
{
    gp_Lin2d first;
    gp_Lin2d second;
};

// Of p1 and p2, and of p1 and p3. A bisector that is missing, since its two points are one, is replaced by a line
// through p1.
Bisectors BisectorsOf(const gp_Pnt2d& p1, const gp_Pnt2d& p2, const gp_Pnt2d& p3)
{
    const double distance12 = p1.Distance(p2);
    const double distance13 = p1.Distance(p3);
    const double distance23 = p2.Distance(p3);
    Bisectors lines;
    if (distance12 >= SmallDistance)
    {
        lines.first = PerpendicularBisector(p1, p2);
    }
    if (distance13 >= SmallDistance)
    {
        lines.second = PerpendicularBisector(p1, p3);
    }
    if (distance13 <= SmallDistance)
    {
        lines.second = gp_Lin2d(p1, NormalDirection(p1, p2));
    }
    else if (distance12 <= SmallDistance)
    {
        lines.first = gp_Lin2d(p1, NormalDirection(p1, p3));
    }
    else if (distance23 <= SmallDistance)
    {
        lines.second = gp_Lin2d(p1, NormalDirection(p1, p2));
    }
    return lines;
}

bool AreInOnePlace(const gp_Pnt2d& p1, const gp_Pnt2d& p2, const gp_Pnt2d& p3)
{
    return p1.Distance(p2) < gp::Resolution() && p1.Distance(p3) < gp::Resolution() &&
           p2.Distance(p3) < gp::Resolution();
}

gp_Circ2d CircleAbout(const gp_Pnt2d& centre, const gp_Pnt2d& p1, const gp_Pnt2d& p2, const gp_Pnt2d& p3)
{
    const double radius = (centre.Distance(p1) + centre.Distance(p2) + centre.Distance(p3)) / 3.0;
    gp_Circ2d circle(gp_Ax22d(centre, gp_Dir2d(1.0, 0.0), gp_Dir2d(0.0, 1.0)), radius);
    const double parameter1 = ElCLib::CircleParameter(circle.Axis(), p1);
    const double parameter2 = ElCLib::CircleParameter(circle.Axis(), p2);
    const double parameter3 = ElCLib::CircleParameter(circle.Axis(), p3);
    if (parameter2 < parameter1 || parameter3 < parameter2)
    {
        circle.Reverse();
    }
    return circle;
}

} // namespace

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Pnt2d& p1, const gp_Pnt2d& p2, const gp_Pnt2d& p3) : status(Done)
{
    if (AreInOnePlace(p1, p2, p3))
    {
        result = gp_Circ2d(AxisAlongX(p1), 0.0);
        return;
    }
    const Bisectors lines = BisectorsOf(p1, p2, p3);
    const IntAna2d_AnaIntersection meeting(lines.first, lines.second);
    if (meeting.PointCount() == 0 && !meeting.IsIdentical())
    {
        status = Collinear;
        return;
    }
    // Where both bisectors are one line there is no point to read, and the exception goes to the caller.
    result = CircleAbout(meeting.Point(1).Value(), p1, p2, p3);
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Ax2d& axis, double radius, bool sense) : status(Done)
{
    if (radius < 0.0)
    {
        status = NegativeRadius;
        return;
    }
    result = gp_Circ2d(axis, radius, sense);
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Ax22d& axes, double radius) : status(Done)
{
    if (radius < 0.0)
    {
        status = NegativeRadius;
        return;
    }
    result = gp_Circ2d(axes, radius);
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Pnt2d& centre, double radius, bool sense)
    : gce_MakeCirc2d(AxisAlongX(centre), radius, sense)
{
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Pnt2d& centre, const gp_Pnt2d& point, bool sense)
    : gce_MakeCirc2d(centre, centre.Distance(point), sense)
{
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Circ2d& circle, const gp_Pnt2d& point)
    : gce_MakeCirc2d(circle.Axis(), circle.Location().Distance(point))
{
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Circ2d& circle, double distance)
    : gce_MakeCirc2d(circle.Axis(), std::abs(circle.Radius() + distance))
{
}

int gce_MakeCirc2d::Status() const
{
    return status;
}

bool gce_MakeCirc2d::IsDone() const
{
    return status == Done;
}

const gp_Circ2d& gce_MakeCirc2d::Value() const
{
    if (status != Done)
    {
        throw StdFail_NotDone("gce_MakeCirc2d::Value() - no result");
    }
    return result;
}

const gp_Circ2d& gce_MakeCirc2d::Operator() const
{
    return Value();
}

gce_MakeCirc2d::operator gp_Circ2d() const
{
    return Value();
}
