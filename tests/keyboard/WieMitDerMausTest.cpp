// What is done by keyboard comes out byte for byte as what the mouse does.
#include "document/ProjektDatei.h"
#include "document/UndoRing.h"
#include "replay/Einblick.h"
#include "replay/Programm.h"
#include "replay/Skript.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace kw {
namespace {

std::string Dateiinhalt(const std::string &datei) {
    std::ifstream strom(datei, std::ios::binary);
    return {std::istreambuf_iterator<char>(strom), {}};
}

/// The project that a script leaves behind, as a file.
std::string Ergebnis(const std::string &skript) {
    const auto ordner = std::filesystem::temp_directory_path() / ("tastatur-" + std::to_string(::getpid()));
    std::filesystem::create_directories(ordner);
    const std::string datei = (ordner / "a.kwp").string();
    std::ostringstream aus;
    Wiedergabe lauf(aus);
    std::istringstream strom(skript + "\nwait 2000\nsave " + datei + "\n");
    EXPECT_EQ(lauf.Ausführen(strom), 0) << aus.str();
    const std::string inhalt = Dateiinhalt(datei);
    std::filesystem::remove_all(ordner);
    return inhalt;
}

std::string Mal(int n, const std::string &zeile) {
    std::string alle;
    for (int i = 0; i < n; ++i) alle += zeile + "\n";
    return alle;
}

// Four generations: father and mother, and thrice a child between them that gets a partner.
std::string VierGenerationenMitTasten() {
    std::string skript =
        "tool 1\n" + Mal(3, "key Shift+Left") + Mal(2, "key Shift+Up") + Mal(5, "key Up") + "key Enter\n";
    for (int generation = 0; generation < 4; ++generation) {
        skript += "tool 2\nkey Shift+Right\nkey Enter\nkey Space\ntool 13\nkey Left\nkey Enter\n";
        if (generation == 3) break;
        skript += "tool 1\n" + Mal(5, "key Right") + "key Shift+Down\n" + Mal(2, "key Down") +
                  "key Enter\nkey Space\n" + "tool 14\n" + Mal(generation + 1, "key Tab") + "key Enter\nkey Down\n";
    }
    // The index person's name, twins among the youngest, a relationship, texts and lines beside them.
    return skript + "key Home\nform frmSymbol\nset txtVorname Jörg\npress cmdOK\nend\nkey Enter\nkey Escape\n" +
           "key End\nkey Space\nform frmBezLinien\npress Command1\nend\ntool 12\nkey Home\nkey Enter\nkey Escape\n" +
           "tool 15\n" + Mal(3, "key Shift+Right") + "key Enter\nkey Shift+Right\nkey Down\nkey Enter\nkey Escape\n" +
           "key Home\nkey Space\nkey Right\nkey Space\nkey Shift+F10\n";
}

std::string VierGenerationenMitDerMaus() {
    std::string skript = "tool 1\nclick 6 3\n";
    const auto ort = [](double x, double y) {
        std::ostringstream text;
        text << x << ' ' << y;
        return text.str();
    };
    for (int generation = 0; generation < 4; ++generation) {
        const double x = 6 + 1.5 * generation;
        const double y = 3 + 3.6 * generation;
        const std::string mann = ort(x, y);
        const std::string frau = ort(x + 3, y);
        const std::string kind = ort(x + 1.5, y + 3.6);
        const std::string balken = ort(x + 0.6, y + 1.8);
        skript += "tool 2\nclick " + frau + "\nclick " + frau + "\ntool 13\nmove " + mann + "\nclick " + mann + "\n";
        if (generation == 3) break;
        skript +=
            "tool 1\nclick " + kind + "\nclick " + kind + "\ntool 14\nmove " + balken + "\nclick " + balken + "\n";
    }
    return skript + "form frmSymbol\nset txtVorname Jörg\npress cmdOK\nend\ndblclick 6 3\nwait 100\nclick 25 3\n" +
           "click 13.5 13.8\nform frmBezLinien\npress Command1\nend\ntool 12\nmove 6 3\nclick 6 3\n" +
           "tool 15\ndrag 15 3 18 3.3\nclick 25 18\n";
}

TEST(WieMitDerMaus, VierGenerationen) {
    const std::string maus = Ergebnis(VierGenerationenMitDerMaus());
    EXPECT_NE(maus.find("J\xf6rg"), std::string::npos);
    EXPECT_EQ(Ergebnis(VierGenerationenMitTasten()), maus);
}

/// A way, by keys and by mouse. The keys begin on the first person.
struct Weg {
    const char *Name;
    std::string Tasten;
    std::string Maus;
};

TEST(WieMitDerMaus, WasSichVerschiebt) {
    const std::string seite =
        "store cboPersonen 001_1_6_3_1.2_0__0_0_Ada_____\n"
        "store cboPersonen 002_2_9.6_3.1_1.2_0__0_0______\n"
        "store cboPersonen 003_1_7.5_7.2_1.2_0__0_0____001_2E004\n"
        "store cboPersonen 004_2_9_7.2_1.2_0__0_0____001_2E003\n"
        "store cboPartnerschaftsLinien 001__6_4.9_9.6_4.9_001_002_3_3.1_6_9.6__\n"
        "store cboKindlinien 003_0_001_7.5_8.3_7.2_4.9\nstore cboKindlinien 004_0_001_9_8.3_7.2_4.9\n"
        "store cboBeziehungsLinien _3_6_3_7.5_7.2_001_003\n"
        "store cboTextboxen 14.1_6.2_Arial_11_0_0_0_0_0_Notiz\n"
        "store cboPfeile 1_15_3_18_4.2\nstore cboFreehandlines 15^9_18^9_18^12_15^12_15^9\n"
        "press mnuLegendeAnzeigen\nset LegendeX 24\nset LegendeY 12\nwait 400\n";
    const Weg wege[] = {
        {"Person", Mal(3, "key Alt+Right"), "drag 6 3 6.9 3"},
        {"Person neben dem Raster", "key Right\nkey Alt+Up", "drag 9.6 3.1 9.6 2.8"},
        {"Zwilling um zehn", "key Down\nkey Alt+PageDown\nkey Alt+End", "drag 7.5 7.2 10.5 10.2"},
        {"Person an den Rand", "key Alt+Home\nkey Alt+Home\nkey Alt+Home\nkey Alt+Right", "drag 6 3 0.3 3"},
        {"Balken", "key End\nkey Tab\nkey Alt+Down\nkey Alt+Down\nkey Alt+Left", "drag 7 4.9 7 5.5"},
        {"Text", Mal(8, "key Tab") + "key Alt+Left", "drag 14.5 6.4 14.2 6.4\nwait 100"},
        {"Pfeil", Mal(9, "key Tab") + "key Alt+Right\nkey Alt+Up", "drag 16.5 3.6 16.8 3.3"},
        {"Pfeilende", Mal(9, "key Tab") + "key Space\nkey Enter\nkey Alt+Down", "click 16.5 3.6\ndrag 18 4.2 18 4.5"},
        {"Pfeilanfang", Mal(9, "key Tab") + "key Space\nkey Enter\nkey Enter\nkey Alt+Down",
         "click 16.5 3.6\ndrag 15 3 15 3.3"},
        {"Kreislinie", Mal(10, "key Tab") + "key Alt+Left\nkey Alt+Up",
         "down left 15 9\nmove 14 8\nmove 14.7 8.7\nup 14.7 8.7"},
        {"Legende", Mal(11, "key Tab") + "key Alt+Up", "drag 24.3 12.2 24.3 11.9"},
        {"Gruppe", "key Space\nkey Right\nkey Space\n" + Mal(4, "key Alt+Down"), "drag 5 2 10.5 4\ndrag 8 3 8 4.2"},
    };
    const std::string zuvor = Ergebnis(seite);
    for (const Weg &weg : wege) {
        const std::string maus = Ergebnis(seite + weg.Maus + "\n");
        EXPECT_NE(maus, zuvor) << weg.Name;
        EXPECT_EQ(Ergebnis(seite + "key Home\n" + weg.Tasten + "\n"), maus) << weg.Name;
    }
}

} // namespace
} // namespace kw
