#pragma once

namespace kw {

/// Lays out families of several sizes and writes a row of a table for each: persons, milliseconds of the processor on
/// average and at most, crossings, hundredths of all pairs of siblings in the wrong order, couples apart, cm of lines;
/// 20 families a size. 0 when the file is written.
int AuslegungenSchreiben(const char *datei);

} // namespace kw
