#include "document/ProjektDatei.h"

#include "document/Codepage.h"
#include "document/Felder.h"

#include <gtest/gtest.h>

using namespace kw;

namespace {

const std::string Person = "001_1_4.2_4_1.2_0__0_0______";

Dokument Beispiel() {
    Dokument d;
    d.cboPersonen = {Person, "002_10_1_2_1.2_1_$81_1_0_Jörg_Müller_1950__", "003_12_1_2_1.2_0__0_0_____",
                     "004_11_1_2_1.2_0__0_0_____"};
    d.cboTextboxen = {"1_2_Arial_8_0_0_0_0_0_Text mit Blank _2.1_0.35"};
    d.cboBeziehungsLinien = {"_0_1_2_3_4_001_002", "_0_1_2_3_4_001_002"};
    d.cboPartnerschaftsLinien = {"001__1_2_3_4_001_002_5_6_7_8__"};
    d.cboKindlinien = {"003_0_001_1_2_3_4"};
    d.cboFreehandlines = {"1^2_ 3^ 4_1^2"};
    d.cboPfeile = {"1_1_2_3_4"};
    d.Papiercode = 11;
    d.Seitenlage = 1;
    d.LegendeSichtbar = true;
    d.LegendeX = 1.5;
    return d;
}

const std::string BeispielDatei =
    "[DEFAULT]\r\norientation=1\r\npapersize=11\r\nlegende=1_1.5_2_0_1\r\n"
    "[OBJECTS]\r\n0=001_1_4.2_4_1.2_0__0_0_____\r\n1=002_1.1_1_2_1.2_1_$81_1_0_Jörg_Müller_1950__\r\n"
    "2=003_1.2_1_2_1.2_0__0_0_____\r\n3=004_2.1_1_2_1.2_0__0_0_____\r\n"
    "[LINEA]\r\n0=_0_1_2_3_4_001_002\r\n1=_0_1_2_3_4_001_002\r\n[LINEB]\r\n0=001__1_2_3_4_001_002_5_6_7_8__\r\n"
    "[LINEC]\r\n0=003_0_001_1_2_3_4\r\n[LINED]\r\n0=1^2_3^4_1^2\r\n[LINEE]\r\n0=1_1_2_3_4\r\n"
    "[TEXT]\r\n0=1_2_Arial_8_0_0_0_0_0_Text mit Blank _2.1_0.35\r\n";

/// Loads as the main window does and gives what the check says.
std::string Geladen(const std::string &datei, Dokument &d) {
    const Profil profil(NachCodepage(datei));
    return Ladetext(ProjektLesen(profil, d), Sprache::Englisch);
}

} // namespace

TEST(ProjektDatei, SchreibtUndLiestAlleSpeicher) {
    Profil neu;
    ProjektEintragen(Beispiel(), neu);
    EXPECT_EQ(NachUtf8(neu.Inhalt()), BeispielDatei);

    Dokument d;
    d.cboPfeile = {"2_9_9_9_9"};
    EXPECT_EQ(Geladen(BeispielDatei, d), "");
    EXPECT_EQ(d.cboPersonen.Satz(0) + "_", Person) << "the empty field behind the last one is not kept";
    Profil noch(NachCodepage(BeispielDatei));
    ProjektEintragen(d, noch);
    EXPECT_EQ(NachUtf8(noch.Inhalt()), BeispielDatei) << "a file of our own comes back byte for byte";
}

TEST(ProjektDatei, ErsetztNurWasIhmGehört) {
    Profil profil("[OBJECTS]\n0=alt\n1=alt\n[Fremd]\nx=1\n[DEFAULT]\nlegende=alt\neigenes=ja\n[LINEA]\n0=alt\n[objects]"
                  "\n7=alt\n");
    Dokument d;
    d.cboPersonen = {"001_1"};
    d.LegendeQuer = true;
    d.OhneStandardsymbole = true;
    ProjektEintragen(d, profil);
    EXPECT_EQ(profil.Inhalt(), "[Fremd]\r\nx=1\r\n[DEFAULT]\r\nlegende=0_25_2_1_0\r\neigenes=ja\r\norientation=2\r\n"
                               "papersize=9\r\n[OBJECTS]\r\n0=001_1____________\r\n");
}

TEST(ProjektDatei, LiestPapierUndLage) {
    struct Fall {
        std::string Datei;
        int Papiercode, Seitenlage;
    };
    for (const auto &[datei, papier, lage] :
         {Fall{"", 9, 2}, Fall{"papersize=11\norientation=1", 11, 1}, Fall{"papersize=1\norientation=0", 1, 2},
          Fall{"papersize=8\norientation=3", 5, 3}, Fall{"papersize=9 \norientation=-1x", 9, 2}}) {
        Dokument d;
        d.Papiercode = 5;
        ProjektLesen(Profil("[DEFAULT]\n" + datei), d);
        EXPECT_EQ(d.Papiercode, papier) << datei;
        EXPECT_EQ(d.Seitenlage, lage) << datei;
    }
}

TEST(ProjektDatei, EinKurzerSatzBeendetDasLaden) {
    Dokument d = Beispiel();
    EXPECT_EQ(Geladen("[DEFAULT]\nlegende=1_9_9_1_1\n[OBJECTS]\n0=" + Person + "\n1=002_1_4\n2=" + Person +
                          "\n[LINEE]\n0=1_1_2_3_4\n",
                      d),
              "OBJECTS 1: a person needs 14 fields, has 3; 1 of 4 records read");
    EXPECT_EQ(d.cboPersonen.Anzahl(), 1);
    EXPECT_TRUE(d.cboPfeile.Leer() && d.cboTextboxen.Leer());
    EXPECT_EQ(d.LegendeX, 1.5) << "the legend comes after the stores";
    // A gap in the keys: fatal among persons, an empty record elsewhere.
    EXPECT_EQ(Geladen("[OBJECTS]\n0=" + Person + "\n2=" + Person + "\n", d),
              "OBJECTS 1: a person needs 14 fields, has none; 1 of 2 records read");
    EXPECT_EQ(Geladen("[LINEE]\n0=1_1_2_3_4\n2=1_1_2_3_4\n", d), "LINEE 1: an arrow needs 5 fields, has none");
    EXPECT_EQ(d.cboPfeile, (Satzliste{"1_1_2_3_4", ""}));
}

TEST(ProjektDatei, OhneLegendeBleibtWasWar) {
    Dokument d;
    const Profil alte("[OBJECTS]\n0=" + Person + "\n");
    EXPECT_FALSE(ProjektLesen(alte, d).BisZumEnde);
    EXPECT_EQ(Geladen("[OBJECTS]\n0=" + Person + "\n", d), "") << "old files have no legend";
    EXPECT_EQ(Geladen("[DEFAULT]\nlegende=1_7\n", d), "DEFAULT legende: the legend needs 4 fields, has 2");
    EXPECT_EQ(d.LegendeX, 7) << "set before the missing field was met";
    EXPECT_FALSE(d.LegendeSichtbar);
}

TEST(ProjektDatei, PrüfungNenntWasFehlt) {
    Dokument d;
    EXPECT_EQ(Geladen("", d), "not a Kinwright project");
    EXPECT_EQ(Geladen("[settings]\nlanguage=de\n", d), "not a Kinwright project");
    EXPECT_EQ(Geladen("[LINEB]\n0=001__1_2\n", d), "LINEB 0: a partnership line needs 14 fields, has 4");
    EXPECT_EQ(Geladen("[TEXT]\n0=1_2_Arial_8_0_0_0_0_0_neu\n", d), "");
    EXPECT_EQ(Geladen("[LINED]\n0=1^2\n1=x\n", d), "LINED 1: a circle line needs a point, has none");
    EXPECT_EQ(Geladen("[LINED]\n0=1^2" + std::string(4096, '1') + "\n", d),
              "LINED 0: a circle line has at most 4095 characters, the rest is lost");
    EXPECT_EQ(Geladen("[LINEE]\n0=1_1_2_3_4\n[linee]\n1=1_1_2_3_4\n", d),
              "LINEE: only the first section of this name is read");

    std::string viele = "[OBJECTS]\n";
    for (int i = 0; i < 1060; ++i) viele += std::to_string(i) + "=" + Person + "\n";
    EXPECT_EQ(Geladen(viele, d),
              "OBJECTS: more records than can be read, the first is OBJECTS 1040; 1040 of 1060 records read");
    EXPECT_EQ(d.cboPersonen.Anzahl(), 1040);
}
