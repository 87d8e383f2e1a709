#pragma once

#include "description/Elementzeilen.h"

#include <string>

namespace kw {

/// The whole genogram in plain sentences, one paragraph a line: what there is, whom it is about, then the persons from
/// the top of the page to the bottom and from left to right, then texts, arrows and circle lines. Every line can go to
/// a terminal.
std::string Seitentext(const Seiteninhalt &seite);

} // namespace kw
