#pragma once

#include "math/Export.h"

#include <ElCLib.hxx>
#include <gp_Ax22d.hxx>
#include <gp_Ax2d.hxx>
#include <gp_Circ2d.hxx>
#include <gp_Lin2d.hxx>
#include <gp_Pnt2d.hxx>

/// The exact work on straight lines and circles: where two of them meet, and circles from points.
///
/// The three classes stand under global names and on the value types of Open CASCADE. Lines are parallel and circles
/// concentric at 1e-9; a tangency is a matter of one rounding unit, the distance of a number to the next double away
/// from zero. The records have no shared state: a record may be read by several threads at once, and one
/// that is changed belongs to one thread.
///
/// Other libraries define classes of the same names. In a program that loads one of them first, the names may be bound
/// to those; QorMath's own calls always reach its own.

/// One point in which two curves meet, with its parameter on each of them.
class QORMATH_EXPORT IntAna2d_IntPoint
{
public:
    /// All four numbers are 1.7976931348623157e+308; the second curve counts as parametric.
    IntAna2d_IntPoint();

    /// A point on two parametric curves, as SetValue with the same arguments makes it.
    IntAna2d_IntPoint(double x, double y, double onFirst, double onSecond);

    /// A point whose second curve has no parameter, as SetValue with the same arguments makes it of a default point.
    IntAna2d_IntPoint(double x, double y, double onFirst);

    IntAna2d_IntPoint(const IntAna2d_IntPoint& other);
    IntAna2d_IntPoint& operator=(const IntAna2d_IntPoint& other);

    /// Sets the point and its parameter on the first curve. The second curve has none, and ParamOnSecond() stays.
    virtual void SetValue(double x, double y, double onFirst);

    /// Sets the point and both parameters.
    virtual void SetValue(double x, double y, double onFirst, double onSecond);

    /// Parameter on the first curve: signed distance from the location of a line, angle in radians on a circle.
    double ParamOnFirst() const;

    /// Parameter on the second curve, likewise.
    double ParamOnSecond() const;

    /// Abscissa of the point.
    double X() const;

    /// Ordinate of the point.
    double Y() const;

    /// The point itself.
    const gp_Pnt2d& Value() const;

    /// True when the second curve has no parameter.
    bool SecondIsImplicit() const;

private:
    double paramOnFirst;
    double paramOnSecond;
    gp_Pnt2d value;
    bool secondIsImplicit;
};

/// Where two lines, a line and a circle, or two circles meet.
///
/// Build it empty and call Perform as often as wanted, or build it from the two elements at once. All calls of Perform
/// end with IsDone() true; an exception comes only from Open CASCADE, when rounding takes an argument of an inverse
/// function beyond 1 (Standard_RangeError; seen on crossing circles of radii 51.508159071592509 and
/// 1.496316498263268e-07 at the distance 51.508159177868102).
///
/// | outcome                    | IsParallel | IsIdentical | IsEmpty | PointCount |
/// |----------------------------|------------|-------------|---------|------------|
/// | they meet                  | false      | false       | false   | 1 or 2     |
/// | they do not meet           | false      | false       | true    | 0          |
/// | parallel, or concentric    | true       | false       | true    | 0          |
/// | one and the same           | true       | true        | false   | 0          |
class QORMATH_EXPORT IntAna2d_AnaIntersection
{
public:
    /// Nothing performed yet: IsDone() is false.
    IntAna2d_AnaIntersection();

    /// Performs at once.
    IntAna2d_AnaIntersection(const gp_Lin2d& first, const gp_Lin2d& second);

    /// Performs at once.
    IntAna2d_AnaIntersection(const gp_Circ2d& first, const gp_Circ2d& second);

    /// Performs at once.
    IntAna2d_AnaIntersection(const gp_Lin2d& line, const gp_Circ2d& circle);

    IntAna2d_AnaIntersection(const IntAna2d_AnaIntersection& other);
    IntAna2d_AnaIntersection& operator=(const IntAna2d_AnaIntersection& other);

    /// Two lines.
    ///
    /// Directions that differ by at most 1e-9 are parallel however far apart the lines run; parallel lines nearer than
    /// about 1e-9 are identical.
    void Perform(const gp_Lin2d& first, const gp_Lin2d& second);

    /// Two circles.
    ///
    /// Centres no further apart than 1e-9 make them concentric, and identical when the radii differ by no more either.
    /// Circles touch when the distance of the centres is the sum of the radii, or their difference, within one rounding
    /// unit of the sum. Of two points the first lies on the left of the way from the first centre to the second, the
    /// second on its right. Parameters are directions counted counter-clockwise from the x axis of each circle,
    /// whatever its sense, in [0, 2π]: a whole turn is added or taken once, and rounding may leave 2π itself.
    void Perform(const gp_Circ2d& first, const gp_Circ2d& second);

    /// A line and a circle.
    ///
    /// A line whose distance from the centre is the radius, within one rounding unit of it, touches in one point, the
    /// foot of the centre. Of two points the first lies ahead along the direction of the line. The parameter on the
    /// circle follows its sense; the centre of a circle of radius 0 has the parameter 0. A line of NaN counts two
    /// points of NaN.
    void Perform(const gp_Lin2d& line, const gp_Circ2d& circle);

    /// True once a Perform has finished.
    bool IsDone() const;

    /// True for parallel lines and concentric circles.
    bool IsParallel() const;

    /// True when the two elements are one.
    bool IsIdentical() const;

    /// True when the elements do not meet.
    bool IsEmpty() const;

    /// The number of points, 0 to 2.
    int PointCount() const;

    /// The n-th point.
    ///
    /// @param n  counted from 1
    /// @throws StdFail_NotDone without a message when nothing has been performed
    /// @throws Standard_OutOfRange without a message when `n` is below 1 or above PointCount()
    const IntAna2d_IntPoint& Point(int n) const;

private:
    void SetPointCount(int count);
    void SetCoincidence(bool areIdentical);

    bool isDone;
    bool isParallel;
    bool isIdentical;
    bool isEmpty;
    int pointCount;
    IntAna2d_IntPoint points[4];
};

/// Makes a circle; the status tells whether it could be made.
class QORMATH_EXPORT gce_MakeCirc2d
{
public:
    /// The values of Status().
    enum StatusCode : int
    {
        Done = 0,              ///< the circle is made
        NegativeRadius = 2,    ///< the radius given is below 0
        Collinear = 3,         ///< the three points lie on one line
        IntersectionFailed = 4 ///< the bisectors could not be intersected
    };

    /// The circle through three points, by its perpendicular bisectors.
    ///
    /// The radius is the mean of the three distances from the centre. The circle has the world x axis; its sense is
    /// turned when the points, by their angles from that axis, do not ascend. Three points in one place make a circle
    /// of radius 0 about them.
    ///
    /// @throws Standard_ConstructionError when points of different places are too near each other for a bisector's
    ///         direction ("gp_Dir2d() - input vector has zero norm")
    /// @throws Standard_OutOfRange when both bisectors are one line, as for points of NaN
    gce_MakeCirc2d(const gp_Pnt2d& p1, const gp_Pnt2d& p2, const gp_Pnt2d& p3);

    /// The circle about the location of `axis`, its x axis along it.
    ///
    /// @param sense  true counter-clockwise
    gce_MakeCirc2d(const gp_Ax2d& axis, double radius, bool sense);

    /// The circle in the given axes.
    gce_MakeCirc2d(const gp_Ax22d& axes, double radius);

    /// The circle about `centre`, its axis along +x.
    ///
    /// @param sense  true counter-clockwise
    gce_MakeCirc2d(const gp_Pnt2d& centre, double radius, bool sense);

    /// The circle about `centre` through `point`, its axis along +x. One point twice makes a circle of radius 0.
    ///
    /// @param sense  true counter-clockwise
    gce_MakeCirc2d(const gp_Pnt2d& centre, const gp_Pnt2d& point, bool sense);

    /// The circle concentric with `circle`, in its axes, through `point`.
    gce_MakeCirc2d(const gp_Circ2d& circle, const gp_Pnt2d& point);

    /// The circle concentric with `circle`, in its axes, `distance` further out.
    ///
    /// The radius is the absolute value of the old radius + `distance`.
    gce_MakeCirc2d(const gp_Circ2d& circle, double distance);

    /// One of StatusCode.
    int Status() const;

    /// True when the circle is made: the status is Done.
    bool IsDone() const;

    /// The circle.
    ///
    /// @throws StdFail_NotDone ("gce_MakeCirc2d::Value() - no result") when the status is not Done
    const gp_Circ2d& Value() const;

    /// The same as Value().
    const gp_Circ2d& Operator() const;

    /// A copy of Value(), with the same failure.
    operator gp_Circ2d() const;

private:
    int status;
    gp_Circ2d result;
};
