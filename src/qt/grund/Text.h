#pragma once

#include <QString>

#include <string_view>

namespace kw {

/// The model's text as the toolkit's.
inline QString Text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace kw
