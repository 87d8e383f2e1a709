#pragma once

#include "platform/Sprache.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace kw {

/// What of a genogram a family tree has no place for, or no other program's page.
enum class Übergabeverlust {
    Beziehungslinien,
    Schwangerschaften,
    Fehlgeburten,
    Abtreibungen,
    Institutionen,
    Textboxen,
    Pfeile,
    Kreislinien,
    Legende,
    Distanzierte,   ///< partnerships that are drawn as distant
    Suchtzeichen,   ///< persons with the mark of an addiction
    Krankheiten,    ///< persons with the mark of an illness
    Partnerlinien,  ///< partnership lines that lead to nobody who goes along
    Zwischenstände, ///< dates of a couple that its state now hides
    Sterbealter,    ///< that can't be read
    Geschlechter,   ///< kinds of persons that other programs don't know: they come back here alone
    Geburtsdaten,   ///< that are no dates: they go as words
    Namenszeichen,  ///< names with "/", which parts the family name
};
constexpr std::size_t Übergabeverluste = 18;

/// What an export tells of what it left out, or said otherwise.
class Übergabebericht {
  public:
    void Hinzu(Übergabeverlust art, std::size_t anzahl = 1) { anzahl_[static_cast<std::size_t>(art)] += anzahl; }
    std::size_t Anzahl(Übergabeverlust art) const { return anzahl_[static_cast<std::size_t>(art)]; }
    bool OhneVerlust() const;

  private:
    std::array<std::size_t, Übergabeverluste> anzahl_{};
};

/// Whether it is left out; else it goes, said otherwise.
bool BleibtWeg(Übergabeverlust art);

/// "3 relationship lines"; the number is at least 1.
std::string Verlusttext(Übergabeverlust art, std::size_t anzahl, Sprache sprache);

/// A line for each kind that there is, the left out ones first: "left out: 3 relationship lines".
std::vector<std::string> Berichtszeilen(const Übergabebericht &bericht, Sprache sprache);

} // namespace kw
