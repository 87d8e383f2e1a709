#include "app/Einzelbild.h"
#include "replay/Aufzeichnung.h"
#include "replay/Plattform.h"

#include <gtest/gtest.h>

namespace kw {
namespace {

struct Blatt {
    DrehbuchUhr uhr;
    Dokument dokument;
    Ansicht ansicht;
    Auswahl auswahl;
    Gestenlage geste;
    Legendenblatt legende;
    Aufzeichnung f;

    Blatt() {
        f.GrößeSetzen(16838, 11906);
        f.Schreibt = true;
    }
    Zeichnung DasBild() const { return {dokument, ansicht, auswahl, geste, legende, uhr}; }
    void Übernehmen(const Zeichenbefund &befund) { Anwenden(befund, dokument, ansicht, geste, legende); }
    /// What a redraw leaves on the page.
    std::string Bild() {
        f.Text.clear();
        VorschauZeichnen(f, DasBild());
        return f.Text;
    }
};

TEST(Zeichenbefund, EinNeuerTextStehtErstNachDemAnwendenAnSeinerStelle) {
    Blatt blatt;
    blatt.dokument.cboTextboxen = {"2_2_Arial_12_0_0_0_0_2_Hallo", "5_5_Arial_12_0_0_0_0_0_Welt__"};
    blatt.auswahl.lstMovedText = {"0"};
    blatt.geste.Aktion = Aktion::TextGesetzt;
    const std::string vorher = blatt.Bild();
    EXPECT_EQ(blatt.Bild(), vorher) << "drawing changes nothing";
    const Zeichenbefund befund = VorschauZeichnen(blatt.f, blatt.DasBild());
    ASSERT_EQ(befund.Texte.Gemessen.size(), 2U);
    blatt.Übernehmen(befund);
    EXPECT_EQ(blatt.geste.Aktion, Aktion::Nichts);
    const double höhe = befund.Texte.Gemessen[0].Höhe;
    EXPECT_DOUBLE_EQ(blatt.geste.TextRahmenUnten, höhe + 0.1) << "the frame has the new measures at once";
    EXPECT_EQ(blatt.dokument.cboTextboxen.Satz(1), "5_5_Arial_12_0_0_0_0_0_Welt_1.02_0.51");
    EXPECT_NE(blatt.Bild(), vorher) << "centred, now that its width is known";
    EXPECT_TRUE(VorschauZeichnen(blatt.f, blatt.DasBild()).Texte.Gemessen.empty());
}

TEST(Zeichenbefund, EinDruckLässtDieEinfacheLinieUndDieMarkenDesBildschirms) {
    Blatt blatt;
    blatt.dokument.cboPfeile = {"1_1_1_5_5"};
    blatt.auswahl.lstMovedPfeile = {"0"};
    blatt.ansicht.StrichFaktor = 2;
    blatt.Übernehmen(VorschauZeichnen(blatt.f, blatt.DasBild()));
    EXPECT_TRUE(blatt.ansicht.PfeilMarkiert);
    EXPECT_EQ(blatt.ansicht.StrichFaktor, 2);
    const double skalierung = blatt.ansicht.Skalierung;
    blatt.f.Text.clear();
    blatt.Übernehmen(DruckZeichnen(blatt.f, blatt.DasBild()));
    EXPECT_NE(blatt.f.Text.find("line 1 1 5 5 pen=404040 width=3"), std::string::npos) << blatt.f.Text;
    EXPECT_EQ(blatt.ansicht.StrichFaktor, 1);
    EXPECT_EQ(blatt.ansicht.Skalierung, skalierung);
    EXPECT_TRUE(blatt.ansicht.PfeilMarkiert) << "the handles still stand on the screen";
}

TEST(Zeichenbefund, DieLegendeGehtAufSeiteUndRaster) {
    Blatt blatt;
    blatt.dokument.cboPersonen = {"001_1_5_5_1.2_0__0_0_____"};
    blatt.dokument.LegendeSichtbar = true;
    blatt.dokument.LegendeX = 99;
    blatt.dokument.LegendeY = 2.2;
    EXPECT_EQ(VorschauZeichnen(blatt.f, blatt.DasBild()).Legende->Breite, 0) << "nothing to explain";
    LegendeAufbauen(blatt.dokument, blatt.legende);
    const std::string vorher = blatt.Bild();
    blatt.Übernehmen(VorschauZeichnen(blatt.f, blatt.DasBild()));
    EXPECT_DOUBLE_EQ(blatt.dokument.LegendeX, 24.3);
    EXPECT_DOUBLE_EQ(blatt.dokument.LegendeY, 2.1);
    EXPECT_DOUBLE_EQ(blatt.legende.LegendeBreite, 4.7);
    EXPECT_EQ(blatt.Bild(), vorher) << "it was drawn where it now stands";
}

} // namespace
} // namespace kw
