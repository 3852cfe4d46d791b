#include "math/CPolyline.h"
#include "support/Outlines.h"
#include "support/Segments.h"

#include <memory>
#include <stdexcept>
#include <string>

using namespace math;
using namespace math::test;

// The caller's record that a polyline owns, and copying.

namespace
{

/// What happened to the records of one test, in order.
struct Log
{
    std::string events;
    int alive = 0;
};

class Record : public CPolyline::CExtendParam
{
public:
    Record(Log& log, std::string name, bool refusesToClone = false)
        : m_log(log),
          m_name(std::move(name)),
          m_refusesToClone(refusesToClone)
    {
        ++m_log.alive;
    }

    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    ~Record() override
    {
        m_log.events += "-" + m_name;
        --m_log.alive;
    }

    CExtendParam* Clone() const override
    {
        if (m_refusesToClone)
        {
            throw std::runtime_error("no copy of " + m_name);
        }
        m_log.events += "+" + m_name;
        return new Record(m_log, m_name + "'");
    }

    const std::string& Name() const
    {
        return m_name;
    }

private:
    Log& m_log;
    std::string m_name;
    bool m_refusesToClone;
};

std::string NameIn(const CPolyline& polyline)
{
    const auto* const record = dynamic_cast<const Record*>(polyline.GetExtendParam());
    return record == nullptr ? "none" : record->Name();
}

/// An outline with every field away from its first value.
CPolyline Marked(unsigned int id, double size)
{
    CPolyline polyline = Outline(At(size, 0), {{size, size, 0.5}, {0, size}, {size, 0}});
    polyline.id = id;
    polyline.attribute = static_cast<int>(id) + 1;
    polyline.flags = static_cast<int>(id) + 2;
    return polyline;
}

testing::AssertionResult SamePlainFields(const CPolyline& a, const CPolyline& b)
{
    bool same = a.id == b.id && a.attribute == b.attribute && a.start == b.start && a.flags == b.flags &&
                a.nodes.size() == b.nodes.size();
    for (std::size_t k = 0; same && k < a.nodes.size(); ++k)
    {
        same = a.nodes[k].point == b.nodes[k].point && SameBits(a.nodes[k].bulge, b.nodes[k].bulge);
    }
    return same ? testing::AssertionSuccess() : testing::AssertionFailure() << "ids " << a.id << ", " << b.id;
}

} // namespace

TEST(PolylineExtendParam, ThePolylineLendsAndDestroysIt)
{
    Log log;
    {
        CPolyline polyline;
        auto* const record = new Record(log, "a");
        polyline.SetExtendParam(record);
        EXPECT_EQ(polyline.GetExtendParam(), record);
        EXPECT_EQ(polyline.extendParam, record);
        const CPolyline& constant = polyline;
        EXPECT_EQ(constant.GetExtendParam(), record);
        EXPECT_EQ(log.events, "");
    }
    EXPECT_EQ(log.events, "-a");
    EXPECT_EQ(log.alive, 0);
}

TEST(PolylineExtendParam, ANewOneReplacesAndDestroysTheOld)
{
    Log log;
    CPolyline polyline;
    polyline.SetExtendParam(new Record(log, "a"));
    polyline.SetExtendParam(new Record(log, "b"));
    EXPECT_EQ(log.events, "-a");
    EXPECT_EQ(NameIn(polyline), "b");
    polyline.SetExtendParam(nullptr);
    EXPECT_EQ(log.events, "-a-b");
    EXPECT_EQ(polyline.GetExtendParam(), nullptr);
    polyline.SetExtendParam(nullptr);
    polyline.SetExtendParam(new Record(log, "c"));
    EXPECT_EQ(NameIn(polyline), "c");
    EXPECT_EQ(log.events, "-a-b");
}

TEST(PolylineExtendParam, TheCurrentOneSetAgainIsKept)
{
    Log log;
    CPolyline polyline;
    polyline.SetExtendParam(new Record(log, "a"));
    polyline.SetExtendParam(polyline.GetExtendParam());
    EXPECT_EQ(log.events, "");
    EXPECT_EQ(NameIn(polyline), "a");
}

TEST(PolylineExtendParam, StaysWhenThePolylineIsTurnedRound)
{
    Log log;
    CPolyline polyline = Square();
    polyline.SetExtendParam(new Record(log, "a"));
    polyline.ReversePolyline();
    EXPECT_EQ(log.events, "");
    EXPECT_EQ(NameIn(polyline), "a");
}

TEST(PolylineExtendParam, IsDestroyedThroughThePolylinesVirtualDestructor)
{
    class Special : public CPolyline
    {
    };
    Log log;
    std::unique_ptr<CPolyline> polyline = std::make_unique<Special>();
    polyline->SetExtendParam(new Record(log, "a"));
    polyline.reset();
    EXPECT_EQ(log.events, "-a");
}

// Copying

TEST(PolylineCopy, HasAllFieldsAndAnExtensionOfItsOwn)
{
    Log log;
    CPolyline original = Marked(7, 3);
    original.SetExtendParam(new Record(log, "a"));
    {
        const CPolyline copy = original;
        EXPECT_TRUE(SamePlainFields(copy, original));
        EXPECT_EQ(NameIn(copy), "a'");
        EXPECT_NE(copy.GetExtendParam(), original.GetExtendParam());
        EXPECT_EQ(log.events, "+a");
    }
    EXPECT_EQ(log.events, "+a-a'");
    EXPECT_EQ(NameIn(original), "a");
    EXPECT_EQ(log.alive, 1);
}

TEST(PolylineCopy, OfOneWithoutExtensionHasNone)
{
    const CPolyline original = Marked(7, 3);
    const CPolyline copy = original;
    EXPECT_TRUE(SamePlainFields(copy, original));
    EXPECT_EQ(copy.extendParam, nullptr);
}

TEST(PolylineCopy, IsIndependent)
{
    const CPolyline original = Square();
    CPolyline copy = original;
    copy.nodes[0].point = At(9, 9);
    copy.start = At(8, 8);
    EXPECT_TRUE(SamePlainFields(original, Square()));
}

TEST(PolylineCopy, OfAnExtensionThatCannotBeClonedPassesItsExceptionOn)
{
    Log log;
    {
        CPolyline original;
        original.SetExtendParam(new Record(log, "a", true));
        EXPECT_THROW(CPolyline copy(original), std::runtime_error);
        EXPECT_EQ(NameIn(original), "a");
    }
    EXPECT_EQ(log.events, "-a");
    EXPECT_EQ(log.alive, 0);
}

TEST(PolylineAssignment, HasAllFieldsAndDestroysTheOldExtensionBeforeTheNewIsCloned)
{
    Log log;
    CPolyline source = Marked(7, 3);
    source.SetExtendParam(new Record(log, "a"));
    CPolyline target = Marked(20, 5);
    target.SetExtendParam(new Record(log, "b"));
    EXPECT_EQ(&(target = source), &target);
    EXPECT_TRUE(SamePlainFields(target, source));
    EXPECT_EQ(log.events, "-b+a");
    EXPECT_EQ(NameIn(target), "a'");
    EXPECT_EQ(NameIn(source), "a");
    EXPECT_EQ(log.alive, 2);
}

TEST(PolylineAssignment, WithoutExtensionOnOneSide)
{
    Log log;
    CPolyline with = Marked(7, 3);
    with.SetExtendParam(new Record(log, "a"));
    CPolyline without = Marked(20, 5);
    CPolyline target;
    target = with;
    EXPECT_EQ(NameIn(target), "a'");
    target = without;
    EXPECT_EQ(target.GetExtendParam(), nullptr);
    EXPECT_EQ(log.events, "+a-a'");
    target = without;
    EXPECT_EQ(target.GetExtendParam(), nullptr);
    EXPECT_TRUE(SamePlainFields(target, without));
}

TEST(PolylineAssignment, ToItselfDoesNothing)
{
    Log log;
    CPolyline polyline = Marked(7, 3);
    polyline.SetExtendParam(new Record(log, "a"));
    CPolyline& same = polyline;
    EXPECT_EQ(&(polyline = same), &polyline);
    EXPECT_EQ(log.events, "");
    EXPECT_EQ(NameIn(polyline), "a");
    EXPECT_TRUE(SamePlainFields(polyline, Marked(7, 3)));
}

TEST(PolylineAssignment, OfAnExtensionThatCannotBeClonedLeavesNone)
{
    Log log;
    {
        CPolyline source = Marked(7, 3);
        source.SetExtendParam(new Record(log, "a", true));
        CPolyline target = Marked(20, 5);
        target.SetExtendParam(new Record(log, "b"));
        EXPECT_THROW(target = source, std::runtime_error);
        EXPECT_EQ(log.events, "-b");
        EXPECT_EQ(target.GetExtendParam(), nullptr);
        EXPECT_TRUE(SamePlainFields(target, source)) << "the plain fields are copied before";
        EXPECT_EQ(NameIn(source), "a");
    }
    EXPECT_EQ(log.events, "-b-a") << "each destroyed once";
    EXPECT_EQ(log.alive, 0);
}
