#include "document/Maskierung.h"

namespace kw {

namespace {

constexpr std::string_view Ziffern = "0123456789ABCDEF";

} // namespace

std::string Maskiert(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (BleibtUnmaskiert(c)) text += c;
        else text.append({'%', Ziffern[byte / Ziffern.size()], Ziffern[byte % Ziffern.size()]});
    }
    return text;
}

std::optional<std::string> Demaskiert(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            if (!BleibtUnmaskiert(text[i])) return {};
            bytes += text[i];
            continue;
        }
        if (i + 2 >= text.size()) return {};
        const auto oben = Ziffern.find(text[++i]);
        const auto unten = Ziffern.find(text[++i]);
        if (oben == std::string_view::npos || unten == std::string_view::npos) return {};
        bytes += static_cast<char>(oben * Ziffern.size() + unten);
    }
    return bytes;
}

} // namespace kw
