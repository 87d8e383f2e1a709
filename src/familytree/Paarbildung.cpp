#include "familytree/Uebernehmer.h"

#include <algorithm>

namespace kw {

namespace {

bool IstMann(const Stammbaum &baum, std::uint32_t familie, std::uint32_t person) {
    const auto &fam = baum.Familien[familie];
    const auto ende = fam.Partner.begin() + static_cast<std::ptrdiff_t>(fam.Männer);
    return std::find(fam.Partner.begin(), ende, baum.Personen[person].Kennung) != ende;
}

} // namespace

std::string Übernehmer::Paarname(std::uint32_t familie) const {
    std::string name;
    for (const auto partner : Paarpartner(familie)) {
        if (!name.empty()) name += " + ";
        name += Anzeigename(baum_.Personen[partner]);
    }
    const auto kennung = baum_.Familien[familie].Kennung;
    if (name.empty()) return std::string(kennung);
    return kennung.empty() ? name : name + " (" + std::string(kennung) + ")";
}

bool Übernehmer::NenntFamilie(std::uint32_t person, std::string_view familie) {
    auto &genannte = genannteFamilien_[person];
    const auto &familien = baum_.Personen[person].Familien;
    if (genannte.empty()) genannte.insert(familien.begin(), familien.end());
    return genannte.contains(familie);
}

void Übernehmer::PartnerMelden(std::uint32_t familie, std::string_view wer) {
    const auto &fam = baum_.Familien[familie];
    const auto melden = [&](Befundart art, std::string_view text) {
        ergebnis_.Bericht.Hinzu(art, fam.Ort.Zeile, wer, text);
    };
    for (const auto kennung : fam.Partner)
        if (!baum_.Person(kennung)) melden(Befundart::Unverbunden, kennung);
    const std::set<std::string_view> genannte(fam.Partner.begin(), fam.Partner.end());
    const auto alle = verwandte_.Partner(familie);
    for (std::size_t i = 0; i < alle.size(); ++i) {
        const auto &person = baum_.Personen[alle[i]];
        if (i >= Paarpartner(familie).size()) melden(Befundart::PartnerWeggelassen, Anzeigename(person));
        if (!genannte.contains(person.Kennung) || !NenntFamilie(alle[i], fam.Kennung))
            melden(Befundart::NurEineSeite, Anzeigename(person));
    }
}

/// The two of a couple, by their places; both `Keine` where the family makes none.
std::pair<std::uint32_t, std::uint32_t> Übernehmer::Partner(std::uint32_t familie, bool hatKinder) {
    constexpr std::pair Niemand{Keine, Keine};
    const auto bekannte = Paarpartner(familie);
    const auto zeile = baum_.Familien[familie].Ort.Zeile;
    const auto dazu = [&](std::uint32_t quelle) {
        const auto ort = Ort(quelle);
        if (ort != Keine) return ort;
        const auto neu = Nehmen(quelle);
        ergebnis_.Bericht.Hinzu(Befundart::PartnerDazu, zeile, Anzeigename(baum_.Personen[quelle]));
        return neu;
    };
    const auto ergänzt = [&](bool mann) {
        ergebnis_.Bericht.Hinzu(Befundart::PartnerErgänzt, zeile, Paarname(familie));
        return Unbekannter(mann);
    };
    const auto genommen = std::count_if(bekannte.begin(), bekannte.end(), [&](auto p) { return Ort(p) != Keine; });
    if (!hatKinder && genommen < 2) return Niemand;
    if (bekannte.empty()) {
        const auto vater = ergänzt(true);
        return {vater, ergänzt(false)};
    }
    if (bekannte.size() == 2) {
        const auto erster = dazu(bekannte[0]);
        return {erster, dazu(bekannte[1])};
    }
    const bool mann = IstMann(baum_, familie, bekannte[0]);
    const auto bekannter = dazu(bekannte[0]), unbekannter = ergänzt(!mann);
    return mann ? std::pair(bekannter, unbekannter) : std::pair(unbekannter, bekannter);
}

Übernahmepaar &Übernehmer::Paar(std::uint32_t erster, std::uint32_t zweiter, std::uint32_t familie) {
    const auto &fam = baum_.Familien[familie];
    const auto wer = Paarname(familie);
    PartnerMelden(familie, wer);
    auto angaben = PaarÜbertragen(baum_, fam, wer, regeln_, ergebnis_.Bericht);
    const auto [stelle, neu] = paare_.emplace(std::minmax(erster, zweiter), ergebnis_.Paare.size());
    if (neu) {
        paarzeilen_.push_back(fam.Ort.Zeile);
        ergebnis_.Paare.push_back({erster, zweiter, std::move(angaben), {}});
        return ergebnis_.Paare.back();
    }
    auto &paar = ergebnis_.Paare[stelle->second];
    ergebnis_.Bericht.Hinzu(Befundart::PaarZusammengelegt, fam.Ort.Zeile, wer);
    const bool uneins = angaben.Status != paar.Angaben.Status && !angaben.Angenommen && !paar.Angaben.Angenommen;
    if (uneins) ergebnis_.Bericht.Hinzu(Befundart::StatusGewählt, fam.Ort.Zeile, wer);
    paar.Angaben = Vereint(paar.Angaben, angaben);
    return paar;
}

void Übernehmer::PaarAnlegen(std::uint32_t familie) {
    std::vector<std::uint32_t> kinder;
    for (const auto quelle : verwandte_.Kinder(familie)) {
        const auto ort = Ort(quelle);
        if (ort < elternfamilie_.size() && elternfamilie_[ort] == familie) kinder.push_back(ort);
    }
    const auto [erster, zweiter] = Partner(familie, !kinder.empty());
    if (erster == Keine) {
        const auto bekannte = Paarpartner(familie);
        const bool allein = bekannte.size() == 1 && Ort(bekannte[0]) != Keine;
        if (!allein) return;
        const auto &fam = baum_.Familien[familie];
        ergebnis_.Bericht.Hinzu(Befundart::PaarWeggelassen, fam.Ort.Zeile, Paarname(familie));
        return;
    }
    auto &paar = Paar(erster, zweiter, familie);
    const auto nummer = static_cast<std::uint32_t>(&paar - ergebnis_.Paare.data());
    for (const auto kind : kinder) ergebnis_.Personen[kind].Paar = nummer;
    paar.Kinder.insert(paar.Kinder.end(), kinder.begin(), kinder.end());
}

} // namespace kw
