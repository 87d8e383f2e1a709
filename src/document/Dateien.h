#pragma once

#include "document/Dateinamen.h"
#include "document/Fingerabdruck.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// The one way in which this program reads and writes files.
namespace kw {

/// Why a file couldn't be read or written, for plain words in the user's language.
enum class Ursache {
    Keine,
    KeinPlatz,        ///< the disk or the user's share of it is full
    Schreibgeschützt, ///< the file, its folder or the whole disk
    FehltDatei,       ///< the file isn't there (reading)
    OrdnerFehlt,      ///< its folder isn't there
    ZuGroß,           ///< for the disk, a limit of the user's, or this program
    NichtGesichert,   ///< what would have been lost couldn't be kept: the file wasn't touched
    Lesegeschützt,    ///< the user may not read it (reading)
    KeineDatei,       ///< a folder, a device, a pipe, or links that lead nowhere
    Sonstiges,
};

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

/// Keeps versions that writing would lose. Each answers whether it has them safely; when not, the file isn't touched.
class Versionswahrer {
  public:
    Versionswahrer() = default;
    Versionswahrer(const Versionswahrer &) = delete;
    Versionswahrer &operator=(const Versionswahrer &) = delete;
    virtual ~Versionswahrer() = default;
    /// `inhalt` stands (or stood a moment ago) in file `pfad` and is about to be gone. The same may come twice.
    virtual bool Beiseitelegen(const std::string &pfad, std::string_view inhalt) = 0;
    /// The file is about to be written in place: both versions, until `VorOrtEndet`, which comes only when one of
    /// them stands in the file, whole.
    virtual bool VorOrtBeginnt(const std::string &pfad, std::string_view alt, std::string_view neu) = 0;
    virtual void VorOrtEndet() = 0;
};

/// How a file is to be written.
struct Schreibweise {
    unsigned NeuerModus = 0660; ///< of a new file, less the umask; others never get anything
    bool Flüchtig = false;      ///< neither flushed to the disk nor read back: `AufDiePlatte` does that later
    std::optional<Fingerabdruck> Erwartet; ///< what the file is believed to hold: anything else goes to `Wahrer` first
    bool ImmerBeiseite = false;            ///< also what is expected goes there (a file that was read only in part)
    Versionswahrer *Wahrer = nullptr;      ///< without one nothing is kept, and nothing is written in place
};

/// Replaces `pfad` by `inhalt` in one step: whatever fails or ends the program at whatever point, the
/// file afterwards is the old one or the new one, whole, and the answer agrees with it. Follows links
/// and keeps them; keeps mode, owner, group, access list and extended attributes as far as this user may set them,
/// and never lets anybody in who wasn't. Refuses a file that is write-protected or a folder. A device or pipe is
/// written straight, but not with a `Wahrer`: what went there can't be read again.
///
/// With a `Wahrer`, a file whose folder can't be written, that has several names, or whose owner or access list
/// wouldn't survive, is written in place instead. Only there can a kill leave neither version whole; the `Wahrer`
/// holds both then.
///
/// Sweeps what dead runs left in the folder, which never fails or holds up the writing.
Dateibefund DateiSchreiben(const std::string &pfad, std::string_view inhalt, const Schreibweise &wie = {});

/// Waits until the disk has file `pfad` and its name: the other half of writing with `Flüchtig`. Can take seconds.
Dateibefund AufDiePlatte(const std::string &pfad);

} // namespace kw
