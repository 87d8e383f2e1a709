#pragma once

#include "layout/Familienlage.h"
#include "layout/Geruest.h"

#include <cstdint>
#include <vector>

// The lines of a drawing, as the page will show them. Whole numbers, thousandths of a centimetre, so that what touches
// and what doesn't is the same on every machine.
namespace kw {

struct Punkt {
    std::int64_t X = 0, Y = 0;
};

struct Strecke {
    enum class Art { Balken, Bein, Kindlinie };
    Punkt A, B;
    int Familie = 0;
    int Person = -1; ///< whose leg or child line it is
    Art Was = Art::Balken;
};

/// Whether two lines cross or lie on each other; meeting at their ends is neither.
bool Kreuzen(const Strecke &a, const Strecke &b);

/// Whether a line runs through the square of that half width round `mitte`.
bool Durchquert(const Strecke &s, const Punkt &mitte, std::int64_t halb);

/// Everybody's place and every bar's height, in thousandths.
struct Lageplan {
    std::vector<Punkt> Personen;
    std::vector<std::int64_t> Balken;
};

/// The lines of family `f`, whose bar hangs at `höhe`; `halb` is half a symbol.
void Linien(const Gerüst &gerüst, const std::vector<Punkt> &personen, int f, std::int64_t höhe, std::int64_t halb,
            std::vector<Strecke> &linien);

/// Pairs of lines of different families that cross.
struct Kreuzungszahl {
    int Alle = 0;
    int AmBein = 0; ///< of these a partner's leg that passes the end of another bar of theirs, which nobody misreads
    int Störende() const { return Alle - AmBein; }
};
/// Sorts the lines.
Kreuzungszahl KreuzungenZählen(std::vector<Strecke> &linien);

/// How good a drawing is, counted on its lines.
Lagebefund Befinden(const Gerüst &gerüst, const Lageplan &plan, const Abstände &abstände);

constexpr std::int64_t Tausendstel(double cm) { return static_cast<std::int64_t>(cm * 1000 + (cm < 0 ? -0.5 : 0.5)); }

} // namespace kw
