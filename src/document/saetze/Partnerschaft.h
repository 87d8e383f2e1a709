#pragma once

#include "document/saetze/Satz.h"

#include <utility>

namespace kw {

/// A partnership line's record: from one partner down to the bar, along it, and up to the other. Places are cm.
class PartnerschaftSatz : public Satzsicht {
  public:
    explicit PartnerschaftSatz(std::string_view satz, Lücken lücken = Lücken::Fehler) : Satzsicht(satz, lücken) {}

    bool Vollständig() const { return HatFelder(Anzahl); }
    /// Whether the bar can be read, which stands in the middle.
    bool HatBalken() const { return HatFelder(FeldBalkenY2 + 1); }
    std::string_view Nr() const { return Text(FeldNr); }
    std::string_view Status() const { return Text(FeldStatus); } ///< "0" to "3", empty for none yet
    double BalkenX1() const { return Zahl(FeldBalkenX1); }
    double BalkenY1() const { return Zahl(FeldBalkenY1); }
    double BalkenX2() const { return Zahl(FeldBalkenX2); }
    double BalkenY2() const { return Zahl(FeldBalkenY2); }
    std::string_view BalkenY2Text() const { return Text(FeldBalkenY2); } ///< as it stands
    /// The X range of the bar, left end first.
    std::pair<double, double> Balkenbereich() const {
        const double x1 = BalkenX1();
        const double x2 = BalkenX2();
        return x2 < x1 ? std::pair(x2, x1) : std::pair(x1, x2);
    }
    std::string_view PersNr1() const { return Text(FeldPersNr1); }
    std::string_view PersNr2() const { return Text(FeldPersNr2); }
    /// Whether these two are the partners, in either order.
    bool Verbindet(std::string_view a, std::string_view b) const {
        return (PersNr1() == a && PersNr2() == b) || (PersNr1() == b && PersNr2() == a);
    }
    double AnschlussX1() const { return Zahl(FeldAnschlussX1); } ///< where the first partner stands
    double AnschlussY1() const { return Zahl(FeldAnschlussY1); }
    double AnschlussX2() const { return Zahl(FeldAnschlussX2); }
    double AnschlussY2() const { return Zahl(FeldAnschlussY2); }
    bool Distanziert() const { return Ja(FeldDistanziert); }
    std::string_view Daten() const { return Text(FeldDaten); } ///< one text a status, in their order, joined by "#"

    static constexpr int Anzahl = 14; ///< fields of a whole record

  private:
    friend class PartnerschaftBau;
    enum : int {
        FeldNr,
        FeldStatus,
        FeldBalkenX1,
        FeldBalkenY1,
        FeldBalkenX2,
        FeldBalkenY2,
        FeldPersNr1,
        FeldPersNr2,
        FeldAnschlussY1,
        FeldAnschlussY2,
        FeldAnschlussX1,
        FeldAnschlussX2,
        FeldDistanziert,
        FeldDaten
    };
};

/// A partnership line's record being written.
class PartnerschaftBau : public Satzbau {
    using S = PartnerschaftSatz;

  public:
    explicit PartnerschaftBau(std::string_view satz = {}) : Satzbau(satz, S::Anzahl) {}
    /// What stands there now; a view into the text, until the next change.
    PartnerschaftSatz Stand() const { return PartnerschaftSatz(Text()); }

    PartnerschaftBau &Nr(std::string_view nr) { return Mit(S::FeldNr, nr); }
    PartnerschaftBau &Status(std::string_view status) { return Mit(S::FeldStatus, status); }
    PartnerschaftBau &BalkenX1(double x) { return Mit(S::FeldBalkenX1, x); }
    PartnerschaftBau &BalkenX2(double x) { return Mit(S::FeldBalkenX2, x); }
    /// The height of the whole bar.
    PartnerschaftBau &BalkenY(double y) { return Mit(S::FeldBalkenY1, y).Mit(S::FeldBalkenY2, y); }
    PartnerschaftBau &PersNr1(std::string_view nr) { return Mit(S::FeldPersNr1, nr); }
    PartnerschaftBau &PersNr2(std::string_view nr) { return Mit(S::FeldPersNr2, nr); }
    PartnerschaftBau &Anschluss1(double x, double y) { return Mit(S::FeldAnschlussX1, x).Mit(S::FeldAnschlussY1, y); }
    PartnerschaftBau &Anschluss2(double x, double y) { return Mit(S::FeldAnschlussX2, x).Mit(S::FeldAnschlussY2, y); }
    PartnerschaftBau &Distanziert(std::string_view marke) { return Mit(S::FeldDistanziert, marke); }
    PartnerschaftBau &Daten(std::string_view daten) { return Mit(S::FeldDaten, daten); }
    /// Shifts the bar alone: its legs stay at the partners.
    PartnerschaftBau &BalkenVerschieben(double dx, double dy);
    PartnerschaftBau &Verschieben(double dx, double dy);

  private:
    template <typename Wert> PartnerschaftBau &Mit(int feld, Wert wert) {
        Setzen(feld, wert);
        return *this;
    }
};

} // namespace kw
