#include "layout/Reihen.h"

#include <algorithm>
#include <cstdlib>

namespace kw {

namespace {

bool Enthält(std::span<const int> liste, int zahl) {
    return std::find(liste.begin(), liste.end(), zahl) != liste.end();
}

} // namespace

void Reihen::Setzen(const Folgen &zeilen) {
    zeilen_ = zeilen;
    for (std::size_t z = 0; z < zeilen.size(); z++)
        for (std::size_t i = 0; i < zeilen[z].size(); i++)
            platz_[Ort(static_cast<int>(z), zeilen[z][i])] = static_cast<int>(i);
    kosten_ = Neuberechnet();
    Behalten();
}

std::int64_t Reihen::Neuberechnet() {
    const auto dinge = static_cast<int>(wissen_->Dinge.size());
    std::int64_t summe = 0;
    std::fill(dazwischen_.begin(), dazwischen_.end(), 0);
    getrennt_ = 0;
    for (int i = 0; i < dinge; i++) {
        summe += Einzelkosten(i);
        for (int j = 0; j < i; j++) {
            const Ding &f = Das(i);
            const Ding &g = Das(j);
            if (f.Zeile != g.Zeile) continue;
            Verdreht(i, j) = Verdreht(j, i) = 0;
            for (const int k : Kinder(f))
                for (const int l : Kinder(g))
                    if (k != l)
                        (Platz(f.Zeile + 1, k) > Platz(f.Zeile + 1, l) ? Verdreht(i, j) : Verdreht(j, i)) +=
                            Linienkosten(f, k, g, l);
            summe += Paarkosten(i, j);
        }
    }
    verkehrt_ = 0;
    for (int z = 0; z < Anzahl(); z++)
        for (std::size_t i = 0; i < Zeile(z).size(); i++) {
            summe += Beinkosten(z, Zeile(z)[i]);
            for (std::size_t j = 0; j < i; j++) {
                const Vorzug &v = wissen_->Vorzüge[Ort(Zeile(z)[j], Zeile(z)[i])];
                summe += std::max(v.Kosten, 0);
                verkehrt_ += std::max(v.Verkehrt, 0);
            }
        }
    return summe + Verkehrtkosten(verkehrt_);
}

int Reihen::Einzelkosten(int ding) {
    const Ding &d = Das(ding);
    int summe = 0;
    for (int k = d.Erstes; k < d.Ende; k++) summe += std::abs(Weite(d, wissen_->Kinderorte[Z(k)])) * gewichte_.Weite;
    return summe + DazwischenGelten(ding, Dazwischen(ding));
}

Reihen::Spanne Reihen::SpanneVon(const Ding &d) const {
    const int a = platz_[Z(d.OrtA)];
    const int b = platz_[Z(d.OrtB)];
    return {std::min(a, b), std::max(a, b)};
}

/// What it costs that two child lines cross.
int Reihen::Linienkosten(const Ding &f, int kindF, const Ding &g, int kindG) const {
    if (!f.Lang || !g.Lang) return gewichte_.Kreuzung;
    const bool aufrechtF = f.Was == Art::Linie || wissen_->Ebene[Z(kindF)] > f.Zeile + 1;
    const bool aufrechtG = g.Was == Art::Linie || wissen_->Ebene[Z(kindG)] > g.Zeile + 1;
    return aufrechtF && aufrechtG ? gewichte_.Verschränkt : gewichte_.Kreuzung;
}

/// How many times dearer child lines cross where two bars touch at a partner of both couples: who stands on the other
/// couple's side there is read as their child.
int Reihen::Verwechselbar(const Ding &links, const Spanne &a, const Ding &rechts, const Spanne &b) const {
    return a.R == b.L && links.A != links.B && rechts.A != rechts.B ? gewichte_.Verwechselt : 1;
}

/// One hangs within the other's span: either the outer bar lies higher, then it crosses the inner one's legs, and its
/// children get round the inner ones or through their bar; or lower, then the inner one's children cross it.
int Reihen::Ineinander(const Ding &außen, const Ding &innen) const {
    const int *platz = platz_.data() + Ort(außen.Zeile + 1, 0);
    int höher = innen.A == innen.B ? 1 : 2;
    for (const int k : Kinder(außen)) {
        int links = 0;
        int rechts = 0;
        for (const int l : Kinder(innen)) (platz[l] < platz[k] ? links : rechts)++;
        höher += std::min({links, rechts, 1});
    }
    return std::min(höher, innen.Ende - innen.Erstes);
}

/// Crossings of all lines of two that hang below one row, between those places.
int Reihen::Paarkosten(int i, int j, const Spanne &a, const Spanne &b) const {
    if (a.L > b.L || (a.L == b.L && (a.R > b.R || (a.R == b.R && i > j)))) return Paarkosten(j, i, b, a);
    if (a.L == b.R) return 0; // both hang on one point
    const Ding &f = Das(i);
    const Ding &g = Das(j);
    if (a.R <= b.L) return Verdreht(i, j) * Verwechselbar(f, a, g, b);
    const int kreuzung = gewichte_.Kreuzung;
    if (f.Was == Art::Zwillinge || g.Was == Art::Zwillinge) return 0;
    if (g.Was == Art::Linie) return kreuzung; // through the bar
    if (a.L == b.L || a.R == b.R) {           // two partners of one on the same side
        const Ding &nah = a.L == b.L ? f : g;
        return std::min(2 * kreuzung + Verdreht(i, j), (1 + nah.Ende - nah.Erstes) * kreuzung);
    }
    if (a.R > b.R) return Ineinander(f, g) * kreuzung;
    return kreuzung + Verdreht(i, j);
}

/// Of several partners some have to hang lower; their common leg then passes the ends of the higher bars on the other
/// side too.
int Reihen::Beinkosten(int zeile, int person) const {
    const auto dinge = wissen_->Unten[Ort(zeile, person)];
    if (dinge.size() < 3) return 0;
    int links = 0;
    int rechts = 0;
    for (const int i : dinge) {
        const Ding &d = Das(i);
        if (d.A == d.B || d.Was != Art::Familie) continue;
        const int partner = d.A == person ? d.B : d.A;
        (Platz(zeile, partner) < Platz(zeile, person) ? links : rechts)++;
    }
    return (links * rechts - std::min(links, rechts)) * gewichte_.Kreuzung;
}

/// How far a child stands right of the middle of its parents when all rows are centred: halves of a place.
int Reihen::Weite(const Ding &d, int kindort) const {
    return 2 * platz_[Z(kindort)] - platz_[Z(d.OrtA)] - platz_[Z(d.OrtB)] + d.Versatz;
}

/// How much further all child lines of the person at `ort` reach, up and down, when it moves by `weite` places; not of
/// the families shared with `ohne`, whose middle stays.
int Reihen::Weiten(std::size_t ort, int ohne, int weite) const {
    int summe = 0;
    for (const int i : wissen_->Oben[ort]) {
        const int jetzt = Weite(Das(i), static_cast<int>(ort));
        summe += std::abs(jetzt + 2 * weite) - std::abs(jetzt);
    }
    for (const int i : wissen_->Unten[ort]) {
        const Ding &d = Das(i);
        if (d.A == ohne || d.B == ohne) continue;
        const int schritt = d.A == d.B ? 2 * weite : weite;
        for (int k = d.Erstes; k < d.Ende; k++) {
            const int jetzt = Weite(d, wissen_->Kinderorte[Z(k)]);
            summe += std::abs(jetzt - schritt) - std::abs(jetzt);
        }
    }
    return summe * gewichte_.Weite;
}

int Reihen::Getrenntkosten(int getrennt) const {
    return getrennt > 0 ? gewichte_.Getrennt + (getrennt - 1) * gewichte_.NochEinGetrennt : 0;
}

/// So many strangers stand between the partners now; what that costs more.
int Reihen::DazwischenGelten(int ding, int anzahl) {
    int &dazwischen = dazwischen_[Z(ding)];
    const int mehr = (anzahl - dazwischen) * gewichte_.Dazwischen - Getrenntkosten(getrennt_);
    const int getrennt = (anzahl > 0 ? 1 : 0) - (dazwischen > 0 ? 1 : 0);
    if (getrennt != 0) Ändern(getrennt_, getrennt_ + getrennt);
    Ändern(dazwischen, anzahl);
    return mehr + Getrenntkosten(getrennt_);
}

int Reihen::Verkehrtkosten(int verkehrt) const {
    const int zuViele = std::max(verkehrt - wissen_->Wenige, 0);
    return (verkehrt - zuViele) * gewichte_.Verkehrt + zuViele * gewichte_.ZuVerkehrt;
}

std::vector<Reihen::Paar> Reihen::Getrennte() const {
    std::vector<Paar> paare;
    for (std::size_t i = 0; i < dazwischen_.size(); i++)
        if (const Ding &d = wissen_->Dinge[i]; dazwischen_[i] > 0 && d.Was == Art::Familie)
            paare.push_back({d.Zeile, d.A, d.B});
    return paare;
}

void Reihen::StrengerSein(int nochEinGetrennt, int zuVerkehrt) {
    kosten_ -= Getrenntkosten(getrennt_) + Verkehrtkosten(verkehrt_);
    gewichte_.NochEinGetrennt = nochEinGetrennt;
    gewichte_.ZuVerkehrt = zuVerkehrt;
    kosten_ += Getrenntkosten(getrennt_) + Verkehrtkosten(verkehrt_);
    Behalten();
}

/// What it costs who stands left of whom, but for siblings.
std::int64_t Reihen::Vorlieben() const {
    std::int64_t summe = 0;
    for (const std::vector<int> &zeile : zeilen_)
        for (std::size_t i = 0; i < zeile.size(); i++)
            for (std::size_t j = 0; j < i; j++) summe += std::max(wissen_->Vorzüge[Ort(zeile[j], zeile[i])].Kosten, 0);
    return summe;
}

std::int64_t Reihen::Wert(const Lagebefund &befund) const {
    return std::int64_t{befund.Kreuzungen} * gewichte_.Kreuzung + Getrenntkosten(befund.Getrennt) +
           Verkehrtkosten(befund.Verkehrt) + Vorlieben() + static_cast<std::int64_t>(befund.Länge * gewichte_.Weite) +
           std::int64_t{befund.Durchquert} * gewichte_.Verschränkt +
           std::int64_t{befund.AnFremdem} * gewichte_.AnFremdem;
}

int Reihen::Dazwischen(int ding) const {
    const Ding &d = Das(ding);
    const Spanne spanne = SpanneVon(d);
    int anzahl = 0;
    for (int i = spanne.L + 1; i < spanne.R; i++) {
        const int person = Zeile(d.Zeile)[Z(i)];
        anzahl += wissen_->Ebene[Z(person)] == d.Zeile && wissen_->Fremd[Ort(ding, person)] ? 1 : 0;
    }
    return anzahl;
}

/// `anderer`, a neighbour of `ende`, is about to pass to its other side.
int Reihen::Trennung(int zeile, int ende, int anderer, bool andererRechts) {
    const auto bande = wissen_->Bande[Ort(zeile, ende)];
    if (bande.empty() || wissen_->Ebene[Z(anderer)] != zeile) return 0;
    const int platz = Platz(zeile, ende);
    int summe = 0;
    for (const Band &band : bande) {
        if (!wissen_->Fremd[Ort(band.Ding, anderer)]) continue;
        const bool partnerRechts = platz_[Z(band.Anderer)] > platz;
        summe += DazwischenGelten(band.Ding, dazwischen_[Z(band.Ding)] + (partnerRechts == andererRechts ? -1 : 1));
    }
    return summe;
}

/// What two neighbours' bars and lines downwards cost each other more when these change places.
int Reihen::Unten(int zeile, int links, int rechts) const {
    const auto l = wissen_->Unten[Ort(zeile, links)];
    const auto r = wissen_->Unten[Ort(zeile, rechts)];
    if (l.empty() || r.empty()) return 0;
    const int platz = Platz(zeile, links);
    const auto getauscht = [platz](const Spanne &s) {
        const auto neu = [platz](int ort) { return ort == platz ? platz + 1 : ort == platz + 1 ? platz : ort; };
        const int a = neu(s.L);
        const int b = neu(s.R);
        return Spanne{std::min(a, b), std::max(a, b)};
    };
    const bool mehrere = l.size() + r.size() > 3;
    int summe = 0;
    for (const int i : l) {
        const Spanne a = SpanneVon(Das(i));
        const Spanne neuA = getauscht(a);
        for (const int j : r) {
            if (i == j || (mehrere && i > j && Enthält(l, j) && Enthält(r, i))) continue;
            const Spanne b = SpanneVon(Das(j));
            summe += Paarkosten(i, j, neuA, getauscht(b)) - Paarkosten(i, j, a, b);
        }
    }
    return summe;
}

/// What those cost that two neighbours hang on, where they lie within each other.
int Reihen::Obenkosten(int zeile, int links, int rechts) const {
    int summe = 0;
    const auto l = wissen_->Oben[Ort(zeile, links)];
    const auto r = wissen_->Oben[Ort(zeile, rechts)];
    for (const int i : l)
        for (const int j : r) {
            if (i == j) continue;
            const Spanne a = SpanneVon(Das(i));
            const Spanne b = SpanneVon(Das(j));
            if (a.R <= b.L || b.R <= a.L) continue;
            const bool doppelt = l.size() + r.size() > 3 && Enthält(l, j) && Enthält(r, i);
            if (!doppelt || i < j) summe += Paarkosten(i, j);
        }
    return summe;
}

/// What lines to two neighbours cost more when these change places, where they hang side by side.
int Reihen::Nebeneinander(int zeile, int links, int rechts, bool &ineinander) const {
    int summe = 0;
    for (const int i : wissen_->Oben[Ort(zeile, links)])
        for (const int j : wissen_->Oben[Ort(zeile, rechts)]) {
            if (i == j) continue;
            const Spanne a = SpanneVon(Das(i));
            const Spanne b = SpanneVon(Das(j));
            if (a.L == b.R && a.R == b.L) continue; // both hang on one point
            const int kosten = Linienkosten(Das(i), links, Das(j), rechts);
            if (a.R <= b.L) summe += kosten * Verwechselbar(Das(i), a, Das(j), b);
            else if (b.R <= a.L) summe -= kosten * Verwechselbar(Das(j), b, Das(i), a);
            else ineinander = true;
        }
    return summe;
}

void Reihen::Verdrehen(int zeile, int links, int rechts) {
    for (const int i : wissen_->Oben[Ort(zeile, links)])
        for (const int j : wissen_->Oben[Ort(zeile, rechts)]) {
            if (i == j) continue;
            const int kosten = Linienkosten(Das(i), links, Das(j), rechts);
            Ändern(Verdreht(j, i), Verdreht(j, i) - kosten);
            Ändern(Verdreht(i, j), Verdreht(i, j) + kosten);
        }
}

/// What is counted of a row, as if two neighbours had changed places; what those counts and their order cost more then.
int Reihen::Umstellen(int zeile, int links, int rechts) {
    int mehr = Trennung(zeile, links, rechts, true) + Trennung(zeile, rechts, links, false);
    const Vorzug &vorzug = wissen_->Vorzüge[Ort(rechts, links)];
    if (vorzug.Verkehrt != 0) {
        mehr += Verkehrtkosten(verkehrt_ + vorzug.Verkehrt) - Verkehrtkosten(verkehrt_);
        Ändern(verkehrt_, verkehrt_ + vorzug.Verkehrt);
    }
    mehr += vorzug.Kosten;
    Verdrehen(zeile, links, rechts);
    return mehr;
}

int Reihen::Tauschen(int zeile, int platz) {
    std::vector<int> &reihe = zeilen_[Z(zeile)];
    const int links = reihe[Z(platz)];
    const int rechts = reihe[Z(platz + 1)];
    const std::size_t ortL = Ort(zeile, links);
    const std::size_t ortR = Ort(zeile, rechts);
    const bool partner = wissen_->Partner[Ort(links, rechts)] != 0;
    int mehr = Weiten(ortL, rechts, 1) + Weiten(ortR, links, -1) + Unten(zeile, links, rechts);
    bool ineinander = false;
    mehr += Nebeneinander(zeile, links, rechts, ineinander);
    if (ineinander) mehr -= Obenkosten(zeile, links, rechts);
    if (partner) mehr -= Beinkosten(zeile, links) + Beinkosten(zeile, rechts);
    mehr += Umstellen(zeile, links, rechts);
    Ändern(reihe[Z(platz)], rechts);
    Ändern(reihe[Z(platz + 1)], links);
    Ändern(platz_[ortL], platz + 1);
    Ändern(platz_[ortR], platz);
    if (ineinander) mehr += Obenkosten(zeile, rechts, links);
    if (partner) mehr += Beinkosten(zeile, links) + Beinkosten(zeile, rechts);
    kosten_ += mehr;
    arbeit_++;
    return mehr;
}

void Reihen::Zurück(const Marke &marke) {
    auto &liste = geändert_.Liste;
    for (; liste.size() > marke.Änderungen; liste.pop_back()) *liste.back().Zahl = liste.back().War;
    kosten_ = marke.Kosten;
}

} // namespace kw
