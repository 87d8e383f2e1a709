#pragma once

#include "familytree/Personensuche.h"
#include "familytree/Sippe.h"

#include <string>
#include <utility>

namespace kw {

/// A family tree that was opened, from the choice until its report has been read.
struct Stammbaumvorlage {
    Stammbaumvorlage(std::string datei, std::string bytes)
        : Datei(std::move(datei)), Baum(StammbaumLesen(std::move(bytes))), Verwandte(Baum), Suche(Baum) {}

    const std::string Datei; ///< full path
    const Stammbaum Baum;
    const Verwandtschaft Verwandte;
    const Personensuche Suche;
    std::string Bericht; ///< of what was chosen last, lines
    bool Übernommen = false;

    Sippschaft Alle() const { return {Baum, Verwandte}; }
};

} // namespace kw
