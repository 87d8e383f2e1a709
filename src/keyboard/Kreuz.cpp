#include "keyboard/Kreuz.h"

#include "document/Zahlen.h"
#include "editing/Gesten.h"
#include "editing/Kreislinien.h"
#include "editing/Leinwand.h"
#include "keyboard/Ansagen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace kw {

namespace {

constexpr double Abstand = 0.6;      ///< of a circle line from what it is laid round, cm
constexpr double Eckenradius = 1.0;  ///< the same line's
constexpr double Punktabstand = 1.5; ///< the same line's points are no further apart on a straight side

/// Points round a box, clockwise from the left end of its upper side.
std::vector<Kreispunkt> Umrisspunkte(const Umgebung &u) {
    const double links = u.Links - Abstand;
    const double oben = u.Oben - Abstand;
    const double rechts = u.Rechts + Abstand;
    const double unten = u.Unten + Abstand;
    const double r = std::min({Eckenradius, (rechts - links) / 2, (unten - oben) / 2});
    const std::array<Kreispunkt, 4> ecken{
        {{rechts - r, oben + r}, {rechts - r, unten - r}, {links + r, unten - r}, {links + r, oben + r}}};
    std::vector<Kreispunkt> punkte;
    const auto dazu = [&](double x, double y) { punkte.push_back({Gerundet(x, 2), Gerundet(y, 2)}); };
    dazu(links + r, oben);
    for (size_t i = 0; i < ecken.size(); ++i) {
        const double winkel = (static_cast<double>(i) - 1) * std::numbers::pi / 2; // the corner begins upwards
        const auto ort = [&](double w) {
            return Kreispunkt{ecken[i].X + r * std::cos(w), ecken[i].Y + r * std::sin(w)};
        };
        const Kreispunkt von = punkte.back();
        const Kreispunkt bis = ort(winkel);
        const int teile = static_cast<int>(std::hypot(bis.X - von.X, bis.Y - von.Y) / Punktabstand);
        for (int t = 1; t <= teile; ++t)
            dazu(std::lerp(von.X, bis.X, t / (teile + 1.0)), std::lerp(von.Y, bis.Y, t / (teile + 1.0)));
        for (int viertel = 0; viertel <= 2; ++viertel) {
            const Kreispunkt p = ort(winkel + viertel * std::numbers::pi / 4);
            if (i + 1 < ecken.size() || viertel < 2) dazu(p.X, p.Y); // the last one is the first again
        }
    }
    punkte.erase(std::unique(punkte.begin(), punkte.end()), punkte.end());
    return punkte;
}

/// How many there are of what a tool can make.
std::array<int, 4> Bestand(const Dokument &d) {
    return {d.cboPersonen.Anzahl(), d.cboTextboxen.Anzahl(), d.cboPfeile.Anzahl(), d.cboFreehandlines.Anzahl()};
}

/// The first that has come since.
std::optional<Element> Neues(const Dokument &d, const std::array<int, 4> &vorher) {
    constexpr std::array Arten{Elementart::Person, Elementart::Text, Elementart::Pfeil, Elementart::Kreis};
    const auto jetzt = Bestand(d);
    for (size_t i = 0; i < Arten.size(); ++i)
        if (jetzt.at(i) > vorher.at(i)) return Element{Arten.at(i), vorher.at(i)};
    return std::nullopt;
}

/// Whether the tool begins with one Enter and ends with another.
bool HatZweiEnden(const Leinwandlage &lage) {
    return lage.BildAuswahl || lage.Aktion == Aktion::PfeilZeichnen || lage.Aktion == Aktion::KreisZeichnen;
}

} // namespace

Seitenort Kreuz::Anfang(const std::optional<Umgebung> &rahmen) const {
    const Ansicht &a = w_.ansicht;
    const double x = rahmen ? rahmen->MitteX() : a.SeitenBreite / 2;
    const double y = rahmen ? rahmen->MitteY() : a.SeitenHöhe / 2;
    return {Gerundet(RasterX(a, x), 2), Gerundet(RasterY(a, y), 2)};
}

Seitenort Kreuz::Bewegt(Seitenort ort, int schritteX, int schritteY) {
    const Ansicht &a = w_.ansicht;
    const Seitenort neu{Gerundet(RasterX(a, ort.X + schritteX * a.Rasterweite), 2),
                        Gerundet(RasterY(a, ort.Y + schritteY * a.Rasterweite), 2)};
    if (neu == ort) w_.lage.Hinweis = &AmSeitenrand;
    // A stroke of a circle line takes its points from Enter alone.
    if (w_.lage.Gedrückt && w_.lage.Aktion != Aktion::KreisZeichnen) Leinwand(w_).MouseMove(TasteLinks, neu.X, neu.Y);
    return neu;
}

std::optional<Element> Kreuz::Ansetzen(Seitenort ort) {
    const auto vorher = Bestand(w_.dokument);
    Leinwand leinwand(w_);
    if (Zeichnet()) {
        Weiterführen(ort);
    } else if (w_.lage.Aktion == Aktion::KreisZeichnen && umriss_) {
        KreislinieUm(*std::exchange(umriss_, std::nullopt));
    } else {
        const bool zweiEnden = HatZweiEnden(w_.lage);
        leinwand.WerkzeugAnsetzen(ort.X, ort.Y);
        anfang_ = letzter_ = ort;
        zeichnet_ = zweiEnden;
        if (!zweiEnden) leinwand.MouseUp(TasteLinks, ort.X, ort.Y);
    }
    return Neues(w_.dokument, vorher);
}

/// The second Enter of arrow and region, and each further one of a circle line.
void Kreuz::Weiterführen(Seitenort ort) {
    Leinwand leinwand(w_);
    if (w_.lage.Aktion != Aktion::KreisZeichnen || w_.lage.BildAuswahl) {
        leinwand.MouseMove(TasteLinks, ort.X, ort.Y);
        return leinwand.MouseUp(TasteLinks, ort.X, ort.Y);
    }
    if (ort == letzter_) {
        w_.lage.Hinweis = &HierLiegtEinPunkt;
    } else if (ort == anfang_) {
        leinwand.MouseUp(TasteLinks, ort.X, ort.Y);
    } else {
        KreisPunktSetzen(w_, {ort.X, ort.Y});
        letzter_ = ort;
        w_.lage.Hinweis = &PunktGesetzt;
    }
}

void Kreuz::KreislinieUm(const Umgebung &umriss) {
    Leinwand leinwand(w_);
    auto punkte = Umrisspunkte(umriss);
    for (Kreispunkt &p : punkte) {
        p.X = std::clamp(p.X, 0.0, w_.ansicht.SeitenBreite);
        p.Y = std::clamp(p.Y, 0.0, w_.ansicht.SeitenHöhe);
    }
    leinwand.WerkzeugAnsetzen(punkte.front().X, punkte.front().Y);
    for (size_t i = 1; i < punkte.size(); ++i) KreisPunktSetzen(w_, punkte[i]);
    leinwand.MouseUp(TasteLinks, punkte.back().X, punkte.back().Y);
}

} // namespace kw
