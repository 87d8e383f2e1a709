#include "familytree/Personenangaben.h"

#include "document/basAltersberechnung.h"
#include "document/saetze/Person.h"
#include "familytree/Auslassungen.h"
#include "familytree/Datumsworte.h"
#include "familytree/Leerraum.h"
#include "familytree/Marken.h"
#include "familytree/Utf8.h"

#include <charconv>
#include <cstdlib>

namespace kw {

namespace {

constexpr int HöchstesAlter = 120;
constexpr std::size_t HöchsteNamenslänge = 250; ///< bytes; no label is as long

/// A bare age, which stands for a date where the names were taken away; empty for other words.
std::string BloßesAlter(std::string_view worte) {
    if (worte.starts_with('(') && worte.ends_with(')')) worte = worte.substr(1, worte.size() - 2);
    return AlterAusAngabe(worte) ? std::string(worte) : "";
}

/// A person while it is brought over.
class Übertragung {
  public:
    Übertragung(const Stammbaum &baum, const Stammperson &person, const Übernahmeregeln &regeln,
                Übernahmebericht &bericht)
        : person_(person), regeln_(regeln), bericht_(bericht), satz_(baum.Zeilen(person.Ort)),
          wer_(Anzeigename(person)) {}

    Personenangaben Tun(const Familienrolle &rolle) {
        angaben_.Symboltyp = Geschlecht(rolle);
        Totgeburt(rolle);
        angaben_.Vorname = Name(person_.Vorname);
        angaben_.Nachname = Name(person_.Nachname);
        Geburt();
        angaben_.Sterbealter = Tod();
        AuslassungenMelden(satz_, wer_, bericht_);
        return std::move(angaben_);
    }

  private:
    void Melden(Befundart art, std::uint32_t zeile, std::string_view text = {}) {
        bericht_.Hinzu(art, zeile, wer_, text);
    }
    /// The line of a tag, of several the first that has a date.
    std::uint32_t Zeile(std::string_view marke) const {
        std::uint32_t erste = satz_.Ort.Zeile, datierte = 0;
        satz_.FürKinder(satz_.Wurzel(), [&](const Knoten &knoten) {
            if (knoten.Marke != marke) return;
            if (erste == satz_.Ort.Zeile) erste = knoten.Zeile;
            const auto *const datum = satz_.Erstes(knoten, "DATE");
            if (datierte == 0 && datum) datierte = datum->Zeile;
        });
        return datierte ? datierte : erste;
    }
    std::string MitWorten(std::string_view marke, Ereignisangabe ereignis) const;
    int EigenesSymbol() const;
    int Geschlecht(const Familienrolle &rolle);
    void Totgeburt(const Familienrolle &rolle);
    std::string Name(std::string_view name);
    void Geburt();
    std::string Tod();
    int Alter();
    bool Möglich(int alter);

    const Stammperson &person_;
    const Übernahmeregeln &regeln_;
    Übernahmebericht &bericht_;
    Satz satz_;
    std::string wer_;
    Personenangaben angaben_;
};

/// What happened, by the words of a date that has nothing else where there is no other.
std::string Übertragung::MitWorten(std::string_view marke, Ereignisangabe ereignis) const {
    std::string text(ereignis);
    satz_.FürKinder(satz_.Wurzel(), [&](const Knoten &knoten) {
        if (text != "Y" || knoten.Marke != marke || IstNein(knoten.Wert)) return;
        if (auto datum = Datumszeile(satz_, knoten); !datum.empty()) text = std::move(datum);
    });
    return text;
}

/// The symbol that this program has written for itself; 0 for none.
int Übertragung::EigenesSymbol() const {
    int symbol = 0;
    satz_.FürKinder(satz_.Wurzel(), [&](const Knoten &knoten) {
        const int typ = SymbolKennzahl(satz_.Text(knoten, Symbolmarke));
        if (typ == TypWeiblichZuMännlich || typ == TypMännlichZuWeiblich || typ == TypDivers) symbol = typ;
    });
    return symbol;
}

int Übertragung::Geschlecht(const Familienrolle &rolle) {
    if (const int symbol = EigenesSymbol()) return symbol;
    if (person_.Geschlecht == "M") return TypMännlich;
    if (person_.Geschlecht == "F") return TypWeiblich;
    if (person_.Geschlecht == "X") return TypDivers;
    if (rolle.AlsPartner.empty()) {
        Melden(Befundart::GeschlechtGesetzt, Zeile("SEX"), person_.Geschlecht);
        return regeln_.UnbekanntesGeschlecht;
    }
    Melden(Befundart::GeschlechtAusRolle, Zeile("SEX"), rolle.AlsPartner);
    return rolle.AlsPartner == "WIFE" ? TypWeiblich : TypMännlich;
}

void Übertragung::Totgeburt(const Familienrolle &rolle) {
    if (!person_.Totgeboren) return;
    if (rolle.HatFamilie) return Melden(Befundart::KeineTotgeburt, Zeile("DEAT"));
    angaben_.Symboltyp = angaben_.Symboltyp == TypWeiblich ? TypTotgeburtWeiblich : TypTotgeburtMännlich;
}

std::string Übertragung::Name(std::string_view name) {
    // The record is parted by "_".
    const auto neu = Geglättet(UnzerteilterAnfang(MitBlanksFür("_", name), HöchsteNamenslänge));
    if (neu != name) Melden(Befundart::NameGeändert, Zeile("NAME"), name);
    return neu;
}

void Übertragung::Geburt() {
    const std::string geburt = MitWorten("BIRT", person_.Geburt);
    if (geburt.empty() || geburt == "Y") return;
    const auto datum = StammdatumLesen(geburt);
    angaben_.Geburtsdatum = datum.Art == Datumsart::Worte ? BloßesAlter(geburt) : Satzdatum(datum);
    const auto zeile = Zeile("BIRT");
    if (angaben_.Geburtsdatum.empty()) return Melden(Befundart::GeburtWeggelassen, zeile, geburt);
    if (datum.Art == Datumsart::Worte) return;
    const bool nurJahr = datum.Erstes.Monat == 0 && datum.Art == Datumsart::Genau;
    if (angaben_.Geburtsdatum.size() == 4 && !nurJahr) Melden(Befundart::GeburtsjahrStattDatum, zeile, geburt);
    if (datum.AndererKalender || datum.Doppeljahr) Melden(Befundart::DatumUmgerechnet, zeile, geburt);
}

bool Übertragung::Möglich(int alter) {
    if (alter >= 0 && alter <= HöchstesAlter) return true;
    Melden(Befundart::AlterWeggelassen, Zeile("DEAT"), person_.Tod);
    return false;
}

/// Years at death: by two days, by what the file says, by two years; -1 when none of them tells.
int Übertragung::Alter() {
    const auto geburt = StammdatumLesen(person_.Geburt), tod = StammdatumLesen(person_.Tod);
    const auto tag = [](const Stammdatum &d) {
        return d.Art == Datumsart::Genau && d.Erstes.IstTag() && GibtEs(d.Erstes);
    };
    const int angabe = Altersangabe(person_.Sterbealter);
    const int jahre = tod.Erstes.Jahr - geburt.Erstes.Jahr;
    if (tag(geburt) && tag(tod)) {
        const auto &g = geburt.Erstes, &t = tod.Erstes;
        const bool vorher = t.Monat < g.Monat || (t.Monat == g.Monat && t.Tag < g.Tag);
        const int alter = jahre - (vorher ? 1 : 0);
        if (angabe >= 0 && angabe != alter) Melden(Befundart::AlterAbweichend, Zeile("DEAT"), person_.Sterbealter);
        return Möglich(alter) ? alter : -1;
    }
    if (angabe >= 0) return Möglich(angabe) ? angabe : -1;
    if (!person_.Sterbealter.empty()) Melden(Befundart::AlterWeggelassen, Zeile("DEAT"), person_.Sterbealter);
    if (!geburt.IstEines() || !tod.IstEines() || !Möglich(jahre)) return -1;
    Melden(Befundart::AlterAusJahren, Zeile("DEAT"), std::string(person_.Geburt) + " - " + std::string(person_.Tod));
    return jahre;
}

std::string Übertragung::Tod() {
    if (!person_.Gestorben && person_.Tod.empty()) return {};
    const int alter = Alter();
    const std::string tod = MitWorten("DEAT", person_.Tod);
    if (!tod.empty() && tod != "Y") Melden(Befundart::SterbedatumWeggelassen, Zeile("DEAT"), tod);
    return alter < 0 ? "$" : "$" + std::to_string(alter);
}

} // namespace

std::string Anzeigename(const Stammperson &person) {
    const auto kurz = [](std::string_view text) { return std::string(UnzerteilterAnfang(text, HöchsteNamenslänge)); };
    std::string name = kurz(person.Vorname);
    if (!name.empty() && !person.Nachname.empty()) name += ' ';
    name += kurz(person.Nachname);
    if (person.Kennung.empty()) return name;
    return (name.empty() ? name : name + " ") + "(" + kurz(person.Kennung) + ")";
}

Personenangaben PersonÜbertragen(const Stammbaum &baum, const Stammperson &person, const Familienrolle &rolle,
                                 const Übernahmeregeln &regeln, Übernahmebericht &bericht) {
    return Übertragung(baum, person, regeln, bericht).Tun(rolle);
}

int Altersangabe(std::string_view text) {
    const std::string groß = InGroßbuchstaben(Randlos(text));
    std::string_view rest = groß;
    if (rest.starts_with("INFANT") || rest.starts_with("STILLBORN")) return 0;
    const bool unter = rest.starts_with('<');
    if (unter || rest.starts_with('>')) rest = Randlos(rest.substr(1));
    int jahre = 0;
    bool gelesen = false;
    while (!rest.empty()) {
        int zahl = 0;
        const auto [ende, fehler] = std::from_chars(rest.data(), rest.data() + rest.size(), zahl);
        if (fehler != std::errc() || zahl < 0) return -1;
        rest = rest.substr(static_cast<std::size_t>(ende - rest.data()));
        // A bare number means years, as many write it.
        const char einheit = rest.empty() ? 'Y' : rest[0];
        if (std::string_view("YMWD").find(einheit) == std::string_view::npos) return -1;
        if (einheit == 'Y') jahre = zahl;
        gelesen = true;
        rest = rest.empty() ? rest : Randlos(rest.substr(1));
    }
    // "Less than a year" is none; less than more years tells no age.
    if (!gelesen || (unter && jahre > 1)) return -1;
    return unter ? 0 : jahre;
}

} // namespace kw
