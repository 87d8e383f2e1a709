#pragma once

namespace kw {

struct Dokument;

/// Gives each person and each partnership line a number of its own, after records have come from elsewhere. Of those
/// that share one the first keeps it and all that names it; the others get the lowest free ones. Nothing names such a
/// person then, so it has neither parents nor twin any more, and can be linked anew. Records without a number stay.
void DoppelnummernAuflösen(Dokument &dokument);

} // namespace kw
