#include "document/basAltersberechnung.h"

#include <gtest/gtest.h>

using namespace kw;

namespace {

using enum Datumsfolge;

struct FesteUhr : Uhr {
    Datum Tag{2026, 3, 12};
    Datumsfolge Ordnung = TagMonatJahr;
    Datum Heute() const override { return Tag; }
    Datumsfolge Folge() const override { return Ordnung; }
};

/// Age, year and flag after one call, as a caller with cleared outputs sees them.
std::string Ergebnis(const std::string &text, const FesteUhr &uhr = {}) {
    Altersberechnung alter(uhr);
    alter.AlterAusDatum(text);
    return alter.strAlterText + "|" + alter.strGebJahrText + (alter.bDatumUngueltig ? "|!" : "|");
}

} // namespace

TEST(Altersberechnung, TextWirdAlterUndJahr) {
    struct Fall {
        const char *Text, *Erwartet;
    };
    for (const auto &[text, erwartet] :
         {Fall{"1950", "76|1950|"}, Fall{"2100", "-74|2100|"}, Fall{"2101", "-75|2101|!"}, Fall{"2999", "-973|2999|!"},
          Fall{"0123", "1903|0123|"}, Fall{"12.03.1975", "51|1975|"}, Fall{"13.03.1975", "50|1975|"},
          Fall{"12.04.1975", "50|1975|"}, Fall{"31.12.1799", "226|1799|"}, Fall{"12.03.2027", "-1|2027|"},
          Fall{"1.5.2500", "-475|2500|"}, Fall{"2500-05-01", "-475|2500|!"}, Fall{"29.02.2024", "2|2024|"},
          Fall{"29.02.2000", "26|2000|"}}) {
        EXPECT_EQ(Ergebnis(text), erwartet) << text;
    }
    // "äöü" has six bytes, and three characters.
    for (const auto *const text : {"195", "äöü", "3000", "0099", "-123", "1.5.", "abcd", "31.02.1975", "29.02.1900",
                                   "12.03.1975x", "12.03.", "1.2.3.4"}) {
        EXPECT_EQ(Ergebnis(text), "||!") << text;
    }
}

TEST(Altersberechnung, BloßesAlterBleibtUndHatKeinJahr) {
    FesteUhr uhr;
    for (const int jahr : {2026, 2040}) {
        uhr.Tag.Jahr = jahr;
        EXPECT_EQ(Ergebnis("Alter 45", uhr), "45||");
        EXPECT_EQ(Ergebnis("Age 0", uhr), "0||");
    }
    for (const auto *const text : {"Alter ", "Age 1000", "Age -5", "Alter 4 J", "age 45", "Alter45", "ca. Alter 45"})
        EXPECT_EQ(Ergebnis(text), "||!") << text;
    EXPECT_EQ(Ergebnis(AltersangabeFür("7", Sprache::Deutsch)), "7||");
    EXPECT_EQ(Ergebnis(AltersangabeFür("7", Sprache::Englisch)), "7||");
}

TEST(Altersberechnung, GeburtstagZähltAmTagSelbst) {
    FesteUhr uhr;
    uhr.Tag = {2026, 3, 11};
    EXPECT_EQ(Ergebnis("12.03.1975", uhr), "50|1975|");
    // The 29th of February: on the 1st of March in common years, on the day itself in leap years.
    uhr.Tag = {2027, 2, 28};
    EXPECT_EQ(Ergebnis("29.02.2004", uhr), "22|2004|");
    uhr.Tag = {2027, 3, 1};
    EXPECT_EQ(Ergebnis("29.02.2004", uhr), "23|2004|");
    uhr.Tag = {2028, 2, 29};
    EXPECT_EQ(Ergebnis("29.02.2004", uhr), "24|2004|");
    uhr.Tag = {2026, 1, 1};
    EXPECT_EQ(Ergebnis("1950", uhr), "76|1950|");
}

TEST(Altersberechnung, WasEinAufrufStehenLässt) {
    const FesteUhr uhr;
    Altersberechnung alter(uhr);
    alter.AlterAusDatum("12.03.1975");
    alter.AlterAusDatum("195"); // flag only
    EXPECT_TRUE(alter.bDatumUngueltig);
    EXPECT_EQ(alter.strAlterText + alter.strGebJahrText + alter.strGebDatumText, "51197512.03.1975");
    alter.AlterAusDatum("   "); // nothing, not even the flag
    EXPECT_TRUE(alter.bDatumUngueltig);
    alter.AlterAusDatum("1.13.13.1"); // the year goes, the age stays
    EXPECT_EQ(alter.strAlterText + "|" + alter.strGebJahrText, "51|");
    EXPECT_EQ(alter.strGebDatumText, "1.13.13.1");
    alter.AlterAusDatum("1950");
    EXPECT_FALSE(alter.bDatumUngueltig);
    EXPECT_EQ(alter.strGebDatumText, "01-01-1950");
}

TEST(Altersberechnung, DatumInDerFolgeDesGebiets) {
    struct Fall {
        const char *Text;
        Datumsfolge Folge;
        std::optional<Datum> Erwartet;
    };
    for (const auto &[text, folge, datum] :
         {Fall{"03/04/1980", TagMonatJahr, Datum{1980, 4, 3}}, Fall{"03/04/1980", MonatTagJahr, Datum{1980, 3, 4}},
          // Only the other order is a date; a year in front is one everywhere.
          Fall{"12/31/1980", TagMonatJahr, Datum{1980, 12, 31}}, Fall{"31.12-1980", MonatTagJahr, Datum{1980, 12, 31}},
          Fall{"1980-04-03", MonatTagJahr, Datum{1980, 4, 3}}, Fall{"80-04-03", JahrMonatTag, Datum{1980, 4, 3}},
          Fall{"01-01-1950", JahrMonatTag, Datum{1950, 1, 1}}, Fall{"10.02.1950", JahrMonatTag, Datum{1950, 2, 10}},
          Fall{"1.2.29", TagMonatJahr, Datum{2029, 2, 1}}, Fall{"1.2.30", TagMonatJahr, Datum{1930, 2, 1}},
          Fall{"1.2.123", TagMonatJahr, Datum{123, 2, 1}}, Fall{" 1.2.1980 ", TagMonatJahr, Datum{1980, 2, 1}}}) {
        EXPECT_EQ(DatumLesen(text, folge), datum) << text;
    }
    for (const auto *const text : {"1.2.19800", "1. 2.1980", "00.01.1980", "1..1980", "-1.2.1980", ""}) {
        EXPECT_FALSE(DatumLesen(text, TagMonatJahr)) << text;
    }
}
