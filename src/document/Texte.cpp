#include "document/Texte.h"

#include <algorithm>

namespace kw {

int Zeichenzahl(std::string_view text) {
    return static_cast<int>(text.size()) - static_cast<int>(std::count_if(text.begin(), text.end(), IstFortsetzung));
}

std::string_view Getrimmt(std::string_view text) {
    const auto anfang = text.find_first_not_of(' ');
    if (anfang == std::string_view::npos) return {};
    return text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
}

std::string Ersetzt(std::string text, std::string_view alt, std::string_view neu) {
    for (size_t i = text.find(alt); i != std::string::npos; i = text.find(alt, i + neu.size()))
        text.replace(i, alt.size(), neu);
    return text;
}

std::string Ohne(std::string_view text, char zeichen) {
    std::string rest(text);
    std::erase(rest, zeichen);
    return rest;
}

std::string MitAbsatzzeichen(std::string_view text) { return Ersetzt(std::string(text), "_", Absatzzeichen); }

std::string OhneAbsatzzeichen(std::string_view text) { return Ersetzt(std::string(text), Absatzzeichen, "_"); }

} // namespace kw
