// Lines, arrows and curves.
#include "app/Einzelbild.h"
#include "document/Zahlen.h"
#include "rendering/Ebenen.h"
#include "rendering/basKurvenGlaettung.h"
#include "replay/Aufzeichnung.h"
#include "replay/Plattform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <sstream>

namespace kw {
namespace {

/// The marks that a layer leaves for a document, a line each.
template <typename Ebene> std::vector<std::string> Zeilen(const Zeichnung &z, Ebene ebene) {
    Aufzeichnung f;
    f.Schreibt = true;
    ebene(f, z);
    std::vector<std::string> zeilen;
    std::istringstream text(f.Text);
    for (std::string zeile; std::getline(text, zeile);)
        if (!zeile.starts_with("layer")) zeilen.push_back(zeile.substr(0, zeile.find(" pen")));
    return zeilen;
}

TEST(Pfeile, KopfNachLängeUndRichtung) {
    DrehbuchUhr uhr;
    Einzelbild bild(uhr, "");
    // The second one's length is in no row of the table: it takes the setback that the first one left.
    bild.dokument.cboPfeile = {"1_5_1_5_2", "2_5_60_5_10", "1_1", "1_8_0_5_4"};
    const auto s = Zeilen(bild.DasBild(), PfeilEbene);
    ASSERT_EQ(s.size(), 104 + 104 + 103 + 104);
    EXPECT_EQ(s[0], "line 5 1 5 2");
    EXPECT_EQ(s[1], "line 5 2 5.1131 1.6869"); // downward, its base 0.2 of the way back
    EXPECT_EQ(s[2], "line 5 2 4.8869 1.6869");
    EXPECT_EQ(s[3], "line 4.8869 1.6869 5 2");
    EXPECT_EQ(s[103], "line 5.1131 1.6869 5 2");
    EXPECT_EQ(s[104 + 1], "line 5 10 4.8869 20.1131"); // upward
    EXPECT_EQ(s[208 + 0], "line 5 60 5.1131 49.8869"); // the other head, without the shaft
    EXPECT_EQ(s[311 + 1], "line 5 4 5.2604 3.8414");   // to the left
}

TEST(Pfeile, KreislinienFolgenDemFarbschemaEinBildSpäter) {
    DrehbuchUhr uhr;
    Einzelbild bild(uhr, "");
    bild.dokument.cboFreehandlines = {"1^1_5^1_1^1"};
    bild.ansicht.Farbschema = SchemaSchwarzWeiß;
    Aufzeichnung f;
    f.Schreibt = true;
    KreislinienEbene(f, bild.DasBild());
    EXPECT_NE(f.Text.find("pen=404040"), std::string::npos) << "that of the last redraw";
    bild.ansicht.Pfeilfarbe = PfeilEbene(f, bild.DasBild()).Pfeilfarbe;
    f.Text.clear();
    KreislinienEbene(f, bild.DasBild());
    EXPECT_EQ(f.Text.find("pen=404040"), std::string::npos);
}

TEST(Kurven, GehenDurchIhrePunkte) {
    Kurvenpunkte p{{}, {0, 0}, {4, 0}, {4, 4}, {0, 0}, {}};
    std::vector<Bildpunkt> punkte;
    EXPECT_EQ(KurveBerechnen(p, 4, 10, punkte, true), 31);
    EXPECT_EQ(punkte[10].X, 4);
    EXPECT_EQ(punkte[20].Y, 4);
    EXPECT_EQ(p[0].Y, 4) << "closed: the point before the first is the one before the last";
    EXPECT_EQ(p[5].X, 4);
    EXPECT_EQ(KurveBerechnen(p, 4, 1, punkte, false), 4);
    EXPECT_EQ(p[0].Y, 0) << "open: the ends stand for their neighbours";
    EXPECT_EQ(KurveBerechnen(p, 1, 10, punkte, false), 0);
    const auto k = KurvenKoeffizienten(p, 2);
    EXPECT_DOUBLE_EQ(KurvenPunkt(k, 2, 0.5).X, 4.5); // bulges beyond the chord
}

using Striche = std::vector<std::array<double, 4>>;

/// Collects the lines of one thing, from its beginning on.
struct Sammler : Aufzeichnung {
    double X = 0, Y = 0;
    Striche Gesehen;
    void Line(int /*flags*/, double x1, double y1, double x2, double y2, Farbe /*farbe*/) override {
        Gesehen.push_back({x1 - X, y1 - Y, x2 - X, y2 - Y});
    }
};

bool Gleich(const Striche &a, const Striche &b) {
    const auto nah = [](double p, double q) { return std::fabs(p - q) < 1e-4; };
    return std::ranges::equal(a, b, [&](const auto &p, const auto &q) { return std::ranges::equal(p, q, nah); });
}

constexpr double Raster = 0.3;                                                  // the others are multiples of it
enum : size_t { Spitze, Kind, Partner, Gestrichelt, Abbruch, Zickzack, Arten }; // the last ones as their records say

/// Each thing from one place of the raster to another, in steps of it, as records hold them.
std::array<Striche, Arten> Gezeichnet(Einzelbild &bild, int x, int y, int dx, int dy) {
    const auto ort = [](int schritte, double dazu = 0) { return ZahlSchreiben(schritte * Raster + dazu); };
    const auto von = ort(x) + "_" + ort(y) + "_";
    const auto nach = ort(x + dx) + "_" + ort(y + dy);
    Dokument &d = bild.dokument;
    d.cboPersonen = {"001_1_1_1_1.2_0________"};
    d.cboPfeile = {"2_" + von + nach};
    d.cboKindlinien = {"001_1_001_" + ort(x + dx) + "_" + ort(x) + "_" + ort(y + dy, 0.6) + "_" + ort(y)};
    d.cboPartnerschaftsLinien = {"001__" + von + ort(x + dx) + "_" + ort(y) + "_001_002_" + ort(y + dy) + "_" +
                                 ort(y + dy) + "_" + ort(x) + "_" + ort(x + dx) + "_1_"};
    std::array<Striche, Arten> formen;
    const auto sammeln = [&](size_t art, auto ebene) {
        Sammler f;
        f.X = x * Raster;
        f.Y = y * Raster;
        ebene(f, bild.DasBild());
        formen[art] = f.Gesehen;
    };
    sammeln(Spitze, PfeilEbene);
    sammeln(Kind, [](Zeichenfläche &f, const Zeichnung &z) { KindlinienZeichnen(f, z, 1); });
    sammeln(Partner, [](Zeichenfläche &f, const Zeichnung &z) { PartnerschaftslinienZeichnen(f, z, 1); });
    for (const size_t art : {Gestrichelt, Abbruch, Zickzack}) {
        d.cboBeziehungsLinien = {"_" + std::to_string(art) + "_" + von + nach + "_001_002"};
        sammeln(art, BeziehungslinienZeichnen);
    }
    return formen;
}

/// The form of a line depends on its length and direction alone, wherever on the page it is.
TEST(Formen, HängenNurVonLängeUndRichtungAb) {
    DrehbuchUhr uhr;
    Einzelbild bild(uhr, "");
    constexpr std::array<std::array<int, 3>, 6> Richtungen{
        {{1, 0, 1}, {-1, 0, 1}, {0, 1, 1}, {0, -1, 1}, {3, 4, 5}, {-4, 3, 5}}}; // of whole lengths
    constexpr int Längste = 20;                                                 // steps: 6 cm
    constexpr int Orte = 100;                                                   // along the longest page
    for (const auto &[dx, dy, je] : Richtungen)
        for (int n = 1; n * je <= Längste; ++n) {
            const auto erste = Gezeichnet(bild, Längste, Längste, n * dx, n * dy);
            EXPECT_EQ(std::ssize(erste[Zickzack]), 2 * (3 * n * je / 4)) << "a period each 0.4 cm";
            for (int ort = 0; ort < Orte; ++ort) {
                const auto formen = Gezeichnet(bild, ort, Orte - ort, n * dx, n * dy);
                for (size_t art = 0; art < Arten; ++art)
                    ASSERT_TRUE(Gleich(formen[art], erste[art]))
                        << "kind " << art << " at " << ort << ": " << n << " x " << dx << " " << dy;
            }
        }
}

} // namespace
} // namespace kw
