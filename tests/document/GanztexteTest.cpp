#include "document/Ganztexte.h"
#include "document/Maskierung.h"

#include "document/Codepage.h"
#include "document/ProjektDatei.h"
#include "document/Texte.h"

#include <gtest/gtest.h>
#include <random>

using namespace kw;

namespace {

std::string Person(const std::string &nr, const std::string &vorname, const std::string &ort = "4_4") {
    return nr + "_1_" + ort + "_1.2_0__0_0_" + vorname + "____";
}

std::string Text(const std::string &text, const std::string &ort = "1_1") { return ort + "_Arial_8_0_0_0_0_0_" + text; }

/// As the bytes of a file.
std::string Gespeichert(const Dokument &d) {
    Profil profil;
    ProjektEintragen(d, profil);
    return profil.Inhalt();
}

/// What comes back from a file, in which another program has changed a text of the told sections.
struct Wieder {
    Dokument d;
    Ladebefund Befund;

    explicit Wieder(const std::string &datei) : Befund(ProjektLesen(Profil(datei), d)) {}
    Wieder(const Dokument &gespeichert, const std::string &alt, const std::string &neu)
        : Wieder(Geändert(Gespeichert(gespeichert), NachCodepage(alt), NachCodepage(neu))) {}

  private:
    static std::string Geändert(const std::string &datei, const std::string &alt, const std::string &neu) {
        const auto eigenes = datei.find("[FULLTEXT]");
        EXPECT_NE(datei.substr(0, eigenes).find(alt), std::string::npos) << alt;
        return Ersetzt(datei.substr(0, eigenes), alt, neu) + datei.substr(eigenes);
    }
};

} // namespace

TEST(Ganztexte, MaskierungTrägtJedesByte) {
    std::string alle;
    for (int i = 0; i < 256; ++i) alle += static_cast<char>(i);
    const auto maskiert = Maskiert(alle);
    EXPECT_TRUE(std::all_of(maskiert.begin(), maskiert.end(), [](char c) { return c > ' ' && c < '\x7F'; }));
    EXPECT_EQ(Demaskiert(maskiert), alle);
    EXPECT_EQ(Maskiert("Şü_x=1"), "%C5%9E%C3%BC_x=1");
    for (const auto *schlecht : {"%", "%4", "a%G0", "%0g", "%c5", "a b", "\"", "\x80"})
        EXPECT_FALSE(Demaskiert(schlecht)) << schlecht;
}

TEST(Ganztexte, NurWasVerlorenGingeStehtDoppelt) {
    for (const auto *bleibt : {"", "Müller & Söhne", "1 2", "a\"b", "'", "\"a'", "€", "\xC2\x81"})
        EXPECT_TRUE(Überlebt(bleibt)) << bleibt;
    for (const auto *nicht : {" a", "a ", "\ta", "\"a\"", "''", "Ş", "a\nb", "\xC2\x80", "\xFF"})
        EXPECT_FALSE(Überlebt(nicht)) << nicht;
    EXPECT_FALSE(Überlebt(std::string_view("a\0b", 3)));
    EXPECT_TRUE(Überlebt(Ersetzt(std::string(4095, 'x'), "x", "ü")) && !Überlebt(std::string(4096, 'x')));

    Dokument d;
    d.cboTextboxen = {Text("Müller")};
    Profil profil("[FULLTEXT]\nTEXT 0=%C5%9E\n");
    ProjektEintragen(d, profil);
    EXPECT_EQ(profil.Inhalt().find("FULLTEXT"), std::string::npos) << "none is needed any more";
    d.cboTextboxen = {Text("Ş")};
    ProjektEintragen(d, profil);
    profil.Schreiben("Fremd", "x", "1");
    ProjektEintragen(d, profil);
    EXPECT_TRUE(
        profil.Inhalt().ends_with("[TEXT]\r\n0=" + Text("?") + "\r\n[FULLTEXT]\r\nTEXT 0=" + Text("%C5%9E") + "\r\n"))
        << profil.Inhalt();
}

TEST(Ganztexte, EinePersonBehältWasAnderswoNichtGeändertWurde) {
    Dokument d;
    d.cboPersonen = {Person("001", "Şükrü"), Person("002", "Łukasz")};
    const Wieder verschoben(d, "001_1_4_4", "001_1_9_9");
    EXPECT_EQ(verschoben.d.cboPersonen, (Satzliste{Person("001", "Şükrü", "9_9"), Person("002", "Łukasz")}));
    EXPECT_FALSE(verschoben.Befund.SpeichernVerliert());

    const Wieder umbenannt(d, "?ükrü", "Ali");
    EXPECT_EQ(umbenannt.d.cboPersonen.Satz(0), Person("001", "Ali"));
    EXPECT_TRUE(umbenannt.Befund.Verwaist && umbenannt.Befund.Unversehrt() && umbenannt.Befund.SpeichernVerliert());

    const std::string erste = Person("001", "?ükrü");
    const std::string zweite = Person("002", "?ukasz");
    const Wieder vertauscht(d, "0=" + erste + "\r\n1=" + zweite, "0=" + zweite + "\r\n1=" + erste);
    EXPECT_EQ(vertauscht.d.cboPersonen, (Satzliste{Person("002", "Łukasz"), Person("001", "Şükrü")}));
    const Wieder gelöscht(d, "0=" + erste + "\r\n1=" + zweite, "0=" + zweite);
    EXPECT_EQ(gelöscht.d.cboPersonen, (Satzliste{Person("002", "Łukasz")}));
    EXPECT_TRUE(gelöscht.Befund.Verwaist);
}

TEST(Ganztexte, EineGekürztePersonWirdErgänztWennIhrAnfangStimmt) {
    Dokument d;
    const std::string lang(5000, 'x');
    d.cboPersonen = {Person("001", lang), Person("002", "Ali")};
    d.cboPfeile = {"1_1_2_3_4"};
    const std::string zeile = Person("001", lang);
    EXPECT_TRUE(Wieder(Gespeichert(d)).d.GleicheSätze(d));
    // Another program reads it with its buffer and writes it back, as it was or moved.
    const Wieder gekürzt(d, zeile, zeile.substr(0, 4095));
    EXPECT_TRUE(gekürzt.d.GleicheSätze(d) && !gekürzt.Befund.SpeichernVerliert());
    const Wieder verschoben(d, zeile, Person("001", lang, "19.5_9").substr(0, 4098));
    EXPECT_EQ(verschoben.d.cboPersonen.Satz(0), Person("001", lang, "19.5_9"));
    EXPECT_EQ(verschoben.d.cboPfeile, d.cboPfeile) << "the load goes on";

    const Wieder anders(d, zeile, Person("001", "y" + lang).substr(0, 4095));
    EXPECT_TRUE(anders.d.cboPersonen.Leer() && anders.Befund.Verwaist);
    EXPECT_EQ(Ladetext(anders.Befund, Sprache::Deutsch),
              "OBJECTS 0: eine Person braucht 14 Felder, hat 10; 0 von 3 Einträgen gelesen");
}

TEST(Ganztexte, EinTextGiltNurWennSeineZeileNochSagtWasAusIhmWurde) {
    Dokument d;
    const std::string lang(5000, 'x');
    d.cboTextboxen = {Text("Ş"), Text("zwei", "2_2"), Text(lang)};
    const Wieder gelöscht(d, "0=" + Text("?") + "\r\n1=" + Text("zwei", "2_2") + "\r\n2", "0");
    EXPECT_EQ(gelöscht.d.cboTextboxen, (Satzliste{Text(lang)})) << "found under another key";
    EXPECT_TRUE(gelöscht.Befund.Verwaist && gelöscht.Befund.Unversehrt());
    const Wieder verschoben(d, Text("?"), Text("?", "1_2"));
    EXPECT_EQ(verschoben.d.cboTextboxen.Satz(0), Text("?", "1_2"));
    EXPECT_TRUE(verschoben.Befund.Verwaist);
    EXPECT_TRUE(Wieder(d, Text(lang), Text(lang).substr(0, 4095)).d.GleicheSätze(d)) << "read and written elsewhere";
    EXPECT_EQ(Ladetext(Wieder(d, Text(lang), Text("y" + lang)).Befund, Sprache::Englisch),
              "TEXT 2: a text box has at most 4095 characters, the rest is lost");
}

TEST(Ganztexte, WasInDerDateiGleichIstFindetSeinenPlatz) {
    Dokument d;
    d.cboTextboxen = {Text("?"), Text("Ş"), Text("?"), Text("Ł")};
    EXPECT_TRUE(Wieder(Gespeichert(d)).d.GleicheSätze(d)) << "a text that is what another becomes";
    const std::string lang(5000, 'x');
    d.cboTextboxen = {Text(lang).substr(0, 4095), Text(lang), Text(lang + "y")};
    EXPECT_TRUE(Wieder(Gespeichert(d)).d.GleicheSätze(d)) << "a text that is another's beginning";
    d.cboPfeile = Satzliste();
    for (int i = 0; i < 1100; ++i) d.cboPfeile.Anhängen("1_1_1_2_2");
    const Wieder viele(Gespeichert(d));
    EXPECT_TRUE(viele.d.GleicheSätze(d) && !viele.Befund.SpeichernVerliert());
}

TEST(Ganztexte, SätzeHinterDerSchlüssellisteKommenWennIhreZeileStimmt) {
    Dokument d;
    for (int i = 0; i < 1100; ++i) d.cboPfeile.Anhängen("1_1_1_2_" + std::to_string(i));
    EXPECT_TRUE(Wieder(Gespeichert(d)).d.GleicheSätze(d));
    const Wieder geändert(d, "1050=1_1_1_2_1050", "1050=1_9_9_9_9");
    EXPECT_EQ(geändert.d.cboPfeile.Anzahl(), 1099);
    EXPECT_EQ(geändert.d.cboPfeile.Satz(1050), "1_1_1_2_1051");
    EXPECT_EQ(Ladetext(geändert.Befund, Sprache::Deutsch), "LINEE: mehr Einträge, als gelesen werden können, der erste "
                                                           "ist LINEE 1050; 1099 von 1100 Einträgen gelesen");
    EXPECT_TRUE(geändert.Befund.Verwaist);
    const auto datei = Gespeichert(d);
    EXPECT_EQ(Wieder(datei.substr(0, datei.find("[FULLTEXT]"))).d.cboPfeile.Anzahl(), 1040) << "without whole texts";
}

TEST(Ganztexte, BeschädigteGanztexteWerdenÜbergangenUndGemeldet) {
    Dokument d;
    d.cboPersonen = {Person("001", "Şükrü")};
    d.cboTextboxen = {Text("x")};
    const auto datei = Gespeichert(d);
    const auto eigenes = datei.find("[FULLTEXT]");
    Dokument schlicht = d;
    schlicht.cboPersonen = {Person("001", "?ükrü")};
    for (const std::string schaden : {"OBJECTS 0=%", "OBJECTS 0=%5", "OBJECTS=1", "OBJECTS x=1", "OBJECTS -1=1",
                                      "OBJECTS 99999999999999999999=1", "NOTHING 0=1", "TEXT 0=", "=", "x",
                                      "OBJECTS 0=001_1", "OBJECTS 0=001", "OBJECTS 0=%00%FF", "TEXT 0=1\nTEXT 0=1"}) {
        const Wieder wieder(datei.substr(0, eigenes) + "[FULLTEXT]\n" + schaden + "\n");
        EXPECT_TRUE(wieder.Befund.Verwaist && wieder.Befund.Unversehrt()) << schaden;
        EXPECT_TRUE(wieder.d.GleicheSätze(schlicht)) << schaden;
    }
    const Wieder doppelt(datei + datei.substr(eigenes + 10) + "[fulltext]\nx=1\n");
    EXPECT_TRUE(doppelt.d.GleicheSätze(d) && doppelt.Befund.Verwaist);
}

TEST(Ganztexte, JedesDokumentKommtWieder) {
    // Few texts and places, so that many records look alike, and all that a line loses.
    const std::vector<std::string> stücke{"",  "?",  "Ş",  " ",    "\"", "'",   "\n",  "ü",
                                          "%", "\t", "\r", "\xFF", ";",  "[x]", "a=b", std::string(4100, 'x')};
    std::mt19937 zufall(20261122);
    const auto wahl = [&](size_t anzahl) { return zufall() % anzahl; };
    const auto text = [&] {
        std::string t;
        for (auto i = wahl(4); i > 0; --i) t += stücke[wahl(stücke.size())];
        return t;
    };
    for (int lauf = 0; lauf < 300; lauf += KW_STICHPROBE) {
        Dokument d;
        const bool viele = lauf % 50 == 0;
        for (size_t i = wahl(viele ? 1200 : 8); i > 0; --i) d.cboPfeile.Anhängen("1_1_1_2_" + std::to_string(wahl(3)));
        for (size_t i = wahl(viele ? 1200 : 8); i > 0; --i) d.cboTextboxen.Anhängen(Text(text()));
        for (size_t i = wahl(6); i > 0; --i) d.cboFreehandlines.Anhängen("1^2_" + Ohne(text(), ' '));
        for (size_t i = wahl(6); i > 0; --i) d.cboKindlinien.Anhängen(text() + "_1_2_3_4_5_" + text());
        for (size_t i = wahl(viele ? 1200 : 8); i > 0; --i)
            d.cboPersonen.Anhängen(Person(std::to_string(1000 + i), text()) + text());
        const auto datei = Gespeichert(d);
        const Wieder wieder(datei);
        ASSERT_TRUE(wieder.d.GleicheSätze(d)) << "run " << lauf << ":\n" << NachUtf8(datei);
        ASSERT_FALSE(wieder.Befund.Verwaist) << "run " << lauf;
        ASSERT_EQ(Gespeichert(wieder.d), datei) << "run " << lauf;
    }
}

TEST(Ganztexte, EineVerdorbeneDateiLädtUndWasKamBleibt) {
    Dokument d;
    d.cboPersonen = {Person("001", "Şükrü"), Person("002", std::string(4200, 'x')), Person("003", "?")};
    d.cboTextboxen = {Text("Ş"), Text("?"), Text(" \n")};
    d.cboFreehandlines = {"1^2_Ş^3"};
    for (int i = 0; i < 1045; ++i) d.cboPfeile.Anhängen("1_1_1_2_" + std::to_string(i % 1043));
    const auto datei = Gespeichert(d);
    std::mt19937 zufall(7);
    for (int lauf = 0; lauf < 400; lauf += KW_STICHPROBE) {
        auto verdorben = datei;
        for (auto i = 1 + zufall() % 4; i > 0; --i) {
            const auto stelle = zufall() % verdorben.size();
            const auto länge = zufall() % (lauf % 2 == 0 ? 2 : 400);
            const auto woher = zufall() % verdorben.size();
            verdorben.replace(stelle, länge, verdorben.substr(woher, zufall() % 8));
        }
        const Wieder erste(verdorben);
        const Wieder zweite(Gespeichert(erste.d)); // without the blanks of circle lines
        const Wieder dritte(Gespeichert(zweite.d));
        ASSERT_TRUE(zweite.d.cboPersonen == erste.d.cboPersonen && zweite.d.cboTextboxen == erste.d.cboTextboxen &&
                    zweite.d.cboPfeile == erste.d.cboPfeile)
            << "run " << lauf;
        ASSERT_TRUE(dritte.d.GleicheSätze(zweite.d) && !dritte.Befund.Verwaist) << "run " << lauf;
    }
}
