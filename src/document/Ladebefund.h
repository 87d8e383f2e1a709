#pragma once

#include "platform/Sprache.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kw {

/// What can be wrong at a place of a project file.
enum class Schadensart {
    Vorspann,      ///< text before the first section
    Gekürzt,       ///< a record that the profile's buffer cuts
    OhnePunkt,     ///< a circle line
    FelderFehlen,  ///< of a record or of the legend
    ZuViele,       ///< records for which the section's key list has no room
    FremdeZeile,   ///< in a section of records
    ZweiterGleiche ///< a section of the name of an earlier one
};

/// A place of a project file that couldn't be read.
struct Ladeschaden {
    Schadensart Art{};
    std::string_view Abschnitt{}; ///< empty for what stands before the first
    std::size_t Position = 0;     ///< the record's key, or the first one without room
    int Gebraucht = 0;            ///< fields that a whole record has at least
    int Vorhanden = 0;            ///< fields that it has
};

/// What a load found. The document holds what came, whatever this says.
struct Ladebefund {
    bool IstProjekt = false; ///< has one of the format's eight sections
    /// Every step was done. False when a person's record ended the load, and for a file without a legend: the legend
    /// isn't rebuilt then and no free numbers are looked for.
    bool BisZumEnde = false;
    std::optional<Ladeschaden> Schaden; ///< the first one; a missing legend is none, since old files have none
    std::size_t Gelesen = 0;            ///< records in the stores
    std::size_t Vorhanden = 0;          ///< records in the file
    /// A whole text found no record that it belongs to, since the file was changed elsewhere. What came is whole, but
    /// the next save would write over that text.
    bool Verwaist = false;

    /// Nothing is wrong with what was read.
    bool Unversehrt() const { return IstProjekt && !Schaden; }
    /// A save over the file would lose what it holds.
    bool SpeichernVerliert() const { return !Unversehrt() || Verwaist; }
};

/// The first damage, and how much came if not all: a plain part of a sentence. Empty when the file is `Unversehrt`.
std::string Ladetext(const Ladebefund &befund, Sprache sprache);

} // namespace kw
