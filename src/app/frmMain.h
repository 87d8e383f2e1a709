#pragma once

#include "app/Anblick.h"
#include "app/Ansager.h"
#include "app/Anzeige.h"
#include "app/Darstellung.h"
#include "app/Datenimport.h"
#include "app/Projekt.h"
#include "app/Stammbaumimport.h"
#include "app/Startangaben.h"
#include "app/Wegweiser.h"
#include "app/Werkzeughinweis.h"
#include "description/Vorleser.h"
#include "dialogs/Dialogumgebung.h"
#include "document/Auswahlliste.h"
#include "document/Dokument.h"
#include "document/Einstellungsablage.h"
#include "document/Sicherheitsnetz.h"
#include "document/UndoRing.h"
#include "editing/Leinwand.h"
#include "keyboard/Tastatur.h"
#include "output/Arbeitsbereich.h"
#include "output/Druckwerk.h"
#include "output/basBildExport.h"
#include "platform/Bedienelemente.h"

#include <string>
#include <string_view>

namespace kw {

class Benutzer;
class Bilder;
class Drucker;
class Uhr;
struct Befehlsumgebung;
struct Einblick;
struct Zeichenbefund;
struct Zeichnung;

/// The platform as the main window sees it.
struct Plattform {
    Benutzer &benutzer;
    Drucker &drucker;
    Bilder &bilder;
    const Uhr &uhr;
};

/// The main window as a model: owns every part of the program and wires them. It keeps only what is truly
/// its own: the order of starting, redrawing, closing, and what a timer does. Routines stand with the state that they
/// change.
class frmMain : private Fensterdienste, private Dialogdienste {
  public:
    /// `canvas` becomes `picVorschau`. Nothing happens before `Laden`.
    frmMain(Plattform plattform_, Zeichenfläche &canvas, Startangaben startangaben);

    /// The whole start, in its fixed order.
    void Laden();

    /// The close request. False when the user or a cancelled save keeps the program open; true when the
    /// settings are written and the window may go.
    bool Schließen();
    /// The desktop asks before its session ends: the closing question. False when the user or a cancelled save keeps
    /// the session. True when the settings are written and `Beenden` may come; another program can still keep the
    /// session.
    bool SitzungBeenden();
    /// The system ends the program: nobody is asked, nothing is saved over the user's project, the settings are
    /// written.
    void Beenden();

    /// A timer that was started under this name has run out. Unknown names do nothing.
    void ZeitgeberAbgelaufen(std::string_view name);

    /// What a face shows.
    const Anblick &DerAnblick() const { return anblick; }
    /// The page in words, for a face that has it read out.
    Vorleser &DerVorleser() { return vorleser; }
    /// Redraws the whole canvas from the stores.
    void Vorschau() override;

    /// Pointer events on the canvas, centimetres on the page; see `Leinwand`. After a press, a release and a double
    /// click the face is asked to refresh; a move changes the overlays only, which the face repaints itself.
    void MouseDown(int taste, double x, double y);
    /// The press of a button beside the page, where no gesture begins.
    void DanebenGedrückt(int taste);
    void MouseMove(int taste, double x, double y);
    void MouseUp(int taste, double x, double y);
    void DblClick(double x, double y);

    /// A key on the page, or in the window where nothing else wants it. False when it has no meaning here now: Tab then
    /// leads on.
    bool TasteDrücken(const Tastendruck &taste);
    /// A key has opened something beside the page.
    void TastaturBenutzt() { tastatur.Benutzt(); }
    /// Puts the keyboard's cursor on an element, wherever it is.
    void ElementFokussieren(Element element);
    /// Space has been let go.
    void LeertasteLoslassen();
    /// Goes to the next person of that name. False when there is none.
    bool PersonSuchen(std::string_view text);

    /// The window has another inner size, twips; see `Arbeitsbereich`, as for those that follow.
    void GrößeÄndern(int breite, int höhe);
    void Scrollen(int hValue, int vValue) { bereich.Scrollen(hValue, vValue); }
    void ScrollenUm(int dx, int dy) { bereich.ScrollenUm(dx, dy); }
    void MitRadScrollen(double quer, double längs) { bereich.MitRadScrollen(quer, längs); }
    void SeiteFassen(Rahmenort hand);
    void SeiteSchieben(Rahmenort hand) { bereich.SeiteSchieben(hand); }
    void LeistenSetzen(int dicke) { bereich.LeistenSetzen(dicke); }
    void MausradZählen(bool hoch) { bereich.MausradZählen(hoch); }
    void MausradFolgen(Rahmenort zeiger);
    /// One step of scrolling, every `Arbeitsbereich::RandTakt`, while the left button drags something. False when
    /// nothing is dragged or everything stays; otherwise the pointer is over another place of the page now.
    bool AmRandScrollen(Rahmenort zeiger);
    /// The same while a line of the import list is dragged over the frame.
    bool BeimImportScrollen(Rahmenort zeiger);

    /// A project that another start or the desktop hands to this window, by its full path: opened as by the menu, with
    /// the question about changes. A gesture in progress ends as for a command. Nothing happens for an empty path.
    void DateiÜbernehmen(const std::string &pfad);
    /// A line of the import list, from 0, has been dragged onto the page.
    void ImportzeileAblegen(int zeile, double x, double y);
    /// The same without a pointer: beside where the keyboard is on the page.
    void ImportzeileEinsetzen(int zeile);
    /// The pointer has come over the palette's button `werkzeug`, or is over none (0).
    void PaletteBerührt(int werkzeug);

    /// Runs the command `name` as a user's choice: its menu opens first, with the states that this refreshes.
    /// False, and nothing done, when there is none or it is disabled or hidden.
    bool BefehlAusführen(std::string_view name);
    /// Brings the states of cut, copy and paste up to date, as opening the edit menu does.
    void mnuBearbeiten_Öffnen();

  private:
    friend struct Einblick; // for scripts and tests

    // What editing and forms ask of the window.
    void Sichern() override;
    void AlsGeändertMerken() override { projekt.Geändert = true; }
    void PopupÖffnen(Befehlsname menü) override;
    void FormÖffnen(Formularname name) override;
    void LegendeZeigen(bool sichtbar) override;
    void SeiteAnwenden() override;
    bool GenogrammDrucken() override;
    bool FassungÖffnen(const std::string &name) override;
    bool StammbaumSpeichern(const std::string &inhalt) override;
    bool OhneNamenExportieren(Lebenszeit zeit) override;
    bool NeuesProjekt(const Dokument &seite, const std::string &quelle) override;
    void TextSpeichern(const std::string &titel, const std::string &text) override;
    void TextDrucken(const std::string &titel, const std::string &text) override;
    void AusschnittAusgeben(const Bildausschnitt &cm, bool inDatei) override;

    bool IstFrei(std::string_view name) const;
    void Absagen(std::string_view name);
    void NachEreignis();
    void TastenlaufBeenden();
    void Festhalten();
    void CursorInsBild();
    void KommandozeileÖffnen();
    void ZweiteStufe();
    void ListenFüllen();
    void DruckerErmitteln();
    void ZeitgeberStellen();
    void SpracheErfragen();
    void DatenÜbernehmen();
    Einstellungen AktuelleEinstellungen() const;
    void EinstellungenSichern();
    Zeichnung DasBild() const;
    void Übernehmen(const Zeichenbefund &befund);
    /// One print run on a surface whose scale is set.
    void AufPapier(Zeichenfläche &papier);
    /// What a form and what a command work on.
    Dialogumgebung FürFormulare();
    Befehlsumgebung FürBefehle();

    Plattform plattform;
    Startangaben start;
    Zeichenfläche &picVorschau;
    Dokument dokument;
    Ansicht ansicht;
    Auswahl auswahl;
    Leinwandlage lage;
    Auflagen auflagen;
    Zwischenablage ablage;
    Legendenblatt legende;
    UndoRing ring;
    Arbeitsbereich bereich;
    Bedienelemente bedienung;
    Einstellungen einstellungen;
    Einstellungsablage einstellungsablage;
    Auswahlliste cboRaster; ///< millimetres
    Druckwerk druck;
    Anzeige anzeige;
    Darstellung darstellung;
    Werkzeughinweis hinweis;
    Wegweiser wegweiser;
    Bildexport bildexport;
    Sicherheitsnetz netz;
    Projekt projekt;
    Datenimport import;
    Stammbaumimport stammbaum;
    Werkbank werkbank;
    Leinwand leinwand;
    Tastatur tastatur{werkbank};
    Vorleser vorleser{{dokument, ansicht, auswahl, lage, legende, plattform.uhr}};
    Ansager ansager{plattform.benutzer, {vorleser, tastatur, bereich, bedienung, lage, ansicht}};
    Rahmenort gedrückt_;        ///< where in the frame the last press was
    bool aufgegeben_ = false;   ///< the closing question was answered with No
    bool netzGemeldet_ = false; ///< that the safety net can't be written
    bool spracheErfragt_ = false;
    std::string Kommandozeile; ///< trimmed and unquoted
    const Anblick anblick{
        projekt.Titel, projekt.Geändert,    einstellungen.Fenster, ansicht,  bedienung, bereich,          auflagen,
        lage,          import.Listenzeilen, plattform.uhr,         dokument, legende,   tastatur.Cursor()};
};

/// The command line as the program takes it: trimmed, one pair of enclosing quotation marks removed.
std::string Entpackt(std::string_view kommandozeile);

} // namespace kw
