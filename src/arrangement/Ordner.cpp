#include "arrangement/Ordner.h"

#include "document/Nachschlagen.h"
#include "document/Zahlen.h"
#include "document/saetze/Person.h"
#include "editing/Elemente.h"
#include "rendering/Beschriftung.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace kw {

namespace {

constexpr double Linienluft = 0.1; ///< on both sides of a line, cm
constexpr double Einzelluft = 0.6; ///< round whoever has no bond: a circle line goes between, cm

Umgebung MitLuft(const Umgebung &u, double luft) {
    Umgebung weiter;
    weiter.Aufnehmen(u.Links - luft, u.Oben - luft, u.Rechts - u.Links + 2 * luft, u.Unten - u.Oben + 2 * luft);
    return weiter;
}

} // namespace

Ordner::Ordner(Werkbank &w) : w_(w) {
    const bool alle = w.lage.Aktion != Aktion::GruppeGewählt || w.auswahl.lstMovedPers.Leer();
    const auto gewählte = NummernIn(w.auswahl.lstMovedPers);
    for (int i = 0; i < w.dokument.cboPersonen.Anzahl(); ++i) {
        const PersonSatz person(w.dokument.cboPersonen.Satz(i), Lücken::Leer);
        if (person.Vollständig() && (alle || gewählte.contains(person.Nr()))) gefragte_.push_back(i);
    }
    auszug_ = FamilienUnter(w.dokument, gefragte_, w.picVorschau);
}

double Ordner::GrößtesSymbol() const {
    double größe = 0;
    for (const int i : auszug_.Personen)
        größe = std::max(größe, PersonSatz(w_.dokument.cboPersonen.Satz(i), Lücken::Leer).Groesse());
    return größe;
}

std::optional<Umzug> Ordner::Versuchen(double größe, bool eng) {
    const Familienlage lage = FamilieAnordnen(auszug_.Graph, MaßeFür(größe, w_.ansicht.Rasterweite, eng));
    Platzwunsch wunsch{Linienkästen(lage), Hindernisse(), Seite(), {}, w_.ansicht.Rasterweite};
    Umgebung alte; // centres alone: what was arranged before stays where it is
    Umgebung neue;
    for (size_t i = 0; i < lage.Personen.size(); ++i) {
        wunsch.Kästen.push_back(Kasten(auszug_.Personen[i], lage.Personen[i], größe));
        alte.Aufnehmen(Stelle(auszug_.Personen[i]).X, Stelle(auszug_.Personen[i]).Y);
        neue.Aufnehmen(lage.Personen[i].X, lage.Personen[i].Y);
    }
    const Umgebung ganz = UmAlle(wunsch.Kästen);
    bedarf_ = {ganz.Rechts - ganz.Links, ganz.Unten - ganz.Oben};
    wunsch.Ziel = {ganz.MitteX() + alte.MitteX() - neue.MitteX(), ganz.MitteY() + alte.MitteY() - neue.MitteY()};
    const auto weg = PlatzFinden(wunsch);
    if (!weg) return std::nullopt;
    Umzug umzug;
    umzug.Größe = größe;
    for (size_t i = 0; i < lage.Personen.size(); ++i)
        umzug.Personen[auszug_.Personen[i]] = {lage.Personen[i].X + weg->X, lage.Personen[i].Y + weg->Y};
    for (size_t i = 0; i < lage.Balken.size(); ++i) umzug.Balken[auszug_.Linien[i]] = lage.Balken[i] + weg->Y;
    if (!EinzelneMitnehmen(umzug)) return std::nullopt;
    return umzug;
}

/// Whoever has no bond stays beside the one that stood nearest, where there is room.
bool Ordner::EinzelneMitnehmen(Umzug &umzug) const {
    Platzwunsch wunsch{{}, Hindernisse(), Seite(), {}, w_.ansicht.Rasterweite};
    for (const auto &[i, ort] : umzug.Personen) wunsch.Hindernisse.push_back(Kasten(i, ort, umzug.Größe));
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
        const Ort von{Gerastert(alt.X, wunsch.Raster), Gerastert(alt.Y, wunsch.Raster)};
        const Umgebung kasten = Kasten(i, von, umzug.Größe);
        wunsch.Kästen = {MitLuft(kasten, Einzelluft)};
        wunsch.Ziel = {kasten.MitteX() + soll.X - von.X, kasten.MitteY() + soll.Y - von.Y};
        const auto weg = PlatzFinden(wunsch);
        if (!weg) return false;
        umzug.Personen[i] = {von.X + weg->X, von.Y + weg->Y};
        wunsch.Hindernisse.push_back(Kasten(i, umzug.Personen[i], umzug.Größe));
    }
    return true;
}

Ort Ordner::Stelle(int person) const {
    const PersonSatz satz(w_.dokument.cboPersonen.Satz(person), Lücken::Leer);
    return {satz.PosX(), satz.PosY()};
}

Umgebung Ordner::Kasten(int person, Ort ort, double größe) const {
    const PersonSatz satz(w_.dokument.cboPersonen.Satz(person), Lücken::Leer);
    return Personenkasten(satz, ort, std::min(größe, satz.Groesse()), Namensbreite(w_.picVorschau, satz));
}

/// Where persons stay, with their names; the legend; and texts that belong to those who stay.
std::vector<Umgebung> Ordner::Hindernisse() const {
    const Dokument &d = w_.dokument;
    const std::set<int> gehen(gefragte_.begin(), gefragte_.end());
    std::vector<Umgebung> kästen;
    for (int i = 0; i < d.cboPersonen.Anzahl(); ++i)
        if (!gehen.contains(i)) kästen.push_back(Kasten(i, Stelle(i), JedeGröße));
    if (d.LegendeSichtbar) kästen.push_back(Elementrahmen(d, w_.legende, {Elementart::Legende, 0}));
    for (int i = 0; i < d.cboTextboxen.Anzahl(); ++i) {
        const Umgebung u = Elementrahmen(d, w_.legende, {Elementart::Text, i});
        const auto nächste = NächstePerson(d, {u.MitteX(), u.MitteY()});
        if (!u.Leer && nächste && !gehen.contains(*nächste)) kästen.push_back(u);
    }
    return kästen;
}

/// Bars, legs and children's lines, which must lie on nobody either.
std::vector<Umgebung> Ordner::Linienkästen(const Familienlage &lage) const {
    std::vector<Umgebung> kästen;
    const auto kasten = [&](double x1, double y1, double x2, double y2) {
        Umgebung u;
        u.Aufnehmen(std::min(x1, x2) - Linienluft, std::min(y1, y2), std::abs(x2 - x1) + 2 * Linienluft,
                    std::abs(y2 - y1));
        kästen.push_back(u);
    };
    for (size_t i = 0; i < auszug_.Graph.Familien.size(); ++i) {
        const Familie &f = auszug_.Graph.Familien[i];
        Umgebung balken;
        const auto ort = [&](int person) { return lage.Personen[static_cast<size_t>(person)]; };
        for (const int p : f.Partner) balken.Aufnehmen(ort(p).X, lage.Balken[i]);
        for (const int p : f.Partner) kasten(ort(p).X, ort(p).Y, ort(p).X, lage.Balken[i]);
        kasten(balken.Links, lage.Balken[i], balken.Rechts, lage.Balken[i]);
        for (const int kind : f.Kinder)
            kasten(std::clamp(ort(kind).X, balken.Links, balken.Rechts), lage.Balken[i], ort(kind).X, ort(kind).Y);
    }
    return kästen;
}

Umgebung Ordner::Seite() const {
    Umgebung u;
    u.Aufnehmen(Seitenrand, Seitenrand, w_.ansicht.SeitenBreite - 2 * Seitenrand,
                w_.ansicht.SeitenHöhe - 2 * Seitenrand);
    return u;
}

} // namespace kw
