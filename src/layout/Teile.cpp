#include "layout/Teile.h"

#include "layout/Orte.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kw {

namespace {

/// The lowest number of each one's part.
std::vector<int> Zugehörigkeit(std::size_t anzahl, const std::vector<Familie> &familien) {
    std::vector<int> zu(anzahl);
    for (std::size_t i = 0; i < anzahl; i++) zu[i] = static_cast<int>(i);
    const auto wurzel = [&](int i) {
        while (zu[Z(i)] != i) i = zu[Z(i)] = zu[Z(zu[Z(i)])];
        return i;
    };
    for (const Familie &familie : familien) {
        int erster = -1;
        for (const auto *mitglieder : {&familie.Partner, &familie.Kinder})
            for (const int person : *mitglieder) {
                const int a = wurzel(erster < 0 ? person : erster);
                const int b = wurzel(person);
                zu[Z(std::max(a, b))] = std::min(a, b);
                erster = std::min(a, b);
            }
    }
    for (std::size_t i = 0; i < anzahl; i++) zu[i] = wurzel(static_cast<int>(i));
    return zu;
}

double Gezeichnet(const Teil &teil) {
    double x = std::numeric_limits<double>::infinity();
    for (const Familienperson &person : teil.Graph.Personen) x = std::min(x, person.Gezeichnet.value_or(x));
    return x;
}

} // namespace

std::vector<Teil> TeileFinden(const Familiengraph &graph, const std::vector<Familie> &familien,
                              const std::vector<int> &ebenen) {
    const std::vector<int> zu = Zugehörigkeit(graph.Personen.size(), familien);
    std::vector<int> größe(zu.size(), 0);
    for (const int teil : zu) größe[Z(teil)]++;
    for (const Familie &familie : familien) // one alone can have a bar too
        for (const int partner : familie.Partner) größe[Z(zu[Z(partner)])]++;
    std::vector<Teil> teile;
    std::vector<int> teilVon(zu.size(), -1);
    std::vector<int> neu(zu.size(), -1);
    bool fest = false;
    for (std::size_t i = 0; i < zu.size(); i++) {
        fest |= graph.Personen[i].Ebene.has_value();
        if (größe[Z(zu[i])] == 1 && !graph.Personen[i].Ebene) continue;
        if (teilVon[Z(zu[i])] < 0) {
            teilVon[Z(zu[i])] = static_cast<int>(teile.size());
            teile.emplace_back();
        }
        Teil &teil = teile[Z(teilVon[Z(zu[i])])];
        neu[i] = static_cast<int>(teil.Personen.size());
        teil.Personen.push_back(static_cast<int>(i));
        teil.Graph.Personen.push_back(graph.Personen[i]);
        teil.Ebenen.push_back(ebenen[i]);
    }
    for (std::size_t f = 0; f < familien.size(); f++) {
        const Familie &familie = familien[f];
        const auto &wer = familie.Partner.empty() ? familie.Kinder : familie.Partner;
        if (wer.empty() || neu[Z(wer[0])] < 0) continue;
        Teil &teil = teile[Z(teilVon[Z(zu[Z(wer[0])])])];
        teil.Familien.push_back(static_cast<int>(f));
        Familie eigene = familie;
        for (int &person : eigene.Partner) person = neu[Z(person)];
        for (int &person : eigene.Kinder) person = neu[Z(person)];
        for (std::vector<int> &gruppe : eigene.Zwillinge)
            for (int &person : gruppe) person = neu[Z(person)];
        teil.Graph.Familien.push_back(std::move(eigene));
    }
    for (Teil &teil : teile) {
        const int oberste = *std::min_element(teil.Ebenen.begin(), teil.Ebenen.end());
        for (int &ebene : teil.Ebenen) ebene -= oberste;
        teil.Oberste = fest ? oberste : 0;
    }
    std::stable_sort(teile.begin(), teile.end(),
                     [](const Teil &a, const Teil &b) { return Gezeichnet(a) < Gezeichnet(b); });
    return teile;
}

Nebeneinander::Nebeneinander(const Familiengraph &graph, const Abstände &abstände, const std::vector<Teil> &teile)
    : graph_(graph), abstände_(abstände), vergeben_(graph.Personen.size(), 0) {
    for (const Teil &teil : teile)
        zeilen_ = std::max(zeilen_, teil.Oberste + 1 + *std::max_element(teil.Ebenen.begin(), teil.Ebenen.end()));
}

/// From the rightmost centre so far to one whose label needs that much to its left, on the raster.
std::int64_t Nebeneinander::Abstand(double links) const {
    if (leer_) return 0;
    const std::int64_t schritt = std::max<std::int64_t>(Tausendstel(abstände_.Raster), 1);
    const std::int64_t weite = Tausendstel(std::max(abstände_.Personen, label_ + links + abstände_.Namensluft));
    return (weite + schritt - 1) / schritt * schritt;
}

Punkt Nebeneinander::Platz(const Teil &teil, const Lageplan &plan) {
    double links = 0;
    double rechts = 0;
    std::int64_t breite = 0;
    for (std::size_t i = 0; i < teil.Personen.size(); i++) {
        const Familienperson &person = teil.Graph.Personen[i];
        links = std::max(links, person.BreiteLinks);
        rechts = std::max(rechts, person.BreiteRechts);
        breite = std::max(breite, plan.Personen[i].X);
        vergeben_[Z(teil.Personen[i])] = 1;
    }
    const bool behält = HabenPlatz(teil.Graph);
    const Punkt hier =
        behält ? Punkt{} : Punkt{rechts_ + Abstand(links), teil.Oberste * Tausendstel(abstände_.Generationen)};
    rechts_ = behält ? std::max(rechts_, breite) : hier.X + breite;
    label_ = rechts;
    leer_ = false;
    return hier;
}

/// As many below each other as there are rows; where there are none, about as many as side by side.
void Nebeneinander::EinzelneSetzen(std::vector<Punkt> &personen) {
    std::vector<int> einzelne;
    for (std::size_t i = 0; i < vergeben_.size(); i++)
        if (const auto &platz = graph_.Personen[i].Platz; !vergeben_[i] && platz)
            personen[i] = {Tausendstel(platz->X), Tausendstel(platz->Y)};
        else if (!vergeben_[i]) einzelne.push_back(static_cast<int>(i));
    int zeilen = zeilen_;
    while (zeilen == 0 || (zeilen_ == 0 && Z(zeilen * zeilen) < einzelne.size())) zeilen++;
    for (std::size_t i = 0; i < einzelne.size(); i += Z(zeilen)) {
        double links = 0;
        double rechts = 0;
        const std::size_t ende = std::min(i + Z(zeilen), einzelne.size());
        for (std::size_t j = i; j < ende; j++) {
            links = std::max(links, graph_.Personen[Z(einzelne[j])].BreiteLinks);
            rechts = std::max(rechts, graph_.Personen[Z(einzelne[j])].BreiteRechts);
        }
        rechts_ += Abstand(links);
        for (std::size_t j = i; j < ende; j++)
            personen[Z(einzelne[j])] = {rechts_,
                                        static_cast<std::int64_t>(j - i) * Tausendstel(abstände_.Generationen)};
        label_ = rechts;
        leer_ = false;
    }
}

} // namespace kw
