#include "document/Codepage.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "familytree/Marken.h"
#include "familytree/Paarangaben.h"
#include "familytree/Uebergeber.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kw {

namespace {

constexpr std::string_view Programm = "Kinwright";
constexpr std::string_view Programmkennung = "KINWRIGHT";
constexpr std::string_view Absender = "U1";

/// A symbol that the format knows no sex for, in words for other programs.
struct Symbolwort {
    int Typ;
    std::string_view Geschlecht, Art, Worte;
};
constexpr std::array Symbolworte{
    Symbolwort{TypWeiblichZuMännlich, "M", "Transgender", "female to male"},
    Symbolwort{TypMännlichZuWeiblich, "F", "Transgender", "male to female"},
    Symbolwort{TypDivers, "U", "", "Gender nonconforming"},
};

/// What a couple can be, in the order in which it comes: a later state says nothing against the earlier ones.
struct Stand {
    Paarstatus Status;
    std::string_view Marke, Art;
};
constexpr std::array Stände{
    Stand{Paarstatus::Unverheiratet, "EVEN", "Unmarried"},
    Stand{Paarstatus::Verheiratet, "MARR", ""},
    Stand{Paarstatus::Getrennt, "EVEN", "Separation"},
    Stand{Paarstatus::Geschieden, "DIV", ""},
};

constexpr std::array<std::string_view, 8> Beziehungsworte{"good",   "close",    "fused",           "distant",
                                                          "cutoff", "conflict", "conflict, close", "conflict, fused"};

/// Whether a couple whose state is `status` surely has been in that other one. That it isn't married is said, too: else
/// a reader would have to guess.
bool WarSicher(Paarstatus stand, Paarstatus status) {
    return stand == status || (stand == Paarstatus::Verheiratet && status == Paarstatus::Geschieden);
}

/// "gesch. 1999" at a divorced couple's line isn't "geschätzt".
Datumsangabe Paardatum(Paarstatus stand, std::string_view text, Datumsfolge folge) {
    if (stand == Paarstatus::Geschieden && Kleingeschrieben(text).starts_with("gesch")) return {{}, std::string(text)};
    return PaardatumAlsAngabe(text, folge);
}

} // namespace

void Übergeber::KopfSchreiben() {
    datei_.Satz({}, "HEAD");
    const auto format = [&] {
        datei_.Zeile(1, "GEDC");
        datei_.Zeile(2, "VERS", Fassungsname(datei_.Fassung()));
    };
    if (!datei_.IstAlt()) format();
    datei_.Zeile(1, "SOUR", Programmkennung);
    datei_.Zeile(2, "NAME", Programm);
    if (!datei_.IstAlt()) return;
    datei_.Zeiger(1, "SUBM", Absender);
    format();
    datei_.Zeile(2, "FORM", "LINEAGE-LINKED");
    datei_.Zeile(1, "CHAR", "UTF-8");
    // Somebody must have sent it; who that is isn't the file's business.
    datei_.Satz(Absender, "SUBM");
    datei_.Zeile(1, "NAME", Programm);
}

void Übergeber::PersonSchreiben(const Person &person) {
    const auto satz = Satz(person);
    const int typ = SymbolKennzahl(satz.Symboltyp());
    const bool totgeboren = typ == TypTotgeburtMännlich || typ == TypTotgeburtWeiblich;
    datei_.Satz(person.Kennung, "INDI");
    NameSchreiben(satz);
    GeschlechtSchreiben(typ);
    GeburtSchreiben(satz, totgeboren);
    TodSchreiben(satz, totgeboren);
    GesundheitSchreiben(satz);
    HerkunftSchreiben(person);
    for (const auto familie : person.AlsPartner) datei_.Zeiger(1, "FAMS", familie);
    BeziehungenSchreiben(satz);
}

void Übergeber::NameSchreiben(const PersonSatz &satz) {
    const bool mitStrich =
        satz.Vorname().find('/') != std::string_view::npos || satz.Nachname().find('/') != std::string_view::npos;
    if (mitStrich) Zählen(Übergabeverlust::Namenszeichen);
    const auto vorname = Ersetzt(std::string(Getrimmt(satz.Vorname())), "/", "-");
    const auto nachname = Ersetzt(std::string(Getrimmt(satz.Nachname())), "/", "-");
    if (vorname.empty() && nachname.empty()) return;
    const auto trenner = vorname.empty() ? "/" : " /";
    datei_.Zeile(1, "NAME", nachname.empty() ? vorname : vorname + trenner + nachname + "/");
    if (!vorname.empty()) datei_.Zeile(2, "GIVN", vorname);
    if (!nachname.empty()) datei_.Zeile(2, "SURN", nachname);
}

void Übergeber::GeschlechtSchreiben(int typ) {
    const auto *const wort =
        std::find_if(Symbolworte.begin(), Symbolworte.end(), [&](const Symbolwort &w) { return w.Typ == typ; });
    if (wort == Symbolworte.end()) {
        return datei_.Zeile(1, "SEX", IstMann(typ) ? "M" : IstFrau(typ) ? "F" : "U");
    }
    if (typ == TypDivers && !datei_.IstAlt()) return datei_.Zeile(1, "SEX", "X");
    Zählen(Übergabeverlust::Geschlechter);
    datei_.Zeile(1, "SEX", wort->Geschlecht);
    datei_.Zeile(1, wort->Art.empty() ? "NOTE" : "FACT", wort->Worte);
    if (!wort->Art.empty()) datei_.Zeile(2, "TYPE", wort->Art);
    datei_.Zeile(2, Symbolmarke, std::to_string(typ));
}

/// A date below an event; nothing for none.
void Übergeber::DatumSchreiben(int ebene, const Datumsangabe &datum) {
    if (datum.Worte.empty()) {
        const auto text = datei_.IstAlt() ? Ersetzt(datum.Datum, " BCE", " B.C.") : datum.Datum;
        if (!text.empty()) datei_.Zeile(ebene, "DATE", text);
    } else if (datei_.IstAlt()) {
        datei_.Zeile(ebene, "DATE", "(" + datum.Worte + ")");
    } else {
        datei_.Zeile(ebene, "DATE");
        datei_.Zeile(ebene + 1, "PHRASE", datum.Worte);
    }
}

void Übergeber::GeburtSchreiben(const PersonSatz &satz, bool totgeboren) {
    const auto datum = GeburtAlsAngabe(satz.Geburtsdatum(), uhr_);
    const bool art = totgeboren && !datei_.IstAlt();
    if (!datum.Worte.empty()) Zählen(Übergabeverlust::Geburtsdaten);
    const bool näheres = art || !datum.Datum.empty() || !datum.Worte.empty();
    if (!näheres && !totgeboren) return;
    datei_.Zeile(1, "BIRT", näheres ? "" : "Y");
    if (art) datei_.Zeile(2, "TYPE", "Stillborn");
    DatumSchreiben(2, datum);
}

/// Whether a text is a number of years, of up to three digits, and no date.
bool IstAlter(std::string_view text) {
    constexpr double Höchstes = 999;
    return text.find_first_not_of("0123456789.") == std::string_view::npos && text[0] != '.' &&
           std::count(text.begin(), text.end(), '.') <= 1 && ZahlLesen(text) <= Höchstes;
}

void Übergeber::TodSchreiben(const PersonSatz &satz, bool totgeboren) {
    if (!satz.Verstorben() && !totgeboren) return;
    datei_.Zeile(1, "DEAT", "Y");
    if (totgeboren) {
        datei_.Zeile(2, "AGE", datei_.IstAlt() ? "STILLBORN" : "0d");
        if (!datei_.IstAlt()) datei_.Zeile(3, "PHRASE", "Stillborn");
        return;
    }
    const auto alter = Getrimmt(satz.Sterbealter().substr(1));
    if (alter.empty()) return;
    if (!IstAlter(alter)) {
        const auto datum = GeburtAlsAngabe(alter, uhr_); // the field takes dates too
        if (datum.Datum.empty()) return Zählen(Übergabeverlust::Sterbealter);
        return DatumSchreiben(2, datum);
    }
    const double jahre = ZahlLesen(alter);
    const double ganze = std::floor(jahre);
    const int monate = static_cast<int>(OhneRauschen((jahre - ganze) * 12));
    datei_.Zeile(2, "AGE",
                 std::to_string(static_cast<int>(ganze)) + "y" +
                     (monate > 0 ? " " + std::to_string(monate) + "m" : ""));
}

void Übergeber::GesundheitSchreiben(const PersonSatz &satz) {
    const auto tatsache = [&](bool gilt, Übergabeverlust verlust, std::string_view worte, std::string_view art) {
        if (!gilt) return;
        if (!wünsche_.Gesundheit) return Zählen(verlust);
        datei_.Zeile(1, "FACT", worte);
        datei_.Zeile(2, "TYPE", art);
    };
    tatsache(satz.Sucht(), Übergabeverlust::Suchtzeichen, "Alcohol or drug addiction", "Addiction");
    tatsache(satz.Erkrankung(), Übergabeverlust::Krankheiten, "Physical or mental illness", "Illness");
}

void Übergeber::HerkunftSchreiben(const Person &person) {
    if (person.Eltern.empty()) return;
    const bool adoptiert = person.Kindart == "1", pflegekind = person.Kindart == "2";
    datei_.Zeiger(1, "FAMC", person.Eltern);
    const std::string_view wort = adoptiert ? "adopted" : pflegekind ? "foster" : "";
    if (!wort.empty()) datei_.Zeile(2, "PEDI", datei_.IstAlt() ? std::string(wort) : InGroßbuchstaben(wort));
    if (!adoptiert) return;
    datei_.Zeile(1, "ADOP", "Y");
    datei_.Zeiger(2, "FAMC", person.Eltern);
    datei_.Zeile(3, "ADOP", "BOTH");
}

void Übergeber::VerbindungSchreiben(std::size_t zu, std::string_view worte) {
    datei_.Zeiger(1, "ASSO", personen_[zu].Kennung);
    if (datei_.IstAlt()) return datei_.Zeile(2, "RELA", worte);
    datei_.Zeile(2, "ROLE", "OTHER");
    datei_.Zeile(3, "PHRASE", worte);
}

void Übergeber::BeziehungenSchreiben(const PersonSatz &satz) {
    const auto zwilling = Mitgehender(satz.ZwillingNr());
    if (zwilling != Niemand && (satz.Eineiig() || satz.Zweieiig()))
        VerbindungSchreiben(zwilling, satz.Eineiig() ? "identical twin" : "fraternal twin");
    if (!wünsche_.Beziehungslinien) return;
    for (const int i : bezüge_.Beziehungen(satz.Nr())) {
        const BeziehungSatz linie(dokument_.cboBeziehungsLinien.Satz(i), Lücken::Leer);
        const auto art = static_cast<std::size_t>(std::max(0, Ganzzahl16(ZahlLesen(linie.Beziehungsart()))));
        if (linie.PersNr1() != satz.Nr() || !GehtMit(linie) || art >= Beziehungsworte.size()) continue;
        if (SindEineiige(linie.PersNr1(), linie.PersNr2())) continue;
        VerbindungSchreiben(Mitgehender(linie.PersNr2()), Beziehungsworte[art]);
    }
}

void Übergeber::FamilieSchreiben(const Familie &familie) {
    const PartnerschaftSatz linie(dokument_.cboPartnerschaftsLinien.Satz(familie.Position), Lücken::Leer);
    datei_.Satz(familie.Kennung, "FAM");
    const bool nurFrau =
        familie.Partner.size() == 1 && IstFrau(SymbolKennzahl(Satz(personen_[familie.Partner[0]]).Symboltyp()));
    std::string_view rolle = nurFrau ? "WIFE" : "HUSB";
    for (const auto partner : familie.Partner) {
        datei_.Zeiger(1, rolle, personen_[partner].Kennung);
        rolle = "WIFE";
    }
    for (const auto kind : familie.Kinder) datei_.Zeiger(1, "CHIL", personen_[kind].Kennung);
    StandSchreiben(linie);
}

/// What a couple is and what it was before, with the dates of each. A date of a state that its own doesn't follow
/// would be news to a reader: it stays out.
void Übergeber::StandSchreiben(const PartnerschaftSatz &linie) {
    const Felder daten(linie.Daten(), '#');
    const auto *const jetzt = std::find_if(Stände.begin(), Stände.end(), [&](const Stand &s) {
        return linie.Status() == std::to_string(static_cast<int>(s.Status));
    });
    const bool bekannt = jetzt != Stände.end();
    const auto status = bekannt ? jetzt->Status : Paarstatus::Unverheiratet;
    bool möglich = true;
    for (const auto &stand : Stände) {
        const int feld = static_cast<int>(stand.Status);
        const auto datum = Paardatum(stand.Status, feld < daten.Anzahl() ? daten[feld] : "", uhr_.Folge());
        const bool gesagt = !datum.Datum.empty() || !datum.Worte.empty();
        if (!möglich && gesagt) Zählen(Übergabeverlust::Zwischenstände);
        if (möglich && (gesagt || (bekannt && WarSicher(stand.Status, status)))) {
            datei_.Zeile(1, stand.Marke, gesagt || !stand.Art.empty() ? "" : "Y");
            if (!stand.Art.empty()) datei_.Zeile(2, "TYPE", stand.Art);
            DatumSchreiben(2, datum);
        }
        möglich = möglich && stand.Status != status;
    }
}

} // namespace kw
