#pragma once

#include "document/Dokument.h"
#include "document/Ladebefund.h"
#include "document/Profil.h"

// The document's side of loading and saving a project, on a profile in memory.
namespace kw {

/// The whole load: page, stores, legend, in this order. Never throws; what the file doesn't say stays as it is in
/// `dokument`. The free numbers are the caller's to rebuild, when the load came to its end.
///
/// A paper size that is not known leaves the old one, a missing one is DIN A4; an orientation below 1 or missing is
/// landscape. Records are fetched by position, as many as the key list has names, so a gap in the keys is an empty
/// record. A person with fewer than 14 fields ends the load: what was read up to it is left, and there are no lines and
/// texts. Numbers that stand twice in the file stand once afterwards. Records that have a whole text in the file come
/// whole, also those for which the key list has no room. A legend with fewer fields than it needs, as in old files,
/// ends the load too; what was set before that stays.
Ladebefund ProjektLesen(const Profil &profil, Dokument &dokument);

/// Whether the legend leaves the plain symbols out. Every save writes that, and no load of a project reads it: meant.
/// A version that is to come back as it was has it.
bool OhneStandardsymboleLesen(const Profil &profil);

/// Writes the whole document, in place of what the profile had. Foreign sections, and foreign keys beside
/// the page settings, stay. Texts that these sections would lose stand whole behind all others.
void ProjektEintragen(const Dokument &dokument, Profil &profil);

/// A whole project file that holds this document and nothing else.
std::string ProjektInhalt(const Dokument &dokument);

} // namespace kw
