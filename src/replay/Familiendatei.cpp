#include "replay/Familiendatei.h"

#include "replay/Woerter.h"

#include <map>

namespace kw {

namespace {

class Leser {
  public:
    Familiendatei Lesen(const std::string &text) {
        // Families may come before their members.
        ZeilenDurchgehen(text, "P", &Leser::Person);
        ZeilenDurchgehen(text, "F", &Leser::Familie);
        return std::move(datei_);
    }

  private:
    void ZeilenDurchgehen(const std::string &text, const std::string &art, void (Leser::*lesen)(const Wörter &)) {
        zeile_ = 0;
        for (std::string zeile : Geteilt(text, '\n')) {
            zeile_++;
            if (zeile.ends_with('\r')) zeile.pop_back();
            if (zeile.empty()) continue;
            const Wörter felder = Geteilt(zeile, '\t');
            if (felder[0] == art) (this->*lesen)(felder);
            else if (felder[0] != "P" && felder[0] != "F") Fehler("neither P nor F: " + felder[0]);
        }
    }

    void Person(const Wörter &felder) {
        const std::string &id = Feld(felder, 1);
        if (!nummern_.emplace(id, static_cast<int>(datei_.Personen.size())).second) Fehler("twice: " + id);
        datei_.Personen.push_back(id);
        Familienperson person;
        if (Feld(felder, 2) == "M") person.Art = Geschlecht::Mann;
        if (Feld(felder, 2) == "F") person.Art = Geschlecht::Frau;
        datei_.Graph.Personen.push_back(person);
    }

    void Familie(const Wörter &felder) {
        datei_.Familien.push_back(Feld(felder, 1));
        kw::Familie familie;
        familie.Partner = Personen(felder, 2);
        familie.Kinder = Personen(felder, 3);
        datei_.Graph.Familien.push_back(std::move(familie));
    }

    std::vector<int> Personen(const Wörter &felder, size_t feld) {
        std::vector<int> liste;
        if (feld >= felder.size()) return liste;
        for (const std::string &id : Geteilt(felder[feld], ',')) {
            if (id.empty()) continue;
            const auto nummer = nummern_.find(id);
            if (nummer == nummern_.end()) Fehler("no such person: " + id);
            liste.push_back(nummer->second);
        }
        return liste;
    }

    const std::string &Feld(const Wörter &felder, size_t i) {
        if (i >= felder.size() || felder[i].empty()) Fehler("a field is missing");
        return felder[i];
    }

    [[noreturn]] void Fehler(const std::string &was) const {
        throw Skriptfehler("family, line " + std::to_string(zeile_) + ": " + was);
    }

    Familiendatei datei_;
    std::map<std::string, int> nummern_;
    int zeile_ = 0;
};

} // namespace

Familiendatei FamilieLesen(const std::string &text) { return Leser().Lesen(text); }

} // namespace kw
