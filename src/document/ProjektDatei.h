#pragma once

#include "document/Dokument.h"
#include "document/Ladebefund.h"
#include "document/Profil.h"

#include <string>
#include <string_view>

// The document's side of loading and saving a project, on a profile in memory. The main window calls these
// in the order of its own steps; each of them has what an earlier one left when a later one fails.
namespace kw {

/// Paper and orientation. A paper size that is not known leaves the old one, a missing one is DIN A4; an
/// orientation below 1 or missing is landscape.
void SeiteLesen(const Profil &profil, Dokument &dokument);

/// Empties the stores and reads them, persons first. Records are fetched by position, as many as the key
/// list has names, so a gap in the keys is an empty record. A person with fewer than 14 fields throws
/// `FeldFehlt` and ends the load: what was read up to it is left, and there are no lines and texts. Numbers that stand
/// twice in the file stand once afterwards.
void SpeicherLesen(const Profil &profil, Dokument &dokument);

/// The legend's place and form. Throws `FeldFehlt` when there are fewer fields than these need, as in old
/// files; what was set before that stays.
void LegendeLesen(const Profil &profil, Dokument &dokument);

/// Writes the whole document, in place of what the profile had. Foreign sections, and foreign keys beside
/// the page settings, stay.
void ProjektEintragen(const Dokument &dokument, Profil &profil);

/// What `Ladeprüfung` says of a file that holds none of the format's sections.
constexpr std::string_view KeinProjekt = "not a Kinwright project";

/// To be called after a load: empty when the file was read as a whole, else what is damaged or was not
/// read, and where, as a plain part of an English sentence: the first such place, and how many records
/// were read if not all. A missing `legende` is no damage, since old files have none.
std::string Ladeprüfung(const Profil &profil, const Dokument &dokument);

Ladebefund ProjektLesen(const Profil &profil, Dokument &dokument);

} // namespace kw
