#pragma once

#include <QString>

#include <string_view>

namespace kw {

/// The model's text as the toolkit's.
inline QString Text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// The same with a blank for what would break a line or an XML file.
QString Lesbar(std::string_view utf8);

/// The same as it may stand between the tags and in the attributes of an XML file.
QString FürXml(std::string_view utf8);

/// The same as a tool tip that shows every character as it is; the toolkit takes what looks like a page of the web for
/// one.
QString Tipptext(std::string_view utf8);

} // namespace kw
