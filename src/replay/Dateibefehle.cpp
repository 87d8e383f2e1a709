#include "replay/Skriptbefehle.h"

#include <filesystem>
#include <system_error>

namespace kw {

namespace {

namespace fs = std::filesystem;

/// What somebody else does to a file or folder, past the program: `disk NAME PATH`, `cut` with a number of bytes behind
/// it, `copy` with the path of the copy. What the system refuses comes as an error, which is printed.
struct Eingriff {
    std::string_view Name;
    void (*Tun)(const std::string &pfad, const Wörter &w, std::error_code &fehler);
};

constexpr Eingriff Eingriffe[] = {
    {"remove", [](const std::string &pfad, const Wörter &, std::error_code &fehler) { fs::remove_all(pfad, fehler); }},
    {"cut",
     [](const std::string &pfad, const Wörter &w, std::error_code &fehler) {
         fs::resize_file(pfad, static_cast<std::uintmax_t>(Zahl(Wort(w, 3))), fehler);
     }},
    {"copy",
     [](const std::string &pfad, const Wörter &w, std::error_code &fehler) {
         fs::copy_file(pfad, Wort(w, 3), fs::copy_options::overwrite_existing, fehler);
     }},
    {"folder",
     [](const std::string &pfad, const Wörter &, std::error_code &fehler) { fs::create_directories(pfad, fehler); }},
};

void Eingreifen(std::ostream &aus, const Wörter &w) {
    for (const Eingriff &eingriff : Eingriffe) {
        if (eingriff.Name != Wort(w, 1)) continue;
        std::error_code fehler;
        eingriff.Tun(Wort(w, 2), w, fehler);
        if (fehler) aus << "failed " << w[1] << " " << w[2] << "\n";
        return;
    }
    throw Skriptfehler("unknown word: " + w[1]);
}

constexpr Skriptbefehl Tabelle[] = {
    {"disk", [](auto &lauf, auto &w, auto &) { Eingreifen(lauf.aus, w); }},
};

} // namespace

std::span<const Skriptbefehl> Dateibefehle() { return Tabelle; }

} // namespace kw
