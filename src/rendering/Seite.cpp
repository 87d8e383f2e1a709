#include "rendering/Seite.h"

#include "document/Papier.h"
#include "document/Zahlen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr Farbe RasterFarbe = Rgb(240, 240, 240);
constexpr int Hochformat = 1;

/// How many whole steps lie within `länge`: a step that divides it has a line at the far edge, too.
int Rasterlinien(double länge, double schritt) {
    constexpr double Höchstzahl = 32767; // the counter has 16 bits
    return static_cast<int>(std::min(OhneRauschen(länge / schritt), Höchstzahl));
}

int InTwips(double cm) { return static_cast<int>(Gerundet(cm * TwipsJeCm, 0)); }

} // namespace

void SeiteBestimmen(Dokument &dokument, Ansicht &ansicht) {
    if (dokument.Papiercode < 1) dokument.Papiercode = DinA4;
    const auto *papier =
        std::find_if(Papiere.begin(), Papiere.end(), [&](const Papier &p) { return p.Code == dokument.Papiercode; });
    if (papier == Papiere.end()) return;
    ansicht.SeitenBreite = papier->Breite;
    ansicht.SeitenHöhe = papier->Höhe;
    if (dokument.Seitenlage != Hochformat) std::swap(ansicht.SeitenBreite, ansicht.SeitenHöhe);
}

double SeiteEinpassen(Zeichenfläche &fläche, const Ansicht &a) {
    fläche.ScaleCm();
    const double verhältnisHöhe = fläche.ScaleHeight() / a.SeitenHöhe;
    const double verhältnisBreite = fläche.ScaleWidth() / a.SeitenBreite;
    const double faktor = std::min(verhältnisHöhe, verhältnisBreite);
    if (verhältnisHöhe >= verhältnisBreite) fläche.GrößeSetzen(fläche.Width(), InTwips(a.SeitenHöhe * faktor));
    else fläche.GrößeSetzen(InTwips(a.SeitenBreite * faktor), fläche.Height());
    fläche.Scale(a.SeitenBreite, a.SeitenHöhe, faktor);
    fläche.Cls();
    return faktor;
}

void RasterZeichnen(Zeichenfläche &fläche, const Zeichnung &z) {
    const Ansicht &ansicht = z.ansicht;
    fläche.Ebene("raster");
    const double schritt = ansicht.Rasterweite;
    if (z.Druck || !ansicht.bRasterAnzeigen || schritt <= 0) return;
    fläche.DrawWidth = z.Strichbreite();
    const int spalten = Rasterlinien(ansicht.SeitenBreite, schritt);
    for (int i = 1; i <= spalten; ++i)
        fläche.Line(LinieFarbig, i * schritt, 0, i * schritt, ansicht.SeitenHöhe, RasterFarbe);
    const int zeilen = Rasterlinien(ansicht.SeitenHöhe, schritt);
    for (int i = 1; i <= zeilen; ++i)
        fläche.Line(LinieFarbig, 0, i * schritt, ansicht.SeitenBreite, i * schritt, RasterFarbe);
}

void DruckrandZeichnen(Zeichenfläche &fläche, const Zeichnung &z) {
    const Ansicht &ansicht = z.ansicht;
    if (z.Druck || !ansicht.bDruckrandAnzeigen) return;
    fläche.FillStyle = Durchsichtig;
    fläche.DrawStyle = StilGepunktet;
    fläche.ForeColor = Hellgrau;
    fläche.Line(Kasten, ansicht.DruckrandLinks, ansicht.DruckrandOben, fläche.ScaleWidth() - ansicht.DruckrandRechts,
                fläche.ScaleHeight() - ansicht.DruckrandUnten);
    fläche.DrawStyle = StilStrichpunkt; // stands for nobody: the layer that follows sets its own
}

} // namespace kw
