#pragma once

#include "platform/Sprache.h"

#include <string_view>

// The captions of menus, toolbar and palette in the program's two languages.
namespace kw {

class Bedienelemente;

/// All captions. `deviceName` is the default printer's, for the tool tip of `btnBlattränder`; empty without one.
/// Captions that show a state are set by the routines that own the state.
void MenuesBeschriften(Bedienelemente &elemente, Sprache sprache, std::string_view deviceName);
/// Only the tool tip that names the printer.
void RänderknopfBeschriften(Bedienelemente &elemente, Sprache sprache, std::string_view deviceName);

} // namespace kw
