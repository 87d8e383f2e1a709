#pragma once

namespace kw {

struct Werkbank;

/// Both fill the clipboard from the selection lists; cutting deletes the selection afterwards. Lines go along only with
/// both whom they join.
void Kopieren(Werkbank &w);
void Ausschneiden(Werkbank &w);

/// Puts the clipboard's records into the stores under new numbers, selects them and takes one snapshot. Copies
/// land 0.3 cm right and below of where they last stood; what was cut lands where it was.
void Einfügen(Werkbank &w);

/// Tells why nothing can be pasted: the program's own clipboard is empty, whatever lies on the desktop's.
void EinfügenAblehnen(Werkbank &w);

} // namespace kw
