#pragma once

#include "math/Primitives.h"

#include <string>
#include <vector>

namespace example::tour
{

/// Finds room for short labels beside the points they belong to, away from marks, other labels and, where it can be
/// had, from lines. All coordinates are pixels.
class LabelPlacer
{
public:
    LabelPlacer(double pageWidth, double pageHeight);

    /// A mark that no label may cover.
    void KeepClear(const math::DPOINT2& centre, double half);

    /// A point of a line, better not covered.
    void AvoidPoint(const math::DPOINT2& point);

    /// Points along a straight line, better not covered.
    void AvoidLine(const math::DPOINT2& from, const math::DPOINT2& to);

    /// Places a label near its anchor.
    /// @return the middle of the label
    math::DPOINT2 Place(const math::DPOINT2& anchor, const std::string& text, double fontSize);

private:
    double Cost(const math::DRECT& box) const;

    double m_pageWidth;
    double m_pageHeight;
    std::vector<math::DRECT> m_taken;
    std::vector<math::DPOINT2> m_linePoints;
};

} // namespace example::tour
