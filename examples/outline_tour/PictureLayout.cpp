#include "PictureLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace example::tour
{

namespace
{

constexpr double PageWidth = 1280;
constexpr double Margin = 48;
constexpr double Top = 64;
constexpr double Gutter = 56;
constexpr double ColumnWidth = (PageWidth - 2 * Margin - Gutter) / 2;
constexpr double RightColumn = Margin + ColumnWidth + Gutter;
constexpr double GreatestHeight = 520;
constexpr double LeastDrop = 216; ///< what the notes need above the right view, and the legend below the left one
constexpr double CaptionLift = 34;

} // namespace

Layout LayOut(const math::DRECT& box)
{
    constexpr double leastSize = 1e-9; // a straight outline may have a box without width or height
    const double scale =
        std::min(ColumnWidth / std::max(box.width, leastSize), GreatestHeight / std::max(box.height, leastSize));
    const double width = scale * box.width;
    const double height = scale * box.height;
    const double drop = std::max(LeastDrop, 0.3 * height);

    Layout layout;
    layout.width = PageWidth;
    layout.height = Top + height + drop + Margin;
    layout.leftFrame = {Margin + (ColumnWidth - width) / 2, Top, width, height};
    layout.left = {scale, layout.leftFrame.x - scale * box.x, Top + height + scale * box.y};
    layout.right = {scale, layout.left.left + ColumnWidth + Gutter, layout.left.top + drop};
    layout.leftCaption = {Margin, Top - CaptionLift};
    layout.rightCaption = {RightColumn, Top + drop - CaptionLift};
    layout.title = {RightColumn, Top - CaptionLift};
    layout.legend = {Margin, Top + height + drop + 12};
    return layout;
}

// Liang and Barsky's way: each pair of borders narrows the range of the line's parameter.
std::optional<std::pair<math::DPOINT2, math::DPOINT2>> ClipLine(const math::DPOINT2& point,
                                                                const math::DPOINT2& direction,
                                                                const math::DRECT& frame)
{
    double enter = -std::numeric_limits<double>::max();
    double leave = std::numeric_limits<double>::max();
    const auto clip = [&](double at, double step, double low, double high) {
        if (std::abs(step) < 1e-12)
        {
            return at >= low && at <= high;
        }
        const double first = (low - at) / step;
        const double last = (high - at) / step;
        enter = std::max(enter, std::min(first, last));
        leave = std::min(leave, std::max(first, last));
        return enter < leave;
    };
    if (!clip(point.x, direction.x, frame.x, frame.x + frame.width) ||
        !clip(point.y, direction.y, frame.y, frame.y + frame.height))
    {
        return std::nullopt;
    }
    const auto at = [&](double t) { return math::DPOINT2(point.x + t * direction.x, point.y + t * direction.y); };
    return std::make_pair(at(enter), at(leave));
}

} // namespace example::tour
