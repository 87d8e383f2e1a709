#pragma once

#include "platform/Sprache.h"

#include <string>

namespace kw {

class Benutzer;

/// Asks for the file of a family tree and writes `inhalt` to it; a failure is told in a box. False when nothing was
/// written.
bool StammbaumSpeichern(Benutzer &benutzer, Sprache sprache, const std::string &projektdatei,
                        const std::string &inhalt);

} // namespace kw
