#pragma once

#include <QTransform>

#include <string>
#include <string_view>

class QPaintDevice;

// The page on paper and in files.
namespace kw {

class Einzelbild;
struct Druckauftrag;
enum class Ursache;

constexpr double CmJeZoll = 2.54;
constexpr int KleinsteDpi = 10;
constexpr int GrößteDpi = 2400;
constexpr int ÜblicheDpi = 300; ///< where nobody says otherwise

/// Whether `ziel` ends in .pdf, .svg, .png, .jpg, .jpeg or .bmp, in letters of any case.
bool IstAusgabeformat(std::string_view ziel);

/// Writes the page of `bild` as a print run draws it: nothing that is only for the screen. PDF and SVG are vectors,
/// pictures have `dpi` dots an inch. Empty on success, else one plain line; then nothing was written.
/// Needs a QGuiApplication, no display.
std::string Exportieren(Einzelbild &bild, const std::string &ziel, int dpi, const std::string &titel);

/// The page of `bild`, which must outlive it, as a print run draws it: set up for its document, its text boxes
/// measured. Needs a QGuiApplication. Throws std::bad_alloc.
Druckauftrag GanzeSeite(Einzelbild &bild, const std::string &titel);

/// Draws a job on `gerät`, `geräteJeCm` of whose units are a centimetre, as `aufGerät` puts it there. False when the
/// device can't be painted or reports a failure.
bool SeiteDrucken(const Druckauftrag &seite, QPaintDevice &gerät, double geräteJeCm, const QTransform &aufGerät = {});

/// Writes a job by the ending of `ziel`, pictures with `ÜblicheDpi`; an ending that isn't one of the above fails.
/// `Keine` on success, else why nothing was written. Throws std::bad_alloc.
Ursache SeiteSchreiben(const Druckauftrag &seite, const std::string &ziel);

/// Writes a job as a PDF of the page's size. `Keine` on success, else why nothing was written. Throws std::bad_alloc.
Ursache PdfSchreiben(const Druckauftrag &seite, const std::string &ziel);

} // namespace kw
