#pragma once

#include "document/Dateien.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kw {

/// What is told of a version that the safety net keeps.
struct Netzkopf {
    enum class Art {
        Stand,     ///< a document that was never saved as it stands; nobody has answered what is to become of it
        Behalten,  ///< the same, kept by the user
        Verdrängt, ///< what a project file held before it was replaced
        VorOrt,    ///< a file's old or new content, from before it is written in place
    };
    std::string Name; ///< of its file in the net's folder
    Art Was = Art::Stand;
    std::string Projektdatei; ///< as the program had it; empty for a project never saved
    std::int64_t Zeit = 0;    ///< nanoseconds since 1970
    int Personen = 0;
    std::optional<Fingerabdruck> Herkunft; ///< of the project file as it was loaded or last saved
    bool Unganz = false;                   ///< the project file holds more than could be read of it
    bool Import = false;                   ///< a case that was handed over: saved under its name without asking
};

/// A version with its content, which is that of a project file, byte for byte.
struct Netzeintrag {
    Netzkopf Kopf;
    std::string Inhalt;
};

/// The bytes of a file of the net: lines of ASCII, an empty line, the content. `Kopf.Name` and `Kopf.Was` aren't in it:
/// the file's name tells them.
std::string Netzdatei(const Netzkopf &kopf, std::string_view inhalt);

/// The inverse, with name and kind left as they are by default. Nothing when it is no such file.
std::optional<Netzeintrag> NetzeintragAus(std::string_view datei);

} // namespace kw
