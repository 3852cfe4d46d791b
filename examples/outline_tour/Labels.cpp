#include "Labels.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace example::tour
{

namespace
{

using math::DPOINT2;
using math::DRECT;

constexpr double LineStep = 3;      ///< between the points that stand for a line
constexpr double DigitWidth = 0.64; ///< of the font size, in the widest of the fonts asked for

DRECT BoxAround(const DPOINT2& centre, double width, double height)
{
    return {centre.x - width / 2, centre.y - height / 2, width, height};
}

double CommonArea(const DRECT& a, const DRECT& b)
{
    const double width = std::min(a.x + a.width, b.x + b.width) - std::max(a.x, b.x);
    const double height = std::min(a.y + a.height, b.y + b.height) - std::max(a.y, b.y);
    return width > 0 && height > 0 ? width * height : 0;
}

/// Lines have a width, and text wants some air: a point just outside counts as well.
bool HoldsOrTouches(const DRECT& box, const DPOINT2& point)
{
    constexpr double air = 2.5;
    return point.x > box.x - air && point.x < box.x + box.width + air && point.y > box.y - air &&
           point.y < box.y + box.height + air;
}

} // namespace

LabelPlacer::LabelPlacer(double pageWidth, double pageHeight) : m_pageWidth(pageWidth), m_pageHeight(pageHeight)
{
}

void LabelPlacer::KeepClear(const DPOINT2& centre, double half)
{
    m_taken.push_back(BoxAround(centre, 2 * half, 2 * half));
}

void LabelPlacer::AvoidPoint(const DPOINT2& point)
{
    m_linePoints.push_back(point);
}

void LabelPlacer::AvoidLine(const DPOINT2& from, const DPOINT2& to)
{
    const double steps = std::ceil(std::hypot(to.x - from.x, to.y - from.y) / LineStep);
    for (double i = 0; i <= steps; ++i)
    {
        const double t = steps > 0 ? i / steps : 0;
        AvoidPoint({from.x + t * (to.x - from.x), from.y + t * (to.y - from.y)});
    }
}

double LabelPlacer::Cost(const DRECT& box) const
{
    const DRECT page = {0, 0, m_pageWidth, m_pageHeight};
    double cost = 10 * (box.width * box.height - CommonArea(box, page));
    for (const DRECT& taken : m_taken)
    {
        cost += 10 * CommonArea(box, taken);
    }
    for (const DPOINT2& point : m_linePoints)
    {
        cost += HoldsOrTouches(box, point) ? 9 : 0;
    }
    return cost;
}

DPOINT2 LabelPlacer::Place(const DPOINT2& anchor, const std::string& text, double fontSize)
{
    const double width = DigitWidth * fontSize * static_cast<double>(text.size()) + 2;
    const double height = fontSize;
    DRECT best;
    double leastCost = std::numeric_limits<double>::infinity();
    for (const double distance : {7.0, 10.0, 14.0, 19.0, 25.0})
    {
        constexpr int directions = 16;
        for (int i = 0; i < directions; ++i)
        {
            const double radian = math::AngleToRadian(i * 360.0 / directions);
            const double x = anchor.x + (distance + width / 2) * std::cos(radian);
            const double y = anchor.y + (distance + height / 2) * std::sin(radian);
            const DRECT box = BoxAround({x, y}, width, height);
            const double cost = Cost(box) + distance;
            if (cost < leastCost)
            {
                leastCost = cost;
                best = box;
            }
        }
    }
    m_taken.push_back(best);
    return {best.x + best.width / 2, best.y + best.height / 2};
}

} // namespace example::tour
