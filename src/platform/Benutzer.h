#pragma once

#include "platform/Fensterlage.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

enum class Knöpfe { Ok, JaNein, JaNeinAbbrechen };
enum class Zeichen { Keins, Frage, Warnung, Information, Halt };
enum class Antwort { Ok, Ja, Nein, Abbrechen };

/// A message box.
struct Nachfrage {
    std::string Titel;
    std::string Text;
    Knöpfe Auswahl = Knöpfe::Ok;
    Zeichen Bild = Zeichen::Keins;
};

/// A file dialog. `Filter` is a caption and a pattern joined by "|", and what can be chosen beside it are more of such
/// pairs. A name to save under that has no ending gets that of the chosen one. The box for reading only never shows.
struct Dateiwahl {
    enum class Kennungen { Eine, Alle };

    std::string Titel;
    std::string Vorschlag;
    std::string Filter;
    std::string Ordner;
    Kennungen Erlaubt = Kennungen::Eine; ///< whether a name to save under may end otherwise than the filter says
    std::string WeitereFilter = {};

    /// All of them.
    std::string AlleFilter() const { return WeitereFilter.empty() ? Filter : Filter + "|" + WeitereFilter; }
};

class Formular;

/// What the model asks of the user and of the desktop. Boxes and dialogs are modal: the call returns when
/// the user is done. Whatever closes a box without a choice is Abbrechen.
class Benutzer {
  public:
    virtual ~Benutzer() = default;
    virtual Antwort Fragen(const Nachfrage &nachfrage) = 0;
    /// The chosen path; nothing when the dialog was cancelled. Neither asks about existing files.
    virtual std::optional<std::string> DateiÖffnen(const Dateiwahl &wahl) = 0;
    virtual std::optional<std::string> DateiSpeichern(const Dateiwahl &wahl) = 0;
    /// Shows context menu `menü` at the pointer; the name of the entry that the user picks, nothing when it is
    /// dismissed. Entries that are disabled or hidden can't be picked.
    virtual std::optional<std::string> PopupZeigen(std::string_view menü) = 0;
    /// Shows a form modally: loads it, hands it what the user does until it isn't open any more, unloads it.
    virtual void FormZeigen(Formular &form) = 0;
    /// The colour dialog: 0xBBGGRR, nothing when cancelled.
    virtual std::optional<int> FarbeWählen(int farbe) = 0;
    /// Lets `frmMain::ZeitgeberAbgelaufen` be called with this name, once, after `ms` milliseconds. A timer of that
    /// name that still runs starts anew.
    virtual void ZeitgeberStarten(std::string_view name, int ms) = 0;
    /// Does something as soon as the window has been painted for the first time.
    virtual void NachErstemBild(std::function<void()> arbeit) = 0;
    /// The model's state has changed: title, enabled commands, scroll bars, picture.
    virtual void AnzeigeAuffrischen() = 0;
    /// Requests the main window's closing, as its close box does.
    virtual void FensterSchließen() = 0;
    /// Opens a file or a web page in the default browser. False when it is known that nothing shows.
    virtual bool AdresseÖffnen(const std::string &adresse) = 0;
    /// Starts the program of that name from the program's own folder with the rights of the system's keeper, and goes
    /// on. False, and nothing done, when it isn't there.
    virtual bool ProgrammStarten(const std::string &name) = 0;
    /// Tells those who listen what an event came to; for all others nothing shows.
    virtual void Ansagen(std::string_view text) = 0;
    /// Gives the canvas the keyboard again.
    virtual void FokusAufLeinwand() = 0;
    /// Where the main window stands; nothing where there is none to see.
    virtual std::optional<Fensterlage> Fensterstand() const = 0;
    /// Gives the keyboard to the next part of the window, or to the one before: canvas, palette, toolbar, status row.
    virtual void FokusWeitergeben(bool zurück) = 0;
    /// Whether the desktop's clipboard holds anything, whoever has put it there.
    virtual bool AblageBelegt() const = 0;
    virtual std::string Desktopordner() const = 0;
    virtual std::vector<std::string> Schriftarten() const = 0;
};

} // namespace kw
