#pragma once

#include "document/Importdaten.h"
#include "document/Satzliste.h"

#include <string>
#include <vector>

namespace kw {

class frmMain;

/// Persons that another application hands over: the command line's forms, the data of a case laid out as a first
/// picture, and a list of persons to drag onto the page. Owned by the main window, of whose parts it fills some.
/// Files stand in the program's folder.
class Datenimport {
  public:
    explicit Datenimport(frmMain &haupt) : haupt_(haupt) {}

    Satzliste cboTextDateizeilen;           ///< lines of the list, as they were read
    std::vector<Importperson> Listenzeilen; ///< the list that the panel shows

    /// Whether the command line, however it is quoted, asks for an import.
    static bool IstVerlangt(const std::string &kommandozeile);
    /// Reads the command line and does what it asks for. What the timer of the start runs.
    void Startaufruf();
    /// Lays out the case of `basis` (a path without its ending), and reads the list of persons. Without that list it
    /// says so, in German in both languages. Meant.
    void DatenEinlesen(const std::string &basis);
    /// Fills the list from the lines and shows its panel.
    void ListeFüllen();
    void ListeUmschalten();
    /// A line of the list, from 0, dropped on the page, where nothing is selected: one person there. Other rows do
    /// nothing.
    void Ablegen(int zeile, double x, double y);

  private:
    frmMain &haupt_;
};

} // namespace kw
