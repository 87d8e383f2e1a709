#pragma once

#include <cstdint>
#include <vector>

namespace kw {

/// A choice of the cheapest set: each node costs something when it is in, and some pairs when only the first one is.
/// (A smallest cut, found by flows along shortest paths.)
class Schnitt {
  public:
    static constexpr std::int64_t Verboten = std::int64_t{1} << 50;

    explicit Schnitt(int knoten);
    /// Knoten in the set costs `kosten` more; less than 0 is a gain.
    void Knoten(int knoten, std::int64_t kosten) { eigen_[static_cast<std::size_t>(knoten)] += kosten; }
    /// `a` in the set without `b` costs `nurA`, and the other way round.
    void Paar(int a, int b, std::int64_t nurA, std::int64_t nurB = 0);
    /// Which nodes are in the cheapest set, of several the smallest; empty when nothing costs less than no set at all.
    std::vector<char> Menge();

  private:
    struct Kante {
        int Nach, Nächste;
        std::int64_t Rest;
    };
    void Anhängen(int a, int b, std::int64_t hin, std::int64_t zurück = 0);
    void Vorweg();
    void Entlang(int anfang, const std::vector<int> &zwang, std::vector<char> &gesehen);
    bool Schichten();
    void Füllen();
    int Senden();
    void Fließen(int kante, std::int64_t fluss);

    int quelle_, senke_;
    std::vector<Kante> kanten_;
    std::vector<int> erste_, aktuell_, schicht_, reihe_, weg_;
    std::vector<std::int64_t> eigen_;
    std::vector<int> eigenkante_; ///< from the source or to the sink, by node
    std::int64_t gewinn_ = 0;     ///< that no flow has used up
};

} // namespace kw
