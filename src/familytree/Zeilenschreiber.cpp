#include "familytree/Zeilenschreiber.h"

#include "document/Texte.h"
#include "familytree/Utf8.h"

#include <array>

namespace kw {

namespace {

constexpr std::string_view Bytemarke = "\xEF\xBB\xBF";
constexpr std::string_view Zeilenende = "\r\n";
constexpr std::array<std::string_view, 2> Namen{"5.5.1", "7.0"};

/// Bytes of a line, its end among them. The older version counts characters, but many programs count bytes.
constexpr std::size_t LängsteZeile = 255;

/// One of the characters that neither version has in a file: U+0000 to U+001F, U+007F to U+009F, and the two that
/// are none.
bool IstVerboten(std::string_view zeichen) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(zeichen[i]); };
    if (zeichen.size() == 1) return byte(0) < 0x20 || byte(0) == 0x7F;
    if (zeichen.size() == 2) return byte(0) == 0xC2 && byte(1) < 0xA0;
    return zeichen == "\xEF\xBF\xBE" || zeichen == "\xEF\xBF\xBF";
}

/// What the format can hold of a text, with line breaks as "\n".
std::string Haltbar(std::string_view text) {
    const std::string utf8 = Ersetzt(Utf8Ersetzt(text), "\r\n", "\n");
    std::string neu;
    neu.reserve(utf8.size());
    for (std::string_view rest = utf8; !rest.empty();) {
        const auto zeichen = rest.substr(0, ErstesUtf8(rest).Länge);
        rest.remove_prefix(zeichen.size());
        if (zeichen == "\n" || zeichen == "\r") neu += '\n';
        else neu += IstVerboten(zeichen) ? " " : zeichen;
    }
    return neu;
}

/// Bytes of `wert` that go into a line with room for `platz`: no character is cut and no doubled "@", and no blank
/// stands at the cut, since programs take it away there.
std::size_t Schnitt(std::string_view wert, std::size_t platz) {
    if (wert.size() <= platz) return wert.size();
    const auto möglich = UnzerteilterAnfang(wert, platz).size();
    for (std::size_t schnitt = möglich; schnitt > platz / 2; --schnitt) {
        const bool blank = wert[schnitt - 1] == ' ' || wert[schnitt] == ' ';
        if (!blank && !IstFortsetzung(wert[schnitt]) && wert[schnitt - 1] != '@') return schnitt;
    }
    return möglich;
}

} // namespace

std::string_view Fassungsname(Stammbaumfassung fassung) { return Namen[static_cast<std::size_t>(fassung)]; }

Zeilenschreiber::Zeilenschreiber(Stammbaumfassung fassung) : fassung_(fassung), text_(Bytemarke) {}

void Zeilenschreiber::Schreiben(std::string_view vorn, std::string_view wert) {
    text_ += vorn;
    if (!wert.empty()) text_.append(" ").append(wert);
    text_ += Zeilenende;
}

void Zeilenschreiber::Satz(std::string_view kennung, std::string_view marke) {
    Schreiben(kennung.empty() ? "0" : "0 @" + std::string(kennung) + "@", marke);
}

void Zeilenschreiber::Zeiger(int ebene, std::string_view marke, std::string_view kennung) {
    Schreiben(std::to_string(ebene) + " " + std::string(marke), "@" + std::string(kennung) + "@");
}

/// A value without line breaks, in as many lines as it takes.
void Zeilenschreiber::Teile(int ebene, std::string_view marke, std::string_view wert) {
    std::string vorn = std::to_string(ebene) + " " + std::string(marke);
    if (IstAlt()) {
        const std::string weiter = std::to_string(marke == "CONT" ? ebene : ebene + 1) + " CONC";
        for (auto platz = LängsteZeile - Zeilenende.size() - vorn.size() - 1; wert.size() > platz;
             platz = LängsteZeile - Zeilenende.size() - vorn.size() - 1) {
            const auto schnitt = Schnitt(wert, platz);
            Schreiben(vorn, wert.substr(0, schnitt));
            wert.remove_prefix(schnitt);
            vorn = weiter;
        }
    }
    Schreiben(vorn, wert);
}

void Zeilenschreiber::Zeile(int ebene, std::string_view marke, std::string_view wert) {
    std::string ganz = Haltbar(wert);
    // The older version doubles each "@", the newer one only that which begins a value.
    if (IstAlt()) ganz = Ersetzt(std::move(ganz), "@", "@@");
    std::string_view rest = ganz;
    for (bool erste = true;; erste = false) {
        const auto ende = rest.find('\n');
        std::string teil(rest.substr(0, ende));
        if (!IstAlt() && teil.starts_with('@')) teil.insert(0, "@");
        Teile(erste ? ebene : ebene + 1, erste ? marke : "CONT", teil);
        if (ende == std::string_view::npos) return;
        rest.remove_prefix(ende + 1);
    }
}

} // namespace kw
