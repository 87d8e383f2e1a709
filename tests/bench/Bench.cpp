// Speed of what a user waits for, by the size of the document. The redraw is set against a bare loop of
// the same primitives on the same kind of target: recorded once as plain values, pens made beforehand,
// texts prepared.

#include "app/Einzelbild.h"
#include "document/Profil.h"
#include "document/ProjektDatei.h"
#include "document/basAltersberechnung.h"
#include "qt/LeinwandFlaeche.h"
#include "qt/QtPlattform.h"
#include "rendering/Seite.h"
#include "rendering/Symbole.h"

#include <QApplication>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <vector>

namespace kw {
namespace {

const QtUhr uhr; // NOLINT: the benchmark's own

/// A document of `n` persons in families of four, with all that such persons bring along.
Dokument Familien(int n) {
    Dokument d;
    const auto z = [](double wert) { return ZahlSchreiben(wert); };
    for (int i = 0; i < n; ++i) {
        const double x = 1 + i % 30 * 0.92;
        const double y = 1 + i / 30 % 30 * 0.63;
        const std::string nr = Dreistellig(i + 1);
        const std::string mitte = z(x) + "_" + z(y);
        const char *marken = i % 5 == 0 ? "_1_$78_1_1_" : "_0__0_0_";
        d.cboPersonen.Anhängen(nr + "_" + std::to_string(i % 2 + 1) + "_" + mitte + "_0.6" + marken + "Jörg" +
                               std::to_string(i % 40) + "_Müller_" + std::to_string(1 + i % 28) + ".03.19" +
                               std::to_string(30 + i % 60) + "__");
        if (i % 2 == 0) continue;
        const std::string vorher = Dreistellig(i);
        d.cboBeziehungsLinien.Anhängen("_" + std::to_string(i % 8) + "_" + z(x - 0.92) + "_" + z(y) + "_" + mitte + "_" +
                                       vorher + "_" + nr);
        d.cboPartnerschaftsLinien.Anhängen(Dreistellig((i + 1) / 2) + "_" + std::to_string(i % 4) + "_" + z(x - 0.92) +
                                           "_" + z(y + 0.5) + "_" + z(x) + "_" + z(y + 0.5) + "_" + vorher + "_" + nr +
                                           "_" + z(y) + "_" + z(y) + "_" + z(x - 0.92) + "_" + z(x) + "__1980#1990#2000#2010");
        d.cboKindlinien.Anhängen(nr + "_" + std::to_string(i % 3) + "_001_" + z(x) + "_" + z(x - 0.4) + "_" + z(y) + "_" +
                                 z(y - 0.6));
        if (i % 20 == 1) d.cboTextboxen.Anhängen(mitte + "_Arial_11_255_0_0_0_0_Notiz zu#Müller_2_1");
    }
    return d;
}

/// A canvas as at 100 % on a screen of 1920 x 1080, and a bild on it.
struct Blatt {
    explicit Blatt(int n) : bild(uhr, ""), z(bild.DasBild()) {
        z.dokument = Familien(n);
        z.ansicht.bRasterAnzeigen = false;
        Zeichnen(leinwand);
    }
    void Zeichnen(Zeichenfläche &fläche) {
        fläche.GrößeSetzen(25920, 14580);
        VorschauZeichnen(fläche, z);
    }
    LeinwandFläche leinwand{1};
    Einzelbild bild;
    Zeichnung z;
};

/// Keeps every primitive as plain values, ready to be painted again.
class Mitschrift : public QtFläche {
  public:
    enum class Art { Strich, Kasten, Kreis, Torte, Vieleck, Fläche, Text };
    struct Marke {
        Art Was;
        int Stift;
        int Füllung;
        QRectF Ort; ///< or the line from top left to bottom right
        std::array<QPointF, 9> Ecken;
        int Anzahl; ///< corners, or start and length of a pie
        int Länge;
        int Text;
    };
};

} // namespace
} // namespace kw
