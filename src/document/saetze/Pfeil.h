#pragma once

#include "document/saetze/Satz.h"

namespace kw {

/// An arrow's record. Places are cm; the head is at the second end, of a double arrow at both.
class PfeilSatz : public Satzsicht {
  public:
    explicit PfeilSatz(std::string_view satz, Lücken lücken = Lücken::Fehler) : Satzsicht(satz, lücken) {}

    bool Vollständig() const { return HatFelder(Anzahl); }
    std::string_view Pfeilart() const { return Text(FeldPfeilart); } ///< "1" arrow, "2" double arrow
    double X1() const { return Zahl(FeldPfeilX1); }
    double Y1() const { return Zahl(FeldPfeilY1); }
    double X2() const { return Zahl(FeldPfeilX2); }
    double Y2() const { return Zahl(FeldPfeilY2); }

    static constexpr int Anzahl = 5; ///< fields of a whole record

  private:
    friend class PfeilBau;
    enum : int { FeldPfeilart, FeldPfeilX1, FeldPfeilY1, FeldPfeilX2, FeldPfeilY2 };
};

/// An arrow's record being written.
class PfeilBau : public Satzbau {
    using S = PfeilSatz;

  public:
    explicit PfeilBau(std::string_view satz = {}) : Satzbau(satz, S::Anzahl) {}
    /// What stands there now; a view into the text, until the next change.
    PfeilSatz Stand() const { return PfeilSatz(Text()); }

    PfeilBau &Pfeilart(int art) { return Mit(S::FeldPfeilart, art); }
    PfeilBau &Ende1(double x, double y) { return Mit(S::FeldPfeilX1, x).Mit(S::FeldPfeilY1, y); }
    PfeilBau &Ende2(double x, double y) { return Mit(S::FeldPfeilX2, x).Mit(S::FeldPfeilY2, y); }
    PfeilBau &Verschieben(double dx, double dy) {
        for (const int x : {S::FeldPfeilX1, S::FeldPfeilX2}) Erhöhen(x, dx);
        for (const int y : {S::FeldPfeilY1, S::FeldPfeilY2}) Erhöhen(y, dy);
        return *this;
    }

  private:
    PfeilBau &Mit(int feld, double wert) {
        Setzen(feld, wert);
        return *this;
    }
};

} // namespace kw
