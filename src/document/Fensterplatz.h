#pragma once

#include "platform/Fensterlage.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

// The place of the main window, from one start to the next.
namespace kw {

/// As the settings hold it: "LEFT,TOP,WIDTH,HEIGHT,0", with 1 for a maximised one. What isn't that is nothing.
std::string FensterlageText(const Fensterlage &lage);
std::optional<Fensterlage> FensterlageAus(std::string_view text);

/// Where a window that was left at `lage` can stand on the screens that there are now, of which the first one is the
/// usual one: there, when its title bar can be grasped and it isn't larger than all of them; else whole on the screen
/// that had most of it, made smaller where it must be. Without a screen there.
Fensterlage AufSchirmen(const Fensterlage &lage, std::span<const Schirmfläche> schirme);

} // namespace kw
