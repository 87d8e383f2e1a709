#include "document/saetze/Textbox.h"

#include <algorithm>

namespace kw {

namespace {

/// As many fields as the record has, though no more than a record is read to.
int Felderzahl(std::string_view satz) {
    return std::min(static_cast<int>(std::count(satz.begin(), satz.end(), '_')) + 1, Felder::Höchstzahl);
}

} // namespace

TextBau::TextBau(std::string_view satz) : Satzbau(satz, Felderzahl(satz)) {}

std::string GemesseneTextbox(std::string_view satz, double breite, double höhe) {
    std::string text;
    for (int feld = 0; feld < TextSatz::AnzahlUngemessen; ++feld) text.append(Abgetrennt(satz, '_')).append("_");
    return text + ZahlSchreiben(breite) + "_" + ZahlSchreiben(höhe);
}

} // namespace kw
