#include "app/Einzelbild.h"
#include "document/Dateien.h"
#include "replay/Aufzeichnung.h"
#include "replay/Plattform.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include <unistd.h>

namespace kw {
namespace {

/// A small project with one record of each kind.
constexpr std::string_view Projekt =
    "[DEFAULT]\r\norientation=2\r\npapersize=9\r\nlegende=1_25_2_1_1\r\n"
    "[OBJECTS]\r\n0=001_1_3_3_1.2_1_$85_1_1_J\xF6rg_M\xFCller_12.03.1975__1E002\r\n1=002_1.2_6_3_1.2_0__0_0___1950_001_"
    "1E001\r\n"
    "[LINEA]\r\n0=_6_3_3_6_3_001_002\r\n1=_3_3_3_6_9_001_002\r\n2=_4_3_3_6_9_001_002\r\n"
    "[LINEB]\r\n0=001_2_3_5_6_5_001_002_3_3_3_6_1_a#b#c#d\r\n[LINEC]\r\n0=002_1_001_6_4_3_5\r\n"
    "[LINED]\r\n0=1^1_5^1_5^5_1^1\r\n[LINEE]\r\n0=2_1_1_9_9\r\n[TEXT]\r\n0=2_2_Arial_12_255_1_0_0_2_Hallo#Welt\r\n";

const std::string Bausteine = "_ # ^ = [TEXT] - 1e999 0 $ 1E001 10000000000000000_5_10000000000001000 \xFF "
                              "0.0000000000000000001 -32769 \" 1000000 \r\n "
                              "99999999999999999999999999999999999999999999";

/// Overwrites, inserts, removes or doubles a piece at a random place.
void Beschädigen(std::string &inhalt, std::mt19937 &zufall) {
    const size_t ort = zufall() % (inhalt.size() + 1);
    const size_t anfang = zufall() % Bausteine.size();
    const auto stück = std::string_view(Bausteine).substr(anfang, 1 + zufall() % 20);
    switch (zufall() % 4) {
    case 0: inhalt.replace(ort, stück.size(), stück); break;
    case 1: inhalt.insert(ort, stück); break;
    case 2: inhalt.erase(ort, zufall() % 20); break;
    default: inhalt.insert(ort, inhalt.substr(ort, zufall() % 200)); break;
    }
}

/// Whatever a file holds, it ends in a picture or in a line that says what is wrong. Under the sanitizers
/// this is the test that finds what nobody thought of.
TEST(BeliebigeDatei, EndetImBildOderInEinerZeile) {
    std::mt19937 zufall(20260312);
    DrehbuchUhr uhr;
    const std::string datei = testing::TempDir() + "beliebig-" + std::to_string(::getpid()) + ".kwp";
    for (int i = 0; i < 600; i += KW_STICHPROBE) {
        std::string inhalt(Projekt);
        for (auto n = zufall() % 12; n > 0; --n) Beschädigen(inhalt, zufall);
        ASSERT_TRUE(DateiSchreiben(datei, inhalt).Gelungen());
        Einzelbild bild(uhr, "");
        const std::string befund = bild.Laden(datei);
        ASSERT_TRUE(bild.IstGelesen() || !befund.empty());
        ASSERT_EQ(befund.find('\n'), std::string::npos);
        Aufzeichnung papier;
        papier.GrößeSetzen(16838, 11906);
        papier.Schreibt = true;
        for (const int anzeige : {0, 1, 2}) {
            bild.ansicht.Altersanzeige = anzeige;
            bild.Übernehmen(VorschauZeichnen(papier, bild.DasBild()));
        }
        bild.AufPapier(papier);
        for (const auto *keineZahl : {" nan", " -nan", " inf", " -inf"})
            ASSERT_EQ(papier.Text.find(keineZahl), std::string::npos);
        ASSERT_NE(papier.Text.rfind("layer personen"), std::string::npos);
    }
    std::filesystem::remove(datei);
}

} // namespace
} // namespace kw
