#pragma once

#include "platform/Fensterlage.h"

#include <optional>
#include <string>
#include <vector>

namespace kw {

class Arbeitsbereich;
class Bedienelemente;
class Seitencursor;
class Uhr;
struct Ansicht;
struct Auflagen;
struct Dokument;
struct Importperson;
struct Legendenblatt;
struct Leinwandlage;

/// What a face shows of the main window, as it stands after each event. A face changes nothing of it: what the user
/// does goes to the operations of `frmMain`, in which this lives.
struct Anblick {
    const std::string &Titel;
    const bool &Geändert;                      ///< there are unsaved changes
    const std::optional<Fensterlage> &Fenster; ///< where the last window stood when it closed
    const Ansicht &ansicht;                    ///< the language, the size of the page
    const Bedienelemente &bedienung;           ///< menus, toolbar, palette, status row
    const Arbeitsbereich &bereich;             ///< where frame, page and scroll bars stand
    const Auflagen &auflagen;                  ///< the shapes over the page
    const Leinwandlage &lage;                  ///< the pointer's picture, and what is told of the selected person
    const std::vector<Importperson> &Importzeilen;
    const Uhr &uhr; ///< the pictures of symbols are drawn with it
    const Dokument &dokument;
    const Legendenblatt &legende;
    const Seitencursor &cursor; ///< where the keyboard is on the page
};

} // namespace kw
