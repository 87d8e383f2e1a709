#pragma once

#include "platform/Sprache.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

// Asking for a file to write.
namespace kw {

class Benutzer;
struct Dateiwahl;

constexpr Zweisprachig Ersetzungsfrage{"Möchten Sie sie ersetzen ?", "Do you want to replace it?"};

/// Asks until the file is a new one or the user wants the old one replaced; nothing when he gives up. `frage` ends the
/// question. What `zulässig` refuses, and tells, is asked for again.
std::optional<std::string> ZieldateiWählen(Benutzer &benutzer, const Dateiwahl &wahl, Sprache sprache,
                                           const Zweisprachig &frage = Ersetzungsfrage,
                                           const std::function<bool(const std::string &)> &zulässig = {});

/// "The file NAME" and then `rest`.
std::string Dateisatz(Sprache sprache, std::string_view name, const Zweisprachig &rest);

/// Where output is put if the user says nothing else: the project's folder, or the desktop's for a project that has
/// none.
std::string Ausgabeordner(const Benutzer &benutzer, const std::string &projektdatei);

/// What a page that goes out is called: as its project, or as the program.
std::string Drucktitel(const std::string &projektdatei);

} // namespace kw
