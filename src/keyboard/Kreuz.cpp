#include "keyboard/Kreuz.h"

#include "document/Zahlen.h"
#include "editing/Gesten.h"
#include "editing/Kreislinien.h"
#include "editing/Kreisumriss.h"
#include "editing/Leinwand.h"
#include "keyboard/Ansagen.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kw {

namespace {

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
    auto punkte = KreisUm(umriss);
    for (Kreispunkt &p : punkte) {
        p.X = std::clamp(p.X, 0.0, w_.ansicht.SeitenBreite);
        p.Y = std::clamp(p.Y, 0.0, w_.ansicht.SeitenHöhe);
    }
    leinwand.WerkzeugAnsetzen(punkte.front().X, punkte.front().Y);
    for (size_t i = 1; i < punkte.size(); ++i) KreisPunktSetzen(w_, punkte[i]);
    leinwand.MouseUp(TasteLinks, punkte.back().X, punkte.back().Y);
}

} // namespace kw
