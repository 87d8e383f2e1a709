#include "document/Texte.h"

#include <algorithm>

namespace kw {

int Zeichenzahl(std::string_view text) {
    constexpr unsigned Fortsetzung = 0x80; // the bytes of a character behind its first
    return static_cast<int>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != Fortsetzung; }));
}

std::string_view Getrimmt(std::string_view text) {
    const auto anfang = text.find_first_not_of(' ');
    if (anfang == std::string_view::npos) return {};
    return text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
}

} // namespace kw
