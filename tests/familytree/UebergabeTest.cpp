#include "familytree/Uebergabe.h"

#include "Umschrift.h"
#include "familytree/Datumsschrift.h"
#include "familytree/Uebernahme.h"
#include "familytree/Verwandtschaft.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kw {

namespace {

constexpr std::array BeideFassungen{Stammbaumfassung::Gedcom551, Stammbaumfassung::Gedcom70};

/// A family with one of each thing that a family tree has a place for, and more.
Dokument Familie() {
    Dokument d;
    d.cboPersonen = {"001_1_2_2_1.2_0_$82_1_1_Max Ernst_Müller_14.04.1865__",
                     "002_2_6_2_1.2_0_$__0_Ида__1870__",
                     "003_9_9_2_1.2_____Jugendamt____",
                     "004_2_5_6_1.2_1_0_0_0_Eva@home_A/B_um 1900_001_1E005",
                     "005_2_4_6_1.2_0_0_0_0___1995-03-07_001_1E004",
                     "006_12_3_6_1.2_0__0_0_Kim___001_",
                     "007_3_2_6_1.2_0__0_0____001_",
                     "008_5_7_6_1.2_0__0_0____001_"};
    d.cboPartnerschaftsLinien = {"001_3_2_4_6_4_001_002_2_2_2_6_1_#um 1891#12.6.1890#vor dem Krieg",
                                 "002_2_2_4_9_4_001_003_2_2_2_9__###"};
    d.cboKindlinien = {"004_0_001_5_5_6_4", "005_1_001_4_4_6_4", "006_2_001_3_3_6_4", "007_0_001_2_2_6_4",
                       "008_0_001_7_7_6_4"};
    d.cboBeziehungsLinien = {"_0_5_6_4_6_004_005", "_0_5_6_4_6_004_005", "_6_2_2_6_2_001_002", "_1_2_2_9_2_001_003"};
    d.cboTextboxen = {"1_1_Arial_8_0_0_0_0_0_Text"};
    d.LegendeSichtbar = true;
    return d;
}

std::string Zeilen(const std::string &text) { return Ersetzt(text.substr(3), "\r\n", "\n"); }

} // namespace

TEST(Uebergabe, DieNeueFassungSchreibtJedesDing) {
    const auto ü = Geschrieben(Familie());
    EXPECT_EQ(ü.Personen, 6U);
    EXPECT_EQ(Zeilen(ü.Text),
              "0 HEAD\n1 GEDC\n2 VERS 7.0\n1 SOUR KINWRIGHT\n2 NAME Kinwright\n"
              "0 @I1@ INDI\n1 NAME Eva@home /A-B/\n2 GIVN Eva@home\n2 SURN A-B\n1 SEX F\n"
              "1 BIRT\n2 DATE\n3 PHRASE um 1900\n1 FAMC @F1@\n1 ASSO @I4@\n2 ROLE OTHER\n3 PHRASE identical twin\n"
              "0 @I2@ INDI\n1 NAME Max Ernst /Müller/\n2 GIVN Max Ernst\n2 SURN Müller\n1 SEX M\n"
              "1 BIRT\n2 DATE 14 APR 1865\n1 DEAT Y\n2 AGE 82y\n1 FAMS @F1@\n"
              "0 @I3@ INDI\n1 NAME Ида\n2 GIVN Ида\n1 SEX F\n1 BIRT\n2 DATE 1870\n1 DEAT Y\n1 FAMS @F1@\n"
              "0 @I4@ INDI\n1 SEX F\n1 BIRT\n2 DATE 7 MAR 1995\n1 FAMC @F1@\n2 PEDI ADOPTED\n"
              "1 ADOP Y\n2 FAMC @F1@\n3 ADOP BOTH\n1 ASSO @I1@\n2 ROLE OTHER\n3 PHRASE identical twin\n"
              "0 @I5@ INDI\n1 NAME Kim\n2 GIVN Kim\n1 SEX X\n1 FAMC @F1@\n2 PEDI FOSTER\n"
              "0 @I6@ INDI\n1 SEX M\n1 BIRT\n2 TYPE Stillborn\n1 DEAT Y\n2 AGE 0d\n3 PHRASE Stillborn\n1 FAMC @F1@\n"
              "0 @F1@ FAM\n1 HUSB @I2@\n1 WIFE @I3@\n1 CHIL @I5@\n1 CHIL @I4@\n1 CHIL @I1@\n1 CHIL @I6@\n"
              "1 MARR\n2 DATE 12 JUN 1890\n1 EVEN\n2 TYPE Separation\n2 DATE ABT 1891\n"
              "1 DIV\n2 DATE\n3 PHRASE vor dem Krieg\n0 TRLR\n");
}

TEST(Uebergabe, DieAlteFassungSagtDasselbeInIhrenWorten) {
    auto d = Familie();
    const auto text = Zeilen(Geschrieben(d, {Stammbaumfassung::Gedcom551, true, true}).Text);
    for (const std::string_view stelle :
         {"1 SUBM @U1@\n1 GEDC\n2 VERS 5.5.1\n2 FORM LINEAGE-LINKED\n1 CHAR UTF-8\n0 @U1@ SUBM\n1 NAME Kinwright\n",
          "1 NAME Eva@@home /A-B/\n", "2 DATE (um 1900)\n", "1 ASSO @I4@\n2 RELA identical twin\n",
          "1 FACT Alcohol or drug addiction\n2 TYPE Addiction\n1 FACT Physical or mental illness\n2 TYPE Illness\n",
          "1 ASSO @I3@\n2 RELA conflict, close\n", "2 PEDI adopted\n", "2 PEDI foster\n",
          "1 SEX U\n1 NOTE Gender nonconforming\n2 _KINWRIGHT 12\n", "1 BIRT Y\n1 DEAT Y\n2 AGE STILLBORN\n",
          "2 DATE (vor dem Krieg)\n"})
        EXPECT_NE(text.find(stelle), std::string::npos) << stelle << text;
    EXPECT_EQ(text.find("\n2 RELA close"), std::string::npos) << "leads to an institution";
}

TEST(Uebergabe, DerBerichtZähltWasZurückbleibt) {
    const auto mit = [](const Übergabewünsche &wünsche) {
        std::string text;
        for (const auto &zeile : Berichtszeilen(Geschrieben(Familie(), wünsche).Bericht, Sprache::Englisch))
            text += zeile + "\n";
        return text;
    };
    EXPECT_EQ(mit({}),
              "left out: 2 relationship lines\nleft out: 1 pregnancy\nleft out: 1 institution\n"
              "left out: 1 text\nleft out: 1 legend\nleft out: 1 mark \"distant\"\n"
              "left out: 1 mark of an addiction\nleft out: 1 mark of an illness\n"
              "left out: 1 partnership with somebody who is left out\n"
              "changed: 1 date of birth that goes in words only\nchanged: 1 name in which \"/\" becomes \"-\"\n");
    const auto alles = mit({Stammbaumfassung::Gedcom551, true, true});
    EXPECT_EQ(alles.find("addiction"), std::string::npos);
    EXPECT_NE(alles.find("left out: 1 relationship line\n"), std::string::npos);
    EXPECT_NE(alles.find("changed: 1 symbol that other programs don't know\n"), std::string::npos);
    EXPECT_TRUE(Geschrieben({}).Bericht.OhneVerlust());
    EXPECT_EQ(Verlusttext(Übergabeverlust::Pfeile, 3, Sprache::Deutsch), "3 Pfeile");
}

TEST(Uebergabe, WasMitgehtKommtGleichZurück) {
    auto d = Familie();
    d.cboPersonen.Ersetzen(3, "004_10_5_6_1.2_1_0_0_0_@Eva_O'_1900_001_2E005");
    d.cboPersonen.Anhängen("009_11_5_9_1.2_0_$7.5_0_0_" + std::string(400, 'x') + " ä ß@@ " + std::string(300, 'y') +
                           "_ _0850__");
    for (const auto fassung : BeideFassungen) {
        const auto ü = Übernommen(Geschrieben(d, {fassung, false, false}).Text);
        const auto &eva = ü.Personen[0];
        EXPECT_EQ(eva.Angaben.Symboltyp, TypWeiblichZuMännlich);
        EXPECT_EQ(eva.Angaben.Vorname, "@Eva");
        EXPECT_TRUE(eva.Zwilling == 3 && !eva.Eineiig);
        EXPECT_EQ(ü.Personen[4].Angaben.Symboltyp, TypDivers);
        EXPECT_EQ(ü.Personen[4].Kindart, 2);
        EXPECT_EQ(ü.Personen[6].Angaben.Symboltyp, TypMännlichZuWeiblich);
        EXPECT_EQ(ü.Personen[6].Angaben.Geburtsdatum, "0850");
        EXPECT_EQ(ü.Personen[6].Angaben.Sterbealter, "$7");
        EXPECT_EQ(ü.Bericht.Anzahl(Befundart::EreignisWeggelassen), 0U);
        EXPECT_EQ(ü.Bericht.Anzahl(Befundart::BeziehungWeggelassen), 0U);
        const decltype(ü.Paare[0].Angaben.Daten) daten{"", "um 1891", "12.06.1890", "vor dem Krieg"};
        EXPECT_EQ(ü.Paare.at(0).Angaben.Daten, daten);
        EXPECT_EQ(ü.Paare[0].Angaben.Status, "3");
        const auto wieder = Übernommen(Geschrieben(DokumentAus(ü), {fassung, false, false}).Text);
        EXPECT_EQ(Kern(wieder), Kern(ü));
    }
}

/// A family tree without names has ages for dates.
TEST(Uebergabe, EinBloßesAlterKommtGleichZurück) {
    Dokument d;
    d.cboPersonen = {"001_1_2_2_1.2_0__1_0_A__Alter 45__", "002_2_6_2_1.2_0_$__0_B__Age 102__"};
    for (const auto fassung : BeideFassungen) {
        const auto ü = Übernommen(Geschrieben(d, {fassung, false, false}).Text);
        EXPECT_EQ(ü.Personen.at(0).Angaben.Geburtsdatum, "Alter 45");
        EXPECT_EQ(ü.Personen.at(1).Angaben.Geburtsdatum, "Age 102");
        EXPECT_EQ(ü.Bericht.Anzahl(Befundart::GeburtWeggelassen), 0U);
        EXPECT_EQ(Kern(Übernommen(Geschrieben(DokumentAus(ü), {fassung, false, false}).Text)), Kern(ü));
    }
}

TEST(Uebergabe, FremdeDateienKommenNachIhrerÜbernahmeGleichZurück) {
    const auto regeln = Übernahmeregeln{Sprache::Deutsch, TypWeiblich, "0", true, true, false};
    int gelesene = 0;
    for (const auto &datei : std::filesystem::directory_iterator(KW_TESTDATEN "/../fuzzing/corpus/gedcom")) {
        std::string bytes;
        ASSERT_TRUE(DateiLesen(datei.path().string(), bytes).Gelungen());
        const auto ü = Übernommen(bytes, regeln);
        for (const auto fassung : BeideFassungen) {
            const auto geschrieben = Geschrieben(DokumentAus(ü), {fassung, false, false});
            EXPECT_EQ(Kern(Übernommen(geschrieben.Text, regeln)), Kern(ü)) << datei.path();
            EXPECT_TRUE(StammbaumLesen(geschrieben.Text).Warnliste.Liste().empty()) << datei.path();
        }
        ++gelesene;
    }
    EXPECT_GT(gelesene, 10);
}

TEST(Uebergabe, PaareUndIhreStände) {
    struct Fall {
        std::string_view Status, Daten, Zeilen;
        std::size_t Verdeckte;
    };
    const Fall fälle[] = {
        {"", "", "", 0},
        {"0", "1990###", "1 EVEN\n2 TYPE Unmarried\n2 DATE 1990\n", 0},
        {"0", "", "1 EVEN\n2 TYPE Unmarried\n", 0},
        {"0", "##1991#1992", "1 EVEN\n2 TYPE Unmarried\n", 2},
        {"1", "#1995##", "1 EVEN\n2 TYPE Separation\n2 DATE 1995\n", 0},
        {"1", "###", "1 EVEN\n2 TYPE Separation\n", 0},
        {"2", "#1995#1990#", "1 MARR\n2 DATE 1990\n", 1},
        {"2", "", "1 MARR Y\n", 0},
        {"3", "###gesch. 2001", "1 MARR Y\n1 DIV\n2 DATE\n3 PHRASE gesch. 2001\n", 0},
    };
    for (const auto &fall : fälle) {
        Dokument d;
        d.cboPersonen = {"001_2_2_2_1.2_0__0_0_A____", "002_1_6_2_1.2_0__0_0_B____"};
        d.cboPartnerschaftsLinien = {"001_" + std::string(fall.Status) + "_2_4_6_4_001_002_2_2_2_6_0_" +
                                     std::string(fall.Daten)};
        const auto ü = Geschrieben(d);
        const auto text = Zeilen(ü.Text);
        EXPECT_EQ(text.substr(text.find("0 @F1@")),
                  "0 @F1@ FAM\n1 HUSB @I2@\n1 WIFE @I1@\n" + std::string(fall.Zeilen) + "0 TRLR\n");
        EXPECT_EQ(ü.Bericht.Anzahl(Übergabeverlust::Zwischenstände), fall.Verdeckte) << fall.Daten;
    }
}

/// What was drawn as unmarried isn't asked about when it comes back.
TEST(Uebergabe, UnverheirateteKommenAlsSolcheZurück) {
    Dokument d;
    d.cboPersonen = {"001_2_2_2_1.2_0__0_0_A____", "002_1_6_2_1.2_0__0_0_B____"};
    d.cboPartnerschaftsLinien = {"001_0_2_4_6_4_001_002_2_2_2_6_0_###"};
    for (const auto fassung : BeideFassungen) {
        const auto ü = Übernommen(Geschrieben(d, {fassung, false, false}).Text, {.OhneHeirat = "2"});
        EXPECT_EQ(ü.Paare.at(0).Angaben.Status, "0");
        EXPECT_EQ(ü.Bericht.Anzahl(Befundart::StatusAngenommen), 0U);
        EXPECT_EQ(ü.Bericht.Anzahl(Befundart::EreignisWeggelassen), 0U);
    }
}

TEST(Uebergabe, BeschädigteSätzeWerdenSoWeitGelesenWieSieGehen) {
    Dokument d;
    d.cboPersonen = {"001_1_2_2_1.2_0__0_0_A____", "002", "001_2_2_2_1.2_0_$abc_0_0_\x01\xFF\n@____", ""};
    d.cboPartnerschaftsLinien = {"001_2_1_1_1_1_001_001", "002_2", "003_2_1_1_1_1_009_008_1_1_1_1__", "001_x"};
    d.cboKindlinien = {"002_0_001_1_1_1_1", "002_0_002_1_1_1_1", "001_0_001_1_1_1_1", "009_0_003_1_1_1_1", "003"};
    d.cboBeziehungsLinien = {"_9_1_1_1_1_001_002", "_"};
    for (const auto fassung : BeideFassungen) {
        const auto ü = Geschrieben(d, {fassung, true, true});
        const auto baum = StammbaumLesen(ü.Text);
        EXPECT_TRUE(baum.Warnliste.Liste().empty()) << ü.Text;
        ASSERT_EQ(baum.Personen.size(), 4U);
        ASSERT_EQ(baum.Familien.size(), 1U);
        EXPECT_EQ(baum.Familien[0].Partner.size(), 1U);
        EXPECT_EQ(baum.Familien[0].Kinder.size(), 1U);
        EXPECT_EQ(ü.Bericht.Anzahl(Übergabeverlust::Sterbealter), 1U);
    }
}

TEST(Uebergabe, WannJemandGestorbenIstIstAlterOderDatum) {
    Dokument d;
    for (const std::string gestorben : {"$82", "$7.5", "$15.08.1999", "$1999", "$bald"})
        d.cboPersonen.Anhängen("00" + std::to_string(d.cboPersonen.Anzahl() + 1) + "_1_5_9_1.2_0_" + gestorben +
                               "_0_0_A___");
    const auto ü = Geschrieben(d, {});
    const auto baum = StammbaumLesen(ü.Text);
    const std::pair<std::string_view, std::string_view> erwartet[] = {
        {"82y", "Y"}, {"7y 6m", "Y"}, {"", "15 AUG 1999"}, {"", "1999"}, {"", "Y"}};
    for (std::size_t i = 0; i < std::size(erwartet); ++i) {
        EXPECT_EQ(baum.Personen[i].Sterbealter, erwartet[i].first);
        EXPECT_EQ(baum.Personen[i].Tod, erwartet[i].second);
    }
    EXPECT_EQ(ü.Bericht.Anzahl(Übergabeverlust::Sterbealter), 1U);
}

TEST(Uebergabe, DoppelteZeichenKommenDoppeltZurück) {
    Dokument d;
    d.cboPersonen.Anhängen("001_1_5_9_1.2_0__0_0_a@@b @c_@@@x@@__");
    for (const auto fassung : BeideFassungen) {
        const auto baum = StammbaumLesen(Geschrieben(d, {fassung, false, false}).Text);
        ASSERT_EQ(baum.Personen.size(), 1U);
        EXPECT_EQ(baum.Personen[0].Vorname, "a@@b @c");
        EXPECT_EQ(baum.Personen[0].Nachname, "@@@x@@");
        std::vector<std::uint32_t> alle{0};
        EXPECT_EQ(Übertragen(baum, Verwandtschaft(baum), alle, {}).Personen[0].Angaben.Nachname, "@@@x@@");
    }
}

TEST(Zeilenschreiber, LangeWerteGehenInDerAltenFassungAufNeuenZeilenWeiter) {
    const std::string wert = std::string(250, 'a') + "\n" + std::string(246, 'b') + " ä" + std::string(300, '@');
    for (const auto fassung : BeideFassungen) {
        Zeilenschreiber datei(fassung);
        datei.Satz("N1", "NOTE");
        datei.Zeile(1, "NOTE", wert);
        std::string text = datei.Text();
        std::size_t längste = 0;
        for (std::size_t i = 0, ende = 0; (ende = text.find("\r\n", i)) != std::string::npos; i = ende + 2)
            längste = std::max(längste, ende + 2 - i);
        EXPECT_EQ(längste <= 255, datei.IstAlt()) << längste;
        text.erase(0, 3);
        Satzleser leser(text);
        Satz satz;
        Warnungen warnungen;
        ASSERT_TRUE(leser.Nächster(satz, warnungen));
        const auto gelesen = std::string(satz.Text(satz.Wurzel(), "NOTE"));
        EXPECT_EQ(datei.IstAlt() ? Ersetzt(gelesen, "@@", "@") : gelesen, wert);
    }
}

TEST(Datumsschrift, TexteWerdenZuDatenOderBleibenWorte) {
    struct Fall {
        std::string_view Text, Datum;
    };
    const Fall paare[] = {
        {"12.6.84", "12 JUN 1984"},
        {"1984-06-12", "12 JUN 1984"},
        {"06/1984", "JUN 1984"},
        {"13.1984", ""},
        {"um 1890", "ABT 1890"},
        {"ca. 12.06.1890", "ABT 12 JUN 1890"},
        {"About 1890", "ABT 1890"},
        {"gesch. 1890", "EST 1890"},
        {"vor 06.1890", "BEF JUN 1890"},
        {"seit 2001", "FROM 2001"},
        {"until 2001", "TO 2001"},
        {"1890-1895", "BET 1890 AND 1895"},
        {"1890 – 1895", "BET 1890 AND 1895"},
        {"44 v. Chr.", "44 BCE"},
        {"0850", "850"},
        {"85", ""},
        {"", ""},
        {"um", ""},
        {"Sommer 1984", ""},
        {"31.02.1984", ""},
    };
    for (const auto &fall : paare) {
        const auto angabe = PaardatumAlsAngabe(fall.Text, Datumsfolge::TagMonatJahr);
        EXPECT_EQ(angabe.Datum, fall.Datum) << fall.Text;
        EXPECT_EQ(angabe.Worte, fall.Datum.empty() ? fall.Text : "") << fall.Text;
    }
    const Fall geburten[] = {{"1950", "1950"},
                             {"01-01-1950", "1 JAN 1950"},
                             {"3/12/1950", "3 DEC 1950"},
                             {"0850", "850"},
                             {"850", ""},
                             {"2500", ""},
                             {"31.02.1975", ""},
                             {"1.5.", ""},
                             {"  ", ""},
                             {"12-03-75", "12 MAR 1975"}};
    for (const auto &fall : geburten)
        EXPECT_EQ(GeburtAlsAngabe(fall.Text, DrehbuchUhr()).Datum, fall.Datum) << fall.Text;
    DrehbuchUhr amerikanisch;
    amerikanisch.Reihenfolge = Datumsfolge::MonatTagJahr;
    EXPECT_EQ(GeburtAlsAngabe("3/12/1950", amerikanisch).Datum, "12 MAR 1950");
}

} // namespace kw
