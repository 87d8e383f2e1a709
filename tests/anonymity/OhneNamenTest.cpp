#include "anonymity/OhneNamen.h"
#include "anonymity/Generationen.h"
#include "app/Einzelbild.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "replay/Aufzeichnung.h"
#include "replay/Plattform.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kw {
namespace {

/// Parents, a father's brother drawn at the same height, two children and an institution; below them a couple of
/// another family whose line is drawn between two rows; a person alone beside the children.
Dokument Familie() {
    Dokument d;
    for (const auto *satz :
         {"001_1_9_4_1.2_0__0_0_Karl_Meier_12.03.1950__", "002_2_13_4_1.2_0_$71_0_1_Erna_Meier_1951__",
          "003_1_15_8.1_1.2_1__1_0_Jörg_Meier-Groß_11.03.1980_001_1E004",
          "004_1_7_8_1.2_0__0_0_Uwe_Meier_1980_001_1E003", "005_3_11_8_0.6_0__0_0_Erwartet_Bald_01.05.2026_001_",
          "006_9_20_3_1.2_____Jugendamt Köln____", "007_2_3_7.4_1.2_0_1999_0_0__Schmitz___",
          "008_10_1_13_1.2_0_$12.03.1999_0_0_Lena___003_"})
        d.cboPersonen.Anhängen(satz);
    d.cboPartnerschaftsLinien.Anhängen("001_3_9_5.8_13_5.8_001_002_4_4_9_13_1_1970#Herbst 1999#3.5.1975#nie");
    d.cboPartnerschaftsLinien.Anhängen("002__3_9_7_9_007_004_7.4_8_3_7__");
    for (const auto *satz :
         {"003_0_001_15_15_8.1_5.8", "004_1_001_7_7_8_5.8", "005_0_001_11_11_8_5.8", "008_0_002_1_1_13_9"})
        d.cboKindlinien.Anhängen(satz);
    d.cboBeziehungsLinien.Anhängen("_5_9_4_15_8_001_003");
    d.cboFreehandlines.Anhängen("1^1_5.5^1_5^5_1^1");
    d.cboPfeile.Anhängen("2_1_1_9_9");
    d.cboTextboxen.Anhängen("2_2_Arial_12_255_1_0_0_2_Scheidung lief schlecht_4_1");
    d.LegendeSichtbar = true;
    return d;
}

std::vector<std::string> Sätze(const Satzliste &liste) { return {liste.begin(), liste.end()}; }
using Liste = std::vector<std::string>;

TEST(OhneNamen, LässtWasSupervisionBrauchtUndSonstNichts) {
    const DrehbuchUhr uhr; // 12 March 2026
    const Dokument neu = OhneNamen(Familie(), Lebenszeit::Alter, uhr, Sprache::Deutsch);
    EXPECT_EQ(Sätze(neu.cboPersonen),
              (Liste{"001_1_9_4_1.2_0__0_0_A1__Alter 76__", "002_2_13_4_1.2_0_$71_0_1_A2____",
                     "003_1_15_8.1_1.2_1__1_0_B3__Alter 46_001_1E004", "004_1_7_8_1.2_0__0_0_B2__Alter 46_001_1E003",
                     "005_3_11_8_0.6_0__0_0____001_", "006_9_20_3_1.2_________", "007_2_3_7.4_1.2_0__0_0_B1____",
                     "008_10_1_13_1.2_0_$_0_0_C1___003_"}));
    EXPECT_EQ(Sätze(neu.cboPartnerschaftsLinien),
              (Liste{"001_3_9_5.8_13_5.8_001_002_4_4_9_13_1_###", "002__3_9_7_9_007_004_7.4_8_3_7__"}));
    EXPECT_TRUE(neu.cboTextboxen.Leer());
    for (const auto speicher :
         {&Dokument::cboKindlinien, &Dokument::cboBeziehungsLinien, &Dokument::cboFreehandlines, &Dokument::cboPfeile})
        EXPECT_EQ(neu.*speicher, Familie().*speicher);
    EXPECT_TRUE(neu.LegendeSichtbar);
}

TEST(OhneNamen, StattDesDatumsDasGeburtsjahr) {
    const DrehbuchUhr uhr;
    const auto daten = [&](const Dokument &dokument) {
        Liste texte;
        for (const auto &satz : OhneNamen(dokument, Lebenszeit::Geburtsjahr, uhr, Sprache::Englisch).cboPersonen)
            texte.emplace_back(PersonSatz(satz).Geburtsdatum());
        return texte;
    };
    EXPECT_EQ(daten(Familie()), (Liste{"1950", "1951", "1980", "1980", "", "", "", ""}));
    // Who has lost the year stays without one.
    EXPECT_EQ(daten(OhneNamen(Familie(), Lebenszeit::Alter, uhr, Sprache::Deutsch)),
              (Liste{"Age 76", "", "Age 46", "Age 46", "", "", "", ""}));
}

/// What an institution's text, a foreign program or a damage puts in the place of numbers and marks.
TEST(OhneNamen, TextBleibtInKeinemFeld) {
    const DrehbuchUhr uhr;
    Dokument d;
    for (const auto *satz : {"Eva_Anna_Berta_Cilli_Dora_Emil_Franz_Gerda_Hans_Ida_Jutta_um 1950_Klara_1EOtto",
                             "002_9_3_3_1.2_____Haus_am_See_bei_Ulm",
                             "003_1_3_3_1.2_21_$ mit 80_ja_ja_Otto_Paul_31.02.1950_Quirin_2E", "004_1"})
        d.cboPersonen.Anhängen(satz);
    d.cboPartnerschaftsLinien.Anhängen("Ina_Anna_B_C_D_E_F_G_H_I_J_K_L_M#N#O#P#Q");
    d.cboKindlinien.Anhängen("Eva_Pflege_Ulm_1_2_3_4");
    d.cboBeziehungsLinien.Anhängen("Ulm_zerstritten_1_2_3_4_Eva_Ida");
    d.cboPfeile.Anhängen("Pfeil_1_2_3_4");
    d.cboPfeile.Anhängen("kein Pfeil");
    d.cboFreehandlines.Anhängen("Hans^Ulm_Peter");
    const Dokument neu = OhneNamen(d, Lebenszeit::Alter, uhr, Sprache::Deutsch);
    EXPECT_EQ(Sätze(neu.cboPersonen), (Liste{"_0_0_0_0___0_0_A1____1E", "002_9_3_3_1.2_________",
                                             "003_1_3_3_1.2_21_$_0_0_B1____2E", "004_1_0_0_0___0_0_A2____"}));
    EXPECT_EQ(Sätze(neu.cboPartnerschaftsLinien), (Liste{"__0_0_0_0___0_0_0_0__###"}));
    EXPECT_EQ(Sätze(neu.cboKindlinien), (Liste{"___1_2_3_4"}));
    EXPECT_EQ(Sätze(neu.cboBeziehungsLinien), (Liste{"__1_2_3_4__"}));
    EXPECT_EQ(Sätze(neu.cboPfeile), (Liste{"1_1_2_3_4"}));
    EXPECT_EQ(Sätze(neu.cboFreehandlines), (Liste{"0^0"}));
}

TEST(OhneNamen, SterbealterNurWoEsEinesIst) {
    const DrehbuchUhr uhr;
    for (const auto &[vorher, nachher] : {std::pair("$85", "$85"),
                                          {"85$", ""},
                                          {"$0.5", "$0.5"},
                                          {"$0.25", "$0.25"},
                                          {"$", "$"},
                                          {"$ 85 ", "$85"},
                                          {"$1999", "$"},
                                          {"$12.03.1999", "$"},
                                          {"$12.03", "$"},
                                          {"$131", "$"},
                                          {"$85 Jahre", "$"},
                                          {"85", ""}}) {
        Dokument d;
        d.cboPersonen.Anhängen(std::string("001_1_3_3_1.2_0_") + vorher + "_0_0_____");
        EXPECT_EQ(PersonSatz(OhneNamen(d, Lebenszeit::Alter, uhr, Sprache::Deutsch).cboPersonen.Satz(0)).Sterbealter(),
                  nachher)
            << vorher;
    }
}

/// The page without what is written on it, but for the marks of partnerships, which stand where a date ends.
std::string Striche(Einzelbild &bild) {
    Satzliste &linien = bild.dokument.cboPartnerschaftsLinien;
    for (int i = 0; i < linien.Anzahl(); ++i) linien.Ersetzen(i, PartnerschaftBau(linien.Satz(i)).Daten("###").Text());
    Aufzeichnung papier;
    papier.GrößeSetzen(16838, 11906);
    papier.Schreibt = true;
    bild.AufPapier(papier);
    std::istringstream zeilen(papier.Text);
    std::string striche;
    for (std::string zeile; std::getline(zeilen, zeile);)
        if (!zeile.starts_with("text ")) striche += zeile + "\n";
    return striche;
}

TEST(OhneNamen, JederStrichBleibtWoErIst) {
    const DrehbuchUhr uhr;
    for (const auto *datei : {"familie", "grossfamilie", "hochformat-a5", "zeichen"}) {
        Einzelbild bild(uhr, "");
        ASSERT_EQ(bild.Laden(std::string(KW_TESTDATEN "/../samples/") + datei + ".kwp"), "");
        const std::string vorher = Striche(bild);
        bild.OhneNamen(Lebenszeit::Alter);
        EXPECT_EQ(Striche(bild), vorher) << datei;
    }
}

/// Families drawn at other heights find the rows of the largest; rows that aren't even don't part siblings.
TEST(Generationen, FolgenDenLinienUndDanachDenHöhen) {
    Dokument d = Familie();
    EXPECT_EQ(Generationen(d), (std::vector<int>{0, 0, 1, 1, 1, 0, 1, 2}));
    d.cboKindlinien.Leeren();
    d.cboPartnerschaftsLinien.Leeren();
    EXPECT_EQ(Generationen(d), (std::vector<int>{0, 0, 1, 1, 1, 0, 1, 2})) << "heights alone";
    EXPECT_TRUE(Generationen(Dokument()).empty());
}

TEST(OhneNamen, HinterZKommenZweiBuchstaben) {
    const DrehbuchUhr uhr;
    Dokument d;
    for (int i = 0; i < 30; ++i) {
        const std::string nr = Dreistellig(2 * i + 1);
        const std::string frau = Dreistellig(2 * i + 2);
        const std::string y = std::to_string(3 * i);
        const std::string eltern = i == 0 ? "" : Dreistellig(i);
        d.cboPersonen.Anhängen(nr + "_1_3_" + y + "_1.2_0__0_0_Ein_Name__" + eltern + "_");
        d.cboPersonen.Anhängen(frau + "_2_6_" + y + "_1.2_0__0_0_____");
        d.cboPartnerschaftsLinien.Anhängen(Dreistellig(i + 1) + "_2_3_" + y + "_6_" + y + "_" + nr + "_" + frau +
                                           "_0_0_3_6__");
        if (i > 0) d.cboKindlinien.Anhängen(nr + "_0_" + eltern + "_3_3_" + y + "_0");
    }
    const Dokument neu = OhneNamen(d, Lebenszeit::Alter, uhr, Sprache::Deutsch);
    const auto name = [&](int i) { return PersonSatz(neu.cboPersonen.Satz(i)).Vorname(); };
    EXPECT_EQ(name(0), "A1");
    EXPECT_EQ(name(51), "Z2");
    EXPECT_EQ(name(52), "AA1");
    EXPECT_EQ(name(59), "AD2");
}

} // namespace
} // namespace kw
