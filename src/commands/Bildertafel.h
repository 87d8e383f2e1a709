#pragma once

#include <string_view>

namespace kw {

/// Which picture the row `name` of the commands' table has: the name of one of the face's drawings ("speichern"), or
/// that of a palette button, whose symbol it then is ("cmdSymb(3)"). Empty for rows that have none; those that a
/// menu can tick are among them, for a picture stands where the tick would.
std::string_view Bildname(std::string_view name);

} // namespace kw
