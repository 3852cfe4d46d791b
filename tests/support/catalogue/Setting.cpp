#include "support/catalogue/Setting.h"

#include <gp_Dir2d.hxx>

namespace math::test
{

std::atomic<int> Tag::alive{0};

namespace
{

/// Moves a number a little, differently for each variant, so that nothing that crosses stops crossing.
double Nudged(double value, int variant)
{
    return value + 0.01 * variant;
}

CPolyline MakeOutline(unsigned int id, double side)
{
    CPolyline outline(id);
    outline.attribute = 7;
    outline.flags = 3;
    outline.AddNodes({side, 0}, 0.25);
    outline.AddNodes({side, side}, 0);
    outline.AddNodes({0, side}, 0);
    outline.AddNodes({0, 0}, 0);
    outline.SetExtendParam(new Tag(side));
    return outline;
}

CPolyline MakeZigzag(unsigned int id, double step)
{
    CPolyline outline(id);
    for (int i = 1; i <= 10; ++i)
    {
        outline.AddNodes({step * i, i % 2 == 0 ? 0.0 : step}, 0);
    }
    outline.SetExtendParam(new Tag(step));
    return outline;
}

IntAna2d_AnaIntersection Perform(const gp_Lin2d& line, const gp_Circ2d& circle)
{
    return IntAna2d_AnaIntersection(line, circle);
}

} // namespace

Setting::Setting(int variant)
    : x(Nudged(1.25, variant)),
      y(Nudged(-2.5, variant)),
      z(Nudged(0.75, variant)),
      angle(Nudged(0.6, variant)),
      whole(84 + variant),
      otherWhole(126 + variant),
      longWhole(8400000000 + variant),
      otherLongWhole(12600000000 + variant),
      p(Nudged(0.5, variant), 0.25),
      q(Nudged(6, variant), 3),
      r(Nudged(0, variant), 4),
      s(Nudged(4.5, variant), -3),
      line{p.x, p.y, q.x, q.y},
      otherLine{r.x, r.y, s.x, s.y},
      arcRecord{1, 2, Nudged(3, variant), 0.5},
      box{0, 1, Nudged(2, variant), 3},
      otherBox{-1, 2, 5, Nudged(1, variant)},
      arc{{0, 0}, Nudged(3, variant), 0.1, 6.0},
      otherArc{{2, 1}, Nudged(3.5, variant), 3.3, -6.0},
      ellipse{{0, 0}, Nudged(5, variant), 3, 0.4, 0.1, 6.1},
      otherEllipse{{1, 1}, Nudged(5, variant), 2, 1.7, 0.2, 6.0},
      points{{100, 200}},
      roots{100},
      vector(Nudged(1, variant), 2),
      otherVector(-3, Nudged(0.5, variant)),
      kernelLine(gp_Pnt2d(p.x, p.y), gp_Dir2d(2, 1)),
      otherKernelLine(gp_Pnt2d(r.x, r.y), gp_Dir2d(-1, 1)),
      kernelCircle(gp_Ax22d(gp_Pnt2d(0, 0), gp_Dir2d(1, 0)), arc.radius),
      otherKernelCircle(gp_Ax22d(gp_Pnt2d(2, 1), gp_Dir2d(0, 1)), otherArc.radius),
      kernelPoint(1, 2, 3, Nudged(4, variant)),
      kernelResult(Perform(kernelLine, kernelCircle)),
      straight(p, q),
      curved(p, q, Nudged(0.4, variant)),
      bezier(p, r, s, q),
      outline(MakeOutline(11, Nudged(2, variant))),
      otherOutline(MakeZigzag(12, Nudged(0.5, variant))),
      position(Nudged(1.3, variant)),
      forward(Nudged(0.5, variant), 3.5),
      otherForward(Nudged(1.5, variant), 2.5),
      wrapping(3.25, Nudged(1.0, variant)),
      ranges{PosRangeD(0, Nudged(1, variant)), PosRangeD(), PosRangeD(Nudged(1, variant), 2.5)},
      segmentMap{0, 1, -1, 2, 4},
      pairs{{0, 0}, {1, Nudged(1.5, variant)}, {4, 5}},
      map({{0, 0}, {1, Nudged(0.5, variant)}, {2, 2.75}, {2, 3}, {4, 5}}, 4, 5),
      seamMap({{3, 1}, {4, Nudged(2, variant)}, {6.5, 5}, {8, 6.5}}, 5, 6),
      staircase({{0, 0}, {1.5, 1.5}, {1.5, 1.6}, {1.6, 1.6}, {4, 4}}, 4, 4),
      downward({{4, 0}, {2, Nudged(1, variant)}, {0, 5}}, 4, 5),
      firstHalf({{0, 0}, {1, Nudged(0.5, variant)}, {2, 2.5}}, 4, 5),
      secondHalf({{2, 2.5}, {3, Nudged(4, variant)}, {4, 5}}, 4, 5)
{
}

Answer Setting::Bits() const
{
    Answer bits;
    bits << x << y << z << angle << whole << otherWhole << longWhole << otherLongWhole;
    bits << p << q << r << s << line << otherLine << arcRecord << box << otherBox;
    bits << arc.centre << arc.radius << arc.start << arc.sweep;
    bits << otherArc.centre << otherArc.radius << otherArc.start << otherArc.sweep;
    for (const Ellipse& shape : {ellipse, otherEllipse})
    {
        bits << shape.centre << shape.a << shape.b << shape.rotation << shape.start << shape.sweep;
    }
    bits << points << roots << vector.X() << vector.Y() << otherVector.X() << otherVector.Y();
    bits << kernelLine.Location() << otherKernelLine.Location() << kernelCircle << otherKernelCircle;
    bits << kernelPoint << kernelResult << straight << curved << bezier;
    for (const CPolyline* polyline : {&outline, &otherOutline})
    {
        bits << *polyline;
        if (const auto* tag = dynamic_cast<const Tag*>(polyline->GetExtendParam()))
        {
            bits << tag->values;
        }
    }
    bits << position << forward << otherForward << wrapping << ranges << segmentMap << pairs;
    bits << map << seamMap << staircase << downward << firstHalf << secondHalf;
    return bits;
}

} // namespace math::test
