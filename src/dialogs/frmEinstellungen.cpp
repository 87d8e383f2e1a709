#include "dialogs/frmEinstellungen.h"

namespace kw {

namespace {

constexpr int Deutsch = 0;
constexpr int Englisch = 1;

} // namespace

frmEinstellungen::frmEinstellungen(Dialogumgebung &umgebung, bool ersterStart)
    : Formular("frmEinstellungen", "Einstellungen"), umgebung_(umgebung), ersterStart_(ersterStart) {
    const bool englisch = umgebung.werkbank.ansicht.Sprache == Sprache::Englisch;
    if (englisch) Caption = "Settings";
    if (ersterStart) Caption = "Please choose your language ...";
    Anlegen("Label1", Art::Beschriftung, englisch ? "Language" : "Sprache / Language");
    Anlegen("Combo1", Art::Liste).Einträge = {"Deutsch", "English"};
    Anlegen("cmdOK", Art::Knopf, "OK");
    Anlegen("cmdAbbrechen", Art::Knopf, englisch ? "Cancel" : "Abbrechen");
    Vorgabeknopf = "cmdOK";
    Abbruchknopf = "cmdAbbrechen";
}

void frmEinstellungen::Laden() {
    const bool deutsch = umgebung_.werkbank.ansicht.Sprache == Sprache::Deutsch;
    IndexSetzen("Combo1", deutsch && !ersterStart_ ? Deutsch : Englisch);
}

void frmEinstellungen::Geklickt(std::string_view name) {
    if (name == "cmdOK") Bestätigen();
    if (name == "cmdAbbrechen") Schließen();
}

void frmEinstellungen::Bestätigen() {
    if (const int i = (*this)["Combo1"].ListIndex; i >= 0) {
        gewählt_ = i == Deutsch ? "de" : "en";
        EinstellungFesthalten(umgebung_.EinstellungsDatei, "language", gewählt_);
    }
    Schließen();
}

/// The box comes when the form has gone, and speaks the language that was chosen.
void frmEinstellungen::Entladen() {
    if (gewählt_.empty()) return;
    umgebung_.werkbank.benutzer.Fragen({"Kinwright Information",
                                        gewählt_ == "de" ? "Bitte starten Sie Kinwright neu um die Sprache zu wechseln"
                                                         : "Please restart Kinwright to change the language",
                                        Knöpfe::Ok, Zeichen::Information});
}

} // namespace kw
