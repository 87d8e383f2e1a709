#pragma once

#include "keyboard/Tastendruck.h"

#include <optional>
#include <string_view>

class QKeyEvent;

namespace kw {

/// The key as the model knows it; nothing for others. The numbers' block counts as the letters' one.
std::optional<Tastendruck> TasteVon(const QKeyEvent &ereignis);

/// The command that has this shortcut; empty for none. The menus' own come here only when they can't be chosen.
std::string_view BefehlMitKürzel(const QKeyEvent &ereignis);

} // namespace kw
