#pragma once

#include "document/Dokument.h"
#include "platform/Sprache.h"

// A genogram for those who mustn't learn whose it is.
namespace kw {

class Uhr;

/// What becomes of a date of birth.
enum class Lebenszeit {
    Alter,      ///< the age of today, which stays: of the living
    Geburtsjahr ///< its year
};

/// The document without anything that says whose family it is. Who has a name under the symbol gets a letter for the
/// generation, from the top, and a number within it, from the left ("B3"): short enough for any place on a page, easily
/// said and found, and it tells where on the page to look. Institutions have no name, text boxes aren't there, lines
/// have no dates; an age at death stays where it is one. What supervision works on stays: kinds of persons and lines,
/// marks, twins, places, page and legend.
///
/// Every record is written anew, from what its fields may hold: text that stands where only a number can isn't copied.
/// Numbers of persons and lines stay, so that further copies of the same genogram can be compared. A damaged line that
/// isn't drawn isn't there.
Dokument OhneNamen(const Dokument &dokument, Lebenszeit zeit, const Uhr &uhr, Sprache sprache);

/// How ages are to be shown of such a document: what it holds, and no year that follows from an age.
int AltersanzeigeFür(Lebenszeit zeit);

/// What a document loses by that.
struct Weggelassenes {
    int Personen = 0;      ///< with a name
    int Daten = 0;         ///< of birth, and at partnership lines
    int Institutionen = 0; ///< with a name
    int Texte = 0;         ///< text boxes
};
Weggelassenes OhneNamenFehlt(const Dokument &dokument);

} // namespace kw
