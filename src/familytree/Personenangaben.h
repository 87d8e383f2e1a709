#pragma once

#include "familytree/Stammbaum.h"
#include "familytree/Uebernahmebericht.h"
#include "familytree/Uebernahmeregeln.h"

#include <string>
#include <string_view>

namespace kw {

/// What a person's record holds of the file's facts.
struct Personenangaben {
    int Symboltyp = TypMännlich;
    std::string Vorname, Nachname;
    std::string Geburtsdatum; ///< a day, a year, a bare age, or empty
    std::string Sterbealter;  ///< "$" with the age behind it, or empty
};

/// What a person is in the families of the file.
struct Familienrolle {
    std::string_view AlsPartner; ///< "HUSB" or "WIFE" where the person is first one; empty for none
    bool HatFamilie = false;
};

/// What stands for a person in a report: the names, and the file's own name for the person behind them.
std::string Anzeigename(const Stammperson &person);

/// Brings a person into the record's terms. What is lost, guessed or changed goes to the report, line by line, also
/// what the record has no field for.
Personenangaben PersonÜbertragen(const Stammbaum &baum, const Stammperson &person, const Familienrolle &rolle,
                                 const Übernahmeregeln &regeln, Übernahmebericht &bericht);

/// Years that an age text of a death says, "82y 3m" or INFANT; -1 for none.
int Altersangabe(std::string_view text);

} // namespace kw
