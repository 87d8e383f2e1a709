#pragma once

#include <QIcon>

#include <string_view>

namespace kw {

/// Drawing `name` of the folder sinnbilder ("speichern") as an icon: sharp at every size and resolution, its lines in
/// the text colour of the palette in force when it is painted. An icon without anything on it for unknown names.
QIcon Svgsinnbild(std::string_view name);
/// The same for a menu, whose highlight would swallow accents.
QIcon SvgsinnbildImMenü(std::string_view name);

/// The program's own, in the colours and sizes that desktops ask windows for.
QIcon Programmsinnbild();

} // namespace kw
