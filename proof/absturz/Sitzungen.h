#pragma once

#include <string>

namespace kw {

/// A session of the replay by a random user, in the present folder, its net in `netz`. Comes back when its steps are
/// over; the program isn't ended.
void Skriptsitzung(unsigned saat, const std::string &netz);

/// A session of the real window, in the present folder, with pointer and keys at random, until it is closed or so
/// many steps are done. `datei` is opened at the start; empty for none.
int Fenstersitzung(unsigned saat, const std::string &datei, int schritte);

/// A start of the real window. When the form of kept versions comes up, its entry `platz` is opened and the document is
/// written to file `ziel`; 1 when it doesn't come.
int Fensterneustart(int platz, const std::string &ziel);

} // namespace kw
