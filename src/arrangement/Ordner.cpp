#include "arrangement/Ordner.h"

#include "document/Nachschlagen.h"
#include "document/Zahlen.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "rendering/Beschriftung.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace kw {

namespace {

constexpr double Einzelluft = 0.6;      ///< round whoever has no bond: a circle line goes between, cm
constexpr double FeinstesRaster = 0.05; ///< cm
constexpr double Treu = 20;             ///< places count more than all lines that can hang on a person
constexpr double NochNah = 6;           ///< so far anybody may be drawn from partner or parents, cm ...
constexpr double NochÄhnlich = 2.5;     ///< ... and so many times as far as would do, besides
constexpr double Lose = 1;              ///< or as much as one of them

Familiengraph OhnePlätze(Familiengraph graph) {
    for (Familienperson &person : graph.Personen) person.Platz.reset();
    for (Familie &familie : graph.Familien) familie.Balken.reset();
    return graph;
}

Umgebung MitLuft(const Umgebung &u, double luft) {
    Umgebung weiter;
    weiter.Aufnehmen(u.Links - luft, u.Oben - luft, u.Rechts - u.Links + 2 * luft, u.Unten - u.Oben + 2 * luft);
    return weiter;
}

/// How far the bar of each family runs across, and the line of each child.
std::vector<double> Weiten(const Familiengraph &graph, const Familienlage &lage) {
    std::vector<double> weiten;
    for (const Familie &familie : graph.Familien) {
        Umgebung balken;
        const auto x = [&](int person) { return lage.Personen[static_cast<size_t>(person)].X; };
        for (const int p : familie.Partner) balken.Aufnehmen(x(p), 0);
        weiten.push_back(balken.Rechts - balken.Links);
        for (const int kind : familie.Kinder)
            weiten.push_back(std::abs(x(kind) - std::clamp(x(kind), balken.Links, balken.Rechts)));
    }
    return weiten;
}

/// Whether a line runs so far that nobody would say that those belong together, though it needn't.
bool Zerdehnt(const Familiengraph &graph, const Familienlage &lage, const Familienlage &neu) {
    const auto weiten = Weiten(graph, lage);
    const auto nötige = Weiten(graph, neu);
    return !std::equal(weiten.begin(), weiten.end(), nötige.begin(),
                       [](double weit, double nötig) { return weit <= NochNah + NochÄhnlich * nötig; });
}

/// Those of the selected group, if there is one, or all.
std::vector<int> Gewählte(const Werkbank &w) {
    const bool alle = w.lage.Aktion != Aktion::GruppeGewählt;
    const auto gewählte = NummernIn(w.auswahl.lstMovedPers);
    std::vector<int> personen;
    for (int i = 0; i < w.dokument.cboPersonen.Anzahl(); ++i) {
        const PersonSatz person(w.dokument.cboPersonen.Satz(i), Lücken::Leer);
        if (person.Vollständig() && (alle || gewählte.contains(person.Nr()))) personen.push_back(i);
    }
    return personen;
}

bool LiegtAuf(const std::vector<Umgebung> &kästen, const std::vector<Umgebung> &andere) {
    return std::any_of(kästen.begin(), kästen.end(), [&](const Umgebung &a) {
        return std::any_of(andere.begin(), andere.end(), [&](const Umgebung &b) { return LiegenAufeinander(a, b); });
    });
}

bool LiegtIn(const Umgebung &u, const Umgebung &weite) {
    return !Kleiner(u.Links, weite.Links) && !Kleiner(u.Oben, weite.Oben) && !Kleiner(weite.Rechts, u.Rechts) &&
           !Kleiner(weite.Unten, u.Unten);
}

} // namespace

Ordner::Ordner(Werkbank &w)
    : w_(w), gefragte_(OhneGebundene(w.dokument, Gewählte(w))), hältWenFest_(gefragte_.size() < Gewählte(w).size()),
      auszug_(FamilienUnter(w.dokument, gefragte_, w.picVorschau)), rand_(w.dokument, auszug_) {}

double Ordner::GrößtesSymbol() const {
    double größe = 0;
    for (const int i : auszug_.Personen)
        größe = std::max(größe, PersonSatz(w_.dokument.cboPersonen.Satz(i), Lücken::Leer).Groesse());
    return größe;
}

std::optional<Umzug> Ordner::Versuchen(double größe, const Luft &luft) {
    const Familienlage lage = FamilieAnordnen(OhnePlätze(auszug_.Graph), MaßeFür(größe, w_.ansicht.Rasterweite, luft));
    Umgebung alte; // centres alone: what was arranged before stays where it is
    Umgebung neue;
    for (size_t i = 0; i < lage.Personen.size(); ++i) {
        alte.Aufnehmen(Stelle(auszug_.Personen[i]).X, Stelle(auszug_.Personen[i]).Y);
        neue.Aufnehmen(lage.Personen[i].X, lage.Personen[i].Y);
    }
    Platzwunsch wunsch = Wunsch(Seite());
    if (!rand_.Leer()) wunsch.Mängel = [&](Ort weg) { return rand_.Mängel(lage, weg, größe); };
    return Unterbringen(lage, größe, std::move(wunsch), {alte.MitteX() - neue.MitteX(), alte.MitteY() - neue.MitteY()});
}

std::optional<Umzug> Ordner::Behalten(double größe) {
    const double raster = GezeichnetesRaster();
    const Familienlage neu = FamilieAnordnen(OhnePlätze(auszug_.Graph), MaßeFür(größe, raster, Lesbar));
    const Familiengraph graph = AufDasBlattGeholt(größe, raster);
    std::vector<Umgebung> gezeichnete{Seite()}; // who was drawn beyond the margin may stay there
    for (const int i : auszug_.Personen)
        if (StehtImBlatt(i, größe)) gezeichnete.push_back(Kasten(i, Stelle(i), größe));
    const Platzwunsch wunsch = WunschWieGezeichnet(UmAlle(gezeichnete));
    const double erlaubte = ErlaubteMängel(größe);
    for (const auto &[luft, treue] : {std::pair(Gezeichnet, Treu), std::pair(Lesbar, Treu), std::pair(Lesbar, Lose)}) {
        Abstände maße = MaßeFür(größe, raster, luft);
        maße.Treue = treue;
        const Familienlage lage = FamilieAnordnen(graph, maße);
        if (Mangelhaft(lage, neu, größe)) continue;
        auto umzug = Unterbringen(lage, größe, wunsch, {});
        if (!umzug || !BleibtImRand(*umzug) || Mängel(*umzug) > erlaubte) continue;
        if (Steht(*umzug, raster)) return Umzug{};     // who stands beside the raster isn't drawn to it either
        if (luft.Personen < Lesbar.Personen) continue; // who has to go doesn't go that near
        if (Gehende(*umzug).size() * 2 > auszug_.Personen.size()) continue; // no drawing that is worth keeping
        umzug->Raster = raster;
        return NurWasSichÄndert(*umzug);
    }
    return std::nullopt;
}

/// With places inside the margin for those whom the sheet doesn't show, as near as can be to where they were drawn.
Familiengraph Ordner::AufDasBlattGeholt(double größe, double raster) const {
    Familiengraph graph = auszug_.Graph;
    const Umgebung seite = Seite();
    const auto hinein = [raster](double ort, double links, double rechts) { // inwards to the raster
        const double kleinstes = std::ceil(OhneRauschen(links / raster)) * raster;
        return std::max(kleinstes, std::min(ort, std::floor(OhneRauschen(rechts / raster)) * raster));
    };
    for (size_t i = 0; i < auszug_.Personen.size(); ++i) {
        if (StehtImBlatt(auszug_.Personen[i], größe)) continue;
        Ort &ort = *graph.Personen[i].Platz;
        const Umgebung u = Kasten(auszug_.Personen[i], ort, größe);
        ort = {hinein(ort.X, seite.Links + ort.X - u.Links, seite.Rechts - (u.Rechts - ort.X)),
               hinein(ort.Y, seite.Oben + ort.Y - u.Oben, seite.Unten - (u.Unten - ort.Y))};
    }
    for (Familie &familie : graph.Familien)
        if (familie.Balken && (*familie.Balken < 0 || *familie.Balken > w_.ansicht.SeitenHöhe)) familie.Balken.reset();
    return graph;
}

bool Ordner::StehtImBlatt(int person, double größe) const {
    const Umgebung kasten = Kasten(person, Stelle(person), größe);
    return LiegtIn(kasten, Blatt());
}

/// Whether nobody goes beyond the margin, or farther beyond it.
bool Ordner::BleibtImRand(const Umzug &umzug) const {
    const std::set<int> gehen = Gehende(umzug);
    return std::all_of(gehen.begin(), gehen.end(), [&](int i) {
        std::vector<Umgebung> erlaubt{Seite()};
        if (StehtImBlatt(i, umzug.Größe)) erlaubt.push_back(Kasten(i, Stelle(i), umzug.Größe));
        return LiegtIn(Kasten(i, umzug.Personen.at(i), umzug.Größe), UmAlle(erlaubt));
    });
}

/// Whether it is worse than one made anew, or anybody or a name lies on another.
bool Ordner::Mangelhaft(const Familienlage &lage, const Familienlage &neu, double größe) const {
    const Lagebefund &b = lage.Befund;
    const Lagebefund &n = neu.Befund;
    if (b.Durchquert > n.Durchquert || b.Störende > n.Störende || b.Getrennt > n.Getrennt) return true;
    if (Zerdehnt(auszug_.Graph, lage, neu)) return true;
    std::vector<std::vector<Umgebung>> kästen;
    for (size_t i = 0; i < lage.Personen.size(); ++i)
        kästen.push_back(Kästen(auszug_.Personen[i], lage.Personen[i], größe));
    for (size_t i = 0; i < kästen.size(); ++i)
        for (size_t k = 0; k < i; ++k)
            if (LiegtAuf(kästen[i], kästen[k])) return true;
    return false;
}

/// Whether everybody and every bar stays, but for less than a step of that raster, and the sheet shows them all.
bool Ordner::Steht(const Umzug &umzug, double raster) const {
    if (!std::all_of(umzug.Personen.begin(), umzug.Personen.end(),
                     [&](const auto &p) { return StehtImBlatt(p.first, umzug.Größe); }))
        return false;
    const auto nah = [&](double a, double b) { return Kleiner(std::abs(a - b), raster); };
    return std::all_of(umzug.Personen.begin(), umzug.Personen.end(),
                       [&](const auto &p) {
                           const Ort alt = Stelle(p.first);
                           return nah(alt.X, p.second.X) && nah(alt.Y, p.second.Y);
                       }) &&
           std::all_of(umzug.Balken.begin(), umzug.Balken.end(), [&](const auto &b) {
               const PartnerschaftSatz linie(w_.dokument.cboPartnerschaftsLinien.Satz(b.first), Lücken::Leer);
               return nah(linie.BalkenY1(), b.second) && nah(linie.BalkenY2(), b.second);
           });
}

/// The raster of the page; where most stand beside it, a finer one on which they do.
double Ordner::GezeichnetesRaster() const {
    for (const double raster : {w_.ansicht.Rasterweite, 0.3, 0.1}) {
        const auto auf = [&](double cm) { return Gerundet(cm - Gerastert(cm, raster), 3) == 0; };
        const auto darauf = std::count_if(auszug_.Personen.begin(), auszug_.Personen.end(),
                                          [&](int i) { return auf(Stelle(i).X) && auf(Stelle(i).Y); });
        if (static_cast<size_t>(darauf) * 4 >= auszug_.Personen.size() * 3) return raster;
    }
    return FeinstesRaster;
}

/// What may be wrong with lines to those who stay: what is now, but no child above its parents that needn't be there.
double Ordner::ErlaubteMängel(double größe) {
    const double gezeichnete = rand_.Mängel(Gezeichnete(), {}, größe);
    if (gezeichnete < Randlinien::Verkehrt) return gezeichnete;
    const auto neu = Versuchen(größe, VonHand);
    return neu ? std::min(gezeichnete, std::max(Mängel(*neu), Randlinien::Verkehrt / 2)) : gezeichnete;
}

double Ordner::Mängel(const Umzug &umzug) const {
    Familienlage lage;
    for (const int i : auszug_.Personen) lage.Personen.push_back(umzug.Personen.at(i));
    for (const int i : auszug_.Linien) lage.Balken.push_back(umzug.Balken.at(i));
    return rand_.Mängel(lage, {}, umzug.Größe);
}

std::set<int> Ordner::Gehende(const Umzug &umzug) const {
    std::set<int> gehen;
    for (const auto &[i, ort] : umzug.Personen) {
        const Ort alt = Stelle(i);
        if (Gerundet(alt.X - ort.X, 3) != 0 || Gerundet(alt.Y - ort.Y, 3) != 0) gehen.insert(i);
    }
    return gehen;
}

/// Without bars that stay where they are, with all that hangs on them.
Umzug Ordner::NurWasSichÄndert(Umzug umzug) const {
    const std::set<int> gehen = Gehende(umzug);
    for (size_t f = 0; f < auszug_.Linien.size(); ++f) {
        const Familie &familie = auszug_.Graph.Familien[f];
        const auto geht = [&](int p) { return gehen.contains(auszug_.Personen[static_cast<size_t>(p)]); };
        const auto balken = umzug.Balken.find(auszug_.Linien[f]);
        if (familie.Balken && Gerundet(*familie.Balken - balken->second, 3) == 0 &&
            std::none_of(familie.Partner.begin(), familie.Partner.end(), geht) &&
            std::none_of(familie.Kinder.begin(), familie.Kinder.end(), geht))
            umzug.Balken.erase(balken);
    }
    return umzug;
}

/// A free place on the page for all of it, as near as can be to where `verschiebung` brings it.
std::optional<Umzug> Ordner::Unterbringen(const Familienlage &lage, double größe, Platzwunsch wunsch,
                                          Ort verschiebung) {
    wunsch.Kästen = Linienkästen(lage);
    const size_t linien = wunsch.Linien = wunsch.Kästen.size();
    for (size_t i = 0; i < lage.Personen.size(); ++i)
        Anhängen(wunsch.Kästen, Kästen(auszug_.Personen[i], lage.Personen[i], größe));
    const Umgebung ganz = UmAlle(wunsch.Kästen);
    bedarf_ = {ganz.Rechts - ganz.Links, ganz.Unten - ganz.Oben};
    wunsch.Ziel = {ganz.MitteX() + verschiebung.X, ganz.MitteY() + verschiebung.Y};
    const auto weg = PlatzFinden(wunsch);
    if (!weg) return std::nullopt;
    Umzug umzug;
    umzug.Größe = größe;
    umzug.Raster = w_.ansicht.Rasterweite;
    for (size_t i = 0; i < lage.Personen.size(); ++i)
        umzug.Personen[auszug_.Personen[i]] = {lage.Personen[i].X + weg->X, lage.Personen[i].Y + weg->Y};
    for (size_t i = 0; i < lage.Balken.size(); ++i) umzug.Balken[auszug_.Linien[i]] = lage.Balken[i] + weg->Y;
    std::vector<Umgebung> belegt(wunsch.Kästen.begin(), wunsch.Kästen.begin() + static_cast<std::ptrdiff_t>(linien));
    for (Umgebung &u : belegt) {
        Umgebung dort;
        dort.Aufnehmen(u.Links + weg->X, u.Oben + weg->Y, u.Rechts - u.Links, u.Unten - u.Oben);
        u = dort;
    }
    Anhängen(belegt, Randkästen(lage, *weg));
    if (!EinzelneMitnehmen(umzug, std::move(belegt))) return std::nullopt;
    return umzug;
}

/// Whoever has no bond stays beside the one that stood nearest, where there is room.
bool Ordner::EinzelneMitnehmen(Umzug &umzug, std::vector<Umgebung> belegt) const {
    Platzwunsch wunsch = Wunsch(Seite());
    wunsch.Hindernisse.insert(wunsch.Hindernisse.end(), belegt.begin(), belegt.end());
    for (const auto &[i, ort] : umzug.Personen) Anhängen(wunsch.Hindernisse, Kästen(i, ort, umzug.Größe));
    const std::map<int, Ort> verbundene = umzug.Personen;
    for (const int i : gefragte_) {
        if (verbundene.contains(i)) continue;
        const Ort alt = Stelle(i);
        const auto ferne = [&](const auto &p) {
            const Ort dort = Stelle(p.first);
            return std::hypot(dort.X - alt.X, dort.Y - alt.Y);
        };
        const auto nächster = std::min_element(verbundene.begin(), verbundene.end(),
                                               [&](const auto &a, const auto &b) { return ferne(a) < ferne(b); });
        const Ort dort = Stelle(nächster->first);
        const Ort soll{alt.X + nächster->second.X - dort.X, alt.Y + nächster->second.Y - dort.Y};
        const std::vector<Umgebung> hier = Kästen(i, alt, umzug.Größe);
        if (Gerundet(soll.X - alt.X, 3) == 0 && Gerundet(soll.Y - alt.Y, 3) == 0 && StehtImBlatt(i, umzug.Größe) &&
            !LiegtAuf(hier, wunsch.Hindernisse)) {
            umzug.Personen[i] = alt; // however near it was drawn
            Anhängen(wunsch.Hindernisse, hier);
            continue;
        }
        const Ort von{Gerastert(alt.X, wunsch.Raster), Gerastert(alt.Y, wunsch.Raster)};
        const Umgebung kasten = Kasten(i, von, umzug.Größe);
        wunsch.Kästen = {MitLuft(kasten, Einzelluft)};
        wunsch.Ziel = {kasten.MitteX() + soll.X - von.X, kasten.MitteY() + soll.Y - von.Y};
        const auto weg = PlatzFinden(wunsch);
        if (!weg) return false;
        umzug.Personen[i] = {von.X + weg->X, von.Y + weg->Y};
        Anhängen(wunsch.Hindernisse, Kästen(i, umzug.Personen[i], umzug.Größe));
    }
    return true;
}

Ort Ordner::Stelle(int person) const {
    const PersonSatz satz(w_.dokument.cboPersonen.Satz(person), Lücken::Leer);
    return {satz.PosX(), satz.PosY()};
}

/// Of the symbol and of the names. A name may lie under a neighbour's symbol, as the layout has it.
std::vector<Umgebung> Ordner::Kästen(int person, Ort ort, double größe) const {
    const PersonSatz satz(w_.dokument.cboPersonen.Satz(person), Lücken::Leer);
    return Personenkästen(satz, ort, std::min(größe, satz.Groesse()), Namensbreite(w_.picVorschau, satz));
}
Umgebung Ordner::Kasten(int person, Ort ort, double größe) const { return UmAlle(Kästen(person, ort, größe)); }

Umgebung Ordner::Blatt() const {
    Umgebung u;
    u.Aufnehmen(0, 0, w_.ansicht.SeitenBreite, w_.ansicht.SeitenHöhe);
    return u;
}

Umgebung Ordner::Seite() const {
    Umgebung u;
    u.Aufnehmen(Seitenrand, Seitenrand, w_.ansicht.SeitenBreite - 2 * Seitenrand,
                w_.ansicht.SeitenHöhe - 2 * Seitenrand);
    return u;
}

} // namespace kw
