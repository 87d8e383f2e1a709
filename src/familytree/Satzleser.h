#pragma once

#include "familytree/Warnung.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

/// A line of a record with all that continues it. What is in a record is told by levels: a line lies within the nearest
/// one above it whose level is lower, however much lower.
struct Knoten {
    std::string_view Marke;   ///< the tag, in capital letters
    std::string_view Kennung; ///< without "@"
    std::string_view Wert;    ///< with line breaks where CONT, or a line that is none, continues it
    std::uint32_t Zeile = 0;  ///< of the file, from 1
    std::uint32_t Eltern = 0; ///< the line that it lies in, as a place in the record; its own for the first
    std::uint16_t Ebene = 0;
    std::uint32_t Langwert = 0; ///< number of its value among the continued ones of the record, from 1
};

/// Where a record stands in the text.
struct Satzort {
    std::size_t Anfang = 0, Ende = 0; ///< bytes
    std::uint32_t Zeile = 0;          ///< of its first line
};

/// A record: its lines in the file's order, in one array. The texts live as long as the file's text and this.
class Satz {
  public:
    Satzort Ort;
    std::vector<Knoten> Zeilen;

    const Knoten &Wurzel() const { return Zeilen.front(); }
    bool Leer() const { return Zeilen.empty(); }
    std::size_t Nummer(const Knoten &knoten) const { return static_cast<std::size_t>(&knoten - Zeilen.data()); }

    /// Calls `tun` for each line directly within `knoten`, in order.
    template <class F> void FürKinder(const Knoten &knoten, F tun) const {
        const auto nr = Nummer(knoten);
        for (auto i = nr + 1; i < Zeilen.size() && Zeilen[i].Eltern >= nr; ++i)
            if (Zeilen[i].Eltern == nr) tun(Zeilen[i]);
    }
    /// The first line of that tag directly within `knoten`; nullptr when there is none.
    const Knoten *Erstes(const Knoten &knoten, std::string_view marke) const;
    /// Its value without the blanks around it; empty when there is none.
    std::string_view Text(const Knoten &knoten, std::string_view marke) const;

    /// Continues the value of a line.
    void Verlängern(Knoten &knoten, std::string_view trenner, std::string_view text);
    void Leeren();

  private:
    std::deque<std::string> lange_; ///< values that stand in no one place of the file
};

/// Takes a text apart into records, one after the other, in memory of one record. Blank lines count for nothing; a line
/// that is none of the format's belongs to the value of the line before it.
class Satzleser {
  public:
    /// Tags are put into capitals within `text`, which must live as long as what is read.
    explicit Satzleser(std::string &text) : text_(text.data()), ende_(text.size()) {}
    /// A single record of a text that was read before.
    Satzleser(std::string &text, const Satzort &ort)
        : text_(text.data()), stelle_(ort.Anfang), ende_(ort.Ende), zeile_(ort.Zeile - 1) {}

    /// From here on only an "@" that begins a value is doubled, and comes as one. Without it values come as they stand.
    void NurErstesVerdoppelt(bool so) { nurErstesVerdoppelt_ = so; }

    /// The next record; false when there is none. What it finds wrong goes to `warnungen`.
    bool Nächster(Satz &satz, Warnungen &warnungen);

  private:
    struct Zeile {
        std::uint16_t Ebene = 0;
        std::string_view Kennung, Marke, Wert;
    };
    std::string_view NächsteZeile();
    bool Gelesen(std::string_view roh, Zeile &zeile) const;
    void Einordnen(Satz &satz, const Zeile &zeile, Warnungen &warnungen);
    void Fortsetzen(Satz &satz, const Zeile &zeile);
    bool Gehört(const Satz &satz, int ebene) const;

    char *text_;
    std::size_t stelle_ = 0;
    std::size_t ende_;
    std::size_t zeilenanfang_ = 0;
    std::uint32_t zeile_ = 0;
    bool nurErstesVerdoppelt_ = false;
    std::vector<std::uint32_t> stapel_; ///< the lines that what comes may lie in, their levels rising
};

} // namespace kw
