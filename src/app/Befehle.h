#pragma once

#include <string_view>

namespace kw {

class Anzeige;
class Arbeitsbereich;
class Bedienelemente;
class Bildexport;
class Darstellung;
class Datenimport;
class Dialogdienste;
class Druckwerk;
class Projekt;
class Stammbaumimport;
class UndoRing;
struct Startangaben;
struct Werkbank;

/// All that the commands work on: a row needs one or two of these.
struct Befehlsumgebung {
    Werkbank &werkbank;
    Projekt &projekt;
    Darstellung &darstellung;
    Anzeige &anzeige;
    Arbeitsbereich &bereich;
    Datenimport &import;
    Stammbaumimport &stammbaum;
    Druckwerk &druck;
    Bildexport &bildexport;
    UndoRing &ring;
    Dialogdienste &dienste;
    const Bedienelemente &bedienung;
    const Startangaben &start;
};

/// What a row of the commands' table does.
struct Befehl {
    void (*Ausführen)(Befehlsumgebung &, int nummer) = nullptr;
    int Nummer = 0; ///< of a row that has one in its name: 7 of "cmdSymb(7)"

    explicit operator bool() const { return Ausführen != nullptr; }
};

/// The command under that name; an empty one when there is none.
Befehl BefehlFinden(std::string_view name);

} // namespace kw
