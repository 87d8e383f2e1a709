#include "output/Stammbaumziel.h"

#include "document/Dateien.h"
#include "output/Fehlertexte.h"
#include "output/Zieldatei.h"
#include "platform/Benutzer.h"

namespace kw {

namespace {

constexpr Zweisprachig Titel{"Stammbaum speichern unter ...", "Save family tree as ..."};
constexpr std::string_view Filter = "GEDCOM  (*.ged)|*.ged";

} // namespace

bool StammbaumSpeichern(Benutzer &benutzer, Sprache sprache, const std::string &projektdatei,
                        const std::string &inhalt) {
    const Dateiwahl wahl{std::string(Titel.In(sprache)), Drucktitel(projektdatei), std::string(Filter),
                         Ausgabeordner(benutzer, projektdatei)};
    const auto datei = ZieldateiWählen(benutzer, wahl, sprache);
    if (!datei) return false;
    const auto grund = Fehlgrund([&] { return DateiSchreiben(*datei, inhalt).Grund; });
    if (grund) NichtGeschriebenMelden(benutzer, sprache, *datei, *grund);
    return !grund;
}

} // namespace kw
