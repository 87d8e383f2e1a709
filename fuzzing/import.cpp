// What other programs leave: the data of a case, a line of two dashes, the list of persons.
#include "Buehne.h"
#include "Umlauf.h"

#include "document/Doppelnummern.h"
#include "document/Importdaten.h"
#include "document/saetze/Person.h"

#include <algorithm>
#include <string>

namespace kw {

namespace {

constexpr std::size_t EinPaarZeilen = 2000; ///< bytes

bool IstPerson(const std::string &satz) { return std::count(satz.begin(), satz.end(), '_') == PersonSatz::Anzahl - 1; }

} // namespace

} // namespace kw

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl) {
    using namespace kw;
    constexpr std::string_view Grenze = "\n--\n";
    const auto text = AlsText(bytes, anzahl);
    const auto grenze = std::min(text.find(Grenze), anzahl);
    const auto fall = text.substr(0, grenze);
    const auto liste = text.substr(std::min(grenze + Grenze.size(), anzahl));

    Dokument dokument;
    const Profil daten{std::string(fall)};
    for (const auto &box : ImportTexte(daten)) dokument.cboTextboxen.Anhängen(box);
    for (const auto &person : ImportPersonen(daten, 29.7)) dokument.cboPersonen.Anhängen(person);
    DoppelnummernAuflösen(dokument);
    for (const auto &zeile : Importzeilen(liste.substr(0, EinPaarZeilen))) // as many as somebody would drag
        dokument.cboPersonen.Anhängen(ImportSatz(ImportpersonAus(zeile), dokument.NeuePersNr(), 1, 1, 1.2));
    Halten(std::all_of(dokument.cboPersonen.begin(), dokument.cboPersonen.end(), IstPerson), "persons are whole");
    Umlauf(dokument);

    static const Bühne Bühne;
    Bühne.Datei("fall.xyz", fall);
    Bühne.Datei("muster.txt", liste);
    Bühne.Spielen("start cmd=\"/dataimport fall\" documents=.\nwait 200\ndraw\ndrop 0 5 5\ndraw\nterminate\n");
    return 0;
}
