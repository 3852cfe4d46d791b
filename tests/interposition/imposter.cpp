// A library that defines the classes of the analytic kernel under the same global names, and differently: they have no
// fields, answer nonsense and count their calls.

#include "math/Export.h"

#include <gp_Ax22d.hxx>
#include <gp_Ax2d.hxx>
#include <gp_Circ2d.hxx>
#include <gp_Lin2d.hxx>
#include <gp_Pnt2d.hxx>

class QORMATH_EXPORT IntAna2d_IntPoint
{
public:
    IntAna2d_IntPoint();
    IntAna2d_IntPoint(double x, double y, double onFirst, double onSecond);
    IntAna2d_IntPoint(double x, double y, double onFirst);
    IntAna2d_IntPoint(const IntAna2d_IntPoint& other);
    IntAna2d_IntPoint& operator=(const IntAna2d_IntPoint& other);
    virtual void SetValue(double x, double y, double onFirst);
    virtual void SetValue(double x, double y, double onFirst, double onSecond);
    double ParamOnFirst() const;
    double ParamOnSecond() const;
    double X() const;
    double Y() const;
    const gp_Pnt2d& Value() const;
    bool SecondIsImplicit() const;
};

class QORMATH_EXPORT IntAna2d_AnaIntersection
{
public:
    IntAna2d_AnaIntersection();
    IntAna2d_AnaIntersection(const gp_Lin2d& first, const gp_Lin2d& second);
    IntAna2d_AnaIntersection(const gp_Circ2d& first, const gp_Circ2d& second);
    IntAna2d_AnaIntersection(const gp_Lin2d& line, const gp_Circ2d& circle);
    IntAna2d_AnaIntersection(const IntAna2d_AnaIntersection& other);
    IntAna2d_AnaIntersection& operator=(const IntAna2d_AnaIntersection& other);
    void Perform(const gp_Lin2d& first, const gp_Lin2d& second);
    void Perform(const gp_Circ2d& first, const gp_Circ2d& second);
    void Perform(const gp_Lin2d& line, const gp_Circ2d& circle);
    bool IsDone() const;
    bool IsParallel() const;
    bool IsIdentical() const;
    bool IsEmpty() const;
    int PointCount() const;
    const IntAna2d_IntPoint& Point(int n) const;
};

class QORMATH_EXPORT gce_MakeCirc2d
{
public:
    gce_MakeCirc2d(const gp_Pnt2d& p1, const gp_Pnt2d& p2, const gp_Pnt2d& p3);
    gce_MakeCirc2d(const gp_Ax2d& axis, double radius, bool sense);
    gce_MakeCirc2d(const gp_Ax22d& axes, double radius);
    gce_MakeCirc2d(const gp_Pnt2d& centre, double radius, bool sense);
    gce_MakeCirc2d(const gp_Pnt2d& centre, const gp_Pnt2d& point, bool sense);
    gce_MakeCirc2d(const gp_Circ2d& circle, const gp_Pnt2d& point);
    gce_MakeCirc2d(const gp_Circ2d& circle, double distance);
    int Status() const;
    bool IsDone() const;
    const gp_Circ2d& Value() const;
    const gp_Circ2d& Operator() const;
    operator gp_Circ2d() const;
};

namespace
{

const double Nonsense = 12345.0;

int calls = 0;

/// What every member calls: counts, and hands the answer through.
template <typename Answer>
Answer Say(Answer answer)
{
    ++calls;
    return answer;
}

const gp_Pnt2d& NonsensePoint()
{
    static const gp_Pnt2d point(Nonsense, Nonsense);
    return point;
}

const gp_Circ2d& NonsenseCircle()
{
    static const gp_Circ2d circle(gp_Ax2d(NonsensePoint(), gp_Dir2d(0, 1)), Nonsense);
    return circle;
}

const IntAna2d_IntPoint& NonsenseResult()
{
    static const IntAna2d_IntPoint result;
    return result;
}

} // namespace

extern "C" QORMATH_EXPORT int CallsOfImposter()
{
    return calls;
}

// clang-format off
IntAna2d_IntPoint::IntAna2d_IntPoint() { Say(0); }
IntAna2d_IntPoint::IntAna2d_IntPoint(double, double, double, double) { Say(0); }
IntAna2d_IntPoint::IntAna2d_IntPoint(double, double, double) { Say(0); }
IntAna2d_IntPoint::IntAna2d_IntPoint(const IntAna2d_IntPoint&) { Say(0); }
IntAna2d_IntPoint& IntAna2d_IntPoint::operator=(const IntAna2d_IntPoint&) { Say(0); return *this; }
void IntAna2d_IntPoint::SetValue(double, double, double) { Say(0); }
void IntAna2d_IntPoint::SetValue(double, double, double, double) { Say(0); }
double IntAna2d_IntPoint::ParamOnFirst() const { return Say(Nonsense); }
double IntAna2d_IntPoint::ParamOnSecond() const { return Say(Nonsense); }
double IntAna2d_IntPoint::X() const { return Say(Nonsense); }
double IntAna2d_IntPoint::Y() const { return Say(Nonsense); }
const gp_Pnt2d& IntAna2d_IntPoint::Value() const { Say(0); return NonsensePoint(); }
bool IntAna2d_IntPoint::SecondIsImplicit() const { return Say(true); }

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection() { Say(0); }
IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Lin2d&, const gp_Lin2d&) { Say(0); }
IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Circ2d&, const gp_Circ2d&) { Say(0); }
IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Lin2d&, const gp_Circ2d&) { Say(0); }
IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const IntAna2d_AnaIntersection&) { Say(0); }
IntAna2d_AnaIntersection& IntAna2d_AnaIntersection::operator=(const IntAna2d_AnaIntersection&) { Say(0); return *this; }
void IntAna2d_AnaIntersection::Perform(const gp_Lin2d&, const gp_Lin2d&) { Say(0); }
void IntAna2d_AnaIntersection::Perform(const gp_Circ2d&, const gp_Circ2d&) { Say(0); }
void IntAna2d_AnaIntersection::Perform(const gp_Lin2d&, const gp_Circ2d&) { Say(0); }
bool IntAna2d_AnaIntersection::IsDone() const { return Say(true); }
bool IntAna2d_AnaIntersection::IsParallel() const { return Say(false); }
bool IntAna2d_AnaIntersection::IsIdentical() const { return Say(false); }
bool IntAna2d_AnaIntersection::IsEmpty() const { return Say(false); }
int IntAna2d_AnaIntersection::PointCount() const { return Say(2); }
const IntAna2d_IntPoint& IntAna2d_AnaIntersection::Point(int) const { Say(0); return NonsenseResult(); }

gce_MakeCirc2d::gce_MakeCirc2d(const gp_Pnt2d&, const gp_Pnt2d&, const gp_Pnt2d&) { Say(0); }
gce_MakeCirc2d::gce_MakeCirc2d(const gp_Ax2d&, double, bool) { Say(0); }
gce_MakeCirc2d::gce_MakeCirc2d(const gp_Ax22d&, double) { Say(0); }
gce_MakeCirc2d::gce_MakeCirc2d(const gp_Pnt2d&, double, bool) { Say(0); }
gce_MakeCirc2d::gce_MakeCirc2d(const gp_Pnt2d&, const gp_Pnt2d&, bool) { Say(0); }
gce_MakeCirc2d::gce_MakeCirc2d(const gp_Circ2d&, const gp_Pnt2d&) { Say(0); }
gce_MakeCirc2d::gce_MakeCirc2d(const gp_Circ2d&, double) { Say(0); }
int gce_MakeCirc2d::Status() const { return Say(0); }
bool gce_MakeCirc2d::IsDone() const { return Say(true); }
const gp_Circ2d& gce_MakeCirc2d::Value() const { Say(0); return NonsenseCircle(); }
const gp_Circ2d& gce_MakeCirc2d::Operator() const { Say(0); return NonsenseCircle(); }
gce_MakeCirc2d::operator gp_Circ2d() const { Say(0); return NonsenseCircle(); }
// clang-format on
