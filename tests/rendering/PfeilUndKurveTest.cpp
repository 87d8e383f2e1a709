#include "app/Einzelbild.h"
#include "rendering/Ebenen.h"
#include "rendering/basKurvenGlaettung.h"
#include "replay/Aufzeichnung.h"
#include "replay/Plattform.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kw {
namespace {

/// The marks that a layer leaves for a document, a line each.
template <typename Ebene> std::vector<std::string> Striche(const Zeichnung &z, Ebene ebene) {
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
    const auto s = Striche(bild.DasBild(), PfeilEbene);
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

} // namespace
} // namespace kw
