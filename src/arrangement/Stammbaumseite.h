#pragma once

#include "arrangement/Stammblatt.h"
#include "document/Dokument.h"
#include "familytree/Sippe.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// From a family tree to a page, for all that can be asked of it.
namespace kw {

/// Numbers of a project have three digits.
constexpr std::size_t HöchstzahlPersonen = 999;
constexpr std::size_t HöchstzahlPaare = 999;

/// What of a family tree is to become a page.
struct Seitenwunsch {
    std::uint32_t Proband = 0;
    bool Alle = false; ///< everybody, whatever `Wahl` says
    Sippenwahl Wahl;
    Übernahmeregeln Regeln;
    Blattregeln Blatt;
};

enum class Seitenausgang {
    Passt,
    PasstNicht,     ///< no sheet holds it
    ZuVielePersonen ///< or too many couples: nothing was laid out
};

struct Stammbaumseite {
    Seitenausgang Ausgang = Seitenausgang::ZuVielePersonen;
    std::size_t Personen = 0; ///< with those that had to be added
    std::size_t Paare = 0;
    Übernahme Übernommen; ///< empty where even those that were asked for are too many
    Stammblatt Blatt;     ///< only of what was laid out
    Dokument Seite;       ///< empty where it doesn't fit
};

/// `fläche` measures names; its font changes.
Stammbaumseite SeiteAus(Sippschaft alle, const Seitenwunsch &wunsch, Zeichenfläche &fläche);

/// What can be asked for instead of what doesn't fit, what takes the least away first. The last one is next to nobody.
std::vector<Seitenwunsch> Auswege(const Seitenwunsch &wunsch);

} // namespace kw
