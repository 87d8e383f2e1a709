#pragma once

#include "editing/Geometrie.h"
#include "layout/Familienlage.h"

#include <map>
#include <optional>
#include <vector>

// What follows when persons get other places.
namespace kw {

class PersonSatz;
struct Dokument;
struct Werkbank;

/// Symbols stay as they are: larger than any.
constexpr double JedeGröße = 100;

/// New places, cm, by position in the store.
struct Umzug {
    std::map<int, Ort> Personen;  ///< centres
    std::map<int, double> Balken; ///< heights of partnership lines
    double Größe = JedeGröße;     ///< symbols of those persons are at most that large
    double Raster = 0.3;          ///< on which the new places lie
};

/// What a person takes of the page with its names, when its centre is at `ort`, cm.
Umgebung Personenkasten(const PersonSatz &person, Ort ort, double größe, double namensbreite);
/// The same in boxes, for what may stand under a neighbour's name: the symbol, and the names below it, if it shows any.
std::vector<Umgebung> Personenkästen(const PersonSatz &person, Ort ort, double größe, double namensbreite);
/// The person nearest to a place on the page, as a position in the store; of several the first.
std::optional<int> NächstePerson(const Dokument &dokument, Ort ort);

/// Writes the records: the persons with all their lines, bars at their heights. A text, an arrow, a circle line goes
/// along with the person nearest to it, if that moves; a text lands on nobody, and one of the page stays. A circle line
/// holds whom it held, and crosses no symbol anew if it can: where going along doesn't do, it is drawn anew. False, and
/// nothing changed, when one can't.
bool Umziehen(Werkbank &w, const Umzug &umzug);

} // namespace kw
