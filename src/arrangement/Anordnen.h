#pragma once

namespace kw {

struct Werkbank;

/// Lays out the families among the selected persons of a group, or of the whole page, by their bonds; what hangs on
/// them goes along. Whoever isn't selected stays, nothing is laid on them, and with them stay their partners and those
/// of their children who go with nobody. One snapshot, where anything moves. Where the page holds it only with smaller
/// symbols the user is asked; why it can't be done at all is told.
void mnuAnordnen(Werkbank &w);

} // namespace kw
