#pragma once

#include <optional>
#include <string>

namespace kw {

enum class Ursache;
struct Druckauftrag;

/// A part of the canvas's picture, in twips from its corner.
struct Bildausschnitt {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
};

/// Pictures of the page. But for those of the page as it is printed, they are the one that the canvas keeps, in the
/// resolution in which it is kept. No file and no
/// clipboard is touched unless the whole picture could be made. Files are answered by why they couldn't be written,
/// `Keine` on success; where the memory doesn't suffice std::bad_alloc is thrown.
class Bilder {
  public:
    virtual ~Bilder() = default;
    /// Writes the picture, or a part of it, as an uncompressed bitmap.
    virtual Ursache SavePicture(const std::string &datei, const std::optional<Bildausschnitt> &ausschnitt) = 0;
    /// Writes the picture as JPEG. `quality` is 0 to 100.
    virtual Ursache AlsJpeg(const std::string &datei, unsigned char quality) = 0;
    /// Writes a part of the picture as PNG.
    virtual Ursache AlsPng(const std::string &datei, const Bildausschnitt &ausschnitt) = 0;
    /// Writes the page as the job draws it, by the ending of the name, in letters of any case: as PNG of 300 dots an
    /// inch, as SVG, or as PDF.
    virtual Ursache SeiteAls(const std::string &datei, const Druckauftrag &seite) = 0;
    /// Replaces what is on the clipboard by that part of the picture.
    virtual void InZwischenablage(const Bildausschnitt &ausschnitt) = 0;
};

} // namespace kw
