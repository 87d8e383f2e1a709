#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kw {

class Arbeitsbereich;
class Benutzer;
class Bilder;
class Zeichenfläche;
struct Ansicht;
struct Bildausschnitt;
struct Zweisprachig;
enum class Ursache;

/// The page, or a part of it, as a picture: the very pixels of the canvas, or the page as it is printed. A picture that
/// doesn't come out is told in a box. Owned by the main window.
class Bildexport {
  public:
    /// What it has the window do.
    struct Rückrufe {
        std::function<void()>
            Abwählen; ///< the marks of a selection stand in the canvas's picture and belong in no other
        std::function<void(Zeichenfläche &)> AufPapier; ///< one print run
    };
    Bildexport(Benutzer &benutzer, Bilder &bilder, Arbeitsbereich &bereich, const Ansicht &ansicht, Rückrufe rückrufe)
        : benutzer_(benutzer), bilder_(bilder), bereich_(bereich), ansicht_(ansicht), rückrufe_(std::move(rückrufe)) {}

    /// Asks for a file and writes the page. The ending of its name says as what: ".png" and ".svg" as the page is
    /// printed, and as an export from the command line writes it; ".bmp", in small letters, as it looks at the greatest
    /// zoom; any other a JPEG of that, whatever it says. Meant. The zoom is as it was afterwards, whatever fails.
    void SeiteExportieren(const std::string &projektdatei);
    /// Asks for a file and writes a region of the page, in the canvas's centimetres, as it looks now: a PNG under a
    /// name that ends so, otherwise a bitmap, whatever the name says. Meant.
    void AuswahlAlsBildSpeichern(const Bildausschnitt &cm, const std::string &projektdatei);
    /// Puts the region on the clipboard and says so.
    void AusschnittKopieren(const Bildausschnitt &cm);

  private:
    void SeiteFotografieren(const std::string &datei);
    Ursache SeiteDrucken(const std::string &datei, const std::string &projektdatei);
    void Melden(const std::string &datei, const std::function<Ursache()> &schreiben);
    Bildausschnitt InTwips(const Bildausschnitt &cm) const;
    std::optional<std::string> DateiWählen(const Zweisprachig &titel, std::string_view weitere,
                                           const std::string &projektdatei);

    Benutzer &benutzer_;
    Bilder &bilder_;
    Arbeitsbereich &bereich_;
    const Ansicht &ansicht_;
    Rückrufe rückrufe_;
};

} // namespace kw
