#include "Picture.h"

#include "Labels.h"
#include "Outline.h"
#include "OutlinePath.h"
#include "PictureLayout.h"
#include "PictureStyle.h"

#include "common/Svg.h"
#include "common/Text.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace example::tour
{

namespace
{

using math::CPolyline;
using math::CSegment;
using math::DPOINT2;
using math::DRECT;
using math::PosRangeD;

constexpr double LabelSize = 12;
constexpr double MarkSize = 4.5;
constexpr std::size_t MostLabelledCrossings = 60;
constexpr std::size_t MostMarkedNodes = 200;

/// The step between labelled nodes that gives a dozen labels at most: 1, 2, 5, 10 and so on.
int NodeLabelStep(int count)
{
    constexpr int most = 12;
    int step = 1;
    for (const int factor : {2, 5, 10, 20, 50, 100, 200, 500, 1000, 2000, 5000})
    {
        step = count / step > most ? factor : step;
    }
    return step;
}

DRECT BoxOf(const Tour& tour)
{
    DRECT box = tour.rebuild.outline.GetRECT();
    for (const CPolyline& outline : tour.drawing.outlines)
    {
        box.Union(box, outline.GetRECT());
    }
    return box;
}

class Picture
{
public:
    explicit Picture(const Tour& tour)
        : m_tour(tour),
          m_first(tour.drawing.outlines.front()),
          m_layout(LayOut(BoxOf(tour))),
          m_page(m_layout.width, m_layout.height, "Positions of " + tour.drawing.name + " and their images",
                 PictureStyle()),
          m_labels(m_layout.width, m_layout.height)
    {
    }

    std::string Draw()
    {
        FindBeeline();
        AvoidLines();
        DrawSurfaces();
        DrawJoins();
        DrawOutlines();
        DrawBeeline();
        DrawNodes(m_first, m_layout.left);
        DrawNodes(m_tour.rebuild.outline, m_layout.right);
        DrawMarks();
        DrawLabels();
        DrawCaptions();
        DrawPictureLegend(m_page, m_layout.legend);
        DrawNotes();
        return m_page.Finish();
    }

private:
    struct Label
    {
        DPOINT2 anchor;
        std::string text;
        std::string classes;
    };

    // What there is to draw, on the page

    DPOINT2 SourceOf(const CarriedPosition& carried) const
    {
        return m_layout.left(carried.point);
    }

    DPOINT2 TargetOf(const Image& image) const
    {
        return m_layout.right(image.place.point);
    }

    void FindBeeline()
    {
        constexpr double overhang = 22;
        const DPOINT2 direction = DirectionOf(m_tour.beeline);
        const DRECT& frame = m_layout.leftFrame;
        m_beeline =
            ClipLine(m_layout.left(m_tour.beeline.point), {direction.x, -direction.y},
                     {frame.x - overhang, frame.y - overhang, frame.width + 2 * overhang, frame.height + 2 * overhang});
    }

    // Lines

    void AvoidOutline(const CPolyline& outline, const View& view)
    {
        for (int i = 0; i < SegmentCount(outline); ++i)
        {
            const CSegment segment = SegmentAt(outline, i);
            const double steps = std::clamp(std::ceil(segment.GetLength() * view.scale / 3), 1.0, 400.0);
            for (double step = 0; step < steps; ++step)
            {
                m_labels.AvoidPoint(view(segment.GetPoint(step / steps)));
            }
        }
    }

    void AvoidLines()
    {
        for (const CPolyline& outline : m_tour.drawing.outlines)
        {
            AvoidOutline(outline, m_layout.left);
        }
        AvoidOutline(m_tour.rebuild.outline, m_layout.right);
        if (m_beeline)
        {
            m_labels.AvoidLine(m_beeline->first, m_beeline->second);
        }
        for (const CarriedPosition& carried : m_tour.carrying.positions)
        {
            for (const Image& image : carried.images)
            {
                m_labels.AvoidLine(SourceOf(carried), TargetOf(image));
            }
        }
    }

    void DrawSurfaces()
    {
        std::string data;
        for (const CPolyline& outline : m_tour.drawing.outlines)
        {
            data += outline.IsClosed() ? PathData(outline, m_layout.left) : "";
        }
        m_page.Path(data, "surface");
        if (m_tour.rebuild.outline.IsClosed())
        {
            m_page.Path(PathData(m_tour.rebuild.outline, m_layout.right), "surface");
        }
    }

    void DrawJoins()
    {
        for (const CarriedPosition& carried : m_tour.carrying.positions)
        {
            for (const Image& image : carried.images)
            {
                m_page.Line(SourceOf(carried), TargetOf(image), image.throughSeam ? "join seam" : "join");
            }
        }
    }

    /// The vanished segments as they were, and the stretch that the older map doesn't know.
    void DrawGhosts()
    {
        const Rebuild& rebuild = m_tour.rebuild;
        std::vector<CSegment> vanished;
        for (const int segment : rebuild.vanished)
        {
            vanished.push_back(SegmentAt(rebuild.moved, segment));
        }
        m_page.Path(PathData(vanished, m_layout.right), "vanished");
        if (!rebuild.knowsAll)
        {
            m_page.Path(PathData(UncoveredSegments(), m_layout.right), "uncovered");
        }
    }

    /// The rebuilt segments without a counterpart: those whose middle the older map sends nothing to.
    std::vector<CSegment> UncoveredSegments() const
    {
        const math::CPolyPosMap backwards = !m_tour.rebuild.map;
        std::vector<CSegment> segments;
        for (int i = 0; i < SegmentCount(m_tour.rebuild.outline); ++i)
        {
            if ((backwards * (i + 0.5)).empty())
            {
                segments.push_back(SegmentAt(m_tour.rebuild.outline, i));
            }
        }
        return segments;
    }

    void DrawOutlines()
    {
        for (const CPolyline& outline : m_tour.drawing.outlines)
        {
            m_page.Path(PathData(outline, m_layout.left), "outline");
        }
        m_page.Path(PathData(m_tour.rebuild.outline, m_layout.right), "outline rebuilt");
        DrawGhosts();
        m_page.Path(PathData(SegmentsOf(m_first, m_tour.carrying.cut), m_layout.left), "piece");
    }

    void DrawBeeline()
    {
        if (!m_beeline)
        {
            return;
        }
        m_page.Line(m_beeline->first, m_beeline->second, "beeline");
        const DPOINT2 direction = DirectionOf(m_tour.beeline);
        const DPOINT2 tip = m_beeline->second;
        const auto wing = [&](double side) {
            return DPOINT2(tip.x - 10 * direction.x + side * 4 * direction.y,
                           tip.y + 10 * direction.y + side * 4 * direction.x);
        };
        m_page.Path(PathData({tip, wing(1), wing(-1)}, true), "tip");
    }

    // Marks and their labels

    void DrawNodes(const CPolyline& outline, const View& view)
    {
        const DPOINT2 zero = view(outline.start);
        m_page.Circle(zero, MarkSize, "zero");
        m_labels.KeepClear(zero, MarkSize);
        m_pending.push_back({zero, "0", "zero-label"});
        if (outline.nodes.size() > MostMarkedNodes)
        {
            return;
        }
        const int count = SegmentCount(outline);
        const int last = outline.IsClosed() ? count - 1 : count;
        for (int node = 1; node <= last; ++node)
        {
            const DPOINT2 point = view(PlaceAt(outline, node).point);
            m_page.Circle(point, 1.9, "node");
            if (node % NodeLabelStep(count) == 0)
            {
                m_nodeLabels.push_back({point, std::to_string(node), "node-label"});
            }
        }
    }

    void DrawMarks()
    {
        std::size_t number = 0;
        for (const CarriedPosition& carried : m_tour.carrying.positions)
        {
            const std::string name = std::to_string(++number);
            const DPOINT2 source = SourceOf(carried);
            m_page.Circle(source, MarkSize, carried.images.empty() ? "position lost" : "position");
            Remember(source, name, carried.images.empty() ? "lost-label" : "position-label");
            for (const Image& image : carried.images)
            {
                m_page.Square(TargetOf(image), MarkSize, "image");
                RememberImage(TargetOf(image), name);
            }
        }
        for (std::size_t i = 0; i < m_tour.crossings.size(); ++i)
        {
            DrawCrossing(m_tour.crossings[i], CrossingName(i), i < MostLabelledCrossings);
        }
    }

    void DrawCrossing(const Crossing& crossing, const std::string& name, bool labelled)
    {
        const DPOINT2 point = m_layout.left(crossing.point);
        if (crossing.kind == CrossingKind::Stretch)
        {
            const CSegment segment = SegmentAt(m_tour.drawing.outlines[crossing.outline], crossing.segment);
            m_page.Line(m_layout.left(segment.start), m_layout.left(segment.end), "crossing stretch");
        }
        else
        {
            m_page.Diamond(point, MarkSize + 1, "crossing");
        }
        if (labelled)
        {
            Remember(point, name, "crossing-label");
        }
    }

    void Remember(const DPOINT2& anchor, const std::string& text, const std::string& classes)
    {
        m_labels.KeepClear(anchor, MarkSize);
        m_pending.push_back({anchor, text, classes});
    }

    /// Images that fall on one place share a label: "7, 8".
    void RememberImage(const DPOINT2& anchor, const std::string& name)
    {
        for (Label& label : m_pending)
        {
            if (label.classes == "image-label" && math::D2GetDistance(label.anchor, anchor) < MarkSize)
            {
                label.text += "," + name;
                return;
            }
        }
        Remember(anchor, name, "image-label");
    }

    void DrawLabels()
    {
        m_pending.insert(m_pending.end(), m_nodeLabels.begin(), m_nodeLabels.end());
        for (const Label& label : m_pending)
        {
            const DPOINT2 middle = m_labels.Place(label.anchor, label.text, LabelSize);
            m_page.Text({middle.x, middle.y + 0.36 * LabelSize}, label.text, "label " + label.classes);
        }
    }

    // Words

    void DrawCaptions()
    {
        m_page.Text(m_layout.leftCaption,
                    m_tour.drawing.name + ": " + Counted(m_tour.drawing.outlines.size(), "outline") +
                        ", the first of " + Counted(m_first.nodes.size(), "segment"),
                    "note caption");
        m_page.Text(m_layout.rightCaption,
                    "The first outline rebuilt: " + Counted(m_tour.rebuild.outline.nodes.size(), "segment"),
                    "note caption");
    }

    void DrawNotes()
    {
        const Rebuild& rebuild = m_tour.rebuild;
        const PosRangeD& cut = m_tour.carrying.cut;
        const auto overTheSeam = [](const PosRangeD& range) { return range.IsContainZero() ? " (over the seam)" : ""; };
        std::vector<std::string> lines = {"The piece is the stretch from position " + Short(cut.start, 3) + " to " +
                                              Short(cut.end, 3) + overTheSeam(cut) + ".",
                                          "Two maps are composed: from the piece to the outline, and an older one",
                                          "from the outline to the rebuilt one. " +
                                              Counted(m_tour.carrying.positions.size(), "position") +
                                              " of the piece go through them."};
        lines.push_back(
            (rebuild.zero == 0 ? "Zero stayed where it was; " : "Zero was moved to " + Short(rebuild.zero, 3) + "; ") +
            Counted(rebuild.vanished.size(), "segment") + " vanished into sharp corners.");
        if (!rebuild.knowsAll)
        {
            const PosRangeD known = rebuild.map.GetRange(1, true);
            lines.push_back("The older map knows " + Short(known.start, 3) + " to " + Short(known.end, 3) +
                            overTheSeam(known) + " and nothing of the rest.");
        }
        DPOINT2 at = m_layout.title;
        m_page.Text(at, "Where positions go when an outline is rebuilt", "note title");
        at.y += 28;
        for (const std::string& line : lines)
        {
            m_page.Text(at, line, "note");
            at.y += 21;
        }
    }

    const Tour& m_tour;
    const CPolyline& m_first;
    Layout m_layout;
    SvgPage m_page;
    LabelPlacer m_labels;
    std::optional<std::pair<DPOINT2, DPOINT2>> m_beeline;
    std::vector<Label> m_pending;
    std::vector<Label> m_nodeLabels;
};

} // namespace

std::string DrawPicture(const Tour& tour)
{
    return Picture(tour).Draw();
}

} // namespace example::tour
