#pragma once

#include <functional>
#include <string>

namespace kw {

class Benutzer;
class Drucker;
class Zeichenfläche;
struct Ansicht;
struct Druckauftrag;
struct Dokument;
struct Druckbefund;
struct Druckränder;
struct Zweisprachig;

/// Printing, and the frame of what the printer can't reach. Owned by the main window.
class Druckwerk {
  public:
    Druckwerk(Drucker &drucker, Benutzer &benutzer, Ansicht &ansicht, const Dokument &dokument)
        : drucker_(drucker), benutzer_(benutzer), ansicht_(ansicht), dokument_(dokument) {}

    /// Whether there is a default printer, whose data could be read.
    bool DruckerVorhanden = false;
    std::string DefaultPrinter; ///< its name, whose margins are meant; empty without one

    /// Asks for the default printer and its margins. False, and nothing changed, while the platform doesn't answer.
    bool Ermitteln();
    /// Shows or hides the margins' frame; without printer data it says why it can't. True when the canvas is to be
    /// drawn anew.
    bool RänderUmschalten();
    /// Tells the four margins in millimetres. In German in both languages. Meant.
    void DruckrandBericht();

    /// One print run of the document on the current printer: one job, named as the project; `zeichnen` draws it. A
    /// failure is told in a box. False when no further copy is wanted: the user has given up, or nothing came out.
    bool GenogrammDrucken(std::function<void(Zeichenfläche &)> zeichnen, const std::string &projektdatei);
    /// A text of lines on the current printer, a job a sheet, upright. Failures as above.
    void TextDrucken(const std::string &titel, const std::string &text);
    /// Makes the printer that writes PDF the current one, which it stays; says so when there is none. False then.
    bool PdfDruckerWählen();

  private:
    void Druck_Raender(const Druckränder &ränder);
    bool Drucken(const Druckauftrag &auftrag, int lage, const std::string &projektdatei);
    void FehlerMelden(const Druckbefund &befund, const std::string &ziel, const Zweisprachig &grund);
    void Warnen(const Zweisprachig &titel, const Zweisprachig &text);

    Drucker &drucker_;
    Benutzer &benutzer_;
    Ansicht &ansicht_;
    const Dokument &dokument_;
};

} // namespace kw
