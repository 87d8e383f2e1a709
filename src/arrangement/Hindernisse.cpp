// What those who are laid out mustn't lie on, and their own lines, of class Ordner.

#include "arrangement/Ordner.h"
#include "arrangement/Seitenlinien.h"
#include "arrangement/Zugehoerigkeit.h"
#include "document/saetze/Partnerschaft.h"
#include "editing/Elemente.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace kw {

namespace {

constexpr double Linienluft = 0.1; ///< on both sides of a line, cm

Umgebung Strichkasten(Ort a, Ort b) {
    Umgebung u;
    u.Aufnehmen(std::min(a.X, b.X) - Linienluft, std::min(a.Y, b.Y), std::abs(b.X - a.X) + 2 * Linienluft,
                std::abs(b.Y - a.Y));
    return u;
}

/// In pieces: a box round a slanting line holds much beside it.
void SchrägAnhängen(std::vector<Umgebung> &kästen, Ort von, Ort bis) {
    constexpr int Stücke = 8;
    const int stücke = von.X == bis.X ? 1 : Stücke;
    const auto ort = [&](int k) {
        return Ort{von.X + k * (bis.X - von.X) / stücke, von.Y + k * (bis.Y - von.Y) / stücke};
    };
    for (int k = 0; k < stücke; ++k) kästen.push_back(Strichkasten(ort(k), ort(k + 1)));
}

} // namespace

/// Free of all that stays, and not under the names of others.
Platzwunsch Ordner::Wunsch(const Umgebung &seite) const {
    Platzwunsch wunsch{{}, {}, seite, {}, w_.ansicht.Rasterweite};
    for (const Hindernis &person : Stehende()) wunsch.Hindernisse.push_back(UmAlle(person));
    for (const Hindernis &h : Hindernisse()) Anhängen(wunsch.Hindernisse, h);
    return wunsch;
}

Familienlage Ordner::Gezeichnete() const {
    Familienlage lage;
    for (const int i : auszug_.Personen) lage.Personen.push_back(Stelle(i));
    for (const int i : auszug_.Linien)
        lage.Balken.push_back(PartnerschaftSatz(w_.dokument.cboPartnerschaftsLinien.Satz(i), Lücken::Leer).BalkenY1());
    return lage;
}

/// What lines run over as they are drawn they may run over again: else a page with one crossing couldn't be kept.
Platzwunsch Ordner::WunschWieGezeichnet(const Umgebung &seite) const {
    const auto linien = Linienkästen(Gezeichnete());
    const auto überlaufen = [&](const Umgebung &u) {
        return std::any_of(linien.begin(), linien.end(), [&](const Umgebung &l) { return LiegenAufeinander(l, u); });
    };
    Platzwunsch wunsch{{}, {}, seite, {}, w_.ansicht.Rasterweite};
    for (const auto &alle : {Stehende(), Hindernisse()})
        for (const Hindernis &h : alle)
            Anhängen(std::any_of(h.begin(), h.end(), überlaufen) ? wunsch.Kreuzbare : wunsch.Hindernisse, h);
    return wunsch;
}

/// The persons that stay, with their names.
std::vector<Ordner::Hindernis> Ordner::Stehende() const {
    std::vector<Hindernis> alle;
    for (int i = 0; i < w_.dokument.cboPersonen.Anzahl(); ++i)
        if (std::find(gefragte_.begin(), gefragte_.end(), i) == gefragte_.end())
            alle.push_back(Kästen(i, Stelle(i), JedeGröße));
    return alle;
}

/// The legend; texts of persons that stay or of the page; and their lines.
std::vector<Ordner::Hindernis> Ordner::Hindernisse() const {
    const Dokument &d = w_.dokument;
    const std::set<int> gehen(gefragte_.begin(), gefragte_.end());
    std::vector<Hindernis> alle;
    if (d.LegendeSichtbar) alle.push_back({Elementrahmen(d, w_.legende, {Elementart::Legende, 0})});
    const Zugehörigkeit zugehörigkeit(d, w_.ansicht);
    for (int i = 0; i < d.cboTextboxen.Anzahl(); ++i) {
        const Umgebung u = Elementrahmen(d, w_.legende, {Elementart::Text, i});
        if (u.Leer) continue;
        const auto person = zugehörigkeit.PersonZuText(u);
        if (!person || !gehen.contains(*person)) alle.push_back({u});
    }
    for (Seitenlinie &linie : LinienDerSeite(d, w_.ansicht)) {
        if (!linie.Bleibt(gehen)) continue;
        linie.Kästen.insert(linie.Kästen.end(), linie.Inneres.begin(), linie.Inneres.end());
        alle.push_back(std::move(linie.Kästen));
    }
    return alle;
}

/// Bars, legs and children's lines, which must lie on nobody either.
std::vector<Umgebung> Ordner::Linienkästen(const Familienlage &lage) const {
    std::vector<Umgebung> kästen;
    const auto kasten = [&](double x1, double y1, double x2, double y2) {
        kästen.push_back(Strichkasten({x1, y1}, {x2, y2}));
    };
    for (size_t i = 0; i < auszug_.Graph.Familien.size(); ++i) {
        const Familie &f = auszug_.Graph.Familien[i];
        Umgebung balken;
        const auto ort = [&](int person) { return lage.Personen[static_cast<size_t>(person)]; };
        for (const int p : f.Partner) balken.Aufnehmen(ort(p).X, lage.Balken[i]);
        for (const int p : f.Partner) kasten(ort(p).X, ort(p).Y, ort(p).X, lage.Balken[i]);
        kasten(balken.Links, lage.Balken[i], balken.Rechts, lage.Balken[i]);
        for (const int kind : f.Kinder)
            SchrägAnhängen(kästen, {std::clamp(ort(kind).X, balken.Links, balken.Rechts), lage.Balken[i]}, ort(kind));
    }
    return kästen;
}

/// The lines between those who go and those who stay, as they will be.
std::vector<Umgebung> Ordner::Randkästen(const Familienlage &lage, Ort weg) const {
    std::vector<Umgebung> kästen;
    for (const Randlinien::Strecke &s : rand_.Strecken(lage, weg)) SchrägAnhängen(kästen, s.Balken, s.Ende);
    return kästen;
}

} // namespace kw
