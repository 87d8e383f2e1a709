#include "dialogs/Dialogumgebung.h"

#include "editing/Werkbank.h"

namespace kw {

Sprache Dialogumgebung::Sprache() const { return werkbank.ansicht.Sprache; }

} // namespace kw
