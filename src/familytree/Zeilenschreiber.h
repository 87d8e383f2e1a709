#pragma once

#include <string>
#include <string_view>

namespace kw {

/// The versions of the format that are written.
enum class Stammbaumfassung {
    Gedcom551, ///< what programs of the last thirty years read
    Gedcom70,
};
/// As files and users call it: "5.5.1", "7.0".
std::string_view Fassungsname(Stammbaumfassung fassung);

/// Writes a family tree's lines, in UTF-8 behind its byte order mark. Values can be any text: what the format can't
/// hold (characters that steer, bytes that are no UTF-8) becomes a blank or U+FFFD, line breaks become lines of their
/// own, and what is too long for a line of the older version goes on in the next, no character cut.
class Zeilenschreiber {
  public:
    explicit Zeilenschreiber(Stammbaumfassung fassung);

    /// Begins a record; `kennung` may be empty.
    void Satz(std::string_view kennung, std::string_view marke);
    /// A line with a text. What looks like a pointer in it is none.
    void Zeile(int ebene, std::string_view marke, std::string_view wert = {});
    /// A line that names a record.
    void Zeiger(int ebene, std::string_view marke, std::string_view kennung);

    Stammbaumfassung Fassung() const { return fassung_; }
    bool IstAlt() const { return fassung_ == Stammbaumfassung::Gedcom551; }
    const std::string &Text() const { return text_; }

  private:
    void Schreiben(std::string_view vorn, std::string_view wert);
    void Teile(int ebene, std::string_view marke, std::string_view wert);

    Stammbaumfassung fassung_;
    std::string text_;
};

} // namespace kw
