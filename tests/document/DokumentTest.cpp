#include "document/Dokument.h"
#include "document/Codepage.h"
#include "document/Dateien.h"
#include "document/Zahlen.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace kw;

TEST(Zahlen, LesenEndetVorDemErstenFremdenZeichen) {
    const std::pair<const char *, double> fälle[] = {
        {"", 0},    {"  4.25cm", 4.25}, {"-.5", -0.5}, {"+7", 7},  {"12.03.1975", 12.03},
        {"1e5", 1}, {"1,5", 1},         {"0x10", 0},   {"-", 0},   {".", 0},
        {"5.", 5},  {"inf", 0},         {"- 5", 0},    {"--5", 0}, {"nan", 0},
        {"$81", 0}, {"1 2", 1},         {"-0", 0}};
    for (const auto &[text, wert] : fälle) EXPECT_EQ(ZahlLesen(text), wert) << text;
    const std::string riesig(5000, '9');
    EXPECT_TRUE(std::isfinite(static_cast<float>(ZahlLesen(riesig))));
    EXPECT_LT(ZahlLesen("-" + riesig), -1e38);
    EXPECT_EQ(ZahlLesen("0." + std::string(5000, '0') + "1"), 0);
}

TEST(Zahlen, SchreibenGibtSiebenStellenOhneExponent) {
    struct Fall {
        double Wert;
        const char *Text;
    };
    for (const auto &[wert, text] :
         {Fall{0, "0"}, Fall{-0.0, "0"}, Fall{8.4, "8.4"}, Fall{0.1 + 0.2, "0.3"}, Fall{-1.25, "-1.25"},
          Fall{100, "100"}, Fall{25.4 / 3, "8.466666"}, Fall{1234567.8, "1234568"}, Fall{123456789, "123456800"},
          Fall{9999999.7, "10000000"}, Fall{0.00001234, "0.00001234"}, Fall{-1e-50, "0"}, Fall{std::nan(""), "0"},
          Fall{-INFINITY, "0"}}) {
        EXPECT_EQ(ZahlSchreiben(wert), text);
    }
    EXPECT_EQ(ZahlSchreiben(1e300).size(), 39U);
    for (const auto *const text : {"0.35", "29.7", "-3.125", "16777220", "0.0000001"}) {
        EXPECT_EQ(ZahlSchreiben(ZahlLesen(text)), text);
    }
}

TEST(Zahlen, RundenGehtZumGeradenNachbarn) {
    EXPECT_EQ(Gerundet(0.125, 2), 0.12);
    EXPECT_EQ(Gerundet(0.375, 2), 0.38);
    EXPECT_EQ(Gerundet(-2.5, 0), -2);
    EXPECT_EQ(Gerundet(4.35, 1), 4.4) << "a tie, though not in binary";
    EXPECT_EQ(OhneRauschen(1.2 / 0.4), 3);
    EXPECT_EQ(Gerastert(10.95, 0.3), 10.8);
    EXPECT_EQ(Gerundet(1e300, 9), 1e300);
    EXPECT_EQ(Ganzzahl16(2.5), 2);
    EXPECT_EQ(Ganzzahl16(1e9), 32767);
    EXPECT_EQ(Ganzzahl16(std::nan("")), 0);
    EXPECT_EQ(Dreistellig(7) + Dreistellig(42) + Dreistellig(1000), "0070421000");
}

TEST(Dateien, EinDatumIstKeineKennung) {
    EXPECT_EQ(MitKennung("/a.b/Berg 3.11.2026", "kwp", false), "/a.b/Berg 3.11.2026.kwp");
    EXPECT_EQ(MitKennung("Berg.KWP", "kwp", false), "Berg.KWP");
    EXPECT_EQ(MitKennung("Berg.jun", "kwp", false), "Berg.jun.kwp");
    for (const char *frei : {"x.jpg", "BILD.BMP", "Berg 3.11.2026.jpeg"})
        EXPECT_EQ(MitKennung(frei, "bmp", true), frei);
    for (const char *ohne : {"x", "Berg 3.11.2026", "Dr. Weiß", "v1.2"})
        EXPECT_EQ(MitKennung(ohne, "bmp", true), std::string(ohne) + ".bmp");
}

TEST(Codepage, JedesByteÜbersteht) {
    std::string alle;
    for (int byte = 0; byte < 256; ++byte) alle += static_cast<char>(byte);
    EXPECT_EQ(NachCodepage(NachUtf8(alle)), alle);
    EXPECT_EQ(NachUtf8("\x80\xE4\xDF\x81"), "€äß\xC2\x81");
    // Missing in the code page; broken off; overlong; surrogate; too large; a lone following byte.
    EXPECT_EQ(NachCodepage("日ő😀|\xC3|\xC0\xAF|\xED\xA0\x80|\xF4\x90\x80\x80|\xBF\xE2\x82"), "???|?|??|???|????|???");
    EXPECT_EQ(NachCodepage("\xC2\x80"), "?") << "byte 80 is the euro";
}

TEST(Dokument, FreieNummernEndenBeimLetztenSatz) {
    Dokument d;
    d.lstGelöschtePersNr = {"009"};
    d.lstGelöschtePLinien = {"009"};
    d.cboPersonen = {"002_", "7_x", "", "005_"};
    d.FreieNummernAufbauen();
    EXPECT_EQ(d.lstGelöschtePersNr, (Satzliste{"001", "003", "004"}));
    EXPECT_TRUE(d.lstGelöschtePLinien.Leer());
    d.cboPersonen = {"003_", "001_"};
    d.FreieNummernAufbauen();
    EXPECT_EQ(d.NeuePersNr(), "002") << "003, as counted, is in use";
}
