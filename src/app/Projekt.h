#pragma once

#include <functional>
#include <string>

namespace kw {

class Anzeige;
class Benutzer;
class Chronik;
class Dialogdienste;
class Fensterdienste;
class UndoRing;
struct Ansicht;
struct Dokument;
struct Legendenblatt;
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

    /// Loads `Projektdatei`. Any failure leaves what was read so far and says nothing; the file's name is
    /// in the title and the document counts as unchanged.
    void ProjektLaden();
    /// The same for another file, the undo ring, the selection and the free numbers emptied first.
    void Öffnen(const std::string &datei);
    /// A file that comes from outside the window: the question about changes, then the same, and the file is entered
    /// among the recent ones. One that isn't there is told, and nothing else happens.
    void ÖffnenMitFrage(const std::string &datei);
    /// Writes `Projektdatei`. The result of the write isn't looked at: a file that can't be written gives
    /// no message, and the document counts as saved. Meant.
    void ProjektSchreiben();

    /// The menu commands.
    void mnuÖffnen();
    void Speichern();
    void SpeichernUnter();
    /// A new project, empty and counted as unchanged. Nothing happens when the question about changes is cancelled.
    /// Texts and circle lines on the program's clipboard can be pasted into it, the rest of the clipboard goes. Meant.
    void mnuNeu();
    /// Opens entry `platz`, 1 to 4, of the recent files, which comes to the first place. Asks about changes, once it
    /// is sure that the file is there.
    void mnuRecent(int platz);
    /// Empties stores and free numbers.
    void DokumentLeeren();

    /// Asks about unsaved changes, if there are any. True when the caller may go on: they were saved,
    /// dropped, or there were none.
    bool NachÄnderungenFragen();

  private:
    std::string Text(const Zweisprachig &text) const;
    bool ProjektNeu();
    bool IstDa(const std::string &datei);
    void InhaltLesen();
    void FreieNummernLeeren();
    void RingUndAuswahlLeeren();

    Inhalt inhalt_;
    Umfeld umfeld_;
    std::string einstellungsDatei_;
};

} // namespace kw
