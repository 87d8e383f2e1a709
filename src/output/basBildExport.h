#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace kw {

class Arbeitsbereich;
class Benutzer;
class Bilder;
struct Ansicht;
struct Bildausschnitt;
struct Zweisprachig;
enum class Ursache;

/// The page, or a part of it, as a picture: the very pixels of the canvas. A picture that doesn't come out is told in a
/// box. Owned by the main window.
class Bildexport {
  public:
    /// `abwählen` ends the selection, whose marks stand in the canvas's picture and belong in no other.
    Bildexport(Benutzer &benutzer, Bilder &bilder, Arbeitsbereich &bereich, const Ansicht &ansicht,
               std::function<void()> abwählen)
        : benutzer_(benutzer), bilder_(bilder), bereich_(bereich), ansicht_(ansicht), abwählen_(std::move(abwählen)) {}

    /// Asks for a file and writes the page as it looks at the greatest zoom. A name that ends in ".bmp", in small
    /// letters, gives a bitmap, any other a JPEG whatever it says. Meant. The zoom is as it was afterwards, whatever
    /// fails.
    void SeiteExportieren(const std::string &projektdatei);
    /// Asks for a file and writes a region of the page, in the canvas's centimetres, as it looks now: always a
    /// bitmap, whatever the name says. Meant.
    void AuswahlAlsBildSpeichern(const Bildausschnitt &cm, const std::string &projektdatei);
    /// Puts the region on the clipboard and says so.
    void AusschnittKopieren(const Bildausschnitt &cm);

  private:
    Ursache SeiteSchreiben(const std::string &datei);
    Bildausschnitt InTwips(const Bildausschnitt &cm) const;
    std::optional<std::string> DateiWählen(const Zweisprachig &titel, const std::string &projektdatei);

    Benutzer &benutzer_;
    Bilder &bilder_;
    Arbeitsbereich &bereich_;
    const Ansicht &ansicht_;
    std::function<void()> abwählen_;
};

} // namespace kw
