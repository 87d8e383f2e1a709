#pragma once

#include <string>

namespace kw {

class frmMain;

/// The project as a file: its name, whether it has unsaved changes, and the roads of opening and saving.
/// Owned by the main window, of whose parts it fills the document and shows what it read.
class Projekt {
  public:
    explicit Projekt(frmMain &haupt) : haupt_(haupt) {}

    std::string Projektdatei; ///< full path, empty for a project not yet saved
    std::string Titel = "Kinwright";
    bool Geändert = false;
    bool SpeichernAbgebrochen = false; ///< a file dialog for saving was cancelled
    bool ImportModus = false;          ///< made from handed-over data: saved under its name without asking

    /// Loads `Projektdatei`. Any failure leaves what was read so far and says nothing; the file's name is
    /// in the title and the document counts as unchanged.
    void ProjektLaden();
    /// The same for another file, the undo ring and the selection emptied first.
    void Öffnen(const std::string &datei);
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
    /// Opens entry `platz`, 1 to 4, of the recent files, which comes to the first place. Unsaved changes are dropped
    /// without a question. Meant.
    void mnuRecent(int platz);
    /// Empties ring, stores and free numbers.
    void DokumentLeeren();

    /// Asks about unsaved changes, if there are any. True when the caller may go on: they were saved,
    /// dropped, or there were none.
    bool NachÄnderungenFragen();

  private:
    bool ProjektNeu();
    void InhaltLesen();

    frmMain &haupt_;
};

} // namespace kw
