#include "dialogs/frmOhneNamen.h"

#include "dialogs/Dialogumgebung.h"
#include "dialogs/Seitenbild.h"
#include "editing/Werkbank.h"
#include "platform/Befehlsnamen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"lblErklärung",
     Art::Beschriftung,
     {"Statt der Namen stehen Buchstaben für die Generationen, von oben, und Zahlen, von links. Das Projekt selbst "
      "bleibt, wie es ist.",
      "Names become letters for the generations, from the top, and numbers, from the left. The project itself stays as "
      "it is."}},
    {"lblGeburt", Art::Beschriftung, {"Statt des Geburtsdatums", "Instead of the date of birth"}},
    {"optAlter", Art::Option, {"&Alter am heutigen Tag", "&Age as of today"}},
    {"optJahr", Art::Option, {"Geburts&jahr", "&Year of birth"}},
    {"lblFehlt", Art::Beschriftung},
    {"picSeite", Art::Bild},
    {"cmdOK", Art::Knopf, {"&Exportieren ...", "&Export ..."}},
    {"cmdAbbrechen", Art::Knopf, {"Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{
    Name::frmOhneNamen.Text, {"Ohne Namen exportieren", "Export Without Names"}, Zeilen, "cmdOK", "cmdAbbrechen"};

constexpr Zweisprachig FehltVorn{"Es fehlen dann: ", "This leaves out: "};
constexpr Zweisprachig FehltNichts{"Es ist nichts da, was fehlen müsste.", "There is nothing to leave out."};

struct Zählwort {
    int Weggelassenes::*Anzahl;
    Zweisprachig Eines, Mehrere;
};
constexpr Zählwort Zählworte[] = {
    {&Weggelassenes::Personen, {"Name einer Person", "person's name"}, {"Namen von Personen", "persons' names"}},
    {&Weggelassenes::Daten, {"Datum", "date"}, {"Daten", "dates"}},
    {&Weggelassenes::Institutionen,
     {"Name einer Institution", "institution's name"},
     {"Namen von Institutionen", "institutions' names"}},
    {&Weggelassenes::Texte, {"Textfeld", "text box"}, {"Textfelder", "text boxes"}},
};

} // namespace

frmOhneNamen::frmOhneNamen(Dialogumgebung &umgebung) : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {}

void frmOhneNamen::Laden() {
    (*this)["lblFehlt"].Caption = Fehlendes();
    OptionSetzen("optAlter");
}

Lebenszeit frmOhneNamen::Gewählte() const {
    return Finden("optJahr")->Value ? Lebenszeit::Geburtsjahr : Lebenszeit::Alter;
}

std::string frmOhneNamen::Fehlendes() const {
    const Sprache sprache = umgebung_.Sprache();
    const Weggelassenes fehlt = OhneNamenFehlt(umgebung_.werkbank.dokument);
    std::string satz;
    for (const auto &[anzahl, eines, mehrere] : Zählworte) {
        if (fehlt.*anzahl == 0) continue;
        satz += (satz.empty() ? std::string(FehltVorn.In(sprache)) : ", ") + std::to_string(fehlt.*anzahl) + " ";
        satz += (fehlt.*anzahl == 1 ? eines : mehrere).In(sprache);
    }
    return satz.empty() ? std::string(FehltNichts.In(sprache)) : satz + ".";
}

void frmOhneNamen::Geklickt(std::string_view name) {
    const Werkbank &w = umgebung_.werkbank;
    if (name == "optAlter" || name == "optJahr") seite_.emplace(w.dokument, w.ansicht, Gewählte(), umgebung_.uhr);
    if (name == "cmdAbbrechen" || (name == "cmdOK" && umgebung_.dienste.OhneNamenExportieren(Gewählte()))) Schließen();
}

std::pair<double, double> frmOhneNamen::BildGröße(std::string_view) const {
    const Ansicht &ansicht = umgebung_.werkbank.ansicht;
    return {ansicht.SeitenBreite, ansicht.SeitenHöhe};
}

/// As large as small screens have room for.
double frmOhneNamen::BildMaßstab(std::string_view name) const {
    constexpr double GrößteBreite = 17; // cm
    constexpr double GrößteHöhe = 11.5;
    const auto [breite, höhe] = BildGröße(name);
    return std::min(GrößteBreite / breite, GrößteHöhe / höhe);
}

void frmOhneNamen::BildZeichnen(std::string_view name, Zeichenfläche &f) {
    const auto [breite, höhe] = BildGröße(name);
    if (seite_) SeitenvorschauZeichnen(f, seite_->Bild(), breite, höhe);
}

} // namespace kw
