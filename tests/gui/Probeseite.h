#pragma once

#include "app/frmMain.h"
#include "qt/fenster/Arbeitsflaeche.h"
#include "qt/malen/LeinwandFlaeche.h"
#include "replay/Einblick.h"
#include "replay/Plattform.h"

#include <QApplication>
#include <QMouseEvent>

#include <sstream>
#include <string>

// The program's page alone, without the window round it, for what a hand does there.
namespace kw {

/// Counts the redraws: each begins with clearing.
struct Zählleinwand : LeinwandFläche {
    Zählleinwand() : LeinwandFläche(1) {}
    void Cls() override {
        ++Bilder;
        LeinwandFläche::Cls();
    }
    int Bilder = 0;
};

/// The real model on the real widget, started and not yet shown. What the model asks, a script answers as `Benutzer`
/// does; pictures go nowhere.
template <typename Benutzer = DrehbuchBenutzer> struct Probeseite {
    explicit Probeseite(QSize pixel, const Startangaben &angaben = Schirm(1920, 1080))
        : haupt({benutzer, drucker, dateien, uhr}, leinwand, angaben) {
        fläche.resize(pixel);
        fläche.Verbinden(haupt, [] {});
        haupt.Laden();
        Anpassen();
    }
    Probeseite(const Probeseite &) = delete;
    Probeseite &operator=(const Probeseite &) = delete;

    /// Nobody's settings, nothing kept; a screen of so many pixels.
    static Startangaben Schirm(int breite, int höhe) {
        return {"", "/nonexistent/prog.ini", "", "", breite * TwipsJePixel, höhe * TwipsJePixel};
    }
    /// The model follows the widget's size.
    void Anpassen() { innen.bereich.GrößeÄndern(fläche.Innengröße().width(), fläche.Innengröße().height()); }
    /// cm on the page as pixels of the widget.
    QPointF Pixel(double x, double y) const {
        const Arbeitsbereich &b = innen.bereich;
        const Steuerfläche blatt = b.picVorschau();
        const QPointF ecke(b.picBack.Left + blatt.Left, b.picBack.Top + blatt.Top - Arbeitsbereich::FrameOben);
        return ecke / double{TwipsJePixel} + QPointF(x, y) * PixelJeCm();
    }
    double PixelJeCm() const {
        return innen.bereich.picVorschau().Width / double{TwipsJePixel} / innen.ansicht.SeitenBreite;
    }
    void Maus(QEvent::Type art, QPointF ort, Qt::MouseButton taste, Qt::MouseButtons unten) {
        QMouseEvent ereignis(art, ort, fläche.mapToGlobal(ort), taste, unten, Qt::NoModifier);
        QApplication::sendEvent(&fläche, &ereignis);
    }

    static constexpr int TwipsJePixel = 15;
    std::ostringstream aus;
    std::string wirkungen;
    Benutzer benutzer{aus, wirkungen};
    DrehbuchDrucker drucker{wirkungen};
    DrehbuchUhr uhr;
    Zählleinwand leinwand;
    DrehbuchBilder dateien{leinwand, wirkungen};
    frmMain haupt;
    Einblick innen{haupt};
    Arbeitsflaeche fläche{leinwand};
};

} // namespace kw
