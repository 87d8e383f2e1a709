#include "dialogs/frmBezLinien.h"

#include "document/Felder.h"
#include "editing/Linien.h"
#include "rendering/Ebenen.h"

#include <array>

namespace kw {

namespace {

/// A kind of relationship; its place is its code in the record. A conflict lies over a plain line, or over none.
struct Beziehungsart {
    std::string_view Option;
    std::string_view Deutsch;
    std::string_view Englisch;
    bool Linie;
    bool Konflikt;
};

constexpr std::array<Beziehungsart, 8> Arten{{
    {"optNormal", "Normal / gut", "Normal / Good", true, false},
    {"optEng", "Eng", "Close", true, false},
    {"optVerschmolzen", "Verschmolzen", "Fused", true, false},
    {"optDistanziert", "Distanziert", "Distant", true, false},
    {"optAbbruch", "Abbruch", "Cutoff", true, false},
    {"optKonflikthaft", "Konflikthaft", "Conflict / Hostile", false, true},
    {"optEng_Konflikt", "Konflikthaft / Eng", "Conflict / Close", true, true},
    {"optVerschm_Konflikthaft", "Konflikthaft /", "Conflict / Fused", true, true},
}};

// The preview, in cm.
constexpr double Breite = 6;
constexpr double Höhe = 1.2;
constexpr double Rand = 0.5;

} // namespace

frmBezLinien::frmBezLinien(Dialogumgebung &umgebung) : Formular("frmBezLinien", ""), umgebung_(umgebung) {
    const bool deutsch = umgebung.IstDeutsch();
    Caption = deutsch ? "Beziehung" : "Relationship";
    for (const Beziehungsart &art : Arten) Anlegen(art.Option, Art::Option, deutsch ? art.Deutsch : art.Englisch);
    Anlegen("Label1", Art::Beschriftung, deutsch ? "verschmolzen" : ""); // the last caption's second line
    Anlegen("Picture1", Art::Bild);
    for (const auto *bild : {"imgLine", "imgKonflikt"}) Anlegen(bild, Art::Beschriftung).Bei = "Picture1";
    (*this)["imgKonflikt"].Visible = false;
    Anlegen("Command1", Art::Knopf, "&OK");
    Anlegen("Command2", Art::Knopf, deutsch ? "Abbrechen" : "Cancel");
    Anlegen("Command3", Art::Knopf, deutsch ? "Löschen" : "Delete");
    Vorgabeknopf = "Command1";
    Abbruchknopf = "Command2";
}

void frmBezLinien::Laden() {
    const Satzliste &linien = umgebung_.werkbank.dokument.cboBeziehungsLinien;
    const int i = umgebung_.werkbank.lage.BezAuswahl;
    if (i < 0 || i >= linien.Anzahl()) return;
    const Felder feld(linien.Satz(i));
    for (size_t code = 0; code < Arten.size(); ++code)
        if (feld.OderLeer(BezFeld::Beziehungsart) == std::to_string(code)) OptionSetzen(Arten[code].Option);
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
