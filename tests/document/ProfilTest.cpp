#include "document/Profil.h"
#include "document/Dateien.h"

#include "document/Codepage.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

using namespace kw;
using namespace std::string_literals;

TEST(Profil, WasDerLesepufferNichtFasstWirdAbgeschnitten) {
    Profil profil;
    std::string linie;
    for (int i = 0; i < 700; ++i) linie += "1.5^2.5_";
    profil.Schreiben("LINED", "0", linie);
    EXPECT_EQ(profil.Lesen("LINED", "0"), linie.substr(0, 4095));
    EXPECT_TRUE(profil.WirdGekürzt("LINED", "0"));
    EXPECT_NE(profil.Inhalt().find(linie), std::string::npos) << "written whole all the same";
    profil.Schreiben("LINED", "1", std::string(4095, 'x'));
    EXPECT_FALSE(profil.WirdGekürzt("LINED", "1"));
    // The limit counts bytes of the file, not of memory.
    std::string umlaute;
    for (int i = 0; i < 5000; ++i) umlaute += "ä";
    profil.Schreiben("LINED", "2", umlaute);
    EXPECT_EQ(profil.Lesen("LINED", "2"), umlaute.substr(0, 2 * 4095));

    for (int i = 0; i < 1100; ++i) profil.Schreiben("OBJECTS", std::to_string(i), "x");
    const auto liste = profil.SchlüsselListe("OBJECTS");
    EXPECT_EQ(liste.size(), 4094U);
    EXPECT_TRUE(liste.ends_with("\0"s
                                "1039\0"s
                                "1040"s))
        << "the last name has lost its NUL";
    EXPECT_EQ(profil.SchlüsselAnzahl("OBJECTS"), 1100U);
    EXPECT_EQ(profil.Lesen("OBJECTS", "1099"), "x");
}

TEST(Profil, LiestWieDieAufrufeDesSystems) {
    const Profil profil(
        "vorn=1\r\n[Eins]\r\na = \"x\" \rb='y'\nc=\"\nd=\"z'\ne=' '\n[Eins\nf=1\n[ eins ]\ng=2\n[ZWEI]]\n0=n\0l\n"s);
    EXPECT_EQ(profil.Lesen("eins", "A"), "x") << "a lone CR ends a line too";
    EXPECT_EQ(profil.Lesen("Eins", "b"), "y");
    EXPECT_EQ(profil.Lesen("Eins", "c"), "\"");
    EXPECT_EQ(profil.Lesen("Eins", "d"), "\"z'");
    EXPECT_EQ(profil.Lesen("Eins", "e"), " ");
    EXPECT_EQ(profil.Lesen("Eins", "f"), "1") << "a header without its bracket is none";
    EXPECT_EQ(profil.Lesen("Eins", "g"), "") << "only the first section of a name is read";
    EXPECT_EQ(profil.AbschnittAnzahl("EINS"), 2);
    EXPECT_EQ(profil.Lesen("zwei]", "0"), "n l") << "a NUL would end the name in a key list";
    EXPECT_EQ(profil.Lesen("", "vorn"), "") << "what stands before the first header is in no section";
}

TEST(Profil, SchreibtAnOrtUndStelleUndBehältFremdes) {
    Profil profil(
        NachCodepage("; Kopf\n\n; noch einer\n[A]\n Größe = 1\n;alt\n\n[B]\n0=b\n[a]\n9=alt\n[C]\nkein Schlüssel\n"));
    profil.Schreiben("a", "GRÖSSE", "fremd");
    profil.Schreiben("a", "GRÖßE", "2");
    profil.Schreiben("b", "1", "x\r\ny\0z"s);
    profil.Schreiben("b", "1", "kürzer\n[X]");
    profil.Schreiben("Neu", "k", "日");
    const auto erwartet =
        "; Kopf\r\n; noch einer\r\n[A]\r\nGröße=2\r\n;alt\r\nGRÖSSE=fremd\r\n[B]\r\n0=b\r\n1=kürzer [X]\r\n"
        "[a]\r\n9=alt\r\n[C]\r\nkein Schlüssel\r\n[Neu]\r\nk=?\r\n"s;
    EXPECT_EQ(NachUtf8(profil.Inhalt()), NachUtf8(NachCodepage(erwartet)));
    EXPECT_EQ(profil.Lesen("c", "k") + profil.Lesen("neu", "K"), "?");
    // Otherwise the second section's records would be back at the next load.
    profil.AbschnittLöschen("A");
    EXPECT_FALSE(profil.HatAbschnitt("a"));
    EXPECT_EQ(profil.Lesen("B", "0"), "b");
    profil.Schreiben("A", "0", "neu");
    EXPECT_EQ(Profil(profil.Inhalt()).SchlüsselListe("a"), "0\0"s);
}

TEST(Profil, VorspannGehtKommentareBleiben) {
    Profil brief("; ein Kommentar\nBrief an Frau Muster\nx=1\n[A]\nk=v\n");
    EXPECT_EQ(brief.Lesen("A", "k"), "v");
    brief.VorspannLöschen();
    EXPECT_FALSE(brief.HatVorspann());
    EXPECT_EQ(brief.Lesen("A", "k"), "v");
    EXPECT_EQ(brief.Inhalt(), "[A]\r\nk=v\r\n");
    Profil kommentar("; ein Kommentar\n[A]\n");
    kommentar.VorspannLöschen();
    EXPECT_EQ(kommentar.Inhalt(), "; ein Kommentar\r\n[A]\r\n");
}

TEST(Profil, ErsetztKeineDateiDieSichNichtLesenLässt) {
    const std::string pfad = std::filesystem::temp_directory_path() / ("kw-zu-gross-" + std::to_string(::getpid()));
    std::ofstream(pfad) << "[A]\n";
    std::filesystem::resize_file(pfad, GrößteDatei + 1);
    EXPECT_FALSE(ProfilSchreiben(pfad, "A", "k", "w"));
    EXPECT_EQ(std::filesystem::file_size(pfad), GrößteDatei + 1);
    std::string inhalt = "alt";
    EXPECT_EQ(DateiLesen(pfad, inhalt).Meldung, "File too large");
    EXPECT_EQ(DateiLesen("/", inhalt).Meldung, "Is a directory");
    EXPECT_EQ(DateiLesen(pfad + "/x", inhalt).Meldung, "Not a directory");
    EXPECT_EQ(inhalt, "alt");
    EXPECT_TRUE(DateiVorhanden(pfad) && !DateiVorhanden("/") && !DateiVorhanden(pfad + "x"));
    std::filesystem::remove(pfad);
    EXPECT_EQ(Pfad("/a/b.c") + "|" + Pfad("b.c") + "|" + DateiName("/a/b.c") + "|" + DateiName("b"), "/a/||b.c|b");
    EXPECT_EQ(NameOhneKennung("a.b.c") + "|" + NameOhneKennung("a") + "|" + Kennung("a.b.c") + "|" + Kennung("a"),
              "a.b|a|c|");
}
