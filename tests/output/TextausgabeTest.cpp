#include "output/Textausgabe.h"

#include "replay/Aufzeichnung.h"

#include <gtest/gtest.h>

namespace kw {

TEST(Textausgabe, BrichtZwischenWortenUndNieInnerhalbEinesZeichens) {
    const std::string wort(30, 'x');
    const auto worte = Textblätter(wort + " " + wort + " " + wort + " " + wort + "\n\nEnde").front();
    ASSERT_EQ(worte.size(), 4U);
    EXPECT_EQ(worte[0], wort + " " + wort + " " + wort + " ");
    EXPECT_EQ(worte[1], wort);
    EXPECT_EQ(worte[2], "");
    EXPECT_EQ(worte[3], "Ende");
    std::string umlaute;
    for (int i = 0; i < 150; ++i) umlaute += "ß";
    const auto ohneLücke = Textblätter(umlaute).front();
    ASSERT_EQ(ohneLücke.size(), 2U);
    EXPECT_EQ(ohneLücke[0].size(), 156U);
    EXPECT_EQ(ohneLücke[0] + ohneLücke[1], umlaute);
}

TEST(Textausgabe, JedesBlattFasstSeineZeilen) {
    std::string text;
    for (int i = 0; i < 200; ++i) text += "Zeile " + std::to_string(i) + "\n";
    const auto blätter = Textblätter(text);
    std::size_t zeilen = 0;
    for (const auto &blatt : blätter) {
        zeilen += blatt.size();
        Aufzeichnung papier;
        TextblattZeichnen(papier, "Kopf", blatt);
        EXPECT_LT(papier.CurrentY, 27.9 - 0.5) << "the lower end of the shortest sheet";
    }
    EXPECT_EQ(zeilen, 200U);
    EXPECT_EQ(blätter.size(), 4U);
    EXPECT_EQ(Textblätter("").size(), 1U);
}

} // namespace kw
