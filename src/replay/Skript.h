#pragma once

#include "app/frmMain.h"
#include "document/basAltersberechnung.h"
#include "replay/Aufzeichnung.h"
#include "replay/Namen.h"
#include "replay/Plattform.h"

#include <istream>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace kw {

/// A line of a script that can't be read.
struct Skriptfehler : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Runs the program from a script and prints what the script asks for. The commands stand in a table, one
/// short routine each.
class Wiedergabe {
  public:
    explicit Wiedergabe(std::ostream &aus);
    ~Wiedergabe();
    Wiedergabe(const Wiedergabe &) = delete;
    Wiedergabe &operator=(const Wiedergabe &) = delete;

    /// 0; 1 when an expectation failed or an answer was left over; 2 for a line that can't be read.
    int Ausführen(std::istream &skript);

  private:
    using Wörter = std::vector<std::string>;
    struct Programm; ///< one run of the program with its platform

    void AntwortenPrüfen();
    void Zeile(const std::string &roh, std::istream &skript);
    void Starten(const Wörter &w);
    Programm &Läuft(); ///< the program; started with the defaults if the script didn't

    void Ablegen(const Wörter &w);
    void Setzen(const Wörter &w);
    void Erwarten(const std::string &zeile);
    void Drucken(const Wörter &w);
    void Zeichnen(const Wörter &w);
    void Warten(int ms);
    void ZeitgeberAuslösen(const std::string &name);
    void Beantworten(const Wörter &w);
    void Schließen();
    void MenüWählen(const std::string &name);
    void AlterBerechnen(const std::string &text);
    void Profilaufrufe(const std::string &datei, std::istream &skript);
    void GrößeÄndern(const Wörter &w);
    void Wählen(const Wörter &w);

    std::string Wert(const std::string &name);
    std::string Zustand(const std::string &frage, const std::string &name);

    std::ostream &aus_;
    std::string ordner_; ///< holds the settings of programs that were given none; removed at the end
    std::unique_ptr<Programm> programm_;
    std::unique_ptr<Altersberechnung> alter_;
    int zeilennummer_ = 0;
    int starts_ = 0;
    bool gescheitert_ = false;
};

} // namespace kw
