#include "dialogs/frmSeiteEinrichten.h"

#include "dialogs/Dialogumgebung.h"
#include "document/Papier.h"
#include "editing/Werkbank.h"
#include "platform/Drucker.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"Frame1", Art::Rahmen, {"Papierformat", "Paper Size"}},
    {"cboPapierformat", Art::Liste},
    {"Frame2", Art::Rahmen, {"Ausrichtung", "Alignment"}},
    {"Option1", Art::Option, {"Hochformat", "Portrait"}},
    {"Option2", Art::Option, {"Querformat", "Landscape"}},
    {"Check1", Art::Ankreuzfeld, {"Druckrand anzeigen", "Show Print Margins"}},
    {"cmdOK", Art::Knopf, {"OK", "OK"}},
    {"cmdAbbrechen", Art::Knopf, {"Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{
    "frmSeiteEinrichten", {"Seite einrichten", "Page Setup"}, Zeilen, "cmdOK", "cmdAbbrechen"};

constexpr int Hochformat = 1;
constexpr int Querformat = 2;

constexpr std::array Papierfolge{DinA4, DinA5, UsLetter}; ///< the list's order

} // namespace

frmSeiteEinrichten::frmSeiteEinrichten(Dialogumgebung &umgebung)
    : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {
    for (const int code : Papierfolge) (*this)["cboPapierformat"].Einträge.emplace_back(PapierMit(code).Name);
}

void frmSeiteEinrichten::Laden() {
    const Werkbank &w = umgebung_.werkbank;
    WertSetzen("Check1", w.ansicht.bDruckrandAnzeigen);
    const bool hatDrucker = umgebung_.drucker.DeviceName().has_value();
    const int lage = hatDrucker ? umgebung_.drucker.Orientation() : w.dokument.Seitenlage;
    OptionSetzen(lage == Hochformat ? "Option1" : "Option2");
    const int code = w.dokument.Papiercode < 1 ? DinA4 : w.dokument.Papiercode;
    const auto *papier = std::find(Papierfolge.begin(), Papierfolge.end(), code);
    IndexSetzen("cboPapierformat", papier == Papierfolge.end() ? -1 : static_cast<int>(papier - Papierfolge.begin()));
}

void frmSeiteEinrichten::Geklickt(std::string_view name) {
    if (name == "cmdOK") Bestätigen();
    if (name == "cmdAbbrechen") Schließen();
}

void frmSeiteEinrichten::Bestätigen() {
    Werkbank &w = umgebung_.werkbank;
    w.ansicht.bDruckrandAnzeigen = (*this)["Check1"].Value;
    const auto vorher = std::pair(w.dokument.Papiercode, w.dokument.Seitenlage);
    if (const int i = (*this)["cboPapierformat"].ListIndex; i >= 0)
        w.dokument.Papiercode = Papierfolge.at(static_cast<size_t>(i));
    const int lage = (*this)["Option1"].Value ? Hochformat : Querformat;
    if (umgebung_.drucker.DeviceName()) umgebung_.drucker.OrientationSetzen(lage);
    // What a file says beyond the two stays as long as it means the same.
    if ((lage == Hochformat) != (w.dokument.Seitenlage == Hochformat)) w.dokument.Seitenlage = lage;
    if (vorher != std::pair(w.dokument.Papiercode, w.dokument.Seitenlage))
        w.fenster.AlsGeändertMerken(); // the project holds the page
    umgebung_.dienste.SeiteAnwenden();
    w.fenster.Vorschau();
    Schließen();
}

} // namespace kw
