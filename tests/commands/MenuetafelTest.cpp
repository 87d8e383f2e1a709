#include "commands/Menuetafel.h"

#include "document/Dateien.h"
#include "document/Texte.h"
#include "replay/Programm.h"
#include "replay/Skript.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>

#include <unistd.h>

using namespace kw;

namespace {

/// Whether menus show the row under a letter. Of eighteen zooms each would need one.
bool BrauchtBuchstaben(const Menüzeile &zeile) {
    constexpr std::string_view Ohne[] = {Kontextmenü, Werkzeugband, Palette, Fensterteile, Name::btnZoom};
    return std::find(std::begin(Ohne), std::end(Ohne), zeile.Menü) == std::end(Ohne) &&
           zeile.Caption.Englisch != Trennstrich;
}

/// As the toolkit compares them.
std::string Klein(std::string_view buchstabe) {
    if (buchstabe == "Ö") return "ö";
    std::string klein(buchstabe);
    for (char &c : klein) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return klein;
}

/// A caption with its letter marked.
std::string Markiert(const Menüzeile &zeile, std::string_view caption, Sprache sprache) {
    const Kennstelle stelle = KennstelleIn(zeile, caption, sprache);
    return stelle.Ab.empty() ? stelle.Davor : stelle.Davor + "&" + stelle.Ab;
}

/// A program that has started in that language.
void Starten(Wiedergabe &lauf, Sprache sprache) {
    const std::string ini = std::filesystem::temp_directory_path() / ("kw-menu-" + std::to_string(::getpid()) + ".ini");
    ASSERT_TRUE(DateiSchreiben(ini, "[DEFAULT]\r\nlanguage=" + std::string(Kürzel(sprache)) + "\r\n").Gelungen());
    lauf.Zeile("start ini=" + ini);
    std::filesystem::remove(ini);
}

} // namespace

/// Two rows of one menu under a letter could only be walked through, and one without a letter not be picked.
TEST(Menütafel, JederEintragHatSeinenBuchstabenInSeinemMenü) {
    for (const Sprache sprache : {Sprache::Deutsch, Sprache::Englisch}) {
        std::set<std::pair<std::string_view, std::string>> vergeben;
        for (const Menüzeile &zeile : Menütafel()) {
            const std::string_view buchstabe = zeile.Kennbuchstabe.In(sprache);
            EXPECT_EQ(Zeichenzahl(buchstabe), BrauchtBuchstaben(zeile)) << zeile.Name;
            if (buchstabe.empty()) continue;
            EXPECT_TRUE(vergeben.emplace(zeile.Menü, Klein(buchstabe)).second) << zeile.Name << " " << buchstabe;
            const std::string_view caption = zeile.Caption.In(sprache);
            const bool trägtEinen = caption.find('&') != std::string_view::npos;
            EXPECT_TRUE(!trägtEinen || Markiert(zeile, caption, sprache) == caption) << caption;
        }
    }
}

/// Also where a caption says what the next use does, or names a file.
TEST(Menütafel, DerBuchstabeStehtInAllemWasDerEintragSagt) {
    for (const Sprache sprache : {Sprache::Deutsch, Sprache::Englisch}) {
        std::ostringstream aus;
        Wiedergabe lauf(aus);
        Starten(lauf, sprache);
        for (int mal = 0; mal < 2; ++mal) {
            for (const Menüzeile &zeile : Menütafel()) {
                if (zeile.Kennbuchstabe.Englisch.empty()) continue;
                const std::string &caption = lauf.Läuft().innen.bedienung.Finden(zeile.Name)->Caption;
                EXPECT_EQ(KennstelleIn(zeile, caption, sprache).Ab.find(zeile.Kennbuchstabe.In(sprache)), 0U)
                    << zeile.Name << " " << caption;
            }
            for (const char *schalter : {"mnuWerkzeugleiste", "mnuRasterAnzeigen", "mnuLegendeAnzeigen"})
                lauf.Zeile(std::string("menu ") + schalter);
        }
    }
}

TEST(Menütafel, DerBuchstabeStehtAmLiebstenVornImWort) {
    const auto markiert = [](const char *name, const char *caption) {
        return Markiert(*MenüzeileFinden(name), caption, Sprache::Englisch);
    };
    EXPECT_EQ(markiert("mnuSichernUnter", "Save As ..."), "Save &As ...");
    EXPECT_EQ(markiert("mnuPDF_Export", "Export as PDF"), "Export as P&DF");
    EXPECT_EQ(markiert("mnuRecent(2)", "  2 R&B 2.kwp"), "  &2 R&B 2.kwp");
    EXPECT_EQ(markiert("mnuNeu", "anders"), "anders");
    EXPECT_EQ(Markiert(*MenüzeileFinden("mnuEinfügen8"), "Einfügen", Sprache::Deutsch), "Ein&fügen");
}
