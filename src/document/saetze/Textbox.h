#pragma once

#include "document/saetze/Satz.h"

namespace kw {

/// A text box's record. Places and measures are cm; the place is the top left corner. Drawing measures a box that has
/// no measures yet.
class TextSatz : public Satzsicht {
  public:
    explicit TextSatz(std::string_view satz, Lücken lücken = Lücken::Fehler) : Satzsicht(satz, lücken) {}

    bool HatOrt() const { return HatFelder(FeldTextY + 1); }
    /// Whether all is there but the measures.
    bool HatText() const { return HatFelder(AnzahlUngemessen); }
    /// Whether there are fields for the measures: for the width, for both.
    bool HatBreite() const { return HatFelder(FeldTextBreite + 1); }
    bool HatMaße() const { return HatFelder(Anzahl); }
    double TextX() const { return Zahl(FeldTextX); }
    double TextY() const { return Zahl(FeldTextY); }
    std::string_view Schriftart() const { return Text(FeldSchriftart); }
    std::string_view SchriftgroesseText() const { return Text(FeldSchriftgroesse); } ///< as it stands
    double Schriftgroesse() const { return Zahl(FeldSchriftgroesse); }               ///< points
    double Farbe() const { return Zahl(FeldFarbe); }                                 ///< 0xBBGGRR, or damage
    bool Fett() const { return Ja(FeldFett); }
    bool Kursiv() const { return Ja(FeldKursiv); }
    bool Unterstrichen() const { return Ja(FeldUnterstrichen); }
    std::string_view Ausrichtung() const { return Text(FeldAusrichtung); } ///< "0" left, "1" right, "2" centred
    std::string_view Inhalt() const { return Text(FeldText); }             ///< lines joined by "#", "¶" for "_"
    double TextBreite() const { return Zahl(FeldTextBreite); }
    double TextHoehe() const { return Zahl(FeldTextHoehe); }
    bool BreiteFehlt() const { return Getrimmt(Text(FeldTextBreite)).empty(); }
    bool HöheFehlt() const { return Getrimmt(Text(FeldTextHoehe)).empty(); }

    static constexpr int Anzahl = 12;
    static constexpr int AnzahlUngemessen = 10;

  private:
    friend class TextBau;
    enum : int {
        FeldTextX,
        FeldTextY,
        FeldSchriftart,
        FeldSchriftgroesse,
        FeldFarbe,
        FeldFett,
        FeldKursiv,
        FeldUnterstrichen,
        FeldAusrichtung,
        FeldText,
        FeldTextBreite,
        FeldTextHoehe
    };
};

/// A text box's record being written: a new one has no measures, one that is changed keeps the fields that it has.
class TextBau : public Satzbau {
    using S = TextSatz;

  public:
    TextBau() : Satzbau({}, S::AnzahlUngemessen) {}
    explicit TextBau(std::string_view satz);
    /// What stands there now; a view into the text, until the next change.
    TextSatz Stand() const { return TextSatz(Text(), Lücken::Leer); }

    TextBau &Ort(double x, double y) { return Mit(S::FeldTextX, x).Mit(S::FeldTextY, y); }
    TextBau &Schriftart(std::string_view name) { return Mit(S::FeldSchriftart, name); }
    TextBau &Schriftgroesse(std::string_view punkt) { return Mit(S::FeldSchriftgroesse, punkt); }
    TextBau &Farbe(std::string_view farbe) { return Mit(S::FeldFarbe, farbe); }
    TextBau &Fett(std::string_view marke) { return Mit(S::FeldFett, marke); }
    TextBau &Kursiv(std::string_view marke) { return Mit(S::FeldKursiv, marke); }
    TextBau &Unterstrichen(std::string_view marke) { return Mit(S::FeldUnterstrichen, marke); }
    TextBau &Ausrichtung(std::string_view art) { return Mit(S::FeldAusrichtung, art); }
    TextBau &Inhalt(std::string_view text) { return Mit(S::FeldText, text); }
    TextBau &Verschieben(double dx, double dy) {
        Erhöhen(S::FeldTextX, dx);
        Erhöhen(S::FeldTextY, dy);
        return *this;
    }

  private:
    template <typename Wert> TextBau &Mit(int feld, Wert wert) {
        Setzen(feld, wert);
        return *this;
    }
};

/// The record of a box with these measures, cm, in place of what it had; further fields go.
std::string GemesseneTextbox(std::string_view satz, double breite, double höhe);

} // namespace kw
