#pragma once

namespace math::detail
{

/// The outcome of a first look, which is sure only far from every boundary. Whoever is not sure takes the full steps.
enum class Verdict
{
    Inside,
    Outside,
    Unsure
};

} // namespace math::detail
