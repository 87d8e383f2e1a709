#pragma once

#include "document/Dateien.h"

#include <functional>
#include <optional>
#include <string>

namespace kw {

class Anzeige;
class Benutzer;
class Chronik;
class Dialogdienste;
class Fensterdienste;
class Sicherheitsnetz;
class UndoRing;
enum class Verbleib;
struct Ansicht;
struct Dokument;
struct Legendenblatt;
struct Netzeintrag;
struct Zweisprachig;
struct Zwischenablage;

/// The project as a file: its name, whether it has unsaved changes, and the roads of opening and saving.
/// Owned by the main window.
class Projekt {
  public:
    /// What another project fills, empties or enters itself in.
    struct Inhalt {
        Dokument &dokument;
        Legendenblatt &legende;
        UndoRing &ring;
        Zwischenablage &ablage;
        Chronik &zuletzt;
        Sicherheitsnetz &netz;
    };
    /// What it asks, and what has to follow. `abwählen` ends the selection and the gesture in progress.
    struct Umfeld {
        const Ansicht &ansicht; ///< for the language
        Anzeige &anzeige;
        Benutzer &benutzer;
        Fensterdienste &fenster;
        Dialogdienste &dienste;
        std::function<void()> abwählen;
    };
    /// `einstellungsDatei` knows the folder of the last project.
    Projekt(Inhalt inhalt, Umfeld umfeld, std::string einstellungsDatei);

    std::string Projektdatei; ///< full path, empty for a project not yet saved
    std::string Titel = "Kinwright";
    bool Geändert = false;
    bool SpeichernAbgebrochen = false; ///< a file dialog for saving was cancelled
    bool ImportModus = false;          ///< made from handed-over data: saved under its name without asking
    std::string IniDatei;              ///< settings, project or import data, whichever was read or written last

    /// Replaces the document by that file's; undo ring, selection and free numbers are emptied, and it counts as
    /// unchanged. A damaged file gives what could be read of it, and a box says so. False, with a box and nothing
    /// changed, when it can't be read or is no project.
    bool Öffnen(const std::string &datei);
    /// A file that comes from outside the window: the same behind the question about unsaved changes, and it comes into
    /// the list of recent ones. One that isn't there is told first.
    bool ÖffnenMitFrage(const std::string &datei);
    /// Replaces the document by that version, which stays where it is until a successor is kept. It counts as changed,
    /// under the name of its project.
    bool FassungÖffnen(const Netzeintrag &fassung);
    /// Writes the document there, which becomes its `Projektdatei`. What stood there and isn't what was loaded from it
    /// or written by it goes into the safety net first. False, with a box and nothing changed, when that fails.
    bool ProjektSchreiben(const std::string &datei);

    /// The menu commands.
    void mnuÖffnen();
    /// False when the document isn't saved: given up, or it failed. A file that somebody else has changed is asked
    /// about.
    bool Speichern();
    bool SpeichernUnter();
    /// A new project, empty and counted as unchanged. Nothing happens when the question about changes is cancelled.
    /// Texts and circle lines on the program's clipboard can be pasted into it, the rest of the clipboard goes. Meant.
    void mnuNeu();
    /// Opens entry `platz`, 1 to 4, of the recent files, which comes to the first place. Asks about changes, once it
    /// is sure that the file is there.
    void mnuRecent(int platz);
    /// A new project with the records and the sheet of that page, not saved yet; one step back leads to an empty page.
    /// `stammbaum` is the file that it came from: a save proposes its name and folder. False, and nothing changed, when
    /// the question about changes is cancelled.
    bool NeuMit(const Dokument &seite, const std::string &stammbaum);
    /// Empties stores and free numbers.
    void DokumentLeeren();

    /// Asks about unsaved changes, if there are any. True when the caller may go on: they were saved, may be dropped,
    /// or there were none. Until they are dropped, the safety net keeps them.
    bool NachÄnderungenFragen();
    /// The document is given up as it stands, or nothing of it is unsaved yet.
    void Loslassen();
    /// Behind every event: brings the safety net up to date. False when it can't be.
    bool Nachführen();

  private:
    /// What a project is read from.
    struct Quelle {
        std::string Projektdatei;
        std::string Inhalt;
        bool AusDemNetz = false; ///< a version, which comes back as it was
    };
    bool Laden(Quelle quelle);
    void Anwenden(Dokument &&neu, bool ganz);
    Verbleib WasSicherIst() const;
    bool IstFremdGeändert() const;
    bool IstDa(const std::string &datei);
    std::string Text(const Zweisprachig &text) const;
    bool ProjektNeu();
    bool LeereSeite();
    void FreieNummernLeeren();
    void RingUndAuswahlLeeren();

    Inhalt inhalt_;
    Umfeld umfeld_;
    std::string einstellungsDatei_;
    std::optional<Fingerabdruck> herkunft_; ///< of `Projektdatei`, as it was loaded or last saved
    std::string stammbaum_;                 ///< that a page never saved was made of; else empty
    bool unganz_ = false;                   ///< the file holds more than was read of it
};

} // namespace kw
