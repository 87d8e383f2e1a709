#pragma once

#include <string>

namespace kw {

class Anzeige;
class Arbeitsbereich;
class Bedienelemente;
class Darstellung;
class Bildexport;
class Datenimport;
class Dialogdienste;
class Drucker;
class Druckwerk;
class Fensterdienste;
class Projekt;
class Uhr;
class UndoRing;
class Zeichenfläche;
class frmMain;
struct Ansicht;
struct Auflagen;
struct Auswahl;
struct Auswahlliste;
struct Befehlsumgebung;
struct Dialogumgebung;
struct Dokument;
struct Einstellungen;
struct Leinwandlage;
struct Legendenblatt;
struct Startangaben;
struct Werkbank;
struct Zwischenablage;

/// The parts of a main window, laid open for those who look into the program from outside: scripts, the random user,
/// benchmarks, tests. No part of the program includes this (tests/rooms.sh); a face has `frmMain`. `haupt` must
/// outlive it.
struct Einblick {
    explicit Einblick(frmMain &haupt);

    /// One print run on a surface whose scale is set.
    void AufPapier(Zeichenfläche &papier) const;
    /// What a form and what a command work on.
    Dialogumgebung FürFormulare() const;
    Befehlsumgebung FürBefehle() const;

    const Startangaben &start;
    Zeichenfläche &picVorschau;
    Dokument &dokument;
    Ansicht &ansicht;
    Auswahl &auswahl;
    Leinwandlage &lage;
    Auflagen &auflagen;
    Zwischenablage &ablage;
    Legendenblatt &legende;
    UndoRing &ring;
    Arbeitsbereich &bereich;
    Bedienelemente &bedienung;
    Einstellungen &einstellungen;
    Darstellung &darstellung;
    Anzeige &anzeige;
    Druckwerk &druck;
    Bildexport &bildexport;
    Datenimport &import;
    Projekt &projekt;
    Werkbank &werkbank;
    std::string &Kommandozeile;
    Auswahlliste &cboRaster;
    Fensterdienste &fenster;
    Dialogdienste &dienste;
    Drucker &drucker;
    const Uhr &uhr;
};

} // namespace kw
