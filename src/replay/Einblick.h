#pragma once

#include "app/Befehle.h"
#include "dialogs/Dialogumgebung.h"
#include "editing/Werkbank.h"

#include <string>

namespace kw {

class Datenimport;
class Drucker;
class Sicherheitsnetz;
class Uhr;
class frmMain;
struct Auswahlliste;
struct Einstellungen;

/// The parts of a main window, laid open for those who look into the program from outside: scripts, the random user,
/// benchmarks, tests. A face has `frmMain`, which must outlive this.
struct Einblick : Werkbank, Befehlsumgebung {
    explicit Einblick(frmMain &haupt_);

    /// One print run on a surface whose scale is set.
    void AufPapier(Zeichenfläche &papier) const;
    /// What a form works on.
    Dialogumgebung FürFormulare() const;

    Einstellungen &einstellungen;
    std::string &Kommandozeile;
    Auswahlliste &cboRaster;
    Sicherheitsnetz &netz;
    Drucker &drucker;
    const Uhr &uhr;

  private:
    frmMain &haupt;
};

} // namespace kw
