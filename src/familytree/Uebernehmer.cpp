#include "familytree/Uebernehmer.h"

#include "familytree/Datumsworte.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

constexpr std::string_view Unbekannt = "?";
constexpr std::size_t Partnerzahl = 2;

std::span<const std::uint32_t> Vordere(std::span<const std::uint32_t> familien) {
    return familien.subspan(0, std::min(familien.size(), GenugEltern));
}

bool Nennt(const Stammfamilie &familie, std::string_view kind) {
    return std::any_of(familie.Kinder.begin(), familie.Kinder.end(),
                       [&](const Stammkind &k) { return k.Kennung == kind; });
}

bool Nennt(const Stammperson &person, std::string_view familie) {
    return std::any_of(person.Eltern.begin(), person.Eltern.end(),
                       [&](const Herkunft &h) { return h.Familie == familie; });
}

bool IstFrau(const Stammfamilie &familie, std::string_view person) {
    const auto ort = std::find(familie.Partner.begin(), familie.Partner.end(), person);
    return ort != familie.Partner.end() && static_cast<std::size_t>(ort - familie.Partner.begin()) >= familie.Männer;
}

} // namespace

Übernahme Übertragen(const Stammbaum &baum, const Verwandtschaft &verwandte, std::span<const std::uint32_t> genommen,
                     const Übernahmeregeln &regeln) {
    return Übernehmer(baum, verwandte, regeln).Tun(genommen);
}

Übernahme Übernehmer::Tun(std::span<const std::uint32_t> genommen) {
    for (const auto quelle : genommen)
        if (Ort(quelle) == Keine) VerweisePrüfen(baum_.Personen[ergebnis_.Personen[Nehmen(quelle)].Quelle]);
    FamilienSammeln();
    elternfamilie_.assign(ergebnis_.Personen.size(), Keine);
    for (std::uint32_t i = 0; i < elternfamilie_.size(); ++i) ElternWählen(i);
    for (const auto familie : familien_) PaarAnlegen(familie);
    StatusMelden();
    KreiseLösen();
    AngegebeneZwillinge();
    for (const auto familie : familien_) GleichaltrigeZwillinge(familie);
    return std::move(ergebnis_);
}

std::uint32_t Übernehmer::Ort(std::uint32_t quelle) const {
    const auto ort = orte_.find(quelle);
    return ort == orte_.end() ? Keine : ort->second;
}

Familienrolle Übernehmer::Rolle(std::uint32_t quelle) const {
    const auto familien = verwandte_.AlsPartner(quelle);
    if (familien.empty()) return {};
    const auto &familie = baum_.Familien[familien.front()];
    const auto kennung = baum_.Personen[quelle].Kennung;
    const bool genannt = std::find(familie.Partner.begin(), familie.Partner.end(), kennung) != familie.Partner.end();
    return {!genannt ? "" : IstFrau(familie, kennung) ? "WIFE" : "HUSB", true};
}

std::uint32_t Übernehmer::Nehmen(std::uint32_t quelle) {
    const auto nummer = static_cast<std::uint32_t>(ergebnis_.Personen.size());
    orte_.emplace(quelle, nummer);
    const auto &person = baum_.Personen[quelle];
    Übernahmeperson neu;
    neu.Quelle = quelle;
    neu.Angaben = PersonÜbertragen(baum_, person, Rolle(quelle), regeln_, ergebnis_.Bericht);
    if (!neu.Angaben.Geburtsdatum.empty()) neu.Geboren = StammdatumLesen(person.Geburt).Erstes;
    ergebnis_.Personen.push_back(std::move(neu));
    return nummer;
}

std::uint32_t Übernehmer::Unbekannter(bool mann) {
    Übernahmeperson neu;
    neu.Angaben.Symboltyp = mann ? TypMännlich : TypWeiblich;
    neu.Angaben.Vorname = Unbekannt;
    ergebnis_.Personen.push_back(std::move(neu));
    return static_cast<std::uint32_t>(ergebnis_.Personen.size() - 1);
}

void Übernehmer::VerweisePrüfen(const Stammperson &person) {
    const auto melden = [&](std::string_view kennung) {
        ergebnis_.Bericht.Hinzu(Befundart::Unverbunden, person.Ort.Zeile, Anzeigename(person), kennung);
    };
    for (const auto &herkunft : person.Eltern)
        if (!baum_.Familie(herkunft.Familie)) melden(herkunft.Familie);
    for (const auto familie : person.Familien)
        if (!baum_.Familie(familie)) melden(familie);
}

void Übernehmer::FamilienSammeln() {
    for (const auto &person : ergebnis_.Personen)
        for (const auto familien : {verwandte_.AlsKind(person.Quelle), verwandte_.AlsPartner(person.Quelle)})
            familien_.insert(familien_.end(), familien.begin(), familien.end());
    std::sort(familien_.begin(), familien_.end());
    familien_.erase(std::unique(familien_.begin(), familien_.end()), familien_.end());
}

std::span<const std::uint32_t> Übernehmer::Paarpartner(std::uint32_t familie) const {
    const auto alle = verwandte_.Partner(familie);
    return alle.subspan(0, std::min(alle.size(), Partnerzahl));
}

/// A family that a person can be a child of: a partner is taken, or the file knows none.
bool Übernehmer::IstBrauchbar(std::uint32_t familie) const {
    const auto partner = Paarpartner(familie);
    return partner.empty() || std::any_of(partner.begin(), partner.end(), [&](auto p) { return Ort(p) != Keine; });
}

void Übernehmer::ElternWählen(std::uint32_t person) {
    const auto quelle = ergebnis_.Personen[person].Quelle;
    const auto &stammperson = baum_.Personen[quelle];
    std::uint32_t gewählt = Keine;
    int bester = 0;
    for (const auto familie : Vordere(verwandte_.AlsKind(quelle))) {
        if (!IstBrauchbar(familie)) continue;
        const int vorrang = Elternvorrang(stammperson, baum_.Familien[familie], regeln_.AdoptionVorGeburt);
        if (gewählt != Keine && vorrang >= bester) continue;
        gewählt = familie;
        bester = vorrang;
    }
    if (gewählt == Keine) return;
    elternfamilie_[person] = gewählt;
    ergebnis_.Personen[person].Kindart = Kindart(stammperson, baum_.Familien[gewählt], &ergebnis_.Bericht);
    ElternMelden(stammperson, gewählt, bester);
}

void Übernehmer::ElternMelden(const Stammperson &person, std::uint32_t gewählt, int vorrang) {
    const auto &familie = baum_.Familien[gewählt];
    const auto melden = [&](Befundart art, std::string_view text) {
        ergebnis_.Bericht.Hinzu(art, person.Ort.Zeile, Anzeigename(person), text);
    };
    if (!Nennt(familie, person.Kennung) || !Nennt(person, familie.Kennung))
        melden(Befundart::NurEineSeite, familie.Kennung);
    const auto alle = verwandte_.AlsKind(static_cast<std::uint32_t>(baum_.Nummer(person)));
    for (const auto andere : alle)
        if (andere != gewählt) melden(Befundart::WeitereEltern, Paarname(andere));
    const auto gleichNah = [&](std::uint32_t andere) {
        return andere != gewählt && IstBrauchbar(andere) &&
               Elternvorrang(person, baum_.Familien[andere], regeln_.AdoptionVorGeburt) == vorrang;
    };
    const auto vordere = Vordere(alle);
    if (std::any_of(vordere.begin(), vordere.end(), gleichNah)) melden(Befundart::ElternGewählt, Paarname(gewählt));
}

void Übernehmer::StatusMelden() {
    for (std::size_t i = 0; i < ergebnis_.Paare.size(); ++i) {
        const auto &paar = ergebnis_.Paare[i];
        if (!paar.Angaben.Angenommen) continue;
        const auto &personen = ergebnis_.Personen;
        const auto name = [&](std::uint32_t p) {
            return personen[p].Quelle == Keine ? std::string(Unbekannt)
                                               : Anzeigename(baum_.Personen[personen[p].Quelle]);
        };
        ergebnis_.Bericht.Hinzu(Befundart::StatusAngenommen, paarzeilen_[i],
                                name(paar.Erster) + " + " + name(paar.Zweiter));
    }
}

void Übernehmer::ElternLösen(std::uint32_t person) {
    auto &wer = ergebnis_.Personen[person];
    std::erase(ergebnis_.Paare[wer.Paar].Kinder, person);
    wer.Paar = Keine;
    wer.Kindart = 0;
    const auto &quelle = baum_.Personen[wer.Quelle];
    ergebnis_.Bericht.Hinzu(Befundart::KreisGelöst, quelle.Ort.Zeile, Anzeigename(quelle));
}

/// Goes from each person up to the ancestors, without recursion; who meets somebody on the way up there loses the
/// parents that lead back.
void Übernehmer::KreiseLösen() {
    enum class Stand : std::uint8_t { Neu, Unterwegs, Fertig };
    struct Schritt {
        std::uint32_t Person;
        int Elternteil = 0; ///< the next one to look at
    };
    std::vector<Stand> stand(ergebnis_.Personen.size(), Stand::Neu);
    std::vector<Schritt> weg;
    for (std::uint32_t anfang = 0; anfang < stand.size(); ++anfang) {
        if (stand[anfang] != Stand::Neu) continue;
        stand[anfang] = Stand::Unterwegs;
        weg.push_back({anfang, 0});
        while (!weg.empty()) {
            auto &schritt = weg.back();
            const auto paar = ergebnis_.Personen[schritt.Person].Paar;
            if (paar == Keine || schritt.Elternteil == Partnerzahl) {
                stand[schritt.Person] = Stand::Fertig;
                weg.pop_back();
                continue;
            }
            const auto &eltern = ergebnis_.Paare[paar];
            const auto elternteil = schritt.Elternteil++ == 0 ? eltern.Erster : eltern.Zweiter;
            if (stand[elternteil] == Stand::Unterwegs) {
                ElternLösen(schritt.Person);
            } else if (stand[elternteil] == Stand::Neu) {
                stand[elternteil] = Stand::Unterwegs;
                weg.push_back({elternteil, 0});
            }
        }
    }
}

} // namespace kw
