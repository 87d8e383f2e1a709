#pragma once

#include <cstdint>
#include <vector>

namespace kw {

/// What a difference of two unknowns costs, in steps of the grid; all are convex.
enum class Kostenart {
    Über,    ///< what it is over its rest
    Betrag,  ///< how far it is from its rest
    Quadrat, ///< that, squared
    Schräg,  ///< what a line that is upright at rest or below gets longer by leaning: of height `Höhe`
};

/// Integers under bounds on their differences, such that the sum of what the differences cost is the least there is.
/// Each step lifts or lowers by a power of two all unknowns for which together it pays most, which is a smallest cut
/// of a network; where no set is left that pays, the sum is the least, since each cost is convex.
class Differenzen {
  public:
    explicit Differenzen(int anzahl);

    /// x[b] - x[a] >= abstand
    void Mindestens(int a, int b, int abstand);
    /// `gewicht` times what x[b] - x[a] - ruhe costs.
    void Kosten(Kostenart art, int a, int b, int ruhe, std::int64_t gewicht, int höhe = 0);

    /// The least values that keep the bounds, all >= 0 and none below where it is in `x` already; false when no values
    /// do.
    bool Kleinste(std::vector<int> &x) const;
    /// Betters `x`, which keeps the bounds, as far as it goes; the first steps are at most `schritt`, the last ones
    /// at least `letzter`: 1 finds the least sum.
    void Lösen(std::vector<int> &x, int schritt, int letzter = 1) const;
    std::int64_t Summe(const std::vector<int> &x) const;

  private:
    struct Schranke {
        int A, B, Abstand;
    };
    struct Kostenglied {
        Kostenart Art;
        int A, B, Ruhe, Höhe;
        std::int64_t Gewicht;
    };
    static std::int64_t Wert(const Kostenglied &glied, std::int64_t differenz);
    static bool Zusammen(const Kostenglied &a, const Kostenglied &b);
    bool Schritt(std::vector<int> &x, int weite, const std::vector<Kostenglied> &glieder) const;

    int anzahl_;
    std::vector<Schranke> schranken_;
    std::vector<Kostenglied> kosten_;
};

} // namespace kw
