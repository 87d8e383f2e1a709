#pragma once

#include "dialogs/Formular.h"

#include <string>
#include <string_view>
#include <vector>

// What the forms that choose a font have in common.
namespace kw {

constexpr std::string_view Standardschrift = "Arial"; ///< where no font is given
constexpr std::string_view KleinsteSchrift = "8";     ///< where no size is given; points

/// The fonts and sizes that are offered. Others can be typed.
std::vector<std::string> AngeboteneSchriftarten();
std::vector<std::string> AngeboteneSchriftgrößen();

/// Gives `probe` that font. A size that is no number leaves the one it has; one that would burst the form is cut.
void SchriftZeigen(Steuerelement &probe, std::string_view schriftart, std::string_view größe);

/// What is stored for a font or a size as it stands in its list: nothing and what is no size above 0 become the
/// standard ones, a decimal comma becomes a point.
std::string GültigeSchriftart(std::string_view schriftart);
std::string GültigeSchriftgröße(std::string_view größe);

} // namespace kw
