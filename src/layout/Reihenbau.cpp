#include "layout/Reihen.h"

// What the rows know from the beginning.
namespace kw {

Reihen::Reihen(const Familiengraph &graph, const Gerüst &gerüst, const Gewichte &gewichte)
    : gewichte_(gewichte), zeilen_(Z(gerüst.Zeilen)) {
    Wissen w;
    w.Anzahl = static_cast<int>(graph.Personen.size());
    for (const Spalte &spalte : gerüst.Spalten) w.Ebene.push_back(spalte.Ebene);
    DingeSammeln(gerüst, w);
    VorliebenSammeln(graph, gerüst, gewichte, w);
    platz_.assign(Z((gerüst.Zeilen + 1) * w.Anzahl), -1);
    verdreht_.assign(w.Paare, 0);
    dazwischen_.assign(w.Dinge.size(), 0);
    wissen_ = std::make_shared<const Wissen>(std::move(w));
}

void Reihen::DingeSammeln(const Gerüst &gerüst, Wissen &w) {
    Folgen unten(Z(gerüst.Zeilen * w.Anzahl));
    Folgen oben(unten.size());
    std::vector<std::vector<Band>> bande(unten.size());
    std::vector<int> breite(Z(gerüst.Zeilen + 1), 0);
    for (const Spalte &spalte : gerüst.Spalten)
        for (int zeile = spalte.Oben; zeile <= spalte.Unten; zeile++) breite[Z(zeile)]++;
    const auto aufnehmen = [&](Art was, const Gehänge &g, int zeile) {
        const auto ding = static_cast<int>(w.Dinge.size());
        Ding d{was, g.Lang, zeile, g.A, g.B, zeile * w.Anzahl + g.A, zeile * w.Anzahl + g.B};
        d.Versatz = breite[Z(zeile)] - breite[Z(zeile + 1)];
        d.Erstes = static_cast<int>(w.Kinder.size());
        for (const int kind : g.Kinder) {
            w.Kinder.push_back(kind);
            w.Kinderorte.push_back((zeile + 1) * w.Anzahl + kind);
            oben[Z(w.Kinderorte.back())].push_back(ding);
        }
        d.Ende = static_cast<int>(w.Kinder.size());
        unten[Z(d.OrtA)].push_back(ding);
        if (d.A != d.B) {
            unten[Z(d.OrtB)].push_back(ding);
            bande[Z(d.OrtA)].push_back({ding, d.OrtB});
            bande[Z(d.OrtB)].push_back({ding, d.OrtA});
        }
        w.Dinge.push_back(d);
    };
    for (const Gehänge &g : gerüst.Gehängte) aufnehmen(Art::Familie, g, gerüst.Balkenzeile[Z(g.Familie)]);
    for (int person = 0; person < w.Anzahl; person++) {
        const Spalte &spalte = gerüst.Spalten[Z(person)];
        for (int zeile = spalte.Oben; zeile < spalte.Unten; zeile++)
            aufnehmen(Art::Linie, {-1, person, person, {person}, true}, zeile);
    }
    for (const Familie &familie : gerüst.Familien)
        for (const std::vector<int> &gruppe : familie.Zwillinge)
            for (std::size_t i = 1; i < gruppe.size(); i++)
                if (w.Ebene[Z(gruppe[i])] == w.Ebene[Z(gruppe[i - 1])])
                    aufnehmen(Art::Zwillinge, {-1, gruppe[i - 1], gruppe[i], {}}, w.Ebene[Z(gruppe[i])]);
    w.Unten = Verzeichnis(unten);
    w.Oben = Verzeichnis(oben);
    w.Bande = Verzeichnis(bande);
    std::vector<std::size_t> anzahl(Z(gerüst.Zeilen), 0);
    for (Ding &d : w.Dinge) d.Nummer = anzahl[Z(d.Zeile)]++;
    for (Ding &d : w.Dinge) {
        d.Paare = w.Paare;
        w.Paare += anzahl[Z(d.Zeile)];
    }
}

/// What pairs like, wherever they stand in their row: siblings by age and the man left, or what the user drew.
void Reihen::VorliebenSammeln(const Familiengraph &graph, const Gerüst &gerüst, const Gewichte &g, Wissen &w) {
    const auto ort = [&](int a, int b) { return Z(a * w.Anzahl + b); };
    const auto person = [&](int a) -> const Familienperson & { return graph.Personen[Z(a)]; };
    const auto gezeichnet = [&](int a, int b) { return person(a).Gezeichnet && person(b).Gezeichnet; };
    w.Vorzüge.assign(ort(w.Anzahl, 0), {});
    w.Partner.assign(w.Vorzüge.size(), 0);
    const auto verkehrt = [&](int links, int rechts) {
        w.Vorzüge[ort(links, rechts)].Verkehrt++;
        w.Vorzüge[ort(rechts, links)].Verkehrt--;
    };
    const auto kostet = [&](int links, int rechts, int kosten) {
        w.Vorzüge[ort(links, rechts)].Kosten += kosten;
        w.Vorzüge[ort(rechts, links)].Kosten -= kosten;
    };
    int paare = 0;
    for (const Familie &familie : gerüst.Familien) {
        for (std::size_t j = 1; j < familie.Kinder.size(); j++)
            for (std::size_t i = 0; i < j; i++) {
                if (gezeichnet(familie.Kinder[i], familie.Kinder[j])) continue;
                verkehrt(familie.Kinder[j], familie.Kinder[i]);
                paare++;
            }
        for (const int a : familie.Partner)
            for (const int b : familie.Partner) {
                if (a == b) continue;
                w.Partner[ort(a, b)] = 1;
                if (person(a).Art == Geschlecht::Frau && person(b).Art == Geschlecht::Mann && !gezeichnet(a, b))
                    kostet(a, b, g.FrauLinks);
            }
    }
    w.Wenige = (paare * g.Wenige + 999) / 1000;
    for (int a = 0; a < w.Anzahl; a++)
        for (int b = 0; b < w.Anzahl; b++)
            if (gezeichnet(a, b) && *person(a).Gezeichnet > *person(b).Gezeichnet) kostet(a, b, g.Umgestellt);
    for (const Ding &d : w.Dinge)
        for (int p = 0; p < w.Anzahl; p++) {
            const bool eigen = d.A == d.B || d.A == p || d.B == p;
            const bool partner = w.Partner[ort(d.A, p)] || w.Partner[ort(d.B, p)];
            w.Fremd.push_back(!eigen && (!partner || d.Was == Art::Zwillinge) ? 1 : 0);
        }
}

} // namespace kw
