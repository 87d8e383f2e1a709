#pragma once

#include "app/frmMain.h"
#include "platform/Benutzer.h"
#include "qt/drucken/QtBilder.h"
#include "qt/drucken/QtDrucker.h"
#include "qt/fenster/Arbeitsflaeche.h"
#include "qt/fenster/Menues.h"
#include "qt/grund/QtPlattform.h"
#include "qt/malen/LeinwandFlaeche.h"

#include <QMainWindow>

#include <deque>
#include <map>
#include <vector>

class QTimer;

namespace kw {

class Symbolleiste;
class Importliste;
class Statuszeile;
class Werkzeugpalette;

/// The main window's face: shows the model's state and hands it events. It is also the user as the model
/// sees it: boxes, dialogs, popups and timers.
class Hauptfenster : public QMainWindow, public Benutzer {
  public:
    /// `kommandozeile` is raw, as the model takes it.
    explicit Hauptfenster(const std::string &kommandozeile);
    ~Hauptfenster() override;

    Antwort Fragen(const Nachfrage &nachfrage) override;
    std::optional<std::string> DateiÖffnen(const Dateiwahl &wahl) override;
    std::optional<std::string> DateiSpeichern(const Dateiwahl &wahl) override;
    std::optional<std::string> PopupZeigen(std::string_view menü) override;
    void FormZeigen(Formular &form) override;
    std::optional<int> FarbeWählen(int farbe) override;
    void ZeitgeberStarten(std::string_view name, int ms) override;
    void NachErstemBild(std::function<void()> arbeit) override;
    void AnzeigeAuffrischen() override;
    void FensterSchließen() override { close(); }
    bool AdresseÖffnen(const std::string &adresse) override;
    bool ProgrammStarten(const std::string &name) override;
    void Ansagen(std::string_view text) override;
    void FokusAufLeinwand() override;
    std::optional<Fensterlage> Fensterstand() const override;
    void FokusWeitergeben(bool zurück) override;
    bool AblageBelegt() const override;
    std::string Desktopordner() const override;
    std::vector<std::string> Schriftarten() const override;

    /// Another start wants this window seen.
    void NachVorn();
    /// Another start, or a drop, hands over a project by its full path, or nothing: the window comes to the front, and
    /// the project is opened as soon as nothing else is open.
    void Übernehmen(const std::string &datei);
    /// The session's end, as the model has it; the question stands before all else.
    bool SitzungBeenden();
    void Beenden();
    /// Projects that were handed over and found no time before the user closed the window: a start of their own is
    /// theirs.
    const std::deque<std::string> &Wartende() const { return übergeben_; }

    /// What this window shows, for those who look into the program from outside.
    frmMain &Modell() { return haupt_; }

  protected:
    void keyPressEvent(QKeyEvent *ereignis) override;
    void closeEvent(QCloseEvent *ereignis) override;
    void dragEnterEvent(QDragEnterEvent *ereignis) override;
    void dropEvent(QDropEvent *ereignis) override;

  private:
    /// A command that the user has chosen, wherever it stands.
    void Ausführen(std::string_view befehl);
    void Anzeigen();
    /// Where it stood when it was closed last, or large on the usual screen.
    void Aufstellen();
    void ÜbernahmeFolgen();
    /// Whether a form, a box or a menu is open, or the start isn't done.
    bool IstBeschäftigt() const;
    /// Menus and toolbar, where their place was kept free.
    void LeistenBauen();
    /// What the next dialog stands over: the form that is open, else this window.
    QWidget *Vordergrund();

    QtUhr uhr_;
    QtDrucker drucker_;
    LeinwandFläche leinwand_;
    QtBilder bilder_{leinwand_};
    frmMain haupt_;
    Arbeitsflaeche *fläche_;
    Menüs menüs_;
    Symbolleiste *band_ = nullptr; ///< not before the first picture, as the next two
    Statuszeile *status_ = nullptr;
    Werkzeugpalette *palette_ = nullptr;
    Importliste *importliste_ = nullptr; ///< not before it is to be seen
    std::vector<std::function<void()>> nachErstemBild_;
    std::map<std::string, QTimer *, std::less<>> zeitgeber_;
    std::deque<std::string> übergeben_; ///< projects that wait to be opened
    bool auffrischungSteht_ = false;    ///< a refresh waits for the end of the event
};

} // namespace kw
