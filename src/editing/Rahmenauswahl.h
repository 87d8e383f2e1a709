#pragma once

#include "editing/Werkbank.h"

namespace kw {

/// The end of a marquee: fills the selection lists with what `shpBox` holds. Ends in `Aktion` 17 with the frame as
/// dragged, or in 0 without it.
void RahmenAuswählen(Werkbank &w);

} // namespace kw
