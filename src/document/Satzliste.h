#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kw {

/// An ordered list of text records: the form of every store, selection list and scratch list. A
/// position counts from 0 and changes when an earlier record is removed, so it is no identity.
/// Positions must be valid; reading with `Satz` behind the end throws std::out_of_range.
class Satzliste {
  public:
    Satzliste() = default;
    Satzliste(std::initializer_list<std::string> sätze) : sätze_(sätze) {}

    int Anzahl() const { return static_cast<int>(sätze_.size()); }
    bool Leer() const { return sätze_.empty(); }
    const std::string &Satz(int i) const { return sätze_.at(static_cast<size_t>(i)); }
    const std::string &Letzter() const { return sätze_.back(); }
    void Ersetzen(int i, std::string satz) { sätze_.at(static_cast<size_t>(i)) = std::move(satz); }
    void Anhängen(std::string satz);
    void Entfernen(int i) { sätze_.erase(sätze_.begin() + i); }
    template <typename Passt> void EntfernenWenn(Passt passt) { std::erase_if(sätze_, passt); }
    void Leeren() { sätze_.clear(); }

    auto begin() const { return sätze_.begin(); }
    auto end() const { return sätze_.end(); }
    bool operator==(const Satzliste &) const = default;

  private:
    std::vector<std::string> sätze_;
};

} // namespace kw
