#include "app/Programmversion.h"

namespace kw {

const std::string_view Programmversion = KW_PROGRAMMVERSION;

} // namespace kw
