#pragma once

#include "document/Dateien.h"

#include <string>
#include <string_view>

struct stat;

// The two ways in which a file gets a new content. Both throw `Systemfehler` and `Ungesichert`; unless that says
// otherwise the file is the old one then.
namespace kw {

struct Schreibauftrag {
    const std::string &Pfad; ///< as the caller names it
    std::string Ziel;        ///< where its links end
    std::string_view Inhalt;
    const Schreibweise &Wie;

    /// Whether anybody cares what stood in the file.
    bool Wacht() const { return Wie.Wahrer != nullptr && (Wie.Erwartet || Wie.ImmerBeiseite); }
    /// Has `steht` kept if it must be; throws `Ungesichert` when it isn't.
    void Sichern(std::string_view steht) const;
};

/// Puts another file in its place. `alt` tells of the one that is there. With a `Wahrer`, false when it can't be done
/// without losing more than the content, or not in this folder: nothing was changed then.
bool Ersetzen(const Schreibauftrag &auftrag, const struct stat *alt);

/// Writes into the file that is there. When that fails and the old content can't be put back either, the `Wahrer`
/// isn't told of the end, and both versions are with it.
void VorOrtSchreiben(const Schreibauftrag &auftrag);

} // namespace kw
