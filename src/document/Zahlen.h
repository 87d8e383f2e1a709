#pragma once

#include <string>
#include <string_view>

// Numbers as records write and read them. Everything is computed in double and stored with the
// precision of a single, so that 8.4 stays "8.4" however it was summed up.
namespace kw {

/// Reads the longest decimal number at the start of `text`, "." being the decimal mark. Leading blanks
/// are skipped; the first other character ends it (no exponent, no ","). 0 when there is no number.
double ZahlLesen(std::string_view text);

/// Writes `wert` with at most seven significant digits, no exponent, trailing zeros cut, never "-0".
/// What is no number (infinite, not a number) is written as "0".
std::string ZahlSchreiben(double wert);

/// A length or a quotient of lengths without the noise in its last bits: to six decimals. 1.2 / 0.4 is
/// 2.9999999999999996 in binary and 3 here. Whatever is counted, compared or cut off goes through this first, or its
/// outcome depends on where on the page it is; what rounds and snaps does so by itself.
double OhneRauschen(double wert);

/// `wert` rounded to `stellen` decimal places (0 to 9), a tie going to the even neighbour. What is a tie in decimals
/// is one.
double Gerundet(double wert, int stellen);

/// The multiple of `raster` that is nearest to `wert`, a tie going to the even multiple; `wert` itself without
/// a raster. What is stored is rounded to one decimal afterwards.
double Gerastert(double wert, double raster);

/// The multiple of `raster` nearest to `wert` that lies between `von` and `bis`; where none does, the nearest of all.
/// Without a raster `wert` itself, held between them.
double RasterZwischen(double wert, double raster, double von, double bis);

/// Whether `a` is below `b` by more than the noise of computing with decimals: what lies exactly on an edge,
/// as people write it, isn't inside.
inline bool Kleiner(double a, double b) { return b - a > 1e-6; }

/// `wert` rounded half to even and held within the 16 bits that a whole number of a record has.
int Ganzzahl16(double wert);

/// `nummer` in "000" format: at least three digits, as the numbers of persons and lines are written.
std::string Dreistellig(int nummer);

} // namespace kw
