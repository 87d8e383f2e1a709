#include "anonymity/OhneNamen.h"

#include "anonymity/Generationen.h"
#include "document/Doppelnummern.h"
#include "document/Felder.h"
#include "document/basAltersberechnung.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Kreislinie.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "document/saetze/Pfeil.h"
#include "rendering/Beschriftung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <map>
#include <tuple>

namespace kw {

namespace {

bool IstInstitution(const PersonSatz &person) { return ZahlLesen(person.Symboltyp()) == TypInstitution; }

/// Who has a name under the symbol.
bool IstBenannt(const PersonSatz &person) { return ZeigtNamen(person) && !IstInstitution(person); }

/// The number of a person or a line: digits, whatever else a damaged file has there.
std::string Nummernziffern(std::string_view nr) {
    constexpr std::size_t Meiste = 4; // one more than whole numbers have
    std::string ziffern;
    for (const char c : nr)
        if (c >= '0' && c <= '9' && ziffern.size() < Meiste) ziffern += c;
    return ziffern;
}

/// The code when it is one of those; else none.
std::string_view Code(std::string_view text, std::initializer_list<std::string_view> mögliche) {
    const auto *const code = std::find(mögliche.begin(), mögliche.end(), text);
    return code == mögliche.end() ? std::string_view() : *code;
}

/// The symbol's type, a whole number. A file has other codes for some, so the rest of a damaged one must not look like
/// these.
std::string Symboltyp(const PersonSatz &person) {
    const double typ = ZahlLesen(person.Symboltyp());
    return ZahlSchreiben(typ == std::trunc(typ) ? typ : 0);
}

/// A, B, ..., Z, AA, AB and so on.
std::string Buchstaben(int generation) {
    std::string text;
    for (int rest = generation + 1; rest > 0; rest = (rest - 1) / 26)
        text.insert(text.begin(), static_cast<char>('A' + (rest - 1) % 26));
    return text;
}

/// By position in the store; empty for who has none. Generations in which nobody has a name take no letter.
std::vector<std::string> Kurznamen(const Dokument &d) {
    const std::vector<int> generationen = Generationen(d);
    std::vector<std::tuple<int, double, double, std::size_t>> reihe; // generation, x, y, position
    for (std::size_t i = 0; i < generationen.size(); i++) {
        const PersonSatz person(d.cboPersonen.Satz(static_cast<int>(i)), Lücken::Leer);
        if (IstBenannt(person)) reihe.emplace_back(generationen[i], person.PosX(), person.PosY(), i);
    }
    std::sort(reihe.begin(), reihe.end());
    std::vector<std::string> namen(generationen.size());
    std::map<int, int> anzahl; // so far, of each generation that has a letter
    for (const auto &[generation, x, y, i] : reihe) {
        const int stelle = ++anzahl[generation];
        namen[i] = Buchstaben(static_cast<int>(anzahl.size()) - 1) + std::to_string(stelle);
    }
    return namen;
}

bool NurZiffern(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The age at death, with its mark. The field takes dates and years too, which must not stay: an age has up to three
/// digits and one behind the point; below a year two.
std::string Sterbealter(const PersonSatz &person) {
    constexpr double HöchstesAlter = 130;
    if (!person.Verstorben()) return {};
    const std::string alter(Getrimmt(Ohne(person.Sterbealter(), '$')));
    const std::string_view ganze = std::string_view(alter).substr(0, alter.find('.'));
    const std::string_view bruch = ganze.size() == alter.size() ? "" : std::string_view(alter).substr(ganze.size() + 1);
    const bool istAlter = NurZiffern(ganze) && NurZiffern(bruch) && ganze.size() <= 3 &&
                          bruch.size() <= (ganze == "0" ? 2U : 1U) && ZahlLesen(alter) <= HöchstesAlter;
    return istAlter ? "$" + alter : "$";
}

/// What of the date of birth stays, in the form in which records hold it.
class Zeitangaben {
  public:
    Zeitangaben(Lebenszeit zeit, const Uhr &uhr, Sprache sprache) : zeit_(zeit), sprache_(sprache), alter_(uhr) {}

    std::string Von(const PersonSatz &person) {
        alter_.strAlterText.clear();
        alter_.strGebJahrText.clear();
        alter_.AlterAusDatum(person.Geburtsdatum());
        constexpr double LetztesJahr = 2100; // that alone is taken for one
        if (zeit_ == Lebenszeit::Geburtsjahr && !alter_.strGebJahrText.empty())
            return ZahlLesen(alter_.strGebJahrText) <= LetztesJahr ? alter_.strGebJahrText : std::string();
        const std::string alter = AltersangabeFür(alter_.strAlterText, sprache_);
        // Neither a negative one nor one of thousands of years is one.
        return !person.Verstorben() && AlterAusAngabe(alter) ? alter : std::string();
    }

  private:
    Lebenszeit zeit_;
    Sprache sprache_;
    Altersberechnung alter_;
};

/// Without a name.
std::string Person(const PersonSatz &person, Zeitangaben &daten) {
    PersonBau neu;
    neu.Nr(Nummernziffern(person.Nr()))
        .Symboltyp(Symboltyp(person))
        .Ort(person.PosX(), person.PosY())
        .Groesse(person.Groesse())
        .IndexPerson(Code(person.IndexPerson(), {"0", "1", "21"}))
        .Sterbealter(Sterbealter(person))
        .Sucht(person.Sucht() ? "1" : "0")
        .Erkrankung(person.Erkrankung() ? "1" : "0")
        .ElternLinie(Nummernziffern(person.ElternLinie()));
    if (person.Eineiig() || person.Zweieiig())
        neu.Zwilling(std::string(person.Eineiig() ? "1E" : "2E") + Nummernziffern(person.ZwillingNr()));
    if (IstInstitution(person)) return neu.Institution({}).Text();
    if (IstBenannt(person)) neu.Geburtsdatum(daten.Von(person));
    return neu.Text();
}

/// As many empty dates as there are dates: a state whose date isn't there has no mark.
std::string LeereDaten(std::string_view daten) {
    return std::string(static_cast<std::size_t>(std::min<long>(3, std::count(daten.begin(), daten.end(), '#'))), '#');
}

std::string Partnerschaft(const PartnerschaftSatz &linie) {
    PartnerschaftBau neu;
    neu.Nr(Nummernziffern(linie.Nr()))
        .Status(Code(linie.Status(), {"0", "1", "2", "3"}))
        .BalkenX1(linie.BalkenX1())
        .BalkenX2(linie.BalkenX2())
        .BalkenY(linie.BalkenY1())
        .PersNr1(Nummernziffern(linie.PersNr1()))
        .PersNr2(Nummernziffern(linie.PersNr2()))
        .Anschluss1(linie.AnschlussX1(), linie.AnschlussY1())
        .Anschluss2(linie.AnschlussX2(), linie.AnschlussY2())
        .Distanziert(Code(linie.Distanziert() ? "1" : "", {"1"}))
        .Daten(LeereDaten(linie.Daten()));
    return neu.Text();
}

std::string Kind(const KindSatz &linie) {
    KindBau neu;
    neu.KindNr(Nummernziffern(linie.KindNr()))
        .Kindart(Code(linie.Kindart(), {"0", "1", "2"}))
        .PLinie(Nummernziffern(linie.PLinie()))
        .KindX(linie.KindX())
        .KindY(linie.KindY())
        .LinieX(linie.LinieX())
        .LinieY(linie.LinieY());
    return neu.Text();
}

std::string Beziehung(const BeziehungSatz &linie) {
    BeziehungBau neu;
    neu.Beziehungsart(Code(linie.Beziehungsart(), {"0", "1", "2", "3", "4", "5", "6", "7"}))
        .Ende1(linie.LinieX1(), linie.LinieY1())
        .Ende2(linie.LinieX2(), linie.LinieY2())
        .PersNr1(Nummernziffern(linie.PersNr1()))
        .PersNr2(Nummernziffern(linie.PersNr2()));
    return neu.Text();
}

std::string Pfeil(const PfeilSatz &pfeil) {
    PfeilBau neu;
    neu.Pfeilart(pfeil.Pfeilart() == "2" ? 2 : 1).Ende1(pfeil.X1(), pfeil.Y1()).Ende2(pfeil.X2(), pfeil.Y2());
    return neu.Text();
}

/// Those of a store that are whole, each rewritten.
template <typename Satz> Satzliste Neu(const Satzliste &speicher, std::string (*schreiben)(const Satz &)) {
    Satzliste neue;
    for (const auto &satz : speicher)
        if (const Satz gelesen(satz); gelesen.Vollständig()) neue.Anhängen(schreiben(gelesen));
    return neue;
}

/// By what is left, so that exporting it once more changes nothing.
void NamenGeben(Dokument &neu) {
    const auto namen = Kurznamen(neu);
    for (int i = 0; i < neu.cboPersonen.Anzahl(); ++i)
        if (const auto &name = namen[static_cast<std::size_t>(i)]; !name.empty())
            neu.cboPersonen.Ersetzen(i, PersonBau(neu.cboPersonen.Satz(i)).Vorname(name).Text());
}

bool HatText(std::string_view feld) { return !Getrimmt(feld).empty(); }

} // namespace

Dokument OhneNamen(const Dokument &dokument, Lebenszeit zeit, const Uhr &uhr, Sprache sprache) {
    Dokument neu = dokument;
    neu.SpeicherLeeren();
    Zeitangaben daten(zeit, uhr, sprache);
    for (const auto &satz : dokument.cboPersonen)
        neu.cboPersonen.Anhängen(Person(PersonSatz(satz, Lücken::Leer), daten));
    neu.cboPartnerschaftsLinien = Neu(dokument.cboPartnerschaftsLinien, Partnerschaft);
    neu.cboKindlinien = Neu(dokument.cboKindlinien, Kind);
    neu.cboBeziehungsLinien = Neu(dokument.cboBeziehungsLinien, Beziehung);
    neu.cboPfeile = Neu(dokument.cboPfeile, Pfeil);
    for (const auto &satz : dokument.cboFreehandlines)
        if (const auto punkte = KreisPunkte(satz); !punkte.empty()) neu.cboFreehandlines.Anhängen(KreisText(punkte));
    DoppelnummernAuflösen(neu); // of damaged ones that are digits alone now
    neu.FreieNummernAufbauen();
    NamenGeben(neu);
    return neu;
}

int AltersanzeigeFür(Lebenszeit zeit) { return zeit == Lebenszeit::Alter ? 0 : 1; }

Weggelassenes OhneNamenFehlt(const Dokument &dokument) {
    Weggelassenes fehlt;
    for (const auto &satz : dokument.cboPersonen) {
        const PersonSatz person(satz, Lücken::Leer);
        const bool benannt = HatText(person.Vorname()) || HatText(person.Nachname());
        if (benannt) ++(IstInstitution(person) ? fehlt.Institutionen : fehlt.Personen);
        if (HatText(person.Geburtsdatum())) ++fehlt.Daten;
    }
    for (const auto &satz : dokument.cboPartnerschaftsLinien) {
        std::string_view daten = PartnerschaftSatz(satz, Lücken::Leer).Daten();
        while (!daten.empty())
            if (HatText(Abgetrennt(daten, '#'))) ++fehlt.Daten;
    }
    fehlt.Texte = dokument.cboTextboxen.Anzahl();
    return fehlt;
}

} // namespace kw
