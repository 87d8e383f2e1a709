#pragma once

#include "document/saetze/Satz.h"

namespace kw {

/// A relationship line's record: from centre to centre of two persons. Places are cm.
class BeziehungSatz : public Satzsicht {
  public:
    explicit BeziehungSatz(std::string_view satz, Lücken lücken = Lücken::Fehler) : Satzsicht(satz, lücken) {}

    bool Vollständig() const { return HatFelder(Anzahl); }
    /// Whether the line can be read, though perhaps not whom it joins.
    bool HatLinie() const { return HatFelder(FeldLinieY2 + 1); }
    std::string_view Beziehungsart() const { return Text(FeldBeziehungsart); } ///< "0" to "7"
    double LinieX1() const { return Zahl(FeldLinieX1); }
    double LinieY1() const { return Zahl(FeldLinieY1); }
    double LinieX2() const { return Zahl(FeldLinieX2); }
    double LinieY2() const { return Zahl(FeldLinieY2); }
    std::string_view PersNr1() const { return Text(FeldPersNr1); }
    std::string_view PersNr2() const { return Text(FeldPersNr2); }
    /// Whether it joins these two, in either order.
    bool Verbindet(std::string_view a, std::string_view b) const {
        return (PersNr1() == a && PersNr2() == b) || (PersNr1() == b && PersNr2() == a);
    }

    static constexpr int Anzahl = 8; ///< fields of a whole record

  private:
    friend class BeziehungBau;
    /// The first field is always empty: a record begins with "_".
    enum : int {
        FeldLeer,
        FeldBeziehungsart,
        FeldLinieX1,
        FeldLinieY1,
        FeldLinieX2,
        FeldLinieY2,
        FeldPersNr1,
        FeldPersNr2
    };
};

/// A relationship line's record being written.
class BeziehungBau : public Satzbau {
    using S = BeziehungSatz;

  public:
    explicit BeziehungBau(std::string_view satz = {}) : Satzbau(satz, S::Anzahl) {}
    /// What stands there now; a view into the text, until the next change.
    BeziehungSatz Stand() const { return BeziehungSatz(Text()); }

    BeziehungBau &Beziehungsart(std::string_view art) { return Mit(S::FeldBeziehungsart, art); }
    BeziehungBau &Ende1(double x, double y) { return Mit(S::FeldLinieX1, x).Mit(S::FeldLinieY1, y); }
    BeziehungBau &Ende2(double x, double y) { return Mit(S::FeldLinieX2, x).Mit(S::FeldLinieY2, y); }
    BeziehungBau &Verschieben(double dx, double dy) {
        for (const int x : {S::FeldLinieX1, S::FeldLinieX2}) Erhöhen(x, dx);
        for (const int y : {S::FeldLinieY1, S::FeldLinieY2}) Erhöhen(y, dy);
        return *this;
    }
    BeziehungBau &PersNr1(std::string_view nr) { return Mit(S::FeldPersNr1, nr); }
    BeziehungBau &PersNr2(std::string_view nr) { return Mit(S::FeldPersNr2, nr); }

  private:
    template <typename Wert> BeziehungBau &Mit(int feld, Wert wert) {
        Setzen(feld, wert);
        return *this;
    }
};

} // namespace kw
