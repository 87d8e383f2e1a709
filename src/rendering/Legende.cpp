#include "rendering/Legende.h"

#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"

#include <set>

namespace kw {

namespace {

using Codes = std::set<std::string>; ///< sorted as text, each once: "021" stands after "02"

void PersonEintragen(const PersonSatz &person, Codes &codes) {
    // A kind without a symbol has nothing to explain: it makes no empty row.
    const int kennzahl = SymbolKennzahl(person.Symboltyp());
    if (kennzahl >= 10) codes.insert("02" + std::to_string(kennzahl - 9));
    else if (kennzahl >= 1 && kennzahl != 8) codes.insert("0" + std::to_string(kennzahl));

    if (kennzahl == 1 || kennzahl == 2) { // only these two explain their marks
        if (person.IndexPerson() == "1") codes.insert("20");
        if (person.Verstorben()) codes.insert("29");
        if (person.Sucht()) codes.insert("25");
        if (person.Erkrankung()) codes.insert("27");
    }
    if (person.Zweieiig()) codes.insert("35");
    if (person.Eineiig()) codes.insert("36");
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
    for (const auto &satz : dokument.cboPersonen) PersonEintragen(PersonSatz(satz, Lücken::Leer), codes);
    for (const auto &satz : dokument.cboBeziehungsLinien)
        ArtEintragen(40, 8, BeziehungSatz(satz, Lücken::Leer).Beziehungsart(), codes);
    for (const auto &satz : dokument.cboPartnerschaftsLinien) {
        const PartnerschaftSatz partnerschaft(satz, Lücken::Leer);
        ArtEintragen(50, 4, partnerschaft.Status(), codes);
        if (partnerschaft.Distanziert()) codes.insert("43");
    }
    for (const auto &satz : dokument.cboKindlinien) {
        const std::string_view art = KindSatz(satz, Lücken::Leer).Kindart();
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
