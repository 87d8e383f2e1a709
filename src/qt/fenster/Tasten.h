#pragma once

#include "keyboard/Tastendruck.h"

#include <optional>

class QKeyEvent;

namespace kw {

/// The key as the model knows it; nothing for others. The numbers' block counts as the letters' one.
std::optional<Tastendruck> TasteVon(const QKeyEvent &ereignis);

} // namespace kw
