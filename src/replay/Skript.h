#pragma once

#include "replay/Woerter.h"

#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace kw {

struct Programm;

/// Runs the program from a script and prints what the script asks for. What a line does stands in the tables
/// of replay/Skriptbefehle.h; the commands work on what is public here.
class Wiedergabe {
  public:
    explicit Wiedergabe(std::ostream &aus_);
    ~Wiedergabe();
    Wiedergabe(const Wiedergabe &) = delete;
    Wiedergabe &operator=(const Wiedergabe &) = delete;

    /// 0; 1 when an expectation failed or an answer was left over; 2 for a line that can't be read.
    int Ausführen(std::istream &skript);
    /// Runs a single line. Throws `Skriptfehler` when it can't be read.
    void Zeile(const std::string &zeile);

    /// A fresh program, as the words after the first tell: `today=2026-03-12` and so on.
    void Starten(const Wörter &w);
    /// Ends the program as a kill would: nothing is written, nobody is asked.
    void Abstürzen();
    /// The program; started with the defaults if the script didn't.
    Programm &Läuft();
    /// The next line of the script, for a command of several lines; false at its end.
    bool NächsteZeile(std::string &zeile);
    /// Prints what differs at the current line; the run has failed.
    void Scheitern(const std::string &befund);

    std::ostream &aus;

  private:
    /// Ends a program that is running as the system's signal does: so does another start, and the script's end.
    void Beenden();
    /// An answer that nobody asked for fails the run.
    void AntwortenPrüfen();

    std::string ordner_; ///< holds the settings of programs that were given none; removed at the end
    std::unique_ptr<Programm> programm_;
    std::istream *skript_ = nullptr;
    int zeilennummer_ = 0;
    int starts_ = 0;
    bool gescheitert_ = false;
};

/// The name of every command of the language, in order.
std::vector<std::string> Befehlsnamen();

} // namespace kw
