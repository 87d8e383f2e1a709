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

    /// Asks about unsaved changes, if there are any. True when the caller may go on: they were saved,
    /// dropped, or there were none.
    bool NachÄnderungenFragen();

  private:
    void InhaltLesen();
    bool ErsetzenErlaubt(const std::string &datei);

    frmMain &haupt_;
};

} // namespace kw
