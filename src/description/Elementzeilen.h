#pragma once

#include "editing/Elemente.h"
#include "platform/Sprache.h"

#include <string>
#include <vector>

namespace kw {

class Uhr;
struct Ansicht;
struct Auswahl;
struct Dokument;
struct Leinwandlage;
struct Legendenblatt;

/// All that the page in words is made from.
struct Seiteninhalt {
    const Dokument &dokument;
    const Ansicht &ansicht; ///< the language, and the size of the page
    const Auswahl &auswahl;
    const Leinwandlage &lage;
    const Legendenblatt &legende;
    const Uhr &uhr;
};

/// An element in words.
struct Elementzeile {
    kw::Element Element;
    std::string Schlüssel;    ///< within its kind; see `Elementschlüssel`
    std::string Name;         ///< what it is, and whom it joins
    std::string Ruf;          ///< how it is called in a sentence: of a person the name alone
    std::string Beschreibung; ///< what else there is to say of it
    Umgebung Rahmen;          ///< cm on the page
    bool Gewählt = false;

    /// What is read of it behind its name: that it is selected, then the description.
    std::string Zusatz(Sprache sprache) const;
};

/// One row an element, in the order of `AlleElemente`. Damaged records give what they have.
std::vector<Elementzeile> Elementzeilen(const Seiteninhalt &seite);

} // namespace kw
