#pragma once

#include "math/Primitives.h"
#include "position/Columns.h"
#include "position/PairList.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace math::detail
{

/// Finds positions in one column of a list of joints, many of them one after the other.
///
/// Gives the same answers as the scans of PairList.h, which look at every joint. On a column in exact order the joints
/// near a position are neighbours, since a rounded difference grows with its first operand; they are found by a search
/// that starts where the last one ended. Any other column, and a position that is not finite, is scanned.
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

    /// Appends the positions of the other column that answer to a raw position.
    void AppendImages(double position, std::vector<double>& images)
    {
        if (m_order == ColumnOrder::Irregular || !std::isfinite(position))
        {
            detail::AppendImages(m_joints, position, m_side, images);
            return;
        }
        const std::size_t size = m_joints.size();
        const std::size_t begin = FirstAtOrAfter(position);
        std::size_t end = begin;
        for (; end < size && Ahead(end, position) < DoubleTolerance; ++end)
        {
            images.push_back(ColumnValue(m_joints[end], OtherSide(m_side)));
        }
        if (begin == end && begin > 0 && end < size)
        {
            images.push_back(InterpolateBetween(m_joints[begin - 1], m_joints[end], position, m_side));
        }
    }

private:
    /// How far a joint lies past a position in walking order.
    double Ahead(std::size_t index, double position) const
    {
        return m_sign * (m_joints[index].*m_own - position);
    }

    bool IsBefore(std::size_t index, double position) const
    {
        return Ahead(index, position) <= -DoubleTolerance;
    }

    /// Index of the first joint that is not before a position by the tolerance: gallops from the last answer, then
    /// halves.
    std::size_t FirstAtOrAfter(double position)
    {
        const std::size_t size = m_joints.size();
        std::size_t low = 0;
        std::size_t high = size;
        if (m_last < size && IsBefore(m_last, position))
        {
            low = m_last + 1;
            for (std::size_t step = 1; low < size; step *= 2)
            {
                const std::size_t probe = std::min(low + step, size) - 1;
                if (!IsBefore(probe, position))
                {
                    high = probe;
                    break;
                }
                low = probe + 1;
            }
        }
        else
        {
            high = m_last;
            for (std::size_t step = 1; high > 0; step *= 2)
            {
                const std::size_t probe = high - std::min(step, high);
                if (IsBefore(probe, position))
                {
                    low = probe + 1;
                    break;
                }
                high = probe;
            }
        }
        while (low < high)
        {
            const std::size_t middle = low + (high - low) / 2;
            if (IsBefore(middle, position))
            {
                low = middle + 1;
            }
            else
            {
                high = middle;
            }
        }
        m_last = low;
        return low;
    }

    const JointList& m_joints;
    int m_side;
    double Joint::*m_own;
    ColumnOrder m_order;
    double m_sign;
    std::size_t m_last = 0; ///< where the last search ended
};

} // namespace math::detail
