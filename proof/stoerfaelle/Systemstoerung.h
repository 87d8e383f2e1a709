#pragma once

#include <map>
#include <string>

/// What the system's calls of this process meet with, its libraries' included.
struct Störung {
    std::string Ruf;    ///< the call, by its name in the library
    int Ab = 0;         ///< the first that is hit, counted from `StörungBeginnen` on
    int Fehler = 0;     ///< its error; 0 for writes and reads that come out short
    bool Immer = false; ///< all that follow, too
    long Platz = -1;    ///< bytes that can be written before the disk is full; below 0 for no limit
};

/// Counts anew. An empty one disturbs nothing.
void StörungBeginnen(const Störung &störung);
/// Calls since, by name.
const std::map<std::string, int> &Gezählt();
void StörungBeenden();
