#include "app/Datenimport.h"

#include "app/frmMain.h"
#include "document/Dateien.h"
#include "document/Texte.h"
#include "editing/Verbindungen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr std::string_view Schalter[] = {"/dataimport", "\\dataimport"};
constexpr int Schalterlänge = 11;
constexpr int NameAb = 12; ///< from 0: behind the switch and a blank
constexpr int Namenslänge = 8;

bool IstSchalter(std::string_view text) {
    return std::find(std::begin(Schalter), std::end(Schalter), text) != std::end(Schalter);
}

/// The command line as the import reads it: trimmed, then without any quotation mark.
std::string OhneAnführung(const std::string &kommandozeile) {
    std::string zeile(Getrimmt(kommandozeile));
    std::erase(zeile, '"');
    return zeile;
}

/// `anzahl` characters from position `ab` on; less where the text is shorter.
std::string Zeichenfolge(std::string_view text, int ab, int anzahl) {
    std::string teil;
    int stelle = -1;
    for (const char c : text) {
        if (!IstFortsetzung(c)) ++stelle;
        if (stelle >= ab && stelle < ab + anzahl) teil += c;
    }
    return teil;
}

} // namespace

bool Datenimport::IstVerlangt(const std::string &kommandozeile) {
    return IstSchalter(OhneAnführung(kommandozeile).substr(0, Schalterlänge));
}

/// Of the forms that have no switch, "-i " and "\t " can't be met, since eleven characters are compared with three
/// and a trimmed line ends in no blank; they would do nothing. Meant.
void Datenimport::Startaufruf() {
    frmMain &h = haupt_;
    h.plattform.benutzer.AnzeigeAuffrischen();
    h.bereich.Bildgrößenveränderung();
    const std::string zeile = OhneAnführung(h.start.Kommandozeile);
    if (Getrimmt(h.start.Kommandozeile).empty()) return;
    const std::string ordner = h.start.Programmordner + "/";
    h.projekt.Projektdatei = ordner + "Genogramme/" + Zeichenfolge(zeile, NameAb, Namenslänge) + ".kwp";
    if (DateiVorhanden(h.projekt.Projektdatei)) {
        h.projekt.ImportModus = true;
        h.projekt.Öffnen(h.projekt.Projektdatei);
    } else if (IstSchalter(zeile.substr(0, Schalterlänge))) {
        h.projekt.ImportModus = true;
        DatenEinlesen(ordner + std::string(Getrimmt(std::string_view(zeile).substr(Schalterlänge))));
        ListeFüllen();
    } else if (zeile.ends_with(".kwp")) {
        std::string datei = h.start.Kommandozeile;
        std::erase(datei, '"');
        h.projekt.DokumentLeeren();
        h.projekt.Öffnen(datei);
    }
}

void Datenimport::DatenEinlesen(const std::string &basis) {
    frmMain &h = haupt_;
    h.projekt.IniDatei = basis + ".xyz";
    std::string inhalt;
    DateiLesen(h.projekt.IniDatei, inhalt); // a file that can't be read is an empty one
    const Profil daten(std::move(inhalt));
    for (const std::string &text : ImportTexte(daten)) {
        h.dokument.cboTextboxen.Anhängen(text);
        h.lage.Aktion = Aktion::TextGesetzt;
        h.Vorschau(); // measures the box
    }
    for (const std::string &person : ImportPersonen(daten, h.ansicht.SeitenBreite))
        h.dokument.cboPersonen.Anhängen(person);
    std::string liste;
    const bool gelesen = DateiLesen(h.start.Programmordner + "/muster.txt", liste).Gelungen();
    cboTextDateizeilen = Importzeilen(liste);
    h.Vorschau();
    h.Sichern();
    if (gelesen) return;
    h.plattform.benutzer.Fragen({"Fehler",
                                 "Beim Einlesen der Personendaten ist ein Fehler aufgetreten!\n"
                                 "Die Datei 'muster.txt' ist entweder im Anwendungsverzeichnis nicht vorhanden oder "
                                 "beschädigt.",
                                 Knöpfe::Ok, Zeichen::Halt});
}

void Datenimport::ListeFüllen() {
    Listenzeilen.clear();
    for (const std::string &zeile : cboTextDateizeilen) Listenzeilen.push_back(ImportpersonAus(zeile));
    const bool gefüllt = !Listenzeilen.empty();
    haupt_.bedienung["imgVariable"].Visible = gefüllt;
    haupt_.bedienung["btnImport"].Visible = haupt_.bedienung["btnImport"].Enabled = gefüllt;
    haupt_.bedienung["btnImport"].Checked = gefüllt;
}

void Datenimport::ListeUmschalten() {
    Bedienelement &feld = haupt_.bedienung["imgVariable"];
    feld.Visible = !feld.Visible;
    haupt_.bedienung["btnImport"].Checked = feld.Visible;
}

void Datenimport::Ablegen(int zeile, double x, double y) {
    if (zeile < 0 || zeile >= static_cast<int>(Listenzeilen.size())) return;
    haupt_.lage.MausX = x;
    haupt_.lage.MausY = y;
    haupt_.lage.Aktion = Aktion::PersonSetzen;
    PersonAnlegen(haupt_.werkbank, &Listenzeilen[static_cast<size_t>(zeile)]);
    haupt_.Sichern();
    haupt_.lage.Aktion = Aktion::Nichts;
}

} // namespace kw
