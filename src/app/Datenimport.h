#pragma once

#include "document/Importdaten.h"
#include "document/Satzliste.h"

#include <string>
#include <vector>

namespace kw {

class Benutzer;
class Fensterdienste;
class Projekt;
struct Ansicht;
struct Dokument;
struct Gestenlage;
struct Startangaben;
struct Werkbank;

/// Persons that another application hands over: the command line's forms, the data of a case laid out as a first
/// picture, and a list of persons to drag onto the page. Owned by the main window. These files stand in the program's
/// folder; a case's project is saved under the case's name beside them, or where the user may write.
class Datenimport {
  public:
    /// What a case's data fill.
    struct Ziel {
        Dokument &dokument;
        Gestenlage &geste; ///< a text box is measured as one that has just been placed
        const Ansicht &ansicht;
    };
    Datenimport(const Startangaben &start, Ziel ziel, Projekt &projekt, Benutzer &benutzer, Fensterdienste &fenster)
        : start_(start), ziel_(ziel), projekt_(projekt), benutzer_(benutzer), fenster_(fenster) {}

    Satzliste cboTextDateizeilen;           ///< lines of the list, as they were read
    std::vector<Importperson> Listenzeilen; ///< the list that the panel shows
    bool ListeSichtbar = false;

    /// Whether the command line, however it is quoted, asks for an import.
    static bool IstVerlangt(const std::string &kommandozeile);
    /// Reads the command line and does what it asks for. What the timer of the start runs.
    void Startaufruf();
    /// Lays out the case of `basis` (a path without its ending), and reads the list of persons. Without that list it
    /// says so, in German in both languages. Meant.
    void DatenEinlesen(const std::string &basis);
    /// Fills the list from the lines and shows its panel.
    void ListeFüllen();
    void ListeUmschalten() { ListeSichtbar = !ListeSichtbar; }
    /// A line of the list, from 0, dropped on the page, where nothing is selected: one person there. Other rows do
    /// nothing.
    void Ablegen(Werkbank &w, int zeile, double x, double y) const;

  private:
    std::string Projektordner() const;
    void FallEinlesen(const std::string &datei);

    const Startangaben &start_;
    Ziel ziel_;
    Projekt &projekt_;
    Benutzer &benutzer_;
    Fensterdienste &fenster_;
};

} // namespace kw
