#pragma once

#include "document/Dokument.h"
#include "familytree/Uebergabebericht.h"
#include "familytree/Zeilenschreiber.h"
#include "platform/Uhr.h"

#include <cstddef>
#include <string>

namespace kw {

/// What a user can choose of an export.
struct Übergabewünsche {
    Stammbaumfassung Fassung = Stammbaumfassung::Gedcom70;
    bool Gesundheit = false;       ///< the marks of addiction and illness go along
    bool Beziehungslinien = false; ///< so do relationship lines, as relations between two persons
};

struct Übergabe {
    std::string Text;         ///< the file's bytes
    std::size_t Personen = 0; ///< that went into it
    Übergabebericht Bericht;
};

/// Writes a genogram as a genealogy program's file: persons, couples and children, the index person first. Nothing of
/// the page's places goes along, but that siblings keep their order from left to right. Damaged records are read as
/// far as they go. The same document gives the same bytes on any day. `uhr` tells how its dates are read.
Übergabe Übergeben(const Dokument &dokument, const Uhr &uhr, const Übergabewünsche &wünsche = {});

/// Whether anybody stands there who goes into a family tree: the unborn and institutions don't.
bool HatStammbaum(const Dokument &dokument);

} // namespace kw
