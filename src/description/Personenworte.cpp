#include "description/Personenworte.h"

#include "description/Worte.h"
#include "document/Dokument.h"
#include "document/Felder.h"
#include "document/basAltersberechnung.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace kw {

namespace {

/// A kind of person, by its number. Those who are no persons yet, or never will be, are counted by a word of their own.
struct Personenart {
    Zweisprachig Wort;
    Zählwort Zahl = {};
};
constexpr std::array<Personenart, 13> Personenarten{{
    {},
    {{"männlich", "male"}},
    {{"weiblich", "female"}},
    {{"Schwangerschaft", "pregnancy"}, {{"Schwangerschaft", "pregnancy"}, {"Schwangerschaften", "pregnancies"}}},
    {{"Fehlgeburt", "miscarriage"}, {{"Fehlgeburt", "miscarriage"}, {"Fehlgeburten", "miscarriages"}}},
    {{"Totgeburt männlich", "stillbirth, male"}, {{"Totgeburt", "stillbirth"}, {"Totgeburten", "stillbirths"}}},
    {{"Totgeburt weiblich", "stillbirth, female"}, {{"Totgeburt", "stillbirth"}, {"Totgeburten", "stillbirths"}}},
    {{"Abtreibung", "abortion"}, {{"Abtreibung", "abortion"}, {"Abtreibungen", "abortions"}}},
    {},
    {{"Institution", "institution"}, {{"Institution", "institution"}, {"Institutionen", "institutions"}}},
    {{"Transgender weiblich zu männlich", "transgender female to male"}},
    {{"Transgender männlich zu weiblich", "transgender male to female"}},
    {{"divers", "gender nonconforming"}},
}};
constexpr Zählwort Kinderwort{{"Kind", "child"}, {"Kinder", "children"}};
constexpr Zweisprachig Unbenannt{"Unbenannt", "Unnamed"};

const Personenart &ArtVon(int kennzahl) { return Personenarten.at(static_cast<size_t>(kennzahl)); }

/// Partnerships by their state; the first has none.
struct Partnerschaftsart {
    std::string_view Status;
    Zweisprachig Stand;
    Zweisprachig Mit;
};
constexpr std::array<Partnerschaftsart, 5> Partnerschaftsarten{{
    {"", {"", ""}, {"in Partnerschaft mit %", "in a partnership with %"}},
    {"0", {"nicht ehelich", "unmarried"}, {"nicht ehelich mit %", "unmarried partner of %"}},
    {"1", {"getrennt", "disconnected"}, {"getrennt von %", "disconnected from %"}},
    {"2", {"verheiratet", "married"}, {"verheiratet mit %", "married to %"}},
    {"3", {"geschieden", "divorced"}, {"geschieden von %", "divorced from %"}},
}};

const Partnerschaftsart &ArtVon(const PartnerschaftSatz &linie) {
    const auto art = std::find_if(Partnerschaftsarten.begin(), Partnerschaftsarten.end(),
                                  [&](const Partnerschaftsart &a) { return a.Status == linie.Status(); });
    return art == Partnerschaftsarten.end() ? Partnerschaftsarten.front() : *art;
}

constexpr std::array<Zweisprachig, 8> Beziehungsarten{{
    {"gute Beziehung", "good relationship"},
    {"enge Beziehung", "close relationship"},
    {"verschmolzene Beziehung", "fused relationship"},
    {"distanzierte Beziehung", "distant relationship"},
    {"Beziehungsabbruch", "cutoff"},
    {"konflikthafte Beziehung", "hostile, conflicted relationship"},
    {"konflikthafte und enge Beziehung", "close, conflicted relationship"},
    {"konflikthafte und verschmolzene Beziehung", "fused, conflicted relationship"},
}};
constexpr Zweisprachig BeziehungOhneArt{"Beziehung", "relationship"};
constexpr std::string_view Abbruch = "4";

struct Kindschaftsart {
    std::string_view Kindart;
    Zweisprachig Von;
};
constexpr std::array<Kindschaftsart, 3> Kindschaftsarten{{
    {"", {"Kind von %", "child of %"}},
    {"1", {"adoptiertes Kind von %", "adopted child of %"}},
    {"2", {"Pflegekind von %", "foster child of %"}},
}};
constexpr Zweisprachig ElternSind{"Eltern: %", "parents: %"};

int Kennzahl(const PersonSatz &person) { return SymbolKennzahl(person.Symboltyp()); }

std::string Vollname(const PersonSatz &person) {
    return Verbunden({std::string(Getrimmt(person.Vorname())), std::string(Getrimmt(person.Nachname()))}, " ");
}

/// The other one of two partners.
template <typename Satz> std::string_view Andere(const Satz &linie, std::string_view nr) {
    return linie.PersNr1() == nr ? linie.PersNr2() : linie.PersNr1();
}

bool BeginntMitZiffer(std::string_view text) { return !text.empty() && text.front() >= '0' && text.front() <= '9'; }

} // namespace

std::string Partnerstand(std::string_view satz, Sprache sprache) {
    return std::string(ArtVon(PartnerschaftSatz(satz, Lücken::Leer)).Stand.In(sprache));
}

/// A date is written as it was typed, so it may say itself what it is.
std::vector<std::string> Partnerdaten(std::string_view satz, Sprache sprache) {
    static constexpr Zweisprachig Seit{"seit %", "since %"};
    static constexpr Zweisprachig Distanziert{"distanziert", "distant"};
    const PartnerschaftSatz linie(satz, Lücken::Leer);
    std::vector<std::string> daten;
    std::string_view rest = linie.Daten();
    std::string_view text;
    if (const auto status = ArtVon(linie).Status; !status.empty())
        for (int i = status.front() - '0'; i >= 0; --i) text = Getrimmt(Abgetrennt(rest, '#'));
    if (BeginntMitZiffer(text)) daten.push_back(Eingesetzt(Seit, sprache, {text}));
    else if (!text.empty()) daten.emplace_back(text);
    if (linie.Distanziert()) daten.emplace_back(Distanziert.In(sprache));
    return daten;
}

std::string Beziehungswort(std::string_view art, Sprache sprache, std::string *präposition) {
    static constexpr Zweisprachig Zu{"zu", "with"};
    static constexpr Zweisprachig Mit{"mit", "with"};
    if (präposition) *präposition = (art == Abbruch ? Mit : Zu).In(sprache);
    const bool bekannt = art.size() == 1 && art[0] >= '0' && art[0] <= '7';
    return std::string(
        (bekannt ? Beziehungsarten.at(static_cast<size_t>(art[0] - '0')) : BeziehungOhneArt).In(sprache));
}

std::string Kindschaft(std::string_view kindart, bool mensch, const std::string &eltern, Sprache sprache) {
    if (!mensch) return Eingesetzt(ElternSind, sprache, {eltern});
    const auto art = std::find_if(Kindschaftsarten.begin(), Kindschaftsarten.end(),
                                  [&](const Kindschaftsart &a) { return a.Kindart == kindart; });
    return Eingesetzt((art == Kindschaftsarten.end() ? Kindschaftsarten.front() : *art).Von, sprache, {eltern});
}

std::string Kinderliste(const std::vector<std::string> &namen, Sprache sprache) {
    static constexpr Zweisprachig Eines{"Kind: %", "child: %"};
    static constexpr Zweisprachig Mehrere{"Kinder: %", "children: %"};
    return Eingesetzt(namen.size() == 1 ? Eines : Mehrere, sprache, {Aufgezählt(namen, sprache)});
}

Personenworte::Personenworte(const Dokument &dokument_, Sprache sprache_, const Uhr &uhr)
    : dokument(dokument_), sprache(sprache_), bezüge(dokument_), uhr_(uhr) {}

std::string Personenworte::Ruf(int position) const {
    if (!Gültig(dokument.cboPersonen, position)) return {};
    const PersonSatz person(dokument.cboPersonen.Satz(position), Lücken::Leer);
    const int kennzahl = Kennzahl(person);
    const std::string art = Im(ArtVon(kennzahl).Wort);
    if (!IstMensch(kennzahl) && kennzahl != TypInstitution && !art.empty()) return art;
    std::string name = Vollname(person);
    if (!name.empty()) return name;
    if (kennzahl == TypInstitution) return art;
    return Im(Unbenannt) + (art.empty() ? "" : " (" + art + ")");
}

std::string Personenworte::RufVon(std::string_view nr1, std::string_view nr2) const {
    std::vector<std::string> namen;
    for (const std::string_view nr : {nr1, nr2})
        if (std::string name = RufVon(nr); !name.empty()) namen.push_back(std::move(name));
    return Aufgezählt(namen, sprache);
}

std::string Personenworte::Name(int position) const {
    if (!Gültig(dokument.cboPersonen, position)) return {};
    const PersonSatz person(dokument.cboPersonen.Satz(position), Lücken::Leer);
    const int kennzahl = Kennzahl(person);
    const std::string art = Im(ArtVon(kennzahl).Wort);
    std::string name = Vollname(person);
    if (kennzahl == TypInstitution) return name.empty() ? GroßBegonnen(art) : name + ", " + art;
    if (!IstMensch(kennzahl) && !art.empty()) return GroßBegonnen(art);
    std::vector<std::string> teile{name.empty() ? Im(Unbenannt) : std::move(name), art, Lebensalter(person)};
    for (auto &partner : Partner(person)) teile.push_back(std::move(partner));
    for (auto &zahl : Kinderzahlen(person)) teile.push_back(std::move(zahl));
    static constexpr Zweisprachig Index{"Indexperson", "index person"};
    if (person.IndexPerson() == "1") teile.push_back(Im(Index));
    return Verbunden(teile, ", ");
}

/// An age that isn't known isn't spoken of: neither does the page show one.
std::string Personenworte::Lebensalter(const PersonSatz &person) const {
    static constexpr Zweisprachig VerstorbenMit{"verstorben mit %", "died at %"};
    static constexpr Zweisprachig Verstorben{"verstorben", "deceased"};
    if (person.Verstorben()) {
        const std::string alter(Getrimmt(Ohne(person.Sterbealter(), '$')));
        return alter.empty() ? Im(Verstorben) : Eingesetzt(VerstorbenMit, sprache, {alter});
    }
    Altersberechnung alter(uhr_);
    alter.AlterAusDatum(person.Geburtsdatum());
    return alter.strAlterText.starts_with('-') ? std::string() : alter.strAlterText;
}

std::vector<std::string> Personenworte::Partner(const PersonSatz &person) const {
    std::vector<std::string> texte;
    for (const int i : bezüge.Partnerschaften(person.Nr())) {
        const PartnerschaftSatz linie(dokument.cboPartnerschaftsLinien.Satz(i), Lücken::Leer);
        const std::string wer = RufVon(Andere(linie, person.Nr()));
        if (!wer.empty()) texte.push_back(Eingesetzt(ArtVon(linie).Mit, sprache, {wer}));
    }
    return texte;
}

/// Of all partnerships, by position, in the order of their lines.
std::vector<int> Personenworte::Kinder(const PersonSatz &person) const {
    std::vector<int> kinder;
    for (const int i : bezüge.Partnerschaften(person.Nr()))
        for (const int linie : bezüge.KinderVon(Nummer(dokument.cboPartnerschaftsLinien.Satz(i)))) {
            const int kind = bezüge.Person(KindSatz(dokument.cboKindlinien.Satz(linie), Lücken::Leer).KindNr());
            if (kind >= 0) kinder.push_back(kind);
        }
    return kinder;
}

std::vector<std::string> Personenworte::Kinderzahlen(const PersonSatz &person) const {
    std::map<int, int> zahlen; // of each kind; living ones count as the first, both stillbirths as one
    for (const int kind : Kinder(person)) {
        const int kennzahl = Kennzahl(PersonSatz(dokument.cboPersonen.Satz(kind), Lücken::Leer));
        const bool zählt = kennzahl >= TypSchwangerschaft && kennzahl < TypInstitution && kennzahl != 8;
        ++zahlen[!zählt ? 0 : kennzahl == 6 ? 5 : kennzahl];
    }
    std::vector<std::string> texte;
    texte.reserve(zahlen.size());
    for (const auto &[kennzahl, anzahl] : zahlen)
        texte.push_back(Gezählt(anzahl, kennzahl == 0 ? Kinderwort : ArtVon(kennzahl).Zahl, sprache));
    return texte;
}

std::vector<std::string> Personenworte::Kindernamen(const PersonSatz &person) const {
    std::vector<std::string> namen;
    for (const int kind : Kinder(person))
        if (IstMensch(Kennzahl(PersonSatz(dokument.cboPersonen.Satz(kind), Lücken::Leer)))) namen.push_back(Ruf(kind));
    return namen;
}

std::string Personenworte::Eltern(const PersonSatz &person) const {
    const int plinie = person.HatEltern() ? bezüge.PLinie(person.ElternLinie()) : -1;
    if (plinie < 0) return {};
    const PartnerschaftSatz linie(dokument.cboPartnerschaftsLinien.Satz(plinie), Lücken::Leer);
    const int kindlinie = bezüge.Kindlinie(person.Nr());
    const std::string_view art =
        kindlinie < 0 ? "" : KindSatz(dokument.cboKindlinien.Satz(kindlinie), Lücken::Leer).Kindart();
    const std::string eltern = RufVon(linie.PersNr1(), linie.PersNr2());
    return eltern.empty() ? eltern : Kindschaft(art, IstMensch(Kennzahl(person)), eltern, sprache);
}

std::string Personenworte::Zwilling(const PersonSatz &person) const {
    static constexpr Zweisprachig Eineiig{"eineiiger Zwilling von %", "monozygotic twin of %"};
    static constexpr Zweisprachig Zweieiig{"zweieiiger Zwilling von %", "dizygotic twin of %"};
    const std::string wer = person.ZwillingNr().empty() ? std::string() : RufVon(person.ZwillingNr());
    if (wer.empty()) return {};
    return Eingesetzt(person.Eineiig() ? Eineiig : Zweieiig, sprache, {wer});
}

std::vector<std::string> Personenworte::Partnerstände(const PersonSatz &person) const {
    static constexpr Zweisprachig Mit{"mit %: %", "with %: %"};
    std::vector<std::string> texte;
    for (const int i : bezüge.Partnerschaften(person.Nr())) {
        const std::string &satz = dokument.cboPartnerschaftsLinien.Satz(i);
        const auto daten = Partnerdaten(satz, sprache);
        const std::string wer = RufVon(Andere(PartnerschaftSatz(satz, Lücken::Leer), person.Nr()));
        if (!daten.empty() && !wer.empty()) texte.push_back(Eingesetzt(Mit, sprache, {wer, Verbunden(daten, ", ")}));
    }
    return texte;
}

/// Identical twins have two lines that say the same.
std::vector<std::string> Personenworte::Beziehungen(const PersonSatz &person) const {
    std::vector<std::string> texte;
    for (const int i : bezüge.Beziehungen(person.Nr())) {
        const BeziehungSatz linie(dokument.cboBeziehungsLinien.Satz(i), Lücken::Leer);
        const std::string wer = RufVon(Andere(linie, person.Nr()));
        if (wer.empty()) continue;
        std::string wozu;
        std::string text = Beziehungswort(linie.Beziehungsart(), sprache, &wozu);
        text += ' ' + wozu + ' ' + wer;
        if (std::find(texte.begin(), texte.end(), text) == texte.end()) texte.push_back(std::move(text));
    }
    return texte;
}

std::vector<std::string> Personenworte::Einzelheiten(int position) const {
    static constexpr Zweisprachig Sucht{"Alkohol- oder Drogensucht", "alcohol or drug addiction"};
    static constexpr Zweisprachig Erkrankung{"körperliche oder psychische Erkrankung", "physical or mental illness"};
    static constexpr Zweisprachig Geboren{"geboren %", "born %"};
    if (!Gültig(dokument.cboPersonen, position)) return {};
    const PersonSatz person(dokument.cboPersonen.Satz(position), Lücken::Leer);
    std::vector<std::string> texte{Eltern(person), Zwilling(person)};
    for (auto &stand : Partnerstände(person)) texte.push_back(std::move(stand));
    if (const auto kinder = Kindernamen(person); !kinder.empty()) texte.push_back(Kinderliste(kinder, sprache));
    for (auto &beziehung : Beziehungen(person)) texte.push_back(std::move(beziehung));
    if (IstMensch(Kennzahl(person))) {
        if (person.Sucht()) texte.push_back(Im(Sucht));
        if (person.Erkrankung()) texte.push_back(Im(Erkrankung));
        const auto geboren = Getrimmt(person.Geburtsdatum());
        const bool alter = AlterAusAngabe(geboren).has_value(); // told already
        if (!geboren.empty() && !alter) texte.push_back(Eingesetzt(Geboren, sprache, {geboren}));
    }
    std::erase(texte, std::string());
    return texte;
}

std::vector<std::string> Personenworte::Ausführlich(int position) const {
    static constexpr Zweisprachig Unbekannt{"Alter unbekannt", "age unknown"};
    std::vector<std::string> texte = Einzelheiten(position);
    if (!Gültig(dokument.cboPersonen, position)) return texte;
    const PersonSatz person(dokument.cboPersonen.Satz(position), Lücken::Leer);
    if (IstMensch(Kennzahl(person)) && Lebensalter(person).empty()) texte.push_back(Im(Unbekannt));
    return texte;
}

} // namespace kw
