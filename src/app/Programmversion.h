#pragma once

#include <string_view>

namespace kw {

/// As users and settings know it: the build's version, its last part with three digits.
extern const std::string_view Programmversion;

} // namespace kw
