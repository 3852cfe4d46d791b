#pragma once

#include <algorithm>
#include <iterator>

namespace math::detail
{

/// Sorts, equivalent elements in order: zeros of either sign keep their places whatever the standard library. What is
/// in order already, or strictly in opposite order, as the columns of most maps are, takes one pass.
template <typename Iterator, typename Before>
void SortStably(Iterator begin, Iterator end, const Before& comesBefore)
{
    using Element = typename std::iterator_traits<Iterator>::value_type;
    if (std::is_sorted(begin, end, comesBefore))
    {
        return;
    }
    const auto isInOrder = [&](const Element& element, const Element& next) { return !comesBefore(next, element); };
    if (std::adjacent_find(begin, end, isInOrder) == end)
    {
        std::reverse(begin, end);
        return;
    }
    std::stable_sort(begin, end, comesBefore);
}

} // namespace math::detail
