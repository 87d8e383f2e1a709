#pragma once

#include "platform/Benutzer.h"

#include <optional>
#include <string>

// Asking for a file to write.
namespace kw {

/// Asks until the file is a new one or the user wants the old one replaced; nothing when he gives up. The question is
/// German or ends with `frageEnglisch`.
std::optional<std::string> ZieldateiWählen(Benutzer &benutzer, const Dateiwahl &wahl, bool deutsch,
                                           const std::string &frageEnglisch = "Do you want to replace it?");

/// Where output is put if the user says nothing else: the project's folder, or the desktop's for a project that has
/// none.
std::string Ausgabeordner(const Benutzer &benutzer, const std::string &projektdatei);

} // namespace kw
