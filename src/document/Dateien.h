#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// File names, and the one way in which this program reads and writes files.
namespace kw {

/// Everything up to and including the last "/"; empty when there is none.
std::string Pfad(std::string_view datei);
/// Everything behind the last "/".
std::string DateiName(std::string_view pfad);
/// Everything before the last "." of a file name; the whole text when there is none.
std::string NameOhneKennung(std::string_view name);
/// Everything behind the last "." of a file name; empty when there is none.
std::string Kennung(std::string_view name);
/// `datei` with the ending `kennung` unless it has that, in letters of any case; with `alle` unless it has any: a date
/// or a number behind the last point ("Berg 3.11.2026") is none.
std::string MitKennung(const std::string &datei, std::string_view kennung, bool alle);
bool DateiVorhanden(const std::string &pfad);
/// Whether `ordner` is a folder that can be written.
bool IstBeschreibbar(const std::string &ordner);
/// The same, but for the system's own folders, where no program keeps its files whoever runs it.
bool IstFürDateien(const std::string &ordner);
/// Any text as the name of a file, without folders: what a name can't hold here or elsewhere stands as "%2F", so that
/// different texts give different names.
std::string AlsDateiname(std::string_view text);

/// Why a file couldn't be read or written, as far as a user can do something about it.
enum class Ursache { Keine, KeinPlatz, Schreibgeschützt, FehltDatei, OrdnerFehlt, ZuGroß, NichtGesichert, Sonstiges };

/// The outcome of reading or writing a file. `Meldung` is empty on success, else one plain line without
/// the file's name ("No space left on device"); `Grund` says the same to a program.
struct Dateibefund {
    std::string Meldung;
    Ursache Grund = Ursache::Keine;
    bool Gelungen() const { return Meldung.empty(); }
};

/// No file of this program is anywhere near this; what is larger is refused before it fills the memory.
constexpr std::size_t GrößteDatei = std::size_t{1} << 28;

/// Reads the whole of `pfad` into `inhalt`, which is left alone on failure.
Dateibefund DateiLesen(const std::string &pfad, std::string &inhalt);

/// Replaces `pfad` by `inhalt` in one step: whatever fails or ends the program at whatever point, the
/// file afterwards is the old one or the new one, whole, and the answer agrees with it. Follows links
/// and keeps them, keeps the mode, refuses a file that is write-protected or a folder. A device or
/// pipe is written straight.
Dateibefund DateiSchreiben(const std::string &pfad, std::string_view inhalt);

} // namespace kw
