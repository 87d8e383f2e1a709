#include "rendering/Legende.h"

#include "document/Felder.h"
#include "document/Zahlen.h"
#include "rendering/Symbole.h"

#include <set>

namespace kw {

namespace {

using Codes = std::set<std::string>; ///< sorted as text, each once: "021" stands after "02"

void PersonEintragen(const Felder &feld, Codes &codes) {
    // A kind without a symbol has nothing to explain: it makes no empty row.
    const int kennzahl = SymbolKennzahl(feld.OderLeer(PersonFeld::Symboltyp));
    if (kennzahl >= 10) codes.insert("02" + std::to_string(kennzahl - 9));
    else if (kennzahl >= 1 && kennzahl != 8) codes.insert("0" + std::to_string(kennzahl));

    if (kennzahl == 1 || kennzahl == 2) { // only these two explain their marks
        if (feld.OderLeer(PersonFeld::IndexPerson) == "1") codes.insert("20");
        if (feld.OderLeer(PersonFeld::Sterbealter).starts_with('$')) codes.insert("29");
        if (feld.OderLeer(PersonFeld::Sucht) == "1") codes.insert("25");
        if (feld.OderLeer(PersonFeld::Erkrankung) == "1") codes.insert("27");
    }
    const std::string_view zwilling = feld.OderLeer(PersonFeld::Zwilling);
    if (zwilling.starts_with("2E")) codes.insert("35");
    if (zwilling.starts_with("1E")) codes.insert("36");
}

/// Adds `basis` plus a code of one digit, when that is among the `anzahl` known ones. An empty code
/// counts as 0.
void ArtEintragen(int basis, int anzahl, std::string_view art, Codes &codes) {
    const double wert = ZahlLesen(art);
    for (int i = 0; i < anzahl; ++i)
        if (wert == i) codes.insert(std::to_string(basis + i));
}

} // namespace

void LegendeAufbauen(const Dokument &dokument, Legendenblatt &blatt) {
    Codes codes;
    for (const auto &satz : dokument.cboPersonen) PersonEintragen(Felder(satz), codes);
    for (const auto &satz : dokument.cboBeziehungsLinien)
        ArtEintragen(40, 8, Felder(satz).OderLeer(BezFeld::Beziehungsart), codes);
    for (const auto &satz : dokument.cboPartnerschaftsLinien) {
        const Felder feld(satz);
        ArtEintragen(50, 4, feld.OderLeer(PLinieFeld::Status), codes);
        if (feld.OderLeer(PLinieFeld::Distanziert) == "1") codes.insert("43");
    }
    for (const auto &satz : dokument.cboKindlinien) {
        const std::string_view art = Felder(satz).OderLeer(KindFeld::Kindart);
        if (art == "1") codes.insert("60");
        if (art == "2") codes.insert("61");
    }
    // Each only when it comes first, which a plain male or female does.
    for (const auto *standard : {"01", "02"})
        if (dokument.OhneStandardsymbole && !codes.empty() && *codes.begin() == standard) codes.erase(codes.begin());

    blatt.lstLegende.Leeren();
    for (const auto &code : codes) blatt.lstLegende.Anhängen(code);
}

} // namespace kw
