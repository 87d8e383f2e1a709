#include "layout/Reihen.h"

#include <algorithm>

// What the rows know from the beginning.
namespace kw {

Reihen::Reihen(const Familiengraph &graph, const Gerüst &gerüst, const Gewichte &gewichte)
    : gewichte_(gewichte), anzahl_(static_cast<int>(graph.Personen.size())), zeilen_(Z(gerüst.Zeilen)),
      platz_(Z((gerüst.Zeilen + 1) * anzahl_), -1) {
    for (const Spalte &spalte : gerüst.Spalten) ebene_.push_back(spalte.Ebene);
    DingeSammeln(gerüst);
    VorliebenSammeln(graph, gerüst);
    dazwischen_.assign(dinge_.size(), 0);
}

Reihen::Verzeichnis Reihen::Gepackt(const Folgen &listen) {
    Verzeichnis v;
    v.Anfang.push_back(0);
    for (const std::vector<int> &liste : listen) {
        v.Inhalt.insert(v.Inhalt.end(), liste.begin(), liste.end());
        v.Anfang.push_back(static_cast<int>(v.Inhalt.size()));
    }
    return v;
}

void Reihen::DingeSammeln(const Gerüst &gerüst) {
    Folgen unten(Z(gerüst.Zeilen * anzahl_));
    Folgen oben(unten.size());
    const auto aufnehmen = [&](const Gehänge &g, int zeile) {
        const auto ding = static_cast<int>(dinge_.size());
        const auto erstes = static_cast<int>(kinder_.size());
        kinder_.insert(kinder_.end(), g.Kinder.begin(), g.Kinder.end());
        dinge_.push_back({g.A, g.B, erstes, static_cast<int>(kinder_.size()), zeile, g.Familie < 0, g.Lang});
        unten[Ort(zeile, g.A)].push_back(ding);
        if (g.B != g.A) unten[Ort(zeile, g.B)].push_back(ding);
        for (const int kind : g.Kinder) oben[Ort(zeile + 1, kind)].push_back(ding);
    };
    for (const Gehänge &g : gerüst.Gehängte) aufnehmen(g, gerüst.Balkenzeile[Z(g.Familie)]);
    for (int person = 0; person < anzahl_; person++) {
        const Spalte &spalte = gerüst.Spalten[Z(person)];
        for (int zeile = spalte.Oben; zeile < spalte.Unten; zeile++)
            aufnehmen({-1, person, person, {person}, true}, zeile);
    }
    unten_ = Gepackt(unten);
    oben_ = Gepackt(oben);
}

/// What pairs like, wherever they stand in their row: siblings by age, the man left, what the user drew.
void Reihen::VorliebenSammeln(const Familiengraph &graph, const Gerüst &gerüst) {
    vorliebe_.assign(Z(anzahl_ * anzahl_), 0);
    partner_.assign(vorliebe_.size(), 0);
    for (const Familie &familie : gerüst.Familien) {
        for (std::size_t j = 0; j < familie.Kinder.size(); j++)
            for (std::size_t i = 0; i < j; i++)
                vorliebe_[Ort(familie.Kinder[j], familie.Kinder[i])] += gewichte_.Verkehrt;
        for (const int a : familie.Partner)
            for (const int b : familie.Partner) {
                if (a == b) continue;
                partner_[Ort(a, b)] = 1;
                if (graph.Personen[Z(a)].Art == Geschlecht::Frau && graph.Personen[Z(b)].Art == Geschlecht::Mann)
                    vorliebe_[Ort(a, b)] += gewichte_.FrauLinks;
            }
    }
    for (int a = 0; a < anzahl_; a++)
        for (int b = 0; b < anzahl_; b++) {
            const auto &l = graph.Personen[Z(a)].Gezeichnet;
            const auto &r = graph.Personen[Z(b)].Gezeichnet;
            if (l && r && *l > *r) vorliebe_[Ort(a, b)] += gewichte_.Umgestellt;
        }
}

} // namespace kw
