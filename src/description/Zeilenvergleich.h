#pragma once

#include "description/Elementzeilen.h"

#include <string>
#include <vector>

// What an event has made of the page, told from its rows before and after.
namespace kw {

/// Which rows are which.
struct Zeilenvergleich {
    std::vector<int> Herkunft; ///< of each row afterwards: its position before, -1 for a new one
    std::vector<int> Gegangen; ///< positions before of those that are gone
};

/// Elements with a number are the same while they keep it. Of the others those at the beginning and at the end that
/// say the same stay what they were, and what lies between is taken in its order.
Zeilenvergleich Verglichen(const std::vector<Elementzeile> &vorher, const std::vector<Elementzeile> &nachher);

/// What came of it, in a few words: "verknüpft: Anna Müller und Jörg Müller", "gelöscht: Anna Müller". Empty when there
/// is nothing to tell. That a single element was selected or renamed isn't told: it says so itself.
std::string Ergebnistext(const std::vector<Elementzeile> &vorher, const std::vector<Elementzeile> &nachher,
                         Sprache sprache);

/// A place on the page, cm: "6,3 und 5,4 cm".
std::string Ortstext(double x, double y, Sprache sprache);

/// "22 Personen, 7 Partnerschaften, 10 Beziehungen und 2 Texte"; "leere Seite" without any.
std::string Bestand(const std::vector<Elementzeile> &zeilen, Sprache sprache);

/// The same of a whole page: who is whose child is told with the persons.
std::string Überblick(std::vector<Elementzeile> zeilen, Sprache sprache);

} // namespace kw
