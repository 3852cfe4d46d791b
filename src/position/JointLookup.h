#pragma once

#include "math/Primitives.h"
#include "position/Columns.h"
#include "position/PairList.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace math::detail
{

/// Finds positions in one column of a list of joints, many of them one after the other.
///
/// Gives the same answers as the scans of PairList.h, which look at every joint. On a column in exact order the joints
/// near a position are neighbours, since a rounded difference grows with its first operand; they are found by a search
/// that starts behind what the last one found. Any other column is scanned.
class JointLookup
{
public:
    /// The list must not change while it is looked up, and have a joint by then.
    JointLookup(const JointList& joints, int side, ColumnOrder order)
        : m_joints(joints),
          m_side(side),
          m_own(side == SourceSide ? &Joint::first : &Joint::second),
          m_order(order),
          m_sign(order == ColumnOrder::Falling ? -1.0 : 1.0)
    {
    }

    /// Hands out the positions of the other column that answer to a raw position, in the order of the list.
    template <typename Visit>
    void ForEachImage(double position, const Visit& visit)
    {
        if (m_order == ColumnOrder::Irregular)
        {
            detail::ForEachImage(m_joints, position, m_side, visit);
            return;
        }
        const std::size_t size = m_joints.size();
        const std::size_t begin = FirstAtOrAfter(position);
        std::size_t end = begin;
        for (; end < size && Ahead(m_joints[end], position) < DoubleTolerance; ++end)
        {
            visit(ColumnValue(m_joints[end], OtherSide(m_side)));
        }
        m_expected = end;
        if (begin == end && begin > 0 && end < size)
        {
            visit(InterpolateBetween(m_joints[begin - 1], m_joints[end], position, m_side));
        }
    }

private:
    /// How far a joint lies past a position in walking order.
    double Ahead(const Joint& joint, double position) const
    {
        return m_sign * (joint.*m_own - position);
    }

    bool IsBefore(const Joint& joint, double position) const
    {
        return Ahead(joint, position) <= -DoubleTolerance;
    }

    /// Tells whether all joints below an index, and none from there on, are before a position.
    bool IsFirstAtOrAfter(std::size_t index, double position) const
    {
        return (index == 0 || IsBefore(m_joints[index - 1], position)) &&
               (index == m_joints.size() || !IsBefore(m_joints[index], position));
    }

    /// Index of the first joint that is not before a position by the tolerance.
    std::size_t FirstAtOrAfter(double position)
    {
        std::size_t low = 0;
        std::size_t high = m_joints.size();
        if (m_expected != NotYet)
        {
            if (IsFirstAtOrAfter(m_expected, position))
            {
                return m_expected;
            }
            GallopFromExpected(position, low, high);
        }
        // No branch depends on what is compared here, since half of them would be mispredicted.
        auto first = m_joints.begin() + static_cast<std::ptrdiff_t>(low);
        auto left = static_cast<std::ptrdiff_t>(high - low);
        const auto isBefore = [=](const Joint& joint) { return IsBefore(joint, position); };
        while (left > Few)
        {
            const std::ptrdiff_t half = left / 2;
            first += isBefore(*(first + half - 1)) ? half : 0;
            left -= half;
        }
        return static_cast<std::size_t>(first - m_joints.begin() + std::count_if(first, first + left, isBefore));
    }

    /// Closes in on a position from the joint that was expected, by steps that double.
    void GallopFromExpected(double position, std::size_t& low, std::size_t& high) const
    {
        if (m_expected < high && IsBefore(m_joints[m_expected], position))
        {
            const std::size_t size = high;
            low = m_expected + 1;
            for (std::size_t step = 1; low < size; step *= 2)
            {
                const std::size_t probe = std::min(low + step, size) - 1;
                if (!IsBefore(m_joints[probe], position))
                {
                    high = probe;
                    return;
                }
                low = probe + 1;
            }
            return;
        }
        high = m_expected;
        for (std::size_t step = 1; high > 0; step *= 2)
        {
            const std::size_t probe = high - std::min(step, high);
            if (IsBefore(m_joints[probe], position))
            {
                low = probe + 1;
                return;
            }
            high = probe;
        }
    }

    static constexpr std::size_t NotYet = std::numeric_limits<std::size_t>::max();
    static constexpr std::ptrdiff_t Few = 16; ///< joints, of which each is compared

    const JointList& m_joints;
    int m_side;
    double Joint::*m_own;
    ColumnOrder m_order;
    double m_sign;
    std::size_t m_expected = NotYet; ///< what a search for the next position up to the next joint finds
};

} // namespace math::detail
