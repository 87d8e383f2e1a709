#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

enum class Ursache;

/// The printer that writes its page into a PDF file.
constexpr std::string_view PdfDruckerName = "Microsoft Print to PDF";

/// What of a sheet a printer can't reach, in cm.
struct Druckränder {
    double Links = 0;
    double Rechts = 0;
    double Oben = 0;
    double Unten = 0;
};

/// The default printer of the platform.
struct Druckervorgabe {
    bool Beantwortet = true; ///< whether the platform has told; it can take its time
    std::string Name;        ///< empty when there is no printer
    Druckränder Ränder;      ///< in its own orientation
};

class Zeichenfläche;

/// One job.
struct Druckauftrag {
    std::string Titel;
    bool Farbig = true;
    double SeitenBreite = 0; ///< of the document, cm; a printer's sheet is its own, that of a PDF is the page
    double SeitenHöhe = 0;
    /// Draws the page on a surface whose user units are centimetres from the corner of the printable area.
    std::function<void(Zeichenfläche &)> Zeichnen;
    /// Asks for the file, where the printer writes one; nothing when the user gives up.
    std::function<std::optional<std::string>()> Zieldatei;
    bool OhneZeit = false; ///< a file doesn't say when it was made
    /// Further sheets of the same size, each drawn like the first; a picture has none.
    std::vector<std::function<void(Zeichenfläche &)>> WeitereBlätter = {};
};

/// How a job ended, as far as it is told: a printer that fails later, on its paper, says nothing.
struct Druckbefund {
    enum class Art {
        Erledigt,
        Aufgegeben,       ///< by the user
        NichtGeschrieben, ///< the file, by `Grund`
        NichtErreicht,    ///< the printer has gone, or its print system doesn't answer
        NichtAngenommen   ///< the printer, or its print system, refused the job
    };
    Art Ende = Art::Erledigt;
    Ursache Grund{};          ///< of a file that isn't written
    std::string Drucker = {}; ///< its name; empty when there is none
};

/// The printers of the platform.
class Drucker {
  public:
    virtual ~Drucker() = default;
    /// Name of the current printer, at first the default one; nothing when there is none. The one that writes PDF
    /// is never the default.
    virtual std::optional<std::string> DeviceName() const = 0;
    /// The default printer, never the one that writes PDF.
    virtual Druckervorgabe Vorgabe() const = 0;
    /// 1 portrait, 2 landscape, as the current printer stands: as the program last turned one, at first portrait.
    virtual int Orientation() const = 0;
    /// All installed printers, in the platform's order, and the one that writes PDF as the last.
    virtual std::vector<std::string> DeviceNames() const = 0;
    /// Makes that printer the current one, turned as the one before. False, and nothing changed, when there is none of
    /// that name (any more).
    virtual bool Wählen(std::string_view deviceName) = 0;
    /// Turns the current printer: 1 portrait, 2 landscape.
    virtual void OrientationSetzen(int lage) = 0;
    /// Prints one job on the current printer. A failure shows nothing and leaves no half job behind. Throws
    /// std::bad_alloc where the memory doesn't suffice.
    virtual Druckbefund Drucken(const Druckauftrag &auftrag) = 0;
};

} // namespace kw
