#pragma once

#include <string>
#include <vector>

namespace kw {

/// A program that is started again and again, and what it took.
struct Prozess {
    std::string Was;
    std::vector<std::string> Aufruf; ///< the program's path or name, its arguments
    std::vector<double> Zeiten = {}; ///< milliseconds of wall clock, a start each
    long Spitze = 0;                 ///< KiB of memory at most
    bool Gescheitert = false;        ///< it ended with something else than 0, or never began

    /// Milliseconds; NaN when there is none.
    double Median() const;
};

/// Starts each in turn, `runden` times after a round that doesn't count, so that a busy moment hits all alike. What
/// they print goes nowhere.
void Messen(std::vector<Prozess> &prozesse, int runden);

/// Whether a program of that name can be started.
bool Vorhanden(const std::string &programm);

} // namespace kw
