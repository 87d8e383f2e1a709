#include "dialogs/frmKommentar.h"

#include "dialogs/Dialogumgebung.h"
#include "dialogs/Schriftlisten.h"
#include "dialogs/frmSchrift.h"
#include "document/Einstellungen.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "document/saetze/Textbox.h"
#include "editing/Abwahl.h"
#include "editing/Marker.h"
#include "editing/Texte.h"
#include "editing/Werkbank.h"
#include "platform/Benutzer.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

constexpr int MittlereListenstelle = 2;
constexpr int Mittel = 1;

struct Größenknopf {
    const char *Name;
    std::string Einstellungen::*Wert;
};
constexpr std::array<Größenknopf, 3> Größen{{
    {"btnSchriftgr_e(0)", &Einstellungen::stdfont_s},
    {"btnSchriftgr_e(1)", &Einstellungen::stdfont_m},
    {"btnSchriftgr_e(2)", &Einstellungen::stdfont_l},
}};

struct Stilknopf {
    const char *Name;
    bool Steuerelement::*Schrift;
    bool (TextSatz::*Gilt)() const;
    TextBau &(TextBau::*Setzen)(std::string_view);
};
constexpr std::array<Stilknopf, 3> Stile{{
    {"btnStyle(0)", &Steuerelement::FontBold, &TextSatz::Fett, &TextBau::Fett},
    {"btnStyle(1)", &Steuerelement::FontItalic, &TextSatz::Kursiv, &TextBau::Kursiv},
    {"btnStyle(2)", &Steuerelement::FontUnderline, &TextSatz::Unterstrichen, &TextBau::Unterstrichen},
}};

constexpr std::array<const char *, 3> Ausrichtungen{"btnLeft", "btnRight", "btnMid"}; ///< in the order of their codes

// The tip of cmdEigenschaften is the same in both languages. Meant.
constexpr Formularzeile Zeilen[] = {
    {"Text1", Art::Textblock},
    {"lblSchriftart", Art::Beschriftung, {"Schriftart", "Font"}},
    {"cboSchriftart", Art::Kombination},
    {"lblFontSize", Art::Beschriftung, {"Schriftgröße", "Font Size"}},
    {"cboFontSize", Art::Kombination},
    {"btnSchriftgr_e(0)", Art::Umschalter, {"A", "A"}, {"Kleine Schriftgröße", "Small Font Size"}},
    {"btnSchriftgr_e(1)", Art::Umschalter, {"A", "A"}, {"Mittlere Schriftgröße", "Medium Font Size"}},
    {"btnSchriftgr_e(2)", Art::Umschalter, {"A", "A"}, {"Große Schriftgröße", "Large Font Size"}},
    {"imgColor", Art::Knopf, {"A", "A"}, {"Schriftfarbe", "Font Color"}},
    {"lblColor", Art::Farbfeld, {}, {"Schriftfarbe", "Font Color"}},
    {"btnStyle(0)", Art::Umschalter, {"F", "B"}, {"Fett", "Bold"}},
    {"btnStyle(1)", Art::Umschalter, {"K", "I"}, {"Kursiv", "Italic"}},
    {"btnStyle(2)", Art::Umschalter, {"U", "U"}, {"Unterstrichen", "Underlined"}},
    {"btnLeft", Art::Umschalter, {}, {"Linksbündig", "Left Aligned"}},
    {"btnMid", Art::Umschalter, {}, {"Zentriert", "Centered"}},
    {"btnRight", Art::Umschalter, {}, {"Rechtsbündig", "Right Aligned"}},
    {"cmdEigenschaften", Art::Knopf, {"…", "…"}, {"Einstellungen", "Einstellungen"}},
    {"Command2", Art::Knopf, {"OK", "OK"}},
    {"Command3", Art::Knopf, {"Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{"frmKommentar", {"Text einfügen", "Insert Text"}, Zeilen, "Command2", "Command3"};

std::string Kodiert(std::string text) {
    std::erase(text, '\r'); // pasted lines can end so
    return MitAbsatzzeichen(Ersetzt(Ersetzt(std::move(text), Absatzzeichen, ""), "\n", "#"));
}

std::string Dekodiert(std::string_view text) { return Ersetzt(OhneAbsatzzeichen(text), "#", "\n"); }

bool IstLeer(const std::string &text) {
    return Ersetzt(text, Absatzzeichen, "").find_first_not_of(" \r\n") == std::string::npos;
}

} // namespace

frmKommentar::frmKommentar(Dialogumgebung &umgebung) : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {
    for (const auto &stil : Stile) (*this)[stil.Name].*stil.Schrift = true; // each looks like what it does
    for (size_t i = 0; i < Ausrichtungen.size(); ++i) (*this)[Ausrichtungen[i]].Alignment = static_cast<int>(i);
    (*this)["cboSchriftart"].Einträge = AngeboteneSchriftarten();
    (*this)["cboFontSize"].Einträge = AngeboteneSchriftgrößen();
}

void frmKommentar::Laden() {
    const Werkbank &w = umgebung_.werkbank;
    const std::string &schriftart = umgebung_.einstellungen.stdfontname;
    TextSetzen("cboSchriftart", schriftart.empty() ? Standardschrift : std::string_view(schriftart));
    IndexSetzen("cboFontSize", MittlereListenstelle);
    GrößenknopfDrücken(Mittel);
    Ausrichten(0);
    FarbeSetzen(Schwarz);

    neu_ = w.lage.Aktion == Aktion::TextGesetzt;
    textX_ = w.lage.AuswahlX;
    textY_ = w.lage.AuswahlY;
    if (neu_ || w.lage.TextAuswahl < 0 || w.lage.TextAuswahl >= w.dokument.cboTextboxen.Anzahl()) return;
    position_ = w.lage.TextAuswahl;
    TextboxAufnehmen(w.dokument.cboTextboxen.Satz(position_));
}

/// Nothing is selected afterwards, by whatever road the form was opened; the mark of what was goes.
void frmKommentar::Entladen() {
    Werkbank &w = umgebung_.werkbank;
    Aktion_Nichts(w.lage);
    w.lage.Angebot.Löschen = false;
    if (w.auswahl.lstMovedText.Anzahl() == 0) return;
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.fenster.Vorschau();
}

/// The box keeps its own place: the marker's is beside it.
void frmKommentar::TextboxAufnehmen(std::string_view satz) {
    const TextSatz box(satz, Lücken::Leer);
    textX_ = box.TextX();
    textY_ = box.TextY();
    TextSetzen("cboSchriftart", box.Schriftart());
    TextSetzen("cboFontSize", box.SchriftgroesseText());
    const double farbe = box.Farbe();
    FarbeSetzen(farbe >= 0 && farbe <= Weiß ? static_cast<Farbe>(farbe) : Schwarz);
    TextSetzen("Text1", Dekodiert(box.Inhalt()));
    for (const auto &stil : Stile) WertSetzen(stil.Name, (box.*stil.Gilt)());
    Ausrichten(box.Ausrichtung() == "1" ? 1 : box.Ausrichtung() == "2" ? 2 : 0);
}

bool frmKommentar::TasteErlaubt(std::string_view name, std::string_view zeichen) const {
    return name != "Text1" || (zeichen != "#" && zeichen != Absatzzeichen);
}

void frmKommentar::Geändert(std::string_view name) {
    if (name == "cboSchriftart") SchriftAnwenden();
    if (name != "cboFontSize") return;
    if (Getrimmt((*this)[name].Text).empty()) return TextSetzen(name, KleinsteSchrift);
    SchriftAnwenden();
    GrößenknöpfeStellen();
}

void frmKommentar::Geklickt(std::string_view name) {
    for (size_t i = 0; i < Größen.size(); ++i)
        if (name == Größen[i].Name) return GrößenknopfDrücken(static_cast<int>(i));
    for (size_t i = 0; i < Ausrichtungen.size(); ++i)
        if (name == Ausrichtungen[i]) return Ausrichten(static_cast<int>(i));
    if (name.starts_with("btnStyle")) StilZeigen();
    else if (name == "imgColor" || name == "lblColor") FarbeFragen();
    else if (name == "cmdEigenschaften") StandardschriftBearbeiten();
    else if (name == "Command2") Command2_Click();
    else if (name == "Command3") Schließen();
}

void frmKommentar::SchriftAnwenden() {
    SchriftZeigen((*this)["Text1"], (*this)["cboSchriftart"].Text, (*this)["cboFontSize"].Text);
}

void frmKommentar::GrößenknöpfeStellen() {
    const std::string &größe = (*this)["cboFontSize"].Text;
    const auto passt = [&](const Größenknopf &knopf) { return umgebung_.einstellungen.*knopf.Wert == größe; };
    // Two classes can have the same size: then the one that was pressed stays.
    const auto unten = std::find_if(Größen.begin(), Größen.end(),
                                    [&](const auto &knopf) { return (*this)[knopf.Name].Value && passt(knopf); });
    const auto gilt = unten != Größen.end() ? unten : std::find_if(Größen.begin(), Größen.end(), passt);
    for (auto knopf = Größen.begin(); knopf != Größen.end(); ++knopf) (*this)[knopf->Name].Value = knopf == gilt;
}

/// Also for one that is down already: it stays down, since the size is its size.
void frmKommentar::GrößenknopfDrücken(int größe) {
    const Größenknopf &gedrückt = Größen[static_cast<size_t>(größe)];
    for (const auto &knopf : Größen) (*this)[knopf.Name].Value = &knopf == &gedrückt;
    TextSetzen("cboFontSize", umgebung_.einstellungen.*gedrückt.Wert);
}

void frmKommentar::StilZeigen() {
    for (const auto &stil : Stile) (*this)["Text1"].*stil.Schrift = (*this)[stil.Name].Value;
}

void frmKommentar::Ausrichten(int ausrichtung) {
    (*this)["Text1"].Alignment = ausrichtung;
    for (const char *name : Ausrichtungen) (*this)[name].Value = (*this)[name].Alignment == ausrichtung;
}

void frmKommentar::FarbeSetzen(Farbe farbe) { (*this)["lblColor"].Farbwert = (*this)["Text1"].Farbwert = farbe; }

void frmKommentar::FarbeFragen() {
    const auto gewählt = umgebung_.werkbank.benutzer.FarbeWählen(static_cast<int>((*this)["lblColor"].Farbwert));
    if (gewählt) FarbeSetzen(static_cast<Farbe>(*gewählt));
}

/// The text under edit takes the new default font, and the new size of its class if it has one.
void frmKommentar::StandardschriftBearbeiten() {
    frmSchrift schrift(umgebung_);
    schrift.Caption = "Textbox";
    schrift.SchriftÜbernehmen = [this](std::string_view schriftart) {
        TextSetzen("cboSchriftart", schriftart);
        for (size_t i = 0; i < Größen.size(); ++i)
            if ((*this)[Größen[i].Name].Value) return GrößenknopfDrücken(static_cast<int>(i));
        GrößenknöpfeStellen();
    };
    umgebung_.werkbank.benutzer.FormZeigen(schrift);
}

std::string frmKommentar::Satz() const {
    const auto text = [this](std::string_view name) { return Finden(name)->Text; };
    TextBau box;
    box.Ort(Gerundet(textX_, 1), Gerundet(textY_, 1));
    box.Schriftart(Ohne(GültigeSchriftart(text("cboSchriftart")), '_'));
    box.Schriftgroesse(Ohne(GültigeSchriftgröße(text("cboFontSize")), '_'));
    box.Farbe(std::to_string(Finden("lblColor")->Farbwert));
    for (const auto &stil : Stile) (box.*stil.Setzen)(Finden(stil.Name)->Value ? "1" : "0");
    return box.Ausrichtung(std::to_string(Finden("Text1")->Alignment)).Inhalt(Kodiert(text("Text1"))).Text();
}

void frmKommentar::Command2_Click() {
    // Nothing written stores nothing: a box can't be emptied here.
    if (IstLeer((*this)["Text1"].Text) || (!neu_ && position_ < 0)) return Schließen();
    Werkbank &w = umgebung_.werkbank;
    if (neu_) w.dokument.cboTextboxen.Anhängen(Satz());
    else w.dokument.cboTextboxen.Ersetzen(position_, Satz());
    MarkerEntfernen(w); // its redraw measures the box
    if (neu_) NeuenTextAufSeite(w.dokument, w.ansicht);
    w.fenster.Sichern();
    Schließen();
    Entladen(); // before the last redraw, which looks at the gesture
    w.fenster.Vorschau();
}

} // namespace kw
