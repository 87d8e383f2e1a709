#pragma once

#include "editing/Werkbank.h"

#include <string_view>
#include <utility>

// Children of a partnership, and twins.
namespace kw {

/// The X range of a partnership's bar, left end first, cm.
std::pair<double, double> Balkenbereich(std::string_view partnerschaft);

/// Makes the selected person a child of the partnership under the pointer. Its line hangs on the bar above the
/// child, or on the bar's nearest end. False when there is no such person or line.
bool KindLinieAnlegen(Werkbank &w);
/// Kind of the selected child line: "A" adopted, "P" foster child, anything else natural.
void KindArtSetzen(Werkbank &w, std::string_view art);
/// Removes the selected child line: the child loses parents and twin, the twin only its mark.
void KindLinieEntfernen(Werkbank &w);

/// A twin command: `art` 1 to 6 from the twins' menus. New twins come under the two selected parents, who get a
/// partnership line if they have none; a message when not exactly two persons are selected.
void ZwillingeEinfügen(Werkbank &w, int art);

/// At the end of a marquee: offers to make twins of exactly two siblings that have no twin yet.
void ZwillingeBereit(Werkbank &w);
/// Makes twins of the siblings in `Zwillingspaar`; `mark` is "1E" or "2E". Unlike new identical twins they get no
/// relationship records. Meant.
void ZwillingeErklären(Werkbank &w, std::string_view mark);

} // namespace kw
