#include "output/Arbeitsbereich.h"

#include "document/Zahlen.h"
#include "rendering/Ansicht.h"
#include "rendering/Zeichenflaeche.h"

#include <algorithm>
#include <utility>

namespace kw {

namespace {

constexpr int Ruhelage = 100;  ///< of the canvas in its frame when it doesn't fit
constexpr int Überlauf = 1000; ///< how far one can scroll beyond the page
constexpr int Schattenversatz = 80;
constexpr int PaletteUndRand = 2620; ///< what of the inner width isn't the frame's
constexpr int PalettenBreite = 960;
constexpr int Radschritt = 900;         ///< that a notch of the wheel scrolls
constexpr int Randzone = 360;           ///< inside the frame's edge, where a drag scrolls
constexpr int GrößterSchritt = 600;     ///< of that scrolling, at once
constexpr int LetzterEinfacherZoom = 7; ///< 150 %; above it lines are twice as wide

/// How far a place reaches into the zone at the near edge (negative) or at the far one.
int Randtiefe(int ort, int länge) {
    if (ort < Randzone) return ort - Randzone;
    return std::max(ort - (länge - Randzone), 0);
}

/// One step of scrolling on an axis. A drag that began in the zone scrolls only when it has come nearer to the edge.
int Randschritt(int zeiger, int gedrückt, int länge) {
    const int tief = Randtiefe(zeiger, länge);
    const int anfangs = Randtiefe(gedrückt, länge);
    const int weiter = tief < 0 ? std::min(tief - std::min(anfangs, 0), 0) : std::max(tief - std::max(anfangs, 0), 0);
    return std::clamp(weiter, -GrößterSchritt, GrößterSchritt);
}

} // namespace

Arbeitsbereich::Arbeitsbereich(Zeichenfläche &canvas, Ansicht &ansicht, int bildschirmBreite, int bildschirmHöhe,
                               Rückrufe rückrufe)
    : canvas_(canvas), ansicht_(ansicht), bildschirmBreite_(bildschirmBreite), bildschirmHöhe_(bildschirmHöhe),
      canvasLinks_(Ruhelage), canvasOben_(Ruhelage), rückrufe_(std::move(rückrufe)) {
    picBack.Left = PalettenBreite;
    picBack.Top = FrameOben; // the frame ends at the inner area's lower edge
}

Steuerfläche Arbeitsbereich::picVorschau() const {
    return {canvasLinks_, canvasOben_, canvas_.Width(), canvas_.Height(), true};
}

void Arbeitsbereich::ZoomListeFuellen() {
    cboBildGröße.Einträge.Leeren();
    for (int zoom = 80; zoom <= 250; zoom += 10)
        cboBildGröße.Einträge.Anhängen((zoom < 100 ? "  " : "") + std::to_string(zoom) + " %");
    cboBildGröße.ListIndex = 3;
}

void Arbeitsbereich::ZoomWählen(int listIndex) {
    if (listIndex < 0 || listIndex >= cboBildGröße.Anzahl()) return;
    cboBildGröße.ListIndex = listIndex;
    Bildgrößenveränderung();
}

void Arbeitsbereich::Vergrößern() { ZoomWählen(cboBildGröße.ListIndex + 1); }

void Arbeitsbereich::Verkleinern() { ZoomWählen(cboBildGröße.ListIndex - 1); }

/// By the canvas as it is now: all zooms have its shape.
void Arbeitsbereich::ZoomEinpassen() {
    const auto prozent = [this](int i) { return ZahlLesen(cboBildGröße.Einträge.Satz(i)); };
    const double jetzt = prozent(cboBildGröße.ListIndex);
    const auto passt = [&](int i) {
        const double faktor = prozent(i) / jetzt;
        return PasstBreite(canvas_.Width() * faktor) && PasstHöhe(canvas_.Height() * faktor);
    };
    int größter = cboBildGröße.Anzahl() - 1;
    while (größter > 0 && !passt(größter)) --größter;
    ZoomWählen(größter);
}

void Arbeitsbereich::Blättern(int richtung, bool seitwärts) {
    constexpr int Rest = 10; // a tenth of the frame stays in sight
    const int weite = seitwärts ? SichtBreite() : SichtHöhe();
    const int weg = richtung * (weite - weite / Rest);
    Scrollen(HScroll1.Value + (seitwärts ? weg : 0), VScroll1.Value + (seitwärts ? 0 : weg));
}

void Arbeitsbereich::InsBild(const Seitenkasten &cm) {
    constexpr int Luft = 300; // twips between the box and the frame's edge
    const double twipsJeCm = canvas_.Width() / ansicht_.SeitenBreite;
    const auto wert = [&](double von, double bis, int canvas, int rahmen, int alt) {
        const int anfang = canvas + static_cast<int>(von * twipsJeCm) - Luft; // within the frame
        const int ende = canvas + static_cast<int>(bis * twipsJeCm) + Luft;
        if (anfang < 0) return alt + anfang;
        return ende > rahmen ? alt + std::min(ende - rahmen, anfang) : alt;
    };
    Scrollen(wert(cm.Links, cm.Rechts, canvasLinks_, SichtBreite(), HScroll1.Value),
             wert(cm.Oben, cm.Unten, canvasOben_, SichtHöhe(), VScroll1.Value));
}

void Arbeitsbereich::Mausrad(bool hoch) {
    MausradZählen(hoch);
    MausradFolgen();
}

void Arbeitsbereich::MausradZählen(bool hoch) {
    MausradIndex = std::clamp(MausradIndex + (hoch ? 1 : -1), 0, cboBildGröße.Anzahl() - 1);
}

void Arbeitsbereich::MausradFolgen() {
    if (cboBildGröße.ListIndex != MausradIndex) ZoomWählen(MausradIndex);
}

void Arbeitsbereich::MausradFolgen(Rahmenort zeiger) {
    const double anteilX = static_cast<double>(zeiger.X - canvasLinks_) / std::max(canvas_.Width(), 1);
    const double anteilY = static_cast<double>(zeiger.Y - canvasOben_) / std::max(canvas_.Height(), 1);
    if (cboBildGröße.ListIndex == MausradIndex) return;
    ZoomWählen(MausradIndex);
    const auto wert = [](double anteil, int länge, int ort) {
        return static_cast<int>(Gerundet(Ruhelage + anteil * länge - ort, 0));
    };
    Scrollen(HScroll1.Visible ? wert(anteilX, canvas_.Width(), zeiger.X) : 0,
             VScroll1.Visible ? wert(anteilY, canvas_.Height(), zeiger.Y) : 0);
}

void Arbeitsbereich::Bildgrößenveränderung() {
    ansicht_.StrichFaktor = cboBildGröße.ListIndex <= LetzterEinfacherZoom ? 1 : 2;
    LeinwandGroesseSetzen();
    rückrufe_.ZoomAnzeigen();
}

/// 100 % is nine tenths of the screen in each direction, whatever the monitor: the zoom is no factor of
/// real size. The page setup then reduces one side.
void Arbeitsbereich::LeinwandGroesseSetzen() {
    const double zoom = ZahlLesen(cboBildGröße.Text()) / 100;
    const auto seite = [&](int bildschirm) {
        return static_cast<int>(Gerundet((bildschirm - bildschirm / 10.0) * zoom, 0));
    };
    canvas_.GrößeSetzen(seite(bildschirmBreite_), seite(bildschirmHöhe_));
    BildlaufleistenSetzen();
    rückrufe_.Vorschau();
    ArbeitsbereichAnordnen();
}

void Arbeitsbereich::GrößeÄndern(int breite, int höhe) {
    breite_ = std::max(breite, KleinsteBreite);
    höhe_ = std::max(höhe, KleinsteHöhe);
    picBack.Width = breite_ - PaletteUndRand;
    picBack.Height = höhe_ - FrameOben;
    BildlaufleistenSetzen();
    VScroll1.Left = breite_ - BalkenRechts;
    VScroll1.Top = picBack.Top;
    VScroll1.Height = picBack.Height;
    HScroll1.Left = picBack.Left;
    HScroll1.Width = picBack.Width;
    HScroll1.Top = picBack.Height + FrameOben + BalkenUnten;
    ArbeitsbereichAnordnen();
}

void Arbeitsbereich::WerkzeugleisteZeigen() {
    picBack.Left = PalettenBreite;
    picBack.Width = breite_ - PalettenBreite;
    BildlaufleistenSetzen(); // what was zoomed beneath a wider frame would end short of the far edge
    ArbeitsbereichAnordnen();
}

/// The palette stays where it is: the frame merely covers it.
void Arbeitsbereich::WerkzeugleisteVerbergen() {
    picBack.Left = -10;
    picBack.Width = breite_;
    ArbeitsbereichAnordnen();
}

void Arbeitsbereich::BildlaufleistenSetzen() {
    VScroll1.Max = canvas_.Height() + Überlauf - picBack.Height;
    HScroll1.Max = canvas_.Width() + Überlauf - picBack.Width;
}

/// A canvas that fits is centred in what shows and has no scroll bar; one that doesn't goes back to its resting place.
void Arbeitsbereich::ArbeitsbereichAnordnen() {
    VScroll1.Visible = !PasstHöhe(canvas_.Height());
    HScroll1.Visible = !PasstBreite(canvas_.Width());
    const auto anfang = [](int canvas, int sicht, Bildlaufleiste &leiste) {
        leiste.Value = 0;
        return leiste.Visible ? Ruhelage : (sicht - canvas) / 2;
    };
    canvasLinks_ = anfang(canvas_.Width(), SichtBreite(), HScroll1);
    canvasOben_ = anfang(canvas_.Height(), SichtHöhe(), VScroll1);
    SchattenSetzen();
}

void Arbeitsbereich::Scrollen(int hValue, int vValue) {
    HScroll1.Value = std::clamp(hValue, 0, std::max(HScroll1.Max, 0));
    VScroll1.Value = std::clamp(vValue, 0, std::max(VScroll1.Max, 0));
    if (HScroll1.Visible) canvasLinks_ = Ruhelage - HScroll1.Value;
    if (VScroll1.Visible) canvasOben_ = Ruhelage - VScroll1.Value;
    SchattenSetzen();
}

bool Arbeitsbereich::ScrollenUm(int dx, int dy) {
    const Rahmenort vorher{HScroll1.Value, VScroll1.Value};
    Scrollen(HScroll1.Value + (HScroll1.Visible ? dx : 0), VScroll1.Value + (VScroll1.Visible ? dy : 0));
    return HScroll1.Value != vorher.X || VScroll1.Value != vorher.Y;
}

void Arbeitsbereich::MitRadScrollen(double quer, double längs) {
    const auto weg = [](double rasten) { return static_cast<int>(Gerundet(-rasten * Radschritt, 0)); };
    if (VScroll1.Visible) ScrollenUm(weg(quer), weg(längs));
    else ScrollenUm(weg(quer + längs), 0);
}

void Arbeitsbereich::SeiteFassen(Rahmenort hand) {
    hand_ = hand;
    stand_ = {HScroll1.Value, VScroll1.Value};
}

void Arbeitsbereich::SeiteSchieben(Rahmenort hand) {
    ScrollenUm(stand_.X + hand_.X - hand.X - HScroll1.Value, stand_.Y + hand_.Y - hand.Y - VScroll1.Value);
}

bool Arbeitsbereich::AmRandScrollen(Rahmenort zeiger, Rahmenort gedrückt) {
    return ScrollenUm(Randschritt(zeiger.X, gedrückt.X, SichtBreite()), Randschritt(zeiger.Y, gedrückt.Y, SichtHöhe()));
}

void Arbeitsbereich::LeistenSetzen(int dicke) {
    if (leistendicke_ == dicke) return;
    leistendicke_ = dicke;
    ArbeitsbereichAnordnen();
}

int Arbeitsbereich::SichtBreite(bool mitLeiste) const {
    if (!leistendicke_) return picBack.Width;
    return VScroll1.Left + (mitLeiste ? 0 : *leistendicke_) - picBack.Left;
}

int Arbeitsbereich::SichtHöhe(bool mitLeiste) const {
    if (!leistendicke_) return picBack.Height;
    return HScroll1.Top + (mitLeiste ? 0 : *leistendicke_) - picBack.Top;
}

Rahmenort Arbeitsbereich::InRahmen(double x, double y, double seitenBreite) const {
    const double twips = canvas_.Width() / seitenBreite;
    return {static_cast<int>(Gerundet(canvasLinks_ + x * twips, 0)),
            static_cast<int>(Gerundet(canvasOben_ + y * twips, 0))};
}

void Arbeitsbereich::SchattenSetzen() {
    shpSchatten = {canvasLinks_ + Schattenversatz, canvasOben_ + Schattenversatz, canvas_.Width(), canvas_.Height(),
                   true};
}

} // namespace kw
