#pragma once

#include "replay/Skript.h"

#include <span>
#include <string_view>

namespace kw {

/// A command of the language, one row each.
struct Skriptbefehl {
    std::string_view Name;
    /// Gets the line's words, the command's name first, and the line as it stands.
    void (*Ausführen)(Wiedergabe &, const Wörter &, const std::string &zeile);
};

/// What the mouse does on the canvas.
std::span<const Skriptbefehl> Zeigerbefehle();
/// What the user presses, chooses and answers elsewhere, and what time does.
std::span<const Skriptbefehl> Bedienbefehle();
/// Arranging and looking at the model's state.
std::span<const Skriptbefehl> Zustandsbefehle();
/// Calls of single routines, without the program around them.
std::span<const Skriptbefehl> Einzelaufrufe();
/// What somebody else does to files while the program runs.
std::span<const Skriptbefehl> Dateibefehle();

} // namespace kw
