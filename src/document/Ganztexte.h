#pragma once

#include "document/Profil.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A line of a profile doesn't carry every text: the code page lacks most of the world's letters, a long one is cut,
// blanks and quotation marks at its ends go, and a section's key list holds about a thousand names. What wouldn't come
// back is kept a second time, whole, in a section of our own that stands behind all others. Programs that don't know
// it keep it and lose nothing that they know.
namespace kw {

constexpr std::string_view Ganzabschnitt = "FULLTEXT";

/// Whether a profile gives back that value as it was written.
bool Überlebt(std::string_view wert);

/// The value of a key, whole when a whole text of that key's name still tells what stands there.
std::string GanzLesen(const Profil &profil, std::string_view abschnitt, std::string_view schlüssel);
/// Writes it, and keeps it whole when it has to be.
void GanzSchreiben(Profil &profil, std::string_view abschnitt, std::string_view schlüssel, std::string_view wert);

/// The whole texts of a project that is being saved.
class Ganzschrift {
  public:
    /// The records of a section as they are written under the keys "0", "1" and on: takes those that wouldn't come
    /// back, and those that in the file look like one of them.
    void Aufnehmen(std::string_view abschnitt, const std::vector<std::string> &werte);
    /// Puts the section of whole texts behind all others, in place of an older one; there is none when none is needed.
    void Eintragen(Profil &profil) const;

  private:
    std::vector<std::pair<std::string, std::string>> texte_; ///< key and whole text
};

/// A whole text of a file.
struct Ganztext {
    std::size_t Position = 0; ///< the record's key when it was written
    std::string Ganz;
    std::string Abbild;    ///< as the line of its record reads, however long
    bool Verlust = false;  ///< a plain reading of that line gives something else
    bool Vergeben = false; ///< a record has it
};

/// The whole texts of a project that is being loaded. They are matched to records by what stands in the file, so a
/// record that was changed elsewhere is never overruled, and one that only moved to another key finds its text.
class Ganztexte {
  public:
    /// What cannot be understood is passed over and counts as orphaned. `profil` must outlive it.
    explicit Ganztexte(const Profil &profil);

    /// The records that come whole, by the number of their key. Those from `gelistet` on have no room in the section's
    /// key list; of these only the ones given here are known.
    using Ganze = std::map<std::size_t, std::string>;
    /// Matches by the text that a record becomes in the file. Each whole text is used once; equal ones in order.
    Ganze Zuordnen(std::string_view abschnitt, std::size_t gelistet);
    /// Matches by the person's number and field by field: what was changed elsewhere stays as the file says. A person
    /// whom the buffer would cut comes with all fields when what is there agrees.
    Ganze PersonenZuordnen(std::string_view abschnitt, std::size_t gelistet);

    /// Whether a whole text, or a part of one, is in none of the records given so far.
    bool Verwaist() const;

  private:
    void Aufnehmen(std::string_view schlüssel, std::string_view wert);
    std::vector<Ganztext> &Texte(std::string_view abschnitt);
    std::optional<std::string> Person(const Ganztext &text, std::string_view zeile);

    const Profil &profil_;
    std::map<std::string, std::vector<Ganztext>, std::less<>> texte_; ///< by section, in the order of their keys
    std::size_t anzahl_ = 0;
    bool verwaist_ = false;
};

} // namespace kw
