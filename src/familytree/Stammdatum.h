#pragma once

#include "familytree/Kalender.h"

#include <string_view>

namespace kw {

/// What a date says of itself.
enum class Datumsart {
    Genau,
    Um,        ///< ABT
    Berechnet, ///< CAL
    Geschätzt, ///< EST
    Vor,       ///< BEF
    Nach,      ///< AFT
    Von,       ///< FROM without TO
    Bis,       ///< TO without FROM
    Gedeutet,  ///< INT, read from a phrase
    Zwischen,  ///< BET AND: some day of these
    Zeitraum,  ///< FROM TO: all of these
    Worte,     ///< no date: a phrase, or what isn't understood
};

/// A date of a family tree, in the Gregorian calendar.
struct Stammdatum {
    Datumsart Art = Datumsart::Worte;
    Kalendertag Erstes;
    Kalendertag Zweites;          ///< of two
    bool AndererKalender = false; ///< of the first: it was counted over
    bool Doppeljahr = false;      ///< of the first: "1731/32", of which the second counts

    /// Says one day or one year, if perhaps not surely.
    bool IstEines() const { return Art <= Datumsart::Geschätzt || Art == Datumsart::Gedeutet; }
};

/// Reads a date as it stands in the file: day, month and year in one of the four calendars, years before Christ, double
/// years, and what can stand before a date. Days aren't looked at whether they exist.
Stammdatum StammdatumLesen(std::string_view text);

} // namespace kw
