#pragma once

#include <string>

namespace example
{

/// What the style sheets of the pictures have in common: page, text, labels. Pictures add their own lines and marks, in
/// the colours of Okabe and Ito, which colour-blind people tell apart.
std::string CommonStyle();

} // namespace example
