#include "familytree/Stammbaumleser.h"

#include "document/Codepage.h"
#include "familytree/Leerraum.h"
#include "familytree/Marken.h"
#include "familytree/Zeichensatz.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <numeric>
#include <set>
#include <utility>

namespace kw {

namespace {

using namespace std::string_view_literals;

/// What can happen to a couple, as far as the page can show it.
constexpr std::array Paarereignisse{"MARR"sv, "DIV"sv,  "ANUL"sv, "ENGA"sv, "DIVF"sv,  "MARB"sv,
                                    "MARC"sv, "MARL"sv, "MARS"sv, "EVEN"sv, "_SEPR"sv, "_SEP"sv};
constexpr std::array Beziehungsmarken{"ASSO"sv, "_ASSO"sv};
/// The head's line that names the person whose tree it is, by the programs that write one.
constexpr std::array Hauptmarken{"_ROOT"sv, "_HME"sv};

/// Bytes that hardly a person of a large file goes below.
constexpr std::size_t SatzlängeMindestens = 400;

template <class Liste> bool Enthält(const Liste &liste, std::string_view text) {
    return std::find(liste.begin(), liste.end(), text) != liste.end();
}

std::string_view Zeilenenden(std::string_view text) {
    if (text.find('\r') == std::string_view::npos) return "LF";
    if (text.find("\r\n") != std::string_view::npos) return "CRLF";
    return text.find("\n\r") != std::string_view::npos ? "LFCR" : "CR";
}

bool IstTotgeburt(const Satz &satz, const Knoten &ereignis) {
    const bool lebensende = ereignis.Marke == "BIRT" || ereignis.Marke == "DEAT";
    if (!lebensende && ereignis.Marke != "EVEN") return false;
    if (lebensende && InGroßbuchstaben(satz.Text(ereignis, "AGE")).starts_with("STILL")) return true;
    const auto worte = std::string(satz.Text(ereignis, "TYPE")).append(ereignis.Wert);
    return InGroßbuchstaben(worte).find("STILLB") != std::string::npos;
}

/// Who is a child of which family, by their places. A family may have a hundred thousand children, and a child as many
/// families: neither list is searched from its start.
class Nennungen {
  public:
    explicit Nennungen(const Stammbaum &baum) : anfänge_(baum.Personen.size() + 1) {
        const auto fürAlle = [&](auto tun) {
            for (std::uint32_t familie = 0; familie < baum.Familien.size(); ++familie)
                for (const auto &kind : baum.Familien[familie].Kinder)
                    if (kind.Nummer != Keine) tun(kind.Nummer, familie);
        };
        fürAlle([&](auto kind, auto) { ++anfänge_[kind + 1]; });
        std::partial_sum(anfänge_.begin(), anfänge_.end(), anfänge_.begin());
        familien_.resize(anfänge_.back());
        auto frei = anfänge_;
        fürAlle([&](auto kind, auto familie) { familien_[frei[kind]++] = familie; });
    }
    bool Nennt(std::uint32_t familie, std::uint32_t kind) const {
        const auto ort = [&](std::uint32_t i) { return familien_.begin() + static_cast<std::ptrdiff_t>(i); };
        return std::binary_search(ort(anfänge_[kind]), ort(anfänge_[kind + 1]), familie);
    }

  private:
    std::vector<std::uint32_t> anfänge_;  ///< where each person's families begin
    std::vector<std::uint32_t> familien_; ///< those that name it, rising
};

} // namespace

Stammbaum StammbaumLesen(std::string bytes) { return Stammbaumleser().Lesen(std::move(bytes)); }

Stammbaum Stammbaumleser::Lesen(std::string bytes) {
    auto datei = Entziffern(std::move(bytes));
    baum_.Kopf.Angesagt = std::move(datei.Angesagt);
    baum_.Kopf.Benutzt = datei.Benutzt;
    baum_.Kopf.Zeilenenden = Zeilenenden(datei.Text);
    baum_.text_ = std::make_unique<std::string>(std::move(datei.Text));
    baum_.personen_.reserve(baum_.text_->size() / SatzlängeMindestens);
    Satzleser leser(*baum_.text_);
    for (Satz satz; leser.Nächster(satz, baum_.Warnliste);) {
        Aufnehmen(satz);
        leser.NurErstesVerdoppelt(baum_.Kopf.IstNeu());
    }
    for (const auto &befund : befunde_.Liste()) baum_.Warnliste.Hinzu(befund);
    Verknüpfen();
    return std::move(baum_);
}

void Stammbaumleser::Aufnehmen(const Satz &satz) {
    const auto marke = satz.Wurzel().Marke;
    if (marke == "INDI") PersonLesen(satz);
    else if (marke == "FAM") FamilieLesen(satz);
    else if (marke == "HEAD" && !std::exchange(kopfGelesen_, true)) KopfLesen(satz);
}

void Stammbaumleser::KopfLesen(const Satz &satz) {
    if (const auto *const format = satz.Erstes(satz.Wurzel(), "GEDC")) baum_.Kopf.Fassung = satz.Text(*format, "VERS");
    baum_.Kopf.Quelle = satz.Text(satz.Wurzel(), "SOUR");
    for (const auto marke : Hauptmarken)
        if (baum_.Kopf.Hauptperson.empty()) baum_.Kopf.Hauptperson = Zeiger(satz.Text(satz.Wurzel(), marke));
}

void Stammbaumleser::DoppelteMelden(const Satz &satz) {
    befunde_.Hinzu({Warnungsart::DoppelteKennung, satz.Ort.Zeile, satz.Wurzel().Kennung, {}});
}

std::string_view Stammbaumleser::Behalten(std::string_view text) {
    const auto *const anfang = baum_.text_->data();
    const std::less_equal<> höchstens;
    const bool bleibt = höchstens(anfang, text.data()) && höchstens(text.data(), anfang + baum_.text_->size());
    return bleibt ? text : baum_.lager_.Aufnehmen(text);
}

std::string_view Stammbaumleser::Glatt(std::string_view text) {
    text = Randlos(text);
    const bool doppelt = !baum_.Kopf.IstNeu() && text.find("@@") != std::string_view::npos;
    if (!doppelt && IstGeglättet(text)) return Behalten(text);
    return baum_.lager_.Aufnehmen(Geglättet(doppelt ? EinfacheKlammeraffen(text) : std::string(text)));
}

std::string_view Stammbaumleser::Klein(std::string_view text) {
    const bool klein = std::all_of(text.begin(), text.end(), [](char c) { return c == ' ' || (c >= 'a' && c <= 'z'); });
    return klein ? Behalten(text) : baum_.lager_.Aufnehmen(Kleingeschrieben(text));
}

Ereignisangabe Stammbaumleser::EreignisLesen(const Satz &satz, std::string_view marke, std::string_view andere) {
    Ereignisangabe ereignis;
    bool datiert = false;
    satz.FürKinder(satz.Wurzel(), [&](const Knoten &knoten) {
        if (datiert || (knoten.Marke != marke && knoten.Marke != andere) || IstNein(knoten.Wert)) return;
        const auto datum = satz.Text(knoten, "DATE");
        datiert = !datum.empty();
        // Doubled "@" are halved twice: some programs double those of calendars that are doubled already.
        if (!datiert) ereignis = "Y";
        else if (datum.find("@@") == std::string_view::npos) ereignis = Glatt(datum);
        else ereignis = Glatt(EinfacheKlammeraffen(datum));
    });
    return ereignis;
}

void Stammbaumleser::PersonLesen(const Satz &satz) {
    const auto nummer = static_cast<std::uint32_t>(baum_.Personen.size());
    if (!baum_.personen_.insert_or_assign(satz.Wurzel().Kennung, nummer).second) DoppelteMelden(satz);
    auto &person = baum_.Personen.emplace_back();
    person.Kennung = satz.Wurzel().Kennung;
    person.Ort = satz.Ort;
    person.Geschlecht = baum_.lager_.Aufnehmen(Großbuchstabe(satz.Text(satz.Wurzel(), "SEX")));
    NamenLesen(satz, person);
    person.Geburt = EreignisLesen(satz, "BIRT");
    person.Tod = EreignisLesen(satz, "DEAT");
    person.Taufe = EreignisLesen(satz, "CHR", "BAPM");
    if (const auto *const tod = satz.Erstes(satz.Wurzel(), "DEAT")) person.Sterbealter = Glatt(satz.Text(*tod, "AGE"));
    satz.FürKinder(satz.Wurzel(), [&](const Knoten &knoten) {
        const bool ende = knoten.Marke == "DEAT" || knoten.Marke == "BURI" || knoten.Marke == "CREM";
        person.Gestorben = person.Gestorben || (ende && !IstNein(knoten.Wert));
        person.Totgeboren = person.Totgeboren || IstTotgeburt(satz, knoten);
    });
    ElternLesen(satz, person);
    KindschaftenSammeln(person);
    BeziehungenLesen(satz);
}

void Stammbaumleser::NamenLesen(const Satz &satz, Stammperson &person) {
    const auto *const name = satz.Erstes(satz.Wurzel(), "NAME");
    if (!name) return;
    // "Given /Surname/ suffix": the suffix stands with the given names.
    const auto vorn = name->Wert.substr(0, name->Wert.find('/'));
    auto rest = name->Wert.substr(std::min(vorn.size() + 1, name->Wert.size()));
    const auto mitte = rest.substr(0, rest.find('/'));
    rest = rest.substr(std::min(mitte.size() + 1, rest.size()));
    person.Vorname = Randlos(rest).empty() ? Glatt(vorn) : Glatt(std::string(vorn).append(" ").append(rest));
    person.Nachname = Glatt(mitte);
    if (person.Vorname.empty()) person.Vorname = Glatt(satz.Text(*name, "GIVN"));
    if (person.Nachname.empty()) person.Nachname = Glatt(satz.Text(*name, "SURN"));
}

void Stammbaumleser::ElternLesen(const Satz &satz, Stammperson &person) {
    satz.FürKinder(satz.Wurzel(), [&](const Knoten &knoten) {
        if (knoten.Marke == "FAMS") {
            if (const auto familie = Zeiger(knoten.Wert); !familie.empty())
                person.Familien.push_back(Behalten(familie));
        } else if (knoten.Marke == "FAMC") {
            const auto familie = Zeiger(knoten.Wert);
            if (familie.empty()) return;
            const auto art = satz.Text(knoten, "PEDI");
            person.Eltern.push_back({Behalten(familie), Klein(art.substr(0, art.find('\n'))), knoten.Zeile});
        } else if (knoten.Marke == "ADOP") {
            const auto *const familie = satz.Erstes(knoten, "FAMC");
            const auto durch = familie ? satz.Text(*familie, "ADOP") : std::string_view();
            person.Adoptionen.push_back({Behalten(Zeiger(satz.Text(knoten, "FAMC"))), Klein(durch), knoten.Zeile});
        }
    });
}

/// What is said of each of the families, once: the last word counts.
void Stammbaumleser::KindschaftenSammeln(Stammperson &person) {
    std::map<std::string_view, std::string_view> kindschaften;
    for (const auto &herkunft : person.Eltern)
        if (!herkunft.Kindschaft.empty()) kindschaften[herkunft.Familie] = herkunft.Kindschaft;
    person.Kindschaften.assign(kindschaften.begin(), kindschaften.end());
}

void Stammbaumleser::BeziehungenLesen(const Satz &satz) {
    const auto von = satz.Wurzel().Kennung;
    const auto aufnehmen = [&](const Knoten &knoten) {
        if (!Enthält(Beziehungsmarken, knoten.Marke)) return;
        const auto art = satz.Text(knoten, "RELA");
        const auto rolle = Glatt(art.empty() ? satz.Text(knoten, "ROLE") : art);
        const auto *const näher = satz.Erstes(knoten, "ROLE");
        const auto worte = näher ? Glatt(satz.Text(*näher, "PHRASE")) : std::string_view();
        baum_.Beziehungen.push_back({von, Behalten(Zeiger(knoten.Wert)), rolle, worte, knoten.Zeile});
    };
    satz.FürKinder(satz.Wurzel(), aufnehmen);
    satz.FürKinder(satz.Wurzel(), [&](const Knoten &ereignis) { satz.FürKinder(ereignis, aufnehmen); });
}

void Stammbaumleser::FamilieLesen(const Satz &satz) {
    const auto nummer = static_cast<std::uint32_t>(baum_.Familien.size());
    if (!baum_.familien_.emplace(satz.Wurzel().Kennung, nummer).second) DoppelteMelden(satz);
    auto &familie = baum_.Familien.emplace_back();
    familie.Kennung = satz.Wurzel().Kennung;
    familie.Ort = satz.Ort;
    familie.Heirat = EreignisLesen(satz, "MARR");
    familie.Scheidung = EreignisLesen(satz, "DIV");
    std::vector<std::string_view> frauen;
    satz.FürKinder(satz.Wurzel(), [&](const Knoten &knoten) {
        const bool mann = knoten.Marke == "HUSB";
        if (mann || knoten.Marke == "WIFE") {
            const auto wer = Zeiger(knoten.Wert);
            if (!wer.empty()) (mann ? familie.Partner : frauen).push_back(Behalten(wer));
        }
        if (Enthält(Paarereignisse, knoten.Marke)) familie.Ereignisse.push_back(knoten.Marke);
        if (knoten.Marke != "MARR" && knoten.Marke != "EVEN") return;
        if (const auto art = satz.Text(knoten, "TYPE"); !art.empty()) familie.Arten.push_back(Glatt(art));
    });
    familie.Männer = familie.Partner.size();
    familie.Partner.insert(familie.Partner.end(), frauen.begin(), frauen.end());
    KinderLesen(satz, familie);
}

void Stammbaumleser::KinderLesen(const Satz &satz, Stammfamilie &familie) {
    std::set<std::string_view> genannt;
    satz.FürKinder(satz.Wurzel(), [&](const Knoten &knoten) {
        if (knoten.Marke != "CHIL") return;
        const auto kind = Behalten(Zeiger(knoten.Wert));
        if (kind.empty()) return;
        if (!genannt.insert(kind).second)
            return befunde_.Hinzu({Warnungsart::KindDoppelt, knoten.Zeile, familie.Kennung, kind});
        familie.Kinder.push_back(
            {kind, Klein(satz.Text(knoten, "_FREL")), Klein(satz.Text(knoten, "_MREL")), knoten.Zeile, Keine});
    });
}

void Stammbaumleser::Verknüpfen() {
    for (auto &familie : baum_.Familien) {
        for (auto &kind : familie.Kinder) {
            const auto *const person = baum_.Person(kind.Kennung);
            if (person) kind.Nummer = static_cast<std::uint32_t>(baum_.Nummer(*person));
            else baum_.Warnliste.Hinzu({Warnungsart::KindFehlt, kind.Zeile, kind.Kennung, {}});
        }
        GleichaltrigeSuchen(familie);
    }
    EinseitigeSuchen();
}

void Stammbaumleser::GleichaltrigeSuchen(Stammfamilie &familie) {
    if (familie.Kinder.size() < 2) return;
    std::map<std::string_view, std::size_t> nummern;
    std::vector<std::vector<std::string_view>> gruppen;
    for (const auto &kind : familie.Kinder) {
        const auto geburt = kind.Nummer == Keine ? Ereignisangabe() : baum_.Personen[kind.Nummer].Geburt;
        if (!IstTagesdatum(geburt)) continue;
        const auto nummer = nummern.emplace(geburt, gruppen.size()).first->second;
        if (nummer == gruppen.size()) gruppen.emplace_back();
        gruppen[nummer].push_back(kind.Kennung);
    }
    std::erase_if(gruppen, [](const auto &gruppe) { return gruppe.size() < 2; });
    familie.Gleichaltrige = std::move(gruppen);
}

void Stammbaumleser::EinseitigeSuchen() {
    const auto nennungen = Nennungen(baum_);
    const bool eindeutig = baum_.personen_.size() == baum_.Personen.size();
    for (const auto &person : baum_.Personen) {
        if (person.Eltern.empty()) continue;
        // Of several persons of one name all are meant.
        const auto nummer =
            eindeutig ? static_cast<std::uint32_t>(baum_.Nummer(person)) : baum_.personen_.at(person.Kennung);
        for (const auto &herkunft : person.Eltern) {
            const auto *const familie = baum_.Familie(herkunft.Familie);
            if (!familie || !nennungen.Nennt(static_cast<std::uint32_t>(baum_.Nummer(*familie)), nummer))
                baum_.Einseitige.push_back({herkunft.Familie, person.Kennung, person.Kindschaft(herkunft.Familie)});
        }
    }
}

} // namespace kw
