#pragma once

#include "document/saetze/Satz.h"

namespace kw {

/// A child line's record: from the bar of the parents' line to the child. Places are cm.
class KindSatz : public Satzsicht {
  public:
    explicit KindSatz(std::string_view satz, Lücken lücken = Lücken::Fehler) : Satzsicht(satz, lücken) {}

    bool Vollständig() const { return HatFelder(Anzahl); }
    std::string_view KindNr() const { return Text(FeldKindNr); }
    std::string_view Kindart() const { return Text(FeldKindart); } ///< "0" natural, "1" adopted, "2" foster child
    std::string_view PLinie() const { return Text(FeldPLinie); }   ///< number of the parents' line
    double KindX() const { return Zahl(FeldKindX); }               ///< the child's centre
    double KindY() const { return Zahl(FeldKindY); }
    double LinieX() const { return Zahl(FeldLinieX); } ///< on the bar
    double LinieY() const { return Zahl(FeldLinieY); }

    static constexpr int Anzahl = 7; ///< fields of a whole record

  private:
    friend class KindBau;
    enum : int { FeldKindNr, FeldKindart, FeldPLinie, FeldKindX, FeldLinieX, FeldKindY, FeldLinieY };
};

/// A child line's record being written.
class KindBau : public Satzbau {
    using S = KindSatz;

  public:
    explicit KindBau(std::string_view satz = {}) : Satzbau(satz, S::Anzahl) {}
    /// What stands there now; a view into the text, until the next change.
    KindSatz Stand() const { return KindSatz(Text()); }

    KindBau &KindNr(std::string_view nr) { return Mit(S::FeldKindNr, nr); }
    KindBau &Kindart(std::string_view art) { return Mit(S::FeldKindart, art); }
    KindBau &PLinie(std::string_view nr) { return Mit(S::FeldPLinie, nr); }
    KindBau &KindX(double x) { return Mit(S::FeldKindX, x); }
    KindBau &KindY(double y) { return Mit(S::FeldKindY, y); }
    KindBau &KindY(std::string_view y) { return Mit(S::FeldKindY, y); }
    KindBau &LinieX(double x) { return Mit(S::FeldLinieX, x); }
    KindBau &LinieY(double y) { return Mit(S::FeldLinieY, y); }
    KindBau &LinieY(std::string_view y) { return Mit(S::FeldLinieY, y); }
    /// Shifts the end on the bar alone.
    KindBau &LinieVerschieben(double dx, double dy) {
        Erhöhen(S::FeldLinieX, dx);
        Erhöhen(S::FeldLinieY, dy);
        return *this;
    }
    KindBau &Verschieben(double dx, double dy) {
        Erhöhen(S::FeldKindX, dx);
        Erhöhen(S::FeldKindY, dy);
        return LinieVerschieben(dx, dy);
    }

  private:
    template <typename Wert> KindBau &Mit(int feld, Wert wert) {
        Setzen(feld, wert);
        return *this;
    }
};

} // namespace kw
