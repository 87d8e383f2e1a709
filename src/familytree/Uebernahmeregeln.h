#pragma once

#include "document/saetze/Person.h"
#include "platform/Sprache.h"

#include <string>

namespace kw {

/// The answers to what a file can't say, the same for all of an import.
struct Übernahmeregeln {
    Sprache Textsprache = Sprache::Deutsch;  ///< of the dates at the lines
    int UnbekanntesGeschlecht = TypMännlich; ///< the symbol of a person who has no role in a family either
    std::string OhneHeirat = "0";            ///< the state of a couple of whose marriage nothing is said
    bool GleichaltrigeSindZwillinge = false; ///< two children of a family with the same date of birth
    bool ZwillingeEineiig = false;           ///< twins of one sex of whom nothing else is said
    bool AdoptionVorGeburt = false;          ///< whose child a person is who was adopted
    bool AlteSindVerstorben = false; ///< who would be older than anybody gets, and of whose death nothing is said
    int Jahr = 0;                    ///< of today, for these; 0: nobody is that old
};

} // namespace kw
