// A library that defines the classes of the analytic kernel under the same global names, and differently: it answers
// nonsense and counts its calls. Sharing the header makes the names the same to the letter.

#include "math/AnalyticKernel.h"

namespace
{

int calls = 0;

/// The only number that the imposter knows.
const double Nonsense = 12345.0;

double CountCall()
{
    ++calls;
    return Nonsense;
}

gp_Circ2d NonsenseCircle()
{
    return gp_Circ2d(gp_Ax2d(gp_Pnt2d(CountCall(), Nonsense), gp_Dir2d(0, 1)), Nonsense);
}

} // namespace

extern "C" QORMATH_EXPORT int ImposterCalls()
{
    return calls;
}

IntAna2d_IntPoint::IntAna2d_IntPoint()
    : paramOnFirst(CountCall()),
      paramOnSecond(Nonsense),
      value(Nonsense, Nonsense),
      secondIsImplicit(true)
{
}

IntAna2d_IntPoint::IntAna2d_IntPoint(double, double, double, double) : IntAna2d_IntPoint()
{
}

IntAna2d_IntPoint::IntAna2d_IntPoint(double, double, double) : IntAna2d_IntPoint()
{
}

IntAna2d_IntPoint::IntAna2d_IntPoint(const IntAna2d_IntPoint&) : IntAna2d_IntPoint()
{
}

IntAna2d_IntPoint& IntAna2d_IntPoint::operator=(const IntAna2d_IntPoint&)
{
    CountCall();
    return *this;
}

void IntAna2d_IntPoint::SetValue(double, double, double)
{
    CountCall();
}

void IntAna2d_IntPoint::SetValue(double, double, double, double)
{
    CountCall();
}

double IntAna2d_IntPoint::ParamOnFirst() const
{
    CountCall();
    return paramOnFirst;
}

double IntAna2d_IntPoint::ParamOnSecond() const
{
    CountCall();
    return paramOnSecond;
}

double IntAna2d_IntPoint::X() const
{
    return CountCall();
}

double IntAna2d_IntPoint::Y() const
{
    return CountCall();
}

const gp_Pnt2d& IntAna2d_IntPoint::Value() const
{
    CountCall();
    return value;
}

bool IntAna2d_IntPoint::SecondIsImplicit() const
{
    CountCall();
    return secondIsImplicit;
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection()
    : isDone(true),
      isParallel(false),
      isIdentical(false),
      isEmpty(false),
      pointCount(2)
{
    CountCall();
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Lin2d&, const gp_Lin2d&) : IntAna2d_AnaIntersection()
{
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Circ2d&, const gp_Circ2d&) : IntAna2d_AnaIntersection()
{
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Lin2d&, const gp_Circ2d&) : IntAna2d_AnaIntersection()
{
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const IntAna2d_AnaIntersection&) : IntAna2d_AnaIntersection()
{
}

IntAna2d_AnaIntersection& IntAna2d_AnaIntersection::operator=(const IntAna2d_AnaIntersection&)
{
    CountCall();
    return *this;
}

void IntAna2d_AnaIntersection::Perform(const gp_Lin2d&, const gp_Lin2d&)
{
    CountCall();
}

void IntAna2d_AnaIntersection::Perform(const gp_Circ2d&, const gp_Circ2d&)
{
    CountCall();
}

void IntAna2d_AnaIntersection::Perform(const gp_Lin2d&, const gp_Circ2d&)
{
    CountCall();
}

bool IntAna2d_AnaIntersection::IsDone() const
{
    CountCall();
    return isDone;
}

bool IntAna2d_AnaIntersection::IsParallel() const
{
    CountCall();
    return isParallel;
}

bool IntAna2d_AnaIntersection::IsIdentical() const
{
    CountCall();
    return isIdentical;
}

bool IntAna2d_AnaIntersection::IsEmpty() const
{
    CountCall();
    return isEmpty;
}

int IntAna2d_AnaIntersection::PointCount() const
{
    CountCall();
    return pointCount;
}

const IntAna2d_IntPoint& IntAna2d_AnaIntersection::Point(int) const
{
    CountCall();
    return points[0];
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Pnt2d&, const gp_Pnt2d&, const gp_Pnt2d&)
    : status(Done),
      circle(NonsenseCircle())
{
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Ax2d&, double, bool) : status(Done), circle(NonsenseCircle())
{
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Ax22d&, double) : status(Done), circle(NonsenseCircle())
{
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Pnt2d&, double, bool) : status(Done), circle(NonsenseCircle())
{
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Pnt2d&, const gp_Pnt2d&, bool) : status(Done), circle(NonsenseCircle())
{
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Circ2d&, const gp_Pnt2d&) : status(Done), circle(NonsenseCircle())
{
}

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Circ2d&, double) : status(Done), circle(NonsenseCircle())
{
}

int gce_MakeCirc2d::Status() const
{
    CountCall();
    return status;
}

bool gce_MakeCirc2d::IsDone() const
{
    CountCall();
    return true;
}

const gp_Circ2d& gce_MakeCirc2d::Value() const
{
    CountCall();
    return circle;
}

const gp_Circ2d& gce_MakeCirc2d::Operator() const
{
    CountCall();
    return circle;
}

gce_MakeCirc2d::operator gp_Circ2d() const
{
    CountCall();
    return circle;
}
