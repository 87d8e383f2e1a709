#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace kw {

/// The four projects used last, as full paths, position 1 the newest. An empty path is a free position.
/// Owned by the main window, which saves it with the settings and shows it in the file menu.
class Chronik {
  public:
    static constexpr int Plätze = 4;

    /// The path at `platz`, 1 to 4; any other throws std::out_of_range.
    const std::string &operator[](int platz) const { return pfade_.at(static_cast<size_t>(platz - 1)); }
    void Setzen(int platz, std::string pfad) { pfade_.at(static_cast<size_t>(platz - 1)) = std::move(pfad); }
    bool Enthält(std::string_view pfad) const;

    /// At the start of a load: a project that is not in the list yet comes to position 1 and the oldest
    /// falls out. One that is there keeps its place; a path of blanks is none.
    void Aktualisieren(std::string_view projektdatei);
    /// After a save or an opening by the menu: the same, whatever the path is.
    void Eintragen(std::string_view projektdatei);
    /// Brings a path that is in the list to position 1; those above it move one down.
    void Vorziehen(std::string_view pfad);
    /// Does here what has brought projects to the front of `jetzt` since it was `vorher`: so the list of another window
    /// keeps what that one has added.
    void Nachvollziehen(const Chronik &vorher, const Chronik &jetzt);
    bool operator==(const Chronik &) const = default;

  private:
    std::array<std::string, Plätze> pfade_;
};

} // namespace kw
