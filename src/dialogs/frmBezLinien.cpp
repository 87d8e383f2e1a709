#include "dialogs/frmBezLinien.h"

#include "dialogs/Dialogumgebung.h"
#include "document/saetze/Beziehung.h"
#include "editing/Linien.h"
#include "editing/Werkbank.h"
#include "rendering/Ebenen.h"

#include <array>

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"optNormal", Art::Option, {"Normal / gut", "Normal / Good"}},
    {"optEng", Art::Option, {"Eng", "Close"}},
    {"optVerschmolzen", Art::Option, {"Verschmolzen", "Fused"}},
    {"optDistanziert", Art::Option, {"Distanziert", "Distant"}},
    {"optAbbruch", Art::Option, {"Abbruch", "Cutoff"}},
    {"optKonflikthaft", Art::Option, {"Konflikthaft", "Conflict / Hostile"}},
    {"optEng_Konflikt", Art::Option, {"Konflikthaft / Eng", "Conflict / Close"}},
    {"optVerschm_Konflikthaft", Art::Option, {"Konflikthaft /", "Conflict / Fused"}},
    {"Label1", Art::Beschriftung, {"verschmolzen", ""}}, // the last caption's second line
    {"Picture1", Art::Bild},
    {"imgLine", Art::Beschriftung, {}, {}, "Picture1"},
    {"imgKonflikt", Art::Beschriftung, {}, {}, "Picture1"},
    {"Command1", Art::Knopf, {"&OK", "&OK"}},
    {"Command2", Art::Knopf, {"Abbrechen", "Cancel"}},
    {"Command3", Art::Knopf, {"Löschen", "Delete"}},
};
constexpr Formulartafel Tafel{"frmBezLinien", {"Beziehung", "Relationship"}, Zeilen, "Command1", "Command2"};

/// A kind of relationship; its place is its code in the record. A conflict lies over a plain line, or over none.
struct Beziehungsart {
    std::string_view Option;
    bool Linie;
    bool Konflikt;
};

constexpr std::array<Beziehungsart, 8> Arten{{
    {"optNormal", true, false},
    {"optEng", true, false},
    {"optVerschmolzen", true, false},
    {"optDistanziert", true, false},
    {"optAbbruch", true, false},
    {"optKonflikthaft", false, true},
    {"optEng_Konflikt", true, true},
    {"optVerschm_Konflikthaft", true, true},
}};

// The preview, in cm.
constexpr double Breite = 6;
constexpr double Höhe = 1.2;
constexpr double Rand = 0.5;

} // namespace

frmBezLinien::frmBezLinien(Dialogumgebung &umgebung) : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {
    (*this)["imgKonflikt"].Visible = false;
}

void frmBezLinien::Laden() {
    const Satzliste &linien = umgebung_.werkbank.dokument.cboBeziehungsLinien;
    const int i = umgebung_.werkbank.lage.BezAuswahl;
    if (!Gültig(linien, i)) return;
    const BeziehungSatz linie(linien.Satz(i), Lücken::Leer);
    for (size_t code = 0; code < Arten.size(); ++code)
        if (linie.Beziehungsart() == std::to_string(code)) OptionSetzen(Arten[code].Option);
}

int frmBezLinien::Gewählt() const {
    for (size_t code = 0; code < Arten.size(); ++code)
        if (Finden(Arten[code].Option)->Value) return static_cast<int>(code);
    return -1;
}

void frmBezLinien::Geklickt(std::string_view name) {
    if (name == "Command1") return Bestätigen();
    if (name == "Command2") return Schließkreuz();
    if (name == "Command3") {
        // A line that was drawn a moment ago is in no snapshot yet: it goes as if cancelled.
        if (umgebung_.werkbank.lage.Aktion == Aktion::BeziehungZiehen) BezLAbbrechen(umgebung_.werkbank);
        else BezLinieLöschen(umgebung_.werkbank);
        return Schließen();
    }
    const Beziehungsart &art = Arten.at(static_cast<size_t>(Gewählt()));
    (*this)["imgKonflikt"].Visible = art.Konflikt;
    (*this)["imgLine"].Visible = art.Linie;
}

/// Without a choice a damaged record keeps what it has.
void frmBezLinien::Bestätigen() {
    if (const int code = Gewählt(); code >= 0) Bez_LinieAnpassen(umgebung_.werkbank, std::to_string(code));
    Schließen();
}

void frmBezLinien::Schließkreuz() {
    BezLAbbrechen(umgebung_.werkbank);
    Schließen();
}

std::pair<double, double> frmBezLinien::BildGröße(std::string_view) const { return {Breite, Höhe}; }

void frmBezLinien::BildZeichnen(std::string_view, Zeichenfläche &f) {
    const int code = Gewählt();
    if (code < 0) return;
    char basis = ' ';
    f.DrawWidth = 1;
    f.DrawStyle = StilDurchgezogen;
    BeziehungZeichnen(f, umgebung_.werkbank.ansicht.Linienfarben, std::to_string(code), basis, Rand, Höhe / 2,
                      Breite - Rand, Höhe / 2);
}

} // namespace kw
