#include "familytree/Uebernahme.h"

#include <gtest/gtest.h>

#include <numeric>

namespace kw {

namespace {

/// A file of these lines behind its head, and all of its persons brought over.
struct Import {
    explicit Import(std::string_view zeilen, const Übernahmeregeln &regeln = {})
        : Baum(StammbaumLesen("0 HEAD\n1 CHAR UTF-8\n" + std::string(zeilen))) {
        std::vector<std::uint32_t> alle(Baum.Personen.size());
        std::iota(alle.begin(), alle.end(), 0U);
        Ergebnis = Übertragen(Baum, Verwandtschaft(Baum), alle, regeln);
    }
    const Übernahmeperson &Person(std::size_t i) const { return Ergebnis.Personen.at(i); }
    const Übernahmepaar &Paar(std::size_t i) const { return Ergebnis.Paare.at(i); }
    std::size_t Gemeldet(Befundart art) const { return Ergebnis.Bericht.Anzahl(art); }

    Stammbaum Baum;
    Übernahme Ergebnis;
};

/// A person's lines with these dates of birth and death.
Personenangaben MitDaten(std::string_view geburt, std::string_view tod, std::string_view alter = {},
                         Befundart erwartet = Befundart::SterbedatumWeggelassen) {
    std::string zeilen = "0 @I1@ INDI\n1 SEX M\n1 BIRT\n2 DATE " + std::string(geburt) + "\n";
    if (!tod.empty()) zeilen.append("1 DEAT\n2 DATE ").append(tod).append("\n");
    if (!alter.empty()) zeilen.append(tod.empty() ? "1 DEAT\n" : "").append("2 AGE ").append(alter).append("\n");
    const Import import(zeilen);
    EXPECT_TRUE(tod.empty() || import.Gemeldet(erwartet) > 0) << geburt << ", " << tod;
    return import.Person(0).Angaben;
}

const std::string Eltern = "0 @I1@ INDI\n1 SEX M\n1 FAMS @F1@\n0 @I2@ INDI\n1 SEX F\n1 FAMS @F1@\n";
const std::string Paar = "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n";

} // namespace

TEST(Uebernahme, EinGeburtsdatumWirdTagOderJahr) {
    const std::pair<std::string_view, std::string_view> fälle[] = {
        {"14 APR 1865", "14.04.1865"},
        {"1865", "1865"},
        {"APR 1865", "1865"},
        {"850", "0850"},
        {"99", ""},
        {"ABT 14 APR 1865", "1865"},
        {"BET 1860 AND 1870", "1860"},
        {"31 FEB 1900", "1900"},
        {"@#DJULIAN@ 25 DEC 1900", "07.01.1901"},
        {"@#DFRENCH R@ 12 BRUM 3", "02.11.1794"},
        {"@#DHEBREW@ 13 CSH 5760", "23.10.1999"},
        {"@#DJULIAN@ 11 FEB 1731/32", "22.02.1732"},
        {"JULIAN 11 FEB 1731/32", "22.02.1732"},
        {"11 FEB 1699/00", "11.02.1700"},
        {"44 BC", ""},
        {"(im Krieg)", ""},
        {"2500", ""},
        {"INT 1865 (nach Grabstein)", "1865"},
    };
    for (const auto &[roh, erwartet] : fälle) EXPECT_EQ(MitDaten(roh, "").Geburtsdatum, erwartet) << roh;
}

/// The newer version writes words beside a date that is empty, the older one in it.
TEST(Uebernahme, WorteStattEinesDatumsWerdenGleichGemeldet) {
    using enum Befundart;
    for (const std::string_view datum : {"2 DATE (um Ostern)\n", "2 DATE\n3 PHRASE um Ostern\n"}) {
        const std::string zeilen =
            "0 @I1@ INDI\n1 BIRT\n1 BIRT\n" + std::string(datum) + "1 DEAT\n" + std::string(datum);
        const Import import(zeilen);
        EXPECT_EQ(import.Person(0).Angaben.Geburtsdatum, "");
        EXPECT_EQ(import.Gemeldet(GeburtWeggelassen), 1U) << datum;
        EXPECT_EQ(import.Gemeldet(SterbedatumWeggelassen), 1U) << datum;
        for (const auto &befund : import.Ergebnis.Bericht.Liste())
            if (befund.Art == GeburtWeggelassen) {
                EXPECT_EQ(befund.Text, "(um Ostern)");
                EXPECT_EQ(befund.Zeile, 6U);
            }
    }
    EXPECT_EQ(MitDaten("\n3 PHRASE Alter 45", "").Geburtsdatum, "Alter 45");
    EXPECT_EQ(MitDaten("(Age 7)", "").Geburtsdatum, "Age 7");
    EXPECT_EQ(MitDaten("(Age of 7)", "").Geburtsdatum, "");
    EXPECT_EQ(MitDaten("1950\n3 PHRASE Alter 45", "").Geburtsdatum, "1950");
}

TEST(Uebernahme, DasSterbealterFolgtDenTagenDannDerAngabeDannDenJahren) {
    using enum Befundart;
    EXPECT_EQ(MitDaten("2 MAR 1900", "1 MAR 1950").Sterbealter, "$49");
    EXPECT_EQ(MitDaten("2 MAR 1900", "2 MAR 1950", "51y", AlterAbweichend).Sterbealter, "$50");
    EXPECT_EQ(MitDaten("1900", "1950", "49y 3m").Sterbealter, "$49");
    EXPECT_EQ(MitDaten("ABT 1900", "1 MAR 1950", {}, AlterAusJahren).Sterbealter, "$50");
    EXPECT_EQ(MitDaten("BEF 1900", "1950").Sterbealter, "$");
    EXPECT_EQ(MitDaten("1900", "1890", {}, AlterWeggelassen).Sterbealter, "$");
    EXPECT_EQ(MitDaten("1800", "1950", {}, AlterWeggelassen).Sterbealter, "$");
    EXPECT_EQ(MitDaten("", "", "CHILD").Sterbealter, "$");
    EXPECT_EQ(MitDaten("1900", "").Sterbealter, "");
    const std::pair<std::string_view, int> alter[] = {{"82y 3m", 82}, {"82", 82},          {"> 80y", 80}, {"<1y", 0},
                                                      {"< 80y", -1},  {"11m", 0},          {"INFANT", 0}, {"CHILD", -1},
                                                      {"", -1},       {"99999999999y", -1}};
    for (const auto &[text, jahre] : alter) EXPECT_EQ(Altersangabe(text), jahre) << text;
}

TEST(Uebernahme, GeschlechtNamenUndTotgeburt) {
    const Import import("0 @I1@ INDI\n1 NAME George_VI /von_und \x01zu/\n1 FAMS @F1@\n"
                        "0 @I2@ INDI\n1 SEX U\n0 @I3@ INDI\n1 SEX X\n1 NAME 孔子 /Ли/\n"
                        "0 @I4@ INDI\n1 SEX F\n1 DEAT\n2 AGE Stillborn\n0 @F1@ FAM\n1 WIFE @I1@\n",
                        {.UnbekanntesGeschlecht = TypDivers});
    EXPECT_EQ(import.Person(0).Angaben.Vorname, "George VI");
    EXPECT_EQ(import.Person(0).Angaben.Nachname, "von und zu");
    EXPECT_EQ(import.Gemeldet(Befundart::NameGeändert), 2U);
    EXPECT_EQ(import.Person(0).Angaben.Symboltyp, TypWeiblich);
    EXPECT_EQ(import.Gemeldet(Befundart::GeschlechtAusRolle), 1U);
    EXPECT_EQ(import.Person(1).Angaben.Symboltyp, TypDivers);
    EXPECT_EQ(import.Gemeldet(Befundart::GeschlechtGesetzt), 1U);
    EXPECT_EQ(import.Person(2).Angaben.Vorname + import.Person(2).Angaben.Nachname, "孔子Ли");
    EXPECT_EQ(import.Person(3).Angaben.Symboltyp, 6);
    EXPECT_EQ(import.Gemeldet(Befundart::PaarWeggelassen), 1U);
}

TEST(Uebernahme, DerStandEinesPaaresUndSeineDaten) {
    struct Fall {
        std::string_view Zeilen, Status;
        std::size_t Stelle;
        std::string_view Datum;
    };
    const Fall fälle[] = {
        {"", "0", 0, ""},
        {"1 MARR\n", "2", 2, ""},
        {"1 MARR N\n", "0", 2, ""},
        {"1 MARR\n2 DATE 12 JUN 1984\n1 DIV N\n", "2", 2, "12.06.1984"},
        {"1 MARR\n2 DATE ABT 1890\n1 DIV\n2 DATE JUN 1899\n", "3", 2, "um 1890"},
        {"1 MARR\n1 ANUL\n2 DATE (vor_Ort #3)\n", "3", 3, "vor Ort 3"},
        {"1 MARR\n1 EVEN\n2 TYPE Separated\n2 DATE BET 1890 AND 1895\n", "1", 1, "1890-1895"},
        {"1 MARR\n1 DIVF\n", "1", 1, ""},
        {"1 MARR\n2 TYPE Civil\n", "2", 2, ""},
        {"1 MARR\n2 TYPE Partners\n2 DATE 1990\n", "0", 0, "1990"},
        {"1 MARR\n2 TYPE unknown\n", "0", 0, ""},
        {"1 EVEN unmarried\n1 MARB\n", "0", 0, ""},
        {"1 MARR\n2 DATE 44 BC\n", "2", 2, "44 v. Chr."},
    };
    for (const auto &fall : fälle) {
        const Import import(Eltern + Paar + std::string(fall.Zeilen));
        EXPECT_EQ(import.Paar(0).Angaben.Status, fall.Status) << fall.Zeilen;
        EXPECT_EQ(import.Paar(0).Angaben.Daten[fall.Stelle], fall.Datum) << fall.Zeilen;
    }
    const Import gefragt(Eltern + Paar, {.OhneHeirat = "2"});
    EXPECT_EQ(gefragt.Paar(0).Angaben.Status, "2");
    EXPECT_EQ(gefragt.Gemeldet(Befundart::StatusAngenommen), 1U);
}

TEST(Uebernahme, EinPaarInZweiFamilienIstEineLinieVomLetztenStand) {
    const Import import(Eltern + "0 @I3@ INDI\n1 FAMC @F1@\n0 @I4@ INDI\n1 FAMC @F2@\n" + Paar +
                        "1 CHIL @I3@\n1 MARR\n2 DATE 1990\n1 DIV\n2 DATE 1995\n"
                        "0 @F2@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I4@\n1 MARR\n2 DATE 1999\n");
    ASSERT_EQ(import.Ergebnis.Paare.size(), 1U);
    EXPECT_EQ(import.Paar(0).Angaben.Status, "2");
    EXPECT_EQ(import.Paar(0).Angaben.Daten[2], "1999");
    EXPECT_EQ(import.Paar(0).Angaben.Daten[3], "1995");
    EXPECT_EQ(import.Paar(0).Kinder, (std::vector<std::uint32_t>{2, 3}));
    EXPECT_EQ(import.Gemeldet(Befundart::StatusGewählt), 1U);
}

TEST(Uebernahme, WieEinKindZuSeinenElternKam) {
    struct Fall {
        std::string_view AmKind, InDerFamilie;
        int Art;
        std::size_t Geändert;
    };
    const Fall fälle[] = {
        {"2 PEDI ADOPTED\n", "", 1, 0},
        {"2 PEDI Foster\n", "", 2, 0},
        {"2 PEDI sealing\n", "", 0, 0},
        {"2 PEDI step\n", "", 0, 1},
        {"1 ADOP\n2 FAMC @F1@\n3 ADOP HUSB\n", "", 1, 0},
        {"1 ADOP Y\n", "", 0, 0},
        {"", "2 _FREL Adopted\n", 1, 0},
        {"", "2 _FREL Foster\n2 _MREL foster\n", 2, 0},
        {"", "2 _FREL Adopted\n2 _MREL Natural\n", 0, 1},
        {"2 PEDI birth\n", "2 _FREL Adopted\n", 0, 0},
    };
    for (const auto &fall : fälle) {
        const Import import(Eltern + "0 @I3@ INDI\n1 FAMC @F1@\n" + std::string(fall.AmKind) + Paar + "1 CHIL @I3@\n" +
                            std::string(fall.InDerFamilie));
        EXPECT_EQ(import.Person(2).Kindart, fall.Art) << fall.AmKind << fall.InDerFamilie;
        EXPECT_EQ(import.Gemeldet(Befundart::KindschaftGeändert), fall.Geändert) << fall.AmKind << fall.InDerFamilie;
    }
}

TEST(Uebernahme, VonZweiElternpaarenBleibtDasGewählte) {
    const auto zeilen = Eltern + "0 @I3@ INDI\n1 FAMC @F2@\n2 PEDI adopted\n1 FAMC @F1@\n" + Paar +
                        "1 CHIL @I3@\n0 @F2@ FAM\n1 WIFE @I2@\n1 CHIL @I3@\n";
    const Import leibliche(zeilen), adoptiert(zeilen, {.AdoptionVorGeburt = true});
    EXPECT_EQ(leibliche.Person(2).Kindart, 0);
    EXPECT_EQ(leibliche.Gemeldet(Befundart::WeitereEltern), 1U);
    EXPECT_EQ(leibliche.Ergebnis.Personen.size(), 3U);
    EXPECT_EQ(adoptiert.Person(2).Kindart, 1);
    ASSERT_EQ(adoptiert.Ergebnis.Personen.size(), 4U); // the adoptive father isn't known
    EXPECT_EQ(adoptiert.Person(3).Angaben.Vorname, "?");
    EXPECT_EQ(adoptiert.Person(3).Angaben.Symboltyp, TypMännlich);
}

TEST(Uebernahme, WasNichtZusammenpasstWirdGesagtUndHältDoch) {
    const Import kreis("0 @I1@ INDI\n1 FAMS @F1@\n1 FAMC @F2@\n0 @I2@ INDI\n1 SEX F\n1 FAMS @F2@\n1 FAMC @F1@\n"
                       "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n0 @F2@ FAM\n1 WIFE @I2@\n1 CHIL @I1@\n");
    EXPECT_EQ(kreis.Gemeldet(Befundart::KreisGelöst), 1U);
    EXPECT_EQ((kreis.Person(0).Paar == Keine) + (kreis.Person(1).Paar == Keine), 1);
    const Import drei(Eltern + "0 @I3@ INDI\n1 SEX M\n" + Paar + "1 HUSB @I3@\n1 HUSB @I9@\n1 CHIL @I2@\n");
    EXPECT_EQ(drei.Gemeldet(Befundart::PartnerWeggelassen), 1U);
    EXPECT_EQ(drei.Gemeldet(Befundart::Unverbunden), 1U);
    const Import allein("0 @I1@ INDI\n1 SEX F\n1 FAMC @F1@\n0 @I2@ INDI\n1 SEX M\n1 FAMC @F1@\n"
                        "0 @F1@ FAM\n1 HUSB @VOID@\n1 CHIL @I1@\n1 CHIL @I2@\n");
    EXPECT_EQ(allein.Gemeldet(Befundart::PartnerErgänzt), 2U);
    EXPECT_EQ(allein.Paar(0).Kinder.size(), 2U);
}

TEST(Uebernahme, WerNichtGenommenWurdeKommtNurFürEinKindDazu) {
    const auto baum = StammbaumLesen(Eltern + "0 @I3@ INDI\n1 FAMC @F1@\n" + Paar + "1 CHIL @I3@\n1 MARR\n");
    const Verwandtschaft verwandte(baum);
    const auto mit = [&](std::vector<std::uint32_t> wer) { return Übertragen(baum, verwandte, wer, {}); };
    EXPECT_EQ(mit({0}).Paare.size(), 0U);
    EXPECT_EQ(mit({2}).Paare.size(), 0U);
    const auto kindUndVater = mit({2, 0, 2});
    ASSERT_EQ(kindUndVater.Personen.size(), 3U);
    EXPECT_EQ(kindUndVater.Personen[2].Quelle, 1U);
    EXPECT_EQ(kindUndVater.Bericht.Anzahl(Befundart::PartnerDazu), 1U);
    EXPECT_EQ(kindUndVater.Personen[0].Paar, 0U);
}

TEST(Uebernahme, ZwillingeWerdenGesagtOderGefragt) {
    const auto zeilen = Eltern +
                        "0 @I3@ INDI\n1 SEX M\n1 BIRT\n2 DATE 1 MAY 2001\n1 FAMC @F1@\n"
                        "0 @I4@ INDI\n1 SEX F\n1 BIRT\n2 DATE 1 MAY 2001\n1 FAMC @F1@\n"
                        "0 @I5@ INDI\n1 SEX M\n1 BIRT\n2 DATE 1 MAY 2001\n1 FAMC @F1@\n" +
                        Paar + "1 CHIL @I3@\n1 CHIL @I4@\n1 CHIL @I5@\n";
    const Import gefragt(zeilen);
    ASSERT_EQ(gefragt.Ergebnis.Vorschläge.size(), 1U);
    EXPECT_EQ(gefragt.Person(2).Zwilling, Keine);
    const Import ja(zeilen, {.GleichaltrigeSindZwillinge = true, .ZwillingeEineiig = true});
    EXPECT_EQ(ja.Person(2).Zwilling, 3U);
    EXPECT_FALSE(ja.Person(2).Eineiig); // brother and sister
    EXPECT_EQ(ja.Gemeldet(Befundart::MehrlingeWeggelassen), 1U);
    const Import gesagt(zeilen + "0 @I6@ INDI\n1 SEX M\n1 FAMC @F1@\n1 ASSO @I5@\n2 RELA Identical Twin\n");
    EXPECT_EQ(gesagt.Person(5).Zwilling, 4U);
    EXPECT_TRUE(gesagt.Person(4).Eineiig);
    EXPECT_EQ(gesagt.Gemeldet(Befundart::BeziehungWeggelassen), 0U);
    for (const std::string_view rolle : {"MULTIPLE\n3 PHRASE eineiig", "OTHER\n3 PHRASE eineiiger Zwilling"}) {
        const Import neu(zeilen + "0 @I6@ INDI\n1 SEX M\n1 FAMC @F1@\n1 ASSO @I5@\n2 ROLE " + std::string(rolle) +
                         "\n");
        EXPECT_TRUE(neu.Person(5).Zwilling == 4U && neu.Person(5).Eineiig) << rolle;
        EXPECT_EQ(neu.Gemeldet(Befundart::BeziehungWeggelassen), 0U);
    }
}

TEST(Uebernahme, EineUnsinnigeDateiKostetNichtMehrAlsIhreLänge) {
    constexpr int Viele = 30000;
    std::string eltern, partner, familien;
    for (int i = 0; i < Viele; ++i) {
        const auto nr = std::to_string(i);
        eltern += "1 FAMC @F" + nr + "@\n1 FAMC @F1@\n1 FAMS @F1@\n2 X\n2 CONC y\n";
        partner += "1 HUSB @I" + nr + "@\n";
        familien += "0 @F" + nr + "@ FAM\n1 CHIL @I0@\n1 HUSB @I1@\n1 WIFE @I1@\n";
    }
    const Import import("0 @I0@ INDI\n1 NAME " + std::string(100000, '_') + std::string(100000, 'x') + "@@\n" + eltern +
                        "0 @I1@ INDI\n1 FAMC @F1@\n" + familien + "0 @F0@ FAM\n" + partner);
    EXPECT_EQ(import.Gemeldet(Befundart::WeitereEltern), Viele - 1U);
    EXPECT_LE(import.Person(0).Angaben.Vorname.size(), 250U);
    EXPECT_LT(Berichtstext(import.Ergebnis.Bericht, import.Baum.Warnliste, Sprache::Deutsch).size(), 30000000U);
}

TEST(Uebernahme, DerBerichtNenntZeilenUndZähltInBeidenSprachen) {
    const Import import(
        "0 @I1@ INDI\n1 NAME Eva /Grün/\n2 NICK Evi\n1 NAME Eva /Weiß/\n1 SEX F\n1 BIRT\n2 DATE 1900\n"
        "2 PLAC Wien\n1 BIRT\n2 DATE 1901\n1 OCCU Schmiedin\n1 NOTE lang\n2 CONT und länger\n1 _HAIR braun\n"
        "1 CHAN\n2 DATE 1 JAN 2020\nkeine Zeile\n1 ASSO @I1@\n2 RELA Patin\n");
    EXPECT_EQ(Berichtstext(import.Ergebnis.Bericht, import.Baum.Warnliste, Sprache::Deutsch),
              "Weggelassen:\n  2  weiterer Name\n  1  Beziehung zu einer anderen Person\n  1  Notiz\n  1  Ort\n"
              "  2  Ereignis oder Eigenschaft\n  1  Angabe zur Verwaltung\n  1  eigene Angabe eines Programms\n\n"
              "Zeile 5: Eva Grün (I1): weiterer Name: NICK Evi\n"
              "Zeile 6: Eva Grün (I1): weiterer Name: NAME Eva /Weiß/\n"
              "Zeile 10: Eva Grün (I1): Ort: PLAC Wien\n"
              "Zeile 11: Eva Grün (I1): Ereignis oder Eigenschaft: BIRT\n"
              "Zeile 13: Eva Grün (I1): Ereignis oder Eigenschaft: OCCU Schmiedin\n"
              "Zeile 14: Eva Grün (I1): Notiz: NOTE lang und länger\n"
              "Zeile 16: Eva Grün (I1): eigene Angabe eines Programms: _HAIR braun\n"
              "Zeile 17: Eva Grün (I1): Angabe zur Verwaltung: CHAN\n"
              "Zeile 19: Datei: Zeile ohne Ebene oder Marke, an die vorige angefügt\n"
              "Zeile 20: Eva Grün (I1): Beziehung zu einer anderen Person: ASSO @I1@\n");
    EXPECT_NE(Berichtstext(import.Ergebnis.Bericht, import.Baum.Warnliste, Sprache::Englisch).find("\nLine 10: Eva"),
              std::string::npos);
    for (std::size_t i = 0; i < Befundarten; ++i)
        EXPECT_FALSE(Befundtext(static_cast<Befundart>(i), Sprache::Englisch).empty());
}

} // namespace kw
