#pragma once

#include "document/Dateien.h"
#include "platform/Sprache.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace kw {

/// Why a file gives no family tree.
enum class Stammbaumfehler {
    Keiner,
    NichtLesbar,   ///< the file itself
    KeinArchiv,    ///< a damaged archive, or one packed in a way that isn't known
    Verschlüsselt, ///< an archive behind a password
    OhneStammbaum, ///< an archive without a .ged file
    ZuGroß,        ///< unpacked
};

struct Stammbaumbefund {
    Stammbaumfehler Fehler = Stammbaumfehler::Keiner;
    Dateibefund Datei; ///< why the file can't be read
    bool Gelungen() const { return Fehler == Stammbaumfehler::Keiner; }
    /// A sentence for the user; empty when nothing failed.
    std::string Text(Sprache sprache) const;
};

/// The bytes of a family tree's file: a .ged, or the first .ged of an archive (.gdz), whatever the file is called.
/// `bytes` is left alone on failure. What unpacks to more than `höchstens` bytes is refused before it fills the memory.
Stammbaumbefund StammbaumdateiLesen(const std::string &pfad, std::string &bytes, std::size_t höchstens = GrößteDatei);

/// Whether a file of that name is to be a family tree: it ends in ".ged", in letters of any case.
bool IstStammbaumname(std::string_view pfad);

} // namespace kw
