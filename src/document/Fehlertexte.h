#pragma once

#include "document/Dateien.h"
#include "platform/Sprache.h"

#include <string>

namespace kw {

/// Why a file couldn't be read or written, in plain words and without a full stop.
std::string Fehlertext(const Dateibefund &befund, Sprache sprache);

} // namespace kw
