#pragma once

#include "document/Einstellungen.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

/// The settings file of a program that runs. Another window may have the same one: every write reads the file anew and
/// changes only what this program has changed. A file that is there but couldn't be read at the start isn't written
/// in that whole run, since what it holds would be lost. A folder without permission loses the settings silently.
class Einstellungsablage {
  public:
    explicit Einstellungsablage(std::string datei) : datei_(std::move(datei)) {}

    const std::string &Datei() const { return datei_; }
    /// At the start.
    Einstellungen Lesen();
    /// What the start has made of them: what differs from it later is a change.
    void Ausgangslage(const Einstellungen &e);
    /// Writes what the user has changed since, if anything that is written at once; keys that the file doesn't have yet
    /// come with it, so that they stand in their order. A project without a folder waits for the end, and so does a
    /// file without one: where a program's own folder isn't there, its import files have another place.
    void Nachführen(const Einstellungen &e);
    /// Writes everything at the program's end, but what another window has changed and this one hasn't.
    void Abschließen(const Einstellungen &e);
    /// Writes one key at once, for the forms that don't wait.
    void Festhalten(std::string_view schlüssel, const std::string &wert);

  private:
    /// What a key held in the file when this program last read or wrote it, and what it was here.
    struct Bekannt {
        std::string Datei, Hier;
    };
    /// Whether a key's value, in a file as it is now, is to be written.
    using Frage = std::function<bool(const Einstellungsschlüssel &, const std::string &wert, const Profil &)>;
    void Eintragen(const Einstellungen &e, const Frage &fällig);
    bool Ändern(const std::function<void(Profil &)> &schreiben) const;
    void OrdnerAnlegen() const;

    std::string datei_;
    bool gesperrt_ = false;
    std::map<std::string_view, Bekannt> bekannt_;
    Chronik chronik_;                    ///< as it was here at the last write
    std::vector<std::string> verfolgte_; ///< what was looked at last of all that is written at once
};

} // namespace kw
