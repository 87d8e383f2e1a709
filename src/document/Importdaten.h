#pragma once

#include "document/Profil.h"
#include "document/Satzliste.h"

#include <string>
#include <string_view>
#include <vector>

// Person data that case-work software leaves for this program: a data file of one case, and the list of its persons.
namespace kw {

/// The three texts of a case as records of text boxes, not measured yet: its title, its facts, its aims. What the
/// file lacks is empty.
std::vector<std::string> ImportTexte(const Profil &daten);

/// The persons of a case as records, in reading order on a plain grid from the left edge; a row ends 1.8 cm before
/// the canvas does. `breite` is the canvas's, in cm. No lines are made between them. The grid goes on below the
/// page's edge. Meant.
std::vector<std::string> ImportPersonen(const Profil &daten, double breite);

/// One person of the list.
struct Importperson {
    int Symboltyp = 1;
    std::string Vorname;
    std::string Nachname;
    std::string Geburtsdatum;
    std::string Geschlecht; ///< "M", "W", or whatever else stands there
    bool IndexPerson = false;
    bool Sucht = false;
    bool Erkrankung = false;
    bool Verstorben = false;
};

/// Reads a line of the list; fields that it lacks are empty.
Importperson ImportpersonAus(std::string_view zeile);

/// The record of such a person with number `nr`, of that size at that place, cm. No parents, no twin.
std::string ImportSatz(const Importperson &person, const std::string &nr, double x, double y, double größe);

/// The lines of the list of persons, without empty ones. No more than a list on the screen can count.
Satzliste Importzeilen(std::string_view inhalt);

} // namespace kw
