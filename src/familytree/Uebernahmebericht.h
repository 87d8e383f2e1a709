#pragma once

#include "familytree/Stammbaum.h"
#include "platform/Sprache.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kw {

/// What a genogram has no place for, what it has otherwise, and what the file doesn't say.
enum class Befundart {
    GeschlechtAusRolle,
    GeschlechtGesetzt,
    GeburtsjahrStattDatum,
    DatumUmgerechnet,
    GeburtWeggelassen,
    AlterAusJahren,
    AlterWeggelassen,
    AlterAbweichend,
    SterbedatumWeggelassen,
    NameGeändert,
    NameGekürzt,
    NameWeggelassen,
    KeineTotgeburt,
    AltOhneTod,
    WeitereEltern,
    ElternGewählt,
    KindschaftGeändert,
    NurEineSeite,
    KreisGelöst,
    Unverbunden,
    PartnerErgänzt,
    PartnerDazu,
    PartnerWeggelassen,
    PaarZusammengelegt,
    PaarWeggelassen,
    StatusAngenommen,
    StatusGewählt,
    ZwillingeAngenommen,
    ZwillingeMöglich,
    MehrlingeWeggelassen,
    BeziehungWeggelassen,
    NotizWeggelassen,
    QuelleWeggelassen,
    OrtWeggelassen,
    EreignisWeggelassen,
    VerwaltungWeggelassen,
    EigenesWeggelassen,
    SonstigesWeggelassen,
};
constexpr std::size_t Befundarten = 38;

/// What was done with it.
enum class Befundklasse { Weggelassen, Angenommen, Geändert };

struct Befund {
    Befundart Art{};
    std::uint32_t Zeile = 0; ///< of the file
    std::string Wer;         ///< the person's or the couple's names
    std::string Text;        ///< as the file says it; may be empty
};

/// What an import tells of what it did. Nothing is left out, taken for granted or changed without standing here.
class Übernahmebericht {
  public:
    /// Texts are shortened to what a line can show.
    void Hinzu(Befundart art, std::uint32_t zeile, std::string_view wer, std::string_view text = {});
    const std::vector<Befund> &Liste() const { return liste_; }
    std::size_t Anzahl(Befundart art) const { return anzahl_[static_cast<std::size_t>(art)]; }
    std::size_t Anzahl(Befundklasse klasse) const;

  private:
    std::vector<Befund> liste_;
    std::array<std::size_t, Befundarten> anzahl_{};
};

Befundklasse Klasse(Befundart art);
std::string_view Befundtext(Befundart art, Sprache sprache);

/// All of it as a text to read, save or print: the counts by kind, then line by line of the file. `warnungen` are those
/// of the file itself.
std::string Berichtstext(const Übernahmebericht &bericht, const Warnungen &warnungen, Sprache sprache);

} // namespace kw
