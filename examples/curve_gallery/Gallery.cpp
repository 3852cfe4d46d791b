#include "Gallery.h"

#include <cmath>

namespace example::gallery
{

namespace
{

using Tiles = std::vector<Tile>;
using C = Configuration;

constexpr double Pi = 3.14159265358979323846;
constexpr double Whole = 11 * Pi / 6; ///< the sweep of an arc that leaves a small gap

// Curves that several tiles show. A circle of radius 150 and a straight line 90 off its centre meet 120 to either side,
// an ellipse with the semi-axes 200 and 100 and a horizontal 60 above its centre 160 to either side.

Beeline Horizontal(double y)
{
    return {{0, y}, 0};
}

Beeline Vertical(double x)
{
    return {{x, 0}, Pi / 2};
}

Line HorizontalFrom(double x1, double x2, double y)
{
    return {{x1, y}, {x2, y}};
}

Circle CircleAt(double x, double y, double radius)
{
    return {{x, y}, radius};
}

Arc UpperHalf(const Circle& circle)
{
    return {circle, 0, Pi};
}

Arc LeftHalf(const Circle& circle)
{
    return {circle, Pi / 2, Pi};
}

Arc RightHalf(const Circle& circle)
{
    return {circle, 3 * Pi / 2, Pi};
}

EllipseArc UpperHalf(const Ellipse& ellipse)
{
    return {ellipse, 0, Pi};
}

EllipseArc LeftHalf(const Ellipse& ellipse)
{
    return {ellipse, Pi / 2, Pi};
}

EllipseArc RightHalf(const Ellipse& ellipse)
{
    return {ellipse, 3 * Pi / 2, Pi};
}

const Circle Centred = {{0, 0}, 150};
const Circle Left = {{-60, 0}, 100};
const Circle Right = {{60, 0}, 100};
const Circle LeftTouching = {{-100, 0}, 100};
const Circle RightTouching = {{120, 0}, 120};
const Arc Arch = {{{0, -50}, 150}, 0, Pi};

const Ellipse Middle = {{0, 0}, 200, 100, 0};
const Ellipse Upright = {{0, 0}, 200, 100, Pi / 2};
const Ellipse Round = {{0, 0}, 150, 150, 0};
const Ellipse Small = {{0, 0}, 120, 60, 0};
const Ellipse Large = {{0, 0}, 300, 180, 0};
const Ellipse LeftEllipse = {{-100, 0}, 200, 100, 0};
const Ellipse RightEllipse = {{100, 0}, 200, 100, 0};
const EllipseArc Dome = {Middle, 0, Pi};

// (160, 60) from the centre of an ellipse of 200 by 100 its normal has the direction (2, 3). Along it, 40 across and 60
// up, lies the centre of a circle that touches there; a second ellipse touches with the first one's mirror image.
const Ellipse EllipseBelow = {{-100, -40}, 200, 100, 0};
const Circle CircleAbove = {{100, 80}, std::sqrt(40.0 * 40.0 + 60.0 * 60.0)};
const Ellipse LeftBelow = {{-160, -60}, 200, 100, 0};
const Ellipse RightAbove = {{160, 60}, 200, 100, 0};

// Ellipse and circle that cross where x = -60 + 400 / 3, and those that cross at (±100 √2, ±50 √2).
const Ellipse EllipseBeside = {{-60, 0}, 200, 100, 0};
const Circle CircleBeside = {{140, 0}, 100};
const Circle Between = {{0, 0}, std::sqrt(25000.0)};

const Circle CircleApart = {{-220, 0}, 100};
const Ellipse EllipseApart = {{140, 0}, 200, 100, 0};
const Ellipse LeftApart = {{-190, 0}, 150, 80, 0};
const Ellipse RightApart = {{190, 0}, 150, 80, 0};

Tiles StraightLines()
{
    const double rise = std::atan2(1.0, 2.0);
    return {
        {C::Apart, Beeline{{0, -80}, Pi / 6}, Beeline{{0, 80}, Pi / 6}},
        {C::CrossingOnce, Beeline{{-100, 0}, Pi / 4}, Beeline{{100, 0}, 3 * Pi / 4}},
        {C::Overlapping, Beeline{{-200, -100}, rise}, Beeline{{200, 100}, rise + Pi}},

        {C::Apart, Horizontal(-100), Line{{-200, 0}, {200, 150}}},
        {C::Touching, Horizontal(0), Line{{100, 0}, {200, 200}}},
        {C::CrossingOnce, Horizontal(0), Line{{-100, -150}, {200, 150}}},
        {C::Overlapping, Horizontal(50), HorizontalFrom(-100, 200, 50)},

        {C::Apart, Line{{-200, -100}, {100, -50}}, Line{{-100, 100}, {200, 50}}},
        {C::Touching, HorizontalFrom(-200, 200, 0), Line{{50, 0}, {150, 150}}},
        {C::CrossingOnce, Line{{-200, -100}, {200, 100}}, Line{{-200, 100}, {200, -100}}},
        {C::Overlapping, HorizontalFrom(-300, 100, 0), HorizontalFrom(-100, 300, 0)},
        {C::Inside, HorizontalFrom(-300, 300, 0), HorizontalFrom(-100, 100, 0)},
    };
}

Tiles StraightLinesWithCircles()
{
    return {
        {C::Apart, Horizontal(200), Centred},
        {C::Touching, Horizontal(150), Centred},
        {C::CrossingTwice, Horizontal(90), Centred},

        {C::Apart, Horizontal(-100), Arch},
        {C::Touching, Horizontal(100), Arch},
        {C::CrossingOnce, Vertical(90), Arch},
        {C::CrossingTwice, Horizontal(40), Arch},

        {C::Apart, Line{{200, -200}, {300, 200}}, Centred},
        {C::Touching, HorizontalFrom(-200, 200, 150), Centred},
        {C::CrossingOnce, HorizontalFrom(0, 300, 90), Centred},
        {C::CrossingTwice, HorizontalFrom(-300, 300, 90), Centred},
        {C::Inside, Line{{-80, -50}, {80, 50}}, Centred},

        {C::Apart, HorizontalFrom(-250, 250, -100), Arch},
        {C::Touching, HorizontalFrom(-200, 200, 100), Arch},
        {C::CrossingOnce, Line{{90, -200}, {90, 200}}, Arch},
        {C::CrossingTwice, HorizontalFrom(-300, 300, 40), Arch},
    };
}

Tiles Circles()
{
    const Circle large = CircleAt(0, 0, 180);
    return {
        {C::Apart, CircleAt(-160, 0, 100), CircleAt(160, 0, 120)},
        {C::Touching, LeftTouching, RightTouching},
        {C::CrossingTwice, Left, Right},
        {C::Overlapping, Centred, Centred},
        {C::Inside, large, CircleAt(40, 0, 80)},

        {C::Apart, CircleAt(-180, 0, 100), LeftHalf(CircleAt(120, 0, 120))},
        {C::Touching, LeftTouching, LeftHalf(RightTouching)},
        {C::CrossingOnce, Left, UpperHalf(Right)},
        {C::CrossingTwice, Left, LeftHalf(Right)},
        {C::Overlapping, Centred, Arc{Centred, 0, Pi / 2}},
        {C::Inside, large, UpperHalf(CircleAt(20, 0, 80))},

        {C::Apart, RightHalf(CircleAt(-200, 0, 100)), LeftHalf(CircleAt(200, 0, 100))},
        {C::Touching, RightHalf(LeftTouching), LeftHalf(RightTouching)},
        {C::CrossingOnce, UpperHalf(Left), LeftHalf(Right)},
        {C::CrossingTwice, RightHalf(Left), LeftHalf(Right)},
        {C::Overlapping, UpperHalf(Centred), LeftHalf(Centred)},
        {C::Inside, UpperHalf(Centred), Arc{Centred, Pi / 4, Pi / 2}},
    };
}

Tiles StraightLinesWithEllipses()
{
    return {
        {C::Apart, Horizontal(160), Middle},
        {C::Touching, Horizontal(100), Middle},
        {C::CrossingTwice, Horizontal(60), Middle},

        {C::Apart, Horizontal(-60), Dome},
        {C::Touching, Horizontal(100), Dome},
        {C::CrossingOnce, Vertical(120), Dome},
        {C::CrossingTwice, Horizontal(60), Dome},

        {C::Apart, Line{{240, -150}, {300, 150}}, Middle},
        {C::Touching, HorizontalFrom(-200, 200, 100), Middle},
        {C::CrossingOnce, HorizontalFrom(0, 300, 60), Middle},
        {C::CrossingTwice, HorizontalFrom(-300, 300, 60), Middle},
        {C::Inside, Line{{-100, -30}, {100, 30}}, Middle},

        {C::Apart, HorizontalFrom(-300, 300, -60), Dome},
        {C::Touching, HorizontalFrom(-200, 200, 100), Dome},
        {C::CrossingOnce, Line{{120, -200}, {120, 200}}, Dome},
        {C::CrossingTwice, HorizontalFrom(-300, 300, 60), Dome},
    };
}

Tiles Ellipses()
{
    return {
        {C::Apart, LeftApart, RightApart},
        {C::Touching, LeftBelow, RightAbove},
        {C::CrossingTwice, LeftEllipse, RightEllipse},
        {C::CrossingFourTimes, Middle, Upright},
        {C::Overlapping, Middle, Middle},
        {C::Inside, Large, Small},

        {C::Apart, LeftApart, LeftHalf(RightApart)},
        {C::Touching, LeftBelow, LeftHalf(RightAbove)},
        {C::CrossingOnce, LeftEllipse, EllipseArc{RightEllipse, Pi / 2, Pi / 2}},
        {C::CrossingTwice, LeftEllipse, LeftHalf(RightEllipse)},
        {C::CrossingFourTimes, Middle, EllipseArc{Upright, 0, Whole}},
        {C::Overlapping, Middle, Dome},
        {C::Inside, Large, EllipseArc{Small, 0, 3 * Pi / 2}},

        {C::Apart, RightHalf(LeftApart), LeftHalf(RightApart)},
        {C::Touching, EllipseArc{Middle, 0, Pi / 2}, EllipseArc{Middle, Pi / 2, Pi / 2}},
        {C::CrossingOnce, UpperHalf(LeftEllipse), LeftHalf(RightEllipse)},
        {C::CrossingTwice, RightHalf(LeftEllipse), LeftHalf(RightEllipse)},
        {C::CrossingFourTimes, EllipseArc{Middle, Pi / 2, Whole}, EllipseArc{Upright, 0, Whole}},
        {C::Overlapping, Dome, LeftHalf(Middle)},
        {C::Inside, EllipseArc{Large, 0, 3 * Pi / 2}, UpperHalf(Small)},
    };
}

Tiles CirclesWithEllipses()
{
    const Circle outside = CircleAt(0, 0, 180);
    const Circle inside = CircleAt(0, 0, 70);
    return {
        {C::Apart, CircleApart, EllipseApart},
        {C::Touching, CircleAbove, EllipseBelow},
        {C::CrossingTwice, CircleBeside, EllipseBeside},
        {C::CrossingFourTimes, Between, Middle},
        {C::Overlapping, Centred, Round},
        {C::Inside, outside, Small},

        {C::Apart, CircleApart, LeftHalf(EllipseApart)},
        {C::Touching, CircleAbove, RightHalf(EllipseBelow)},
        {C::CrossingOnce, CircleBeside, UpperHalf(EllipseBeside)},
        {C::CrossingTwice, CircleBeside, RightHalf(EllipseBeside)},
        {C::CrossingFourTimes, Between, EllipseArc{Middle, Pi / 2, Whole}},
        {C::Overlapping, Centred, LeftHalf(Round)},
        {C::Inside, outside, EllipseArc{Small, 0, 3 * Pi / 2}},

        {C::Apart, RightHalf(CircleApart), EllipseApart},
        {C::Touching, Arc{CircleAbove, Pi, Pi}, EllipseBelow},
        {C::CrossingOnce, UpperHalf(CircleBeside), EllipseBeside},
        {C::CrossingTwice, LeftHalf(CircleBeside), EllipseBeside},
        {C::CrossingFourTimes, Arc{Between, Pi / 2, Whole}, Middle},
        {C::Overlapping, UpperHalf(Centred), Round},
        {C::Inside, Arc{inside, 0, 3 * Pi / 2}, Middle},

        {C::Apart, RightHalf(CircleApart), LeftHalf(EllipseApart)},
        {C::Touching, Arc{CircleAbove, Pi, Pi}, RightHalf(EllipseBelow)},
        {C::CrossingOnce, UpperHalf(CircleBeside), RightHalf(EllipseBeside)},
        {C::CrossingTwice, LeftHalf(CircleBeside), RightHalf(EllipseBeside)},
        {C::CrossingFourTimes, Arc{Between, 3 * Pi / 2, Whole}, EllipseArc{Middle, Pi / 2, Whole}},
        {C::Overlapping, UpperHalf(Centred), LeftHalf(Round)},
        {C::Inside, Arc{inside, 0, 3 * Pi / 2}, EllipseArc{Middle, Pi / 2, 3 * Pi / 2}},
    };
}

} // namespace

const std::vector<Configuration>& Configurations()
{
    static const std::vector<Configuration> all = {
        C::Apart, C::Touching, C::CrossingOnce, C::CrossingTwice, C::CrossingFourTimes, C::Overlapping, C::Inside};
    return all;
}

std::string NameOf(Configuration configuration)
{
    switch (configuration)
    {
    case C::Apart:
        return "apart";
    case C::Touching:
        return "touching";
    case C::CrossingOnce:
        return "crossing once";
    case C::CrossingTwice:
        return "crossing twice";
    case C::CrossingFourTimes:
        return "four times";
    case C::Overlapping:
        return "overlapping";
    case C::Inside:
        return "one inside";
    }
    return "";
}

std::vector<Tile> Gallery()
{
    Tiles all;
    for (const Tiles& tiles : {StraightLines(), StraightLinesWithCircles(), Circles(), StraightLinesWithEllipses(),
                               Ellipses(), CirclesWithEllipses()})
    {
        all.insert(all.end(), tiles.begin(), tiles.end());
    }
    return all;
}

Answer AnswerTo(const Tile& tile)
{
    Answer answer;
    answer.code = Intersect(tile.first, tile.second, answer.points);
    return answer;
}

} // namespace example::gallery
