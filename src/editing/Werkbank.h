#pragma once

#include "document/Dokument.h"
#include "editing/Ablage.h"
#include "editing/Auflagen.h"
#include "editing/Fensterdienste.h"
#include "editing/Leinwandlage.h"
#include "rendering/Ansicht.h"
#include "rendering/Auswahl.h"
#include "rendering/Legende.h"

namespace kw {

class Benutzer;
class Zeichenfläche;

/// What a gesture works on: an event or a command can change any of it. Routines that are no whole gesture take what
/// they change instead.
struct Werkbank {
    Dokument &dokument;
    Ansicht &ansicht;
    Auswahl &auswahl;
    Leinwandlage &lage;
    Auflagen &auflagen;
    Zwischenablage &ablage;
    Legendenblatt &legende;
    Zeichenfläche &picVorschau;
    Benutzer &benutzer;
    Fensterdienste &fenster;
};

} // namespace kw
