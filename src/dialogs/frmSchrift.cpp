#include "dialogs/frmSchrift.h"

#include "dialogs/Dialogumgebung.h"
#include "dialogs/Schriftlisten.h"
#include "document/Einstellungen.h"

#include <array>

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"lblSchriftart", Art::Beschriftung, {"Schriftart", "Font"}},
    {"cboSchriftart", Art::Kombination},
    {"lblFontsize1", Art::Beschriftung, {"Groß", "Large"}},
    {"cboFontsize1", Art::Kombination},
    {"lblFontsize2", Art::Beschriftung, {"Mittel", "Medium"}},
    {"cboFontsize2", Art::Kombination},
    {"lblFontsize3", Art::Beschriftung, {"Klein", "Small"}},
    {"cboFontsize3", Art::Kombination},
    {"lblBeispiel1", Art::Beschriftung, {"Beispieltext in großer Textgröße", "Sample text in large size"}},
    {"lblBeispiel2", Art::Beschriftung, {"Beispieltext in mittlerer Textgröße", "Sample text in medium size"}},
    {"lblBeispiel3", Art::Beschriftung, {"Beispieltext in kleiner Textgröße", "Sample text in small size"}},
    {"cmdStandardWerte", Art::Knopf, {"Auf Standardwerte zurücksetzen", "Reset To Default Values"}},
    {"cmdOK", Art::Knopf, {"OK", "OK"}},
    {"Command5", Art::Knopf, {"Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{
    "frmSchrift", {"Standardeinstellungen für Schrift", "Default Font Settings"}, Zeilen, "cmdOK", "Command5"};

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

frmSchrift::frmSchrift(Dialogumgebung &umgebung) : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {
    (*this)["cboSchriftart"].Einträge = AngeboteneSchriftarten();
    for (const auto &größe : Größen) (*this)[größe.Liste].Einträge = AngeboteneSchriftgrößen();
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
