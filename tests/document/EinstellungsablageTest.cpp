#include "document/Einstellungsablage.h"

#include "document/Codepage.h"
#include "document/Dateien.h"
#include "document/Texte.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace kw;
namespace fs = std::filesystem;

namespace {

class Einstellungsdatei : public testing::Test {
  protected:
    /// A program that has just started.
    struct Fenster {
        Einstellungsablage Ablage;
        Einstellungen e;

        explicit Fenster(const std::string &datei) : Ablage(datei), e(Ablage.Lesen()) {
            e.Farbschema = 2; // as every start does
            e.LetzterPfad.clear();
            Ablage.Ausgangslage(e);
        }
        void Öffnen(const std::string &projekt) {
            e.Zuletzt.Eintragen(projekt);
            e.LetzterPfad = Pfad(projekt);
            Ablage.Nachführen(e);
        }
    };

    void SetUp() override {
        fs::remove_all(ordner_);
        fs::create_directories(ordner_);
    }
    void TearDown() override { fs::remove_all(ordner_); }
    std::string Wert(std::string_view schlüssel) const { return ProfilLesen(datei_, "DEFAULT", schlüssel); }
    std::string Inhalt() const {
        std::string inhalt;
        DateiLesen(datei_, inhalt);
        return inhalt;
    }
    static Chronik Pfade(std::initializer_list<std::string> pfade) {
        Chronik chronik;
        int platz = 0;
        for (const auto &pfad : pfade) chronik.Setzen(++platz, pfad);
        return chronik;
    }

    const fs::path ordner_ = fs::temp_directory_path() / ("kw-settings-" + std::to_string(::getpid()));
    const std::string datei_ = (ordner_ / "prog.ini").string();
};

} // namespace

TEST_F(Einstellungsdatei, WasSichÄndertStehtGleichDarinUndInDerReihenfolgeDesEndes) {
    Fenster fenster(datei_);
    fenster.Ablage.Nachführen(fenster.e);
    EXPECT_FALSE(DateiVorhanden(datei_)) << "nothing has changed";
    fenster.Öffnen("/a/b.kwp");
    EXPECT_EQ(Wert("lastpath"), "/a/");
    EXPECT_EQ(EinstellungenAus(datei_).Zuletzt, fenster.e.Zuletzt);
    const auto schlüssel = ProfilLesen(datei_, "DEFAULT", {});
    fenster.e.LetzterPfad.clear();
    fenster.Ablage.Nachführen(fenster.e);
    EXPECT_EQ(Wert("lastpath"), "/a/") << "a new project has no folder";
    fenster.Ablage.Abschließen(fenster.e);
    EXPECT_EQ(Wert("lastpath"), "");
    EXPECT_EQ(ProfilLesen(datei_, "DEFAULT", {}), schlüssel);
    fs::remove(datei_);
    Fenster(datei_).Ablage.Abschließen(fenster.e);
    EXPECT_EQ(ProfilLesen(datei_, "DEFAULT", {}), schlüssel) << "the end alone writes the same order";
}

TEST_F(Einstellungsdatei, ZweiFensterMachenEinanderNichtsZunichte) {
    DateiSchreiben(datei_, "[DEFAULT]\nclscheme=0\nstdfontname=Arial\nlastpath_1=/alt\n");
    Fenster eines(datei_);
    Fenster anderes(datei_);
    eines.Öffnen("/a/1.kwp");
    eines.e.Farbschema = 1;
    eines.e.stdfontname = "Courier";
    eines.Ablage.Abschließen(eines.e);
    anderes.Öffnen("/b/2.kwp");
    EXPECT_EQ(EinstellungenAus(datei_).Zuletzt, Pfade({"/b/2.kwp", "/a/1.kwp", "/alt"}));
    anderes.e.stdfont_s = "9";
    anderes.Ablage.Abschließen(anderes.e);
    EXPECT_EQ(Wert("clscheme"), "1");
    EXPECT_EQ(Wert("stdfontname"), "Courier");
    EXPECT_EQ(Wert("stdfont_s"), "9");
    EXPECT_EQ(Wert("lastpath"), "/b/");
    Fenster allein(datei_);
    allein.Ablage.Abschließen(allein.e);
    EXPECT_EQ(Wert("clscheme"), "2") << "what a start makes of the settings is kept when nobody else has a say";
}

TEST_F(Einstellungsdatei, EineUnlesbareBleibtUnberührt) {
    const std::string inhalt = "[DEFAULT]\r\nclscheme=1\r\n";
    DateiSchreiben(datei_, inhalt);
    fs::resize_file(datei_, GrößteDatei + 1); // refused before it is read, also by a user who may read everything
    Fenster fenster(datei_);
    fs::resize_file(datei_, inhalt.size());
    fenster.Öffnen("/a/b.kwp");
    fenster.Ablage.Festhalten("language", "de");
    fenster.Ablage.Abschließen(fenster.e);
    EXPECT_EQ(Inhalt(), inhalt);
}

TEST_F(Einstellungsdatei, EinMisslungenesSchreibenWirdAmEndeNachgeholt) {
    Fenster fenster(datei_);
    fs::create_directory(datei_);
    fenster.Öffnen("/a/b.kwp");
    fs::remove(datei_);
    fenster.Ablage.Abschließen(fenster.e);
    EXPECT_EQ(Wert("lastpath") + Wert("lastpath_1"), "/a//a/b.kwp");
}

TEST_F(Einstellungsdatei, PfadeInJederSchriftKommenWieder) {
    const std::string pfad = "/home/Şükrü/\"Łukasz\" \xFF.kwp ";
    Fenster fenster(datei_);
    fenster.e.stdfontname = "源ノ角ゴシック";
    fenster.Öffnen(pfad);
    const auto gelesen = EinstellungenAus(datei_);
    EXPECT_EQ(gelesen.Zuletzt[1], pfad);
    EXPECT_EQ(gelesen.stdfontname, "源ノ角ゴシック");
    EXPECT_EQ(LetzterOrdner(datei_), "/home/Şükrü/");
    EXPECT_EQ(Wert("lastpath"), "/home/?ükrü/") << "what other programs read";
    ProfilSchreiben(datei_, "DEFAULT", "lastpath_1", "/anders.kwp");
    EXPECT_EQ(EinstellungenAus(datei_).Zuletzt[1], "/anders.kwp") << "changed elsewhere";
    fenster.Öffnen("/1");
    fenster.Öffnen("/2");
    fenster.Öffnen("/3");
    fenster.Öffnen("/4");
    fenster.e.stdfontname = "Arial";
    fenster.Ablage.Abschließen(fenster.e);
    EXPECT_EQ(Inhalt().find("FULLTEXT"), std::string::npos) << Inhalt();
}
