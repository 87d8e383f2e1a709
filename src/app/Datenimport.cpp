#include "app/Datenimport.h"

#include "app/Projekt.h"
#include "app/Startangaben.h"
#include "document/Dateien.h"
#include "document/Doppelnummern.h"
#include "document/Profil.h"
#include "document/Texte.h"
#include "editing/Personen.h"
#include "editing/Werkbank.h"
#include "platform/Benutzer.h"

#include <algorithm>
#include <filesystem>

namespace kw {

namespace {

constexpr std::string_view Schalter[] = {"/dataimport", "\\dataimport"};
constexpr size_t Schalterlänge = 11;

bool IstSchalter(std::string_view text) {
    return std::find(std::begin(Schalter), std::end(Schalter), text) != std::end(Schalter);
}

/// The command line as the import reads it: trimmed, then without any quotation mark.
std::string OhneAnführung(const std::string &kommandozeile) {
    std::string zeile(Getrimmt(kommandozeile));
    std::erase(zeile, '"');
    return zeile;
}

/// What stands behind the switch: the name of a case.
std::string Fallname(std::string_view zeile) {
    return std::string(Getrimmt(zeile.substr(std::min(zeile.size(), Schalterlänge))));
}

} // namespace

bool Datenimport::IstVerlangt(const std::string &kommandozeile) {
    return IstSchalter(OhneAnführung(kommandozeile).substr(0, Schalterlänge));
}

/// Beside the program, or among the user's documents. A folder that is there already tells for itself: it may be
/// open to all where the program's own isn't.
std::string Datenimport::Projektordner() const {
    const std::string daneben = start_.Programmordner + "/Genogramme";
    std::error_code fehler;
    const bool da = std::filesystem::exists(daneben, fehler);
    const bool geht = da ? IstBeschreibbar(daneben) : IstFürDateien(start_.Programmordner);
    return geht ? daneben : start_.Dokumentordner + "/Genogramme";
}

/// Of the forms that have no switch, "-i " and "\t " can't be met, since eleven characters are compared with three
/// and a trimmed line ends in no blank; they would do nothing. Meant.
void Datenimport::Startaufruf() {
    if (Getrimmt(start_.Kommandozeile).empty()) return;
    const std::string zeile = OhneAnführung(start_.Kommandozeile);
    const std::string fall = Fallname(zeile);
    const std::string projekt = Projektordner() + "/" + AlsDateiname(fall) + ".kwp";
    if (DateiVorhanden(projekt)) {
        if (projekt_.NachÄnderungenFragen() && projekt_.Öffnen(projekt)) projekt_.ImportModus = true;
    } else if (IstSchalter(zeile.substr(0, Schalterlänge))) {
        // Another client's project isn't mixed with the case: a version from the safety net, saved or not.
        if (projekt_.Geändert || !projekt_.Projektdatei.empty()) projekt_.mnuNeu();
        if (projekt_.Geändert) return;
        projekt_.ImportModus = true;
        projekt_.Projektdatei = projekt;
        DatenEinlesen(start_.Programmordner + "/" + fall);
        ListeFüllen();
    } else if (zeile.ends_with(".kwp")) {
        std::string datei = start_.Kommandozeile;
        std::erase(datei, '"');
        projekt_.ÖffnenMitFrage(datei);
    }
}

void Datenimport::FallEinlesen(const std::string &datei) {
    projekt_.IniDatei = datei;
    std::string inhalt;
    DateiLesen(datei, inhalt); // a file that can't be read is an empty one
    const Profil daten(std::move(inhalt));
    for (const std::string &text : ImportTexte(daten)) {
        ziel_.dokument.cboTextboxen.Anhängen(text);
        ziel_.geste.Aktion = Aktion::TextGesetzt;
        fenster_.Vorschau(); // measures the box
    }
    for (const std::string &person : ImportPersonen(daten, ziel_.ansicht.SeitenBreite))
        ziel_.dokument.cboPersonen.Anhängen(person);
    DoppelnummernAuflösen(ziel_.dokument); // "1" and "01" are two keys
}

void Datenimport::DatenEinlesen(const std::string &basis) {
    FallEinlesen(basis + ".xyz");
    std::string liste;
    const bool gelesen = DateiLesen(start_.Programmordner + "/muster.txt", liste).Gelungen();
    cboTextDateizeilen = Importzeilen(liste);
    fenster_.Vorschau();
    fenster_.Sichern();
    if (gelesen) return;
    benutzer_.Fragen({"Fehler",
                      "Beim Einlesen der Personendaten ist ein Fehler aufgetreten!\n"
                      "Die Datei 'muster.txt' ist entweder im Anwendungsverzeichnis nicht vorhanden oder "
                      "beschädigt.",
                      Knöpfe::Ok, Zeichen::Halt});
}

void Datenimport::ListeFüllen() {
    Listenzeilen.clear();
    for (const std::string &zeile : cboTextDateizeilen) Listenzeilen.push_back(ImportpersonAus(zeile));
    ListeSichtbar = !Listenzeilen.empty();
}

void Datenimport::Ablegen(Werkbank &w, int zeile, double x, double y) const {
    if (zeile < 0 || zeile >= static_cast<int>(Listenzeilen.size())) return;
    w.lage.MausX = x;
    w.lage.MausY = y;
    w.lage.Aktion = Aktion::PersonSetzen;
    PersonAnlegen(w, &Listenzeilen[static_cast<size_t>(zeile)]);
    w.fenster.Sichern();
    w.lage.Aktion = Aktion::Nichts;
}

} // namespace kw
