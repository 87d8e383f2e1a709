#include "dialogs/frmStammbaumbericht.h"

#include "dialogs/Dialogumgebung.h"
#include "dialogs/Stammbaumvorlage.h"
#include "document/Dateinamen.h"
#include "platform/Befehlsnamen.h"
#include "platform/Drucker.h"

#include <algorithm>

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"lblDatei", Art::Beschriftung},
    {"lstBericht", Art::Listenfeld, {}, {"Bericht", "Report"}},
    {"cmdSpeichern", Art::Knopf, {"&Speichern ...", "&Save ..."}},
    {"cmdDrucken", Art::Knopf, {"&Drucken", "&Print"}},
    {"cmdSchließen", Art::Knopf, {"Schließen", "Close"}},
};
constexpr Formulartafel Tafel{Name::frmStammbaumbericht.Text,
                              {"Bericht zum Stammbaum", "Report on the Family Tree"},
                              Zeilen,
                              "cmdSchließen",
                              "cmdSchließen"};

constexpr Zweisprachig NichtsZuBerichten{"Alles ist übernommen, wie es in der Datei steht.",
                                         "Everything was taken as it stands in the file."};
constexpr Zweisprachig UndMehr{"... und %1 weitere Zeilen; gespeichert und gedruckt werden alle.",
                               "... and %1 more lines; all of them are saved and printed."};
constexpr std::size_t Listenlänge = 2000; ///< lines that show; a list of more takes its time

} // namespace

frmStammbaumbericht::frmStammbaumbericht(Dialogumgebung &umgebung)
    : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {}

void frmStammbaumbericht::Laden() {
    const Sprache sprache = umgebung_.Sprache();
    const Stammbaumvorlage &vorlage = *umgebung_.stammbaum;
    (*this)["lblDatei"].Caption = DateiName(vorlage.Datei);
    auto &einträge = (*this)["lstBericht"].Einträge;
    std::size_t weitere = 0;
    for (std::size_t i = 0; i < vorlage.Bericht.size();) {
        const std::size_t ende = std::min(vorlage.Bericht.find('\n', i), vorlage.Bericht.size());
        if (einträge.size() < Listenlänge) einträge.push_back(vorlage.Bericht.substr(i, ende - i));
        else ++weitere;
        i = ende + 1;
    }
    if (weitere > 0) einträge.push_back(Ersetzt(std::string(UndMehr.In(sprache)), "%1", std::to_string(weitere)));
    if (einträge.empty()) einträge.emplace_back(NichtsZuBerichten.In(sprache));
    IndexSetzen("lstBericht", 0);
    (*this)["cmdDrucken"].Enabled = umgebung_.drucker.DeviceName().has_value() && !vorlage.Bericht.empty();
    (*this)["cmdSpeichern"].Enabled = !vorlage.Bericht.empty();
}

void frmStammbaumbericht::Geklickt(std::string_view name) {
    const Stammbaumvorlage &vorlage = *umgebung_.stammbaum;
    const std::string titel = Caption + " " + NameOhneKennung(DateiName(vorlage.Datei));
    if (name == "cmdSpeichern") umgebung_.dienste.TextSpeichern(titel, vorlage.Bericht);
    if (name == "cmdDrucken") umgebung_.dienste.TextDrucken(titel, vorlage.Bericht);
    if (name == "cmdSchließen") Schließen();
}

} // namespace kw
