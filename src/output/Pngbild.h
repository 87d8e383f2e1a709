#pragma once

#include <cstdint>
#include <span>
#include <string>

// A picture as a PNG file, fast: what the toolkit's own encoder takes is most of an export's time.
namespace kw {

/// The file of an opaque picture of `breite` pixels a row, 0xRRGGBB each (the upper eight bits don't count), its rows
/// one behind the other from the top, `breite` a divisor of their number. `jeMeter` is the resolution that the file
/// tells, in pixels a metre. The pixels are used up: the rows of the file are made in their memory. Throws
/// std::bad_alloc, also for a picture that is larger than the format's counters.
std::string PngAus(std::span<std::uint32_t> pixel, std::uint32_t breite, std::uint32_t jeMeter);

} // namespace kw
