#include "dialogs/frmSchrift.h"

#include "dialogs/Schriftlisten.h"

#include <array>

namespace kw {

namespace {

constexpr int Ladezeit = 10; ///< ms

/// One size: its list, its sample, and what the button for default values makes of it. Those are other sizes than
/// the ones of the very first start. Meant.
struct Größenzeile {
    const char *Liste;
    const char *Beispiel;
    const char *Standardwert;
    std::string Einstellungen::*Wert;
};

constexpr std::array<Größenzeile, 3> Größen{{
    {"cboFontsize1", "lblBeispiel1", "11", &Einstellungen::stdfont_l},
    {"cboFontsize2", "lblBeispiel2", "10", &Einstellungen::stdfont_m},
    {"cboFontsize3", "lblBeispiel3", "8", &Einstellungen::stdfont_s},
}};

} // namespace

frmSchrift::frmSchrift(Dialogumgebung &umgebung)
    : Formular("frmSchrift", umgebung.IstDeutsch() ? "Standardeinstellungen für Schrift" : "Default Font Settings"),
      umgebung_(umgebung) {
    const bool deutsch = umgebung.IstDeutsch();
    Anlegen("lblSchriftart", Art::Beschriftung, deutsch ? "Schriftart" : "Font");
    Anlegen("cboSchriftart", Art::Kombination).Einträge = AngeboteneSchriftarten();
    Anlegen("lblFontsize1", Art::Beschriftung, deutsch ? "Groß" : "Large");
    Anlegen("cboFontsize1", Art::Kombination);
    Anlegen("lblFontsize2", Art::Beschriftung, deutsch ? "Mittel" : "Medium");
    Anlegen("cboFontsize2", Art::Kombination);
    Anlegen("lblFontsize3", Art::Beschriftung, deutsch ? "Klein" : "Small");
    Anlegen("cboFontsize3", Art::Kombination);
    Anlegen("lblBeispiel1", Art::Beschriftung,
            deutsch ? "Beispieltext in großer Textgröße" : "Sample text in large size");
    Anlegen("lblBeispiel2", Art::Beschriftung,
            deutsch ? "Beispieltext in mittlerer Textgröße" : "Sample text in medium size");
    Anlegen("lblBeispiel3", Art::Beschriftung,
            deutsch ? "Beispieltext in kleiner Textgröße" : "Sample text in small size");
    Anlegen("cmdStandardWerte", Art::Knopf, deutsch ? "Auf Standardwerte zurücksetzen" : "Reset To Default Values");
    Anlegen("cmdOK", Art::Knopf, "OK");
    Anlegen("Command5", Art::Knopf, deutsch ? "Abbrechen" : "Cancel");
    for (const auto &größe : Größen) (*this)[größe.Liste].Einträge = AngeboteneSchriftgrößen();
    Vorgabeknopf = "cmdOK";
    Abbruchknopf = "Command5";
}

void frmSchrift::Laden() {
    const Einstellungen &e = umgebung_.einstellungen;
    TextSetzen("cboSchriftart", e.stdfontname);
    for (const auto &größe : Größen) TextSetzen(größe.Liste, e.*größe.Wert);
    BeispieleZeigen();
    ZeitgeberStellen("Timer1", Ladezeit);
}

void frmSchrift::Zeitgeber(std::string_view name) {
    if (name != "Timer1") return;
    lädt_ = false;
    BeispieleZeigen();
}

void frmSchrift::Geändert(std::string_view /*name*/) {
    if (!lädt_) BeispieleZeigen();
}

void frmSchrift::Geklickt(std::string_view name) {
    if (name == "cmdStandardWerte") StandardwerteSetzen();
    else if (name == "cmdOK") cmdOK_Click();
    else if (name == "Command5") Schließen();
}

void frmSchrift::BeispieleZeigen() {
    const std::string &schriftart = (*this)["cboSchriftart"].Text;
    for (const auto &größe : Größen) SchriftZeigen((*this)[größe.Beispiel], schriftart, (*this)[größe.Liste].Text);
}

void frmSchrift::StandardwerteSetzen() {
    TextSetzen("cboSchriftart", Standardschrift);
    for (const auto &größe : Größen) TextSetzen(größe.Liste, größe.Standardwert);
    BeispieleZeigen();
}

void frmSchrift::cmdOK_Click() {
    Einstellungen &e = umgebung_.einstellungen;
    e.stdfontname = GültigeSchriftart((*this)["cboSchriftart"].Text);
    for (const auto &größe : Größen) e.*größe.Wert = GültigeSchriftgröße((*this)[größe.Liste].Text);
    if (SchriftÜbernehmen) SchriftÜbernehmen(e.stdfontname);
    Schließen();
}

} // namespace kw
