#pragma once

#include "document/saetze/Satz.h"

namespace kw {

// Kinds of persons, as records number them in memory, as far as the program tells them apart. There is no 8.
constexpr int TypMännlich = 1;
constexpr int TypWeiblich = 2;
constexpr int TypSchwangerschaft = 3;
constexpr int TypFehlgeburt = 4;
constexpr int TypTotgeburtMännlich = 5;
constexpr int TypTotgeburtWeiblich = 6;
constexpr int TypAbtreibung = 7;
constexpr int TypInstitution = 9;
constexpr int TypWeiblichZuMännlich = 10;
constexpr int TypMännlichZuWeiblich = 11;
constexpr int TypDivers = 12;

/// The three kinds that files write as 1.1, 2.1 and 1.2 are 10, 11 and 12; other kinds are themselves,
/// and 0 is a kind that has no symbol.
int SymbolKennzahl(std::string_view symboltyp);

/// A person's record. Lengths and places are cm on the page, the place is the symbol's centre.
class PersonSatz : public Satzsicht {
  public:
    explicit PersonSatz(std::string_view satz, Lücken lücken = Lücken::Fehler) : Satzsicht(satz, lücken) {}

    bool Vollständig() const { return HatFelder(Anzahl); }
    bool HatOrt() const { return HatFelder(FeldPosY + 1); }
    std::string_view Nr() const { return Text(FeldNr); }
    std::string_view Symboltyp() const { return Text(FeldSymboltyp); }
    double PosX() const { return Zahl(FeldPosX); }
    double PosY() const { return Zahl(FeldPosY); }
    std::string_view PosYText() const { return Text(FeldPosY); } ///< as it stands
    double Groesse() const { return Zahl(FeldGroesse); }
    std::string_view IndexPerson() const { return Text(FeldIndexPerson); } ///< "1", "0", or a mark from elsewhere
    std::string_view Sterbealter() const { return Text(FeldSterbealter); } ///< with the mark "$" of the deceased
    bool Verstorben() const { return Sterbealter().starts_with('$'); }
    bool Sucht() const { return Ja(FeldSucht); }
    bool Erkrankung() const { return Ja(FeldErkrankung); }
    std::string_view Vorname() const { return Text(FeldVorname); } ///< or an institution's text
    std::string_view Nachname() const { return Text(FeldNachname); }
    std::string_view Geburtsdatum() const { return Text(FeldGeburtsdatum); }
    std::string_view ElternLinie() const { return Text(FeldElternLinie); } ///< number of the parents' line
    bool HatEltern() const { return !Getrimmt(ElternLinie()).empty(); }
    std::string_view Zwilling() const { return Text(FeldZwilling); } ///< "1E" or "2E" and the other one's number
    bool Eineiig() const { return Zwilling().starts_with("1E"); }
    bool Zweieiig() const { return Zwilling().starts_with("2E"); }
    /// Number of the other twin; empty when there is none.
    std::string_view ZwillingNr() const { return Zwilling().size() > 2 ? Zwilling().substr(2) : std::string_view(); }

    static constexpr int Anzahl = 14; ///< fields of a whole record

  private:
    friend class PersonBau;
    enum : int {
        FeldNr,
        FeldSymboltyp,
        FeldPosX,
        FeldPosY,
        FeldGroesse,
        FeldIndexPerson,
        FeldSterbealter,
        FeldSucht,
        FeldErkrankung,
        FeldVorname,
        FeldNachname,
        FeldGeburtsdatum,
        FeldElternLinie,
        FeldZwilling
    };
};

/// A person's record being written. Texts must not hold "_", which parts fields.
class PersonBau : public Satzbau {
  public:
    explicit PersonBau(std::string_view satz = {}) : Satzbau(satz, PersonSatz::Anzahl) {}
    /// What stands there now; a view into the text, until the next change.
    PersonSatz Stand() const { return PersonSatz(Text()); }

    PersonBau &Nr(std::string_view nr) { return Mit(PersonSatz::FeldNr, nr); }
    PersonBau &Symboltyp(std::string_view typ) { return Mit(PersonSatz::FeldSymboltyp, typ); }
    PersonBau &Symboltyp(int typ) { return Mit(PersonSatz::FeldSymboltyp, typ); }
    PersonBau &Ort(double x, double y) { return Mit(PersonSatz::FeldPosX, x).Mit(PersonSatz::FeldPosY, y); }
    PersonBau &Groesse(double größe) { return Mit(PersonSatz::FeldGroesse, größe); }
    PersonBau &IndexPerson(std::string_view marke) { return Mit(PersonSatz::FeldIndexPerson, marke); }
    PersonBau &Sterbealter(std::string_view text) { return Mit(PersonSatz::FeldSterbealter, text); }
    PersonBau &Sucht(std::string_view marke) { return Mit(PersonSatz::FeldSucht, marke); }
    PersonBau &Erkrankung(std::string_view marke) { return Mit(PersonSatz::FeldErkrankung, marke); }
    PersonBau &Vorname(std::string_view text) { return Mit(PersonSatz::FeldVorname, text); }
    PersonBau &Nachname(std::string_view text) { return Mit(PersonSatz::FeldNachname, text); }
    PersonBau &Geburtsdatum(std::string_view text) { return Mit(PersonSatz::FeldGeburtsdatum, text); }
    PersonBau &ElternLinie(std::string_view nr) { return Mit(PersonSatz::FeldElternLinie, nr); }
    PersonBau &Zwilling(std::string_view markeUndNr) { return Mit(PersonSatz::FeldZwilling, markeUndNr); }
    /// An institution has a text and nothing else behind its size, but for what other records count on: its parents'
    /// line and its twin.
    PersonBau &Institution(std::string_view text);

  private:
    template <typename Wert> PersonBau &Mit(int feld, Wert wert) {
        Setzen(feld, wert);
        return *this;
    }
};

/// The record of a new person without names, dates and marks. It ends in one empty field too many, which nobody reads
/// and the first rewriting takes away. Meant.
std::string NeuePerson(std::string_view nr, int typ, double x, double y, double größe);

} // namespace kw
