#include "dialogs/frmLegende.h"

#include "dialogs/Dialogumgebung.h"
#include "editing/Werkbank.h"
#include "rendering/Ebenen.h"
#include "rendering/Legende.h"

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"chkLegendeAnzeigen", Art::Ankreuzfeld, {"Legende einblenden", "Show legend"}},
    {"chkAlleSymbole",
     Art::Ankreuzfeld,
     {"Standardsymbole für männlich / weiblich  einbeziehen", "Include standard male / female symbols"}},
    {"optHoch", Art::Option, {"Hochformat", "Portrait"}},
    {"optQuer", Art::Option, {"Querformat", "Landscape"}},
    {"imgAusrichtung", Art::Bild},
    {"cmdOK", Art::Knopf, {"OK", "OK"}},
    {"cmdAbbrechen", Art::Knopf, {"Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{
    "frmLegende", {"Anzeigeoptionen der Legende", "Display options for legend"}, Zeilen, "cmdOK", "cmdAbbrechen"};

// The preview, in cm: room for both forms of the sample, with the margin that a legend keeps on every page.
constexpr double Breite = 10.8;
constexpr double Höhe = 5.1;

/// Seven entries: two columns, or one of seven rows. Without the plain symbols five.
Dokument Musterfamilie() {
    Dokument muster;
    for (const auto *satz : {"001_1_0_0_1.2_1__0_0_____", "002_2_0_0_1.2_0_$80_0_0_____"})
        muster.cboPersonen.Anhängen(satz);
    muster.cboPartnerschaftsLinien.Anhängen("001_2_0_0_0_0_001_002_0_0_0_0_0_###");
    for (const auto *satz : {"_1_0_0_0_0_001_002", "_5_0_0_0_0_001_002"}) muster.cboBeziehungsLinien.Anhängen(satz);
    return muster;
}

} // namespace

frmLegende::frmLegende(Dialogumgebung &umgebung) : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {}

void frmLegende::Laden() {
    const Dokument &d = umgebung_.werkbank.dokument;
    WertSetzen("chkLegendeAnzeigen", d.LegendeSichtbar);
    WertSetzen("chkAlleSymbole", !d.OhneStandardsymbole);
    OptionSetzen(d.LegendeQuer ? "optQuer" : "optHoch");
}

void frmLegende::Geklickt(std::string_view name) {
    if (name == "cmdOK") Bestätigen();
    if (name == "cmdAbbrechen") Schließen();
}

void frmLegende::Bestätigen() {
    Werkbank &w = umgebung_.werkbank;
    const bool anders = w.dokument.OhneStandardsymbole == (*this)["chkAlleSymbole"].Value ||
                        w.dokument.LegendeQuer != (*this)["optQuer"].Value ||
                        w.dokument.LegendeSichtbar != (*this)["chkLegendeAnzeigen"].Value;
    if (anders) w.fenster.AlsGeändertMerken(); // the project holds them, no snapshot does
    w.dokument.OhneStandardsymbole = !(*this)["chkAlleSymbole"].Value;
    w.dokument.LegendeQuer = (*this)["optQuer"].Value;
    LegendeAufbauen(w.dokument, w.legende);
    umgebung_.dienste.LegendeZeigen((*this)["chkLegendeAnzeigen"].Value);
    Schließen();
}

std::pair<double, double> frmLegende::BildGröße(std::string_view) const { return {Breite, Höhe}; }

void frmLegende::BildZeichnen(std::string_view, Zeichenfläche &f) {
    const Werkbank &w = umgebung_.werkbank;
    Dokument muster = Musterfamilie();
    muster.LegendeQuer = (*this)["optQuer"].Value;
    muster.OhneStandardsymbole = !(*this)["chkAlleSymbole"].Value;
    muster.LegendeX = muster.LegendeY = 0; // drawn at the margin
    Ansicht ansicht = w.ansicht;
    ansicht.SeitenBreite = Breite;
    ansicht.SeitenHöhe = Höhe;
    ansicht.Rasterweite = 0.1;
    ansicht.StrichFaktor = 1;
    Legendenblatt blatt;
    LegendeAufbauen(muster, blatt);
    const Gestenlage keine;
    const Zeichnung bild{muster, ansicht, w.auswahl, keine, blatt, umgebung_.uhr};
    f.DrawStyle = StilDurchgezogen;
    LegendenEbene(f, bild, f.Faktor());
}

} // namespace kw
