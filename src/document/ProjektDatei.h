#pragma once

#include "document/Dokument.h"
#include "document/Ladebefund.h"
#include "document/Profil.h"

// The document's side of loading and saving a project, on a profile in memory. The main window calls these
// in the order of its own steps; each of them has what an earlier one left when a later one fails.
namespace kw {

/// Paper and orientation. A paper size that is not known leaves the old one, a missing one is DIN A4; an
/// orientation below 1 or missing is landscape.
void SeiteLesen(const Profil &profil, Dokument &dokument);

/// Empties the stores and reads them, persons first. Records are fetched by position, as many as the key
/// list has names, so a gap in the keys is an empty record. A person with fewer than 14 fields throws
/// `FeldFehlt` and ends the load: what was read up to it is left, and there are no lines and texts. Numbers that stand
/// twice in the file stand once afterwards. Records that have a whole text in the file come whole, also those for which
/// the key list has no room.
void SpeicherLesen(const Profil &profil, Dokument &dokument);

/// The legend's place and form. Throws `FeldFehlt` when there are fewer fields than these need, as in old
/// files; what was set before that stays.
void LegendeLesen(const Profil &profil, Dokument &dokument);

/// The whole load into a document that was nobody's yet: page, stores, legend. Never throws; what the file doesn't say
/// stays as it is in `dokument`. The free numbers are the caller's to rebuild, when the load came to its end.
Ladebefund ProjektLesen(const Profil &profil, Dokument &dokument);

/// Whether the legend leaves the plain symbols out. Every save writes that, and no load of a project reads it: meant.
/// A version that is to come back as it was has it.
bool OhneStandardsymboleLesen(const Profil &profil);

/// Writes the whole document, in place of what the profile had. Foreign sections, and foreign keys beside
/// the page settings, stay. Texts that these sections would lose stand whole behind all others.
void ProjektEintragen(const Dokument &dokument, Profil &profil);

} // namespace kw
