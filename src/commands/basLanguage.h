#pragma once

#include "platform/Bedienelemente.h"

#include <string_view>

// The captions of menus, toolbar and palette in the program's two languages.
namespace kw {

/// All captions in German. `deviceName` is the default printer's, for the tool tip of `btnBlattränder`; empty
/// without one. Captions that show a state are set by the routines that own the state.
void MenuesDeutsch(Bedienelemente &elemente, std::string_view deviceName);
void MenuesEnglisch(Bedienelemente &elemente, std::string_view deviceName);

/// "de" gives the German captions, anything else the English ones.
void MenuesBeschriften(Bedienelemente &elemente, std::string_view sprache, std::string_view deviceName);
/// Only the tool tip that names the printer.
void RänderknopfBeschriften(Bedienelemente &elemente, std::string_view sprache, std::string_view deviceName);

} // namespace kw
