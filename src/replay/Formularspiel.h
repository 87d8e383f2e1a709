#pragma once

#include "dialogs/Formular.h"

#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace kw {

class Wiedergabe;

/// What a script says about the next form of a name.
struct Formularskript {
    std::string Name;
    std::vector<std::string> Zeilen;
};

/// Plays a user in front of one open form: runs the lines of its script, lets its timers run.
class Formularspiel : public Formularwirt {
  public:
    Formularspiel(Wiedergabe &lauf, Formular &form) : lauf_(lauf), form_(form) {}

    /// Loads the form, runs the lines, closes what is still open by its close box, unloads it.
    void Spielen(const std::vector<std::string> &zeilen);

    void ZeitgeberStellen(std::string_view name, int ms) override;
    void FokusGeben(std::string_view steuerelement) override;

  private:
    void Zeile(const std::string &zeile);
    void Warten(int ms);
    bool Erreichbar(const std::string &name);

    Wiedergabe &lauf_;
    Formular &form_;
    std::string fokus_;
    int jetzt_ = 0; ///< ms since the form came up
    std::vector<std::pair<std::string, int>> zeitgeber_;
};

/// The value of "NAME", "NAME.visible", "NAME.enabled", "NAME.index", "NAME.caption" of a form's control, or of
/// "caption", its title. An unknown name is a script error.
std::string Formularwert(const Formular &form, const std::string &frage);

/// All of a form's values under "FORM.NAME...", for looking at them when it has closed.
std::map<std::string, std::string> Formularwerte(const Formular &form);

} // namespace kw
