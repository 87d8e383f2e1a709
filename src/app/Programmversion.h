#pragma once

#include <string_view>

namespace kw {

/// As users and settings know it.
constexpr std::string_view Programmversion = "1.3.015";

} // namespace kw
