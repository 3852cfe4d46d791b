// Uses something of every header of the library as an outside program does, and prints what came of it.

#include "math/QorMath.h"

#include <Standard_Failure.hxx>
#include <gp_Circ2d.hxx>
#include <gp_Pnt2d.hxx>

#include <cstdio>
#include <utility>
#include <vector>

namespace
{

void Print(const char* what, const math::DPOINT2& point)
{
    std::printf("%s (%.6f, %.6f)\n", what, point.x, point.y);
}

} // namespace

int main()
{
    // A stretch of length 4 and a half circle of radius 1 beyond its end.
    math::CPolyline outline;
    outline.AddNodes({4, 0}, 0);
    outline.AddNodes({4, 2}, 1);
    std::printf("length %.6f\n", outline.GetLength(0, 2));
    Print("tip", outline.GetSegment(1).GetPoint(0.5));

    std::vector<math::DPOINT2> points;
    const int count = math::Intersect_LineWithLine({0, 0}, {2, 2}, {0, 2}, {2, 0}, points, 2);
    std::printf("crossings %d\n", count);
    for (const math::DPOINT2& point : points)
    {
        Print("crossing", point);
    }

    const math::CPolyPosMap piece =
        math::CPolyPosMapUtilies::GeneratePosMapFromCadByPosrange2OriginCad(math::PosRangeD(3.5, 1.5), 4);
    for (const std::pair<double, double>& joint : piece.PosPairs())
    {
        std::printf("joint %.2f -> %.2f\n", joint.first, joint.second);
    }

    const gce_MakeCirc2d circle(gp_Pnt2d(0, 0), gp_Pnt2d(2, 0), gp_Pnt2d(0, 2));
    std::printf("radius %.6f\n", circle.Value().Radius());
    try
    {
        const gce_MakeCirc2d straight(gp_Pnt2d(0, 0), gp_Pnt2d(1, 0), gp_Pnt2d(2, 0));
        std::printf("radius %.6f\n", straight.Value().Radius());
    }
    catch (const Standard_Failure& failure)
    {
        std::printf("%s\n", failure.GetMessageString());
    }
    return 0;
}
