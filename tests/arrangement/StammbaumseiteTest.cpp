#include "arrangement/Stammbaumseite.h"

#include "arrangement/Seitenplatz.h"
#include "arrangement/Stammbaumworte.h"
#include "arrangement/Umzug.h"
#include "document/ProjektDatei.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "rendering/Beschriftung.h"
#include "replay/Aufzeichnung.h"

#include <gtest/gtest.h>

#include <random>

namespace kw {

namespace {

std::string Person(int nr, std::string_view name, std::string_view mehr = {}) {
    return "0 @I" + std::to_string(nr) + "@ INDI\n1 NAME " + std::string(name) + "\n1 SEX " + (nr % 2 ? "F" : "M") +
           "\n" + std::string(mehr);
}

/// A file of that many generations with one more child each, whose names are of any length.
std::string Zufallsfamilie(unsigned keim) {
    std::mt19937 zufall(keim);
    const auto würfel = [&](unsigned seiten) { return static_cast<unsigned>(zufall() % seiten); };
    std::string personen = Person(0, "A") + Person(1, "B");
    std::string familien;
    int nächste = 2;
    std::vector<std::pair<int, int>> paare{{0, 1}};
    for (int generation = 0; generation < 3; ++generation) {
        std::vector<std::pair<int, int>> neue;
        for (const auto &[mann, frau] : paare) {
            familien += "0 @F" + std::to_string(mann) + "_" + std::to_string(frau) + "@ FAM\n1 HUSB @I" +
                        std::to_string(mann) + "@\n1 WIFE @I" + std::to_string(frau) + "@\n";
            for (unsigned kind = würfel(4); kind > 0; --kind) {
                personen += Person(nächste, std::string(1 + würfel(24), 'x'),
                                   "1 BIRT\n2 DATE " + std::to_string(1900 + würfel(90)) + "\n");
                familien += "1 CHIL @I" + std::to_string(nächste) + "@\n";
                if (würfel(3)) {
                    personen += Person(nächste + 1, std::string(1 + würfel(24), 'y'));
                    neue.emplace_back(nächste, nächste + 1);
                    ++nächste;
                }
                ++nächste;
            }
        }
        paare = neue;
    }
    return "0 HEAD\n" + personen + familien;
}

struct Aus {
    explicit Aus(const std::string &datei) : Baum(StammbaumLesen(datei)), Verwandte(Baum) {}
    Stammbaumseite Seite(const Seitenwunsch &wunsch) { return SeiteAus({Baum, Verwandte}, wunsch, Maß); }

    Stammbaum Baum;
    Verwandtschaft Verwandte;
    Aufzeichnung Maß;
};

Seitenwunsch Alle() {
    Seitenwunsch wunsch;
    wunsch.Alle = true;
    return wunsch;
}

constexpr double Nichts = 1e-6;

bool Überlappen(const Umgebung &a, const Umgebung &b) {
    return a.Links < b.Rechts - Nichts && b.Links < a.Rechts - Nichts && a.Oben < b.Unten - Nichts &&
           b.Oben < a.Unten - Nichts;
}

/// No symbol and no name on another, all inside the margins, lines where their persons are.
void Geprüft(const Dokument &d, const Blattwahl &blatt, Zeichenfläche &maß) {
    std::vector<Umgebung> symbole;
    std::vector<Umgebung> namen;
    for (const std::string &text : d.cboPersonen) {
        const PersonSatz p(text);
        const Umgebung ganz = Personenkasten(p, {p.PosX(), p.PosY()}, p.Groesse(), Namensbreite(maß, p));
        EXPECT_TRUE(ganz.Links >= 1 - Nichts && ganz.Oben >= 1 - Nichts) << text;
        EXPECT_TRUE(ganz.Rechts <= blatt.Breite - 1 + Nichts && ganz.Unten <= blatt.Höhe - 1 + Nichts) << text;
        symbole.push_back(Personenkasten(p, {p.PosX(), p.PosY()}, p.Groesse(), 0));
        symbole.back().Unten -= Namenshöhe;
        const double breite = Namensbreite(maß, p);
        namen.emplace_back().Aufnehmen(p.PosX() - breite / 2, symbole.back().Unten, breite, Namenshöhe);
    }
    for (size_t i = 0; i < symbole.size(); ++i)
        for (size_t k = 0; k < symbole.size(); ++k)
            EXPECT_FALSE(k != i && (Überlappen(symbole[i], symbole[k]) || Überlappen(namen[i], symbole[k]) ||
                                    Überlappen(namen[i], namen[k])))
                << d.cboPersonen.Satz(static_cast<int>(i)) << " on " << d.cboPersonen.Satz(static_cast<int>(k));
    for (const std::string &text : d.cboPartnerschaftsLinien) {
        const PartnerschaftSatz linie(text);
        EXPECT_EQ(linie.BalkenX1(), linie.AnschlussX1());
        EXPECT_LE(linie.BalkenY1(), blatt.Höhe - 1 + Nichts);
    }
}

} // namespace

TEST(Stammbaumseite, NiemandLiegtAufAnderenOderAmRand) {
    int gepasst = 0;
    for (unsigned keim = 1; keim <= 60; ++keim) {
        Aus aus(Zufallsfamilie(keim));
        Seitenwunsch wunsch = Alle();
        wunsch.Blatt.Kleiner = true;
        const Stammbaumseite seite = aus.Seite(wunsch);
        EXPECT_EQ(seite.Personen, aus.Baum.Personen.size());
        if (seite.Ausgang != Seitenausgang::Passt) {
            EXPECT_EQ(seite.Seite.cboPersonen.Anzahl(), 0) << keim;
            continue;
        }
        ++gepasst;
        EXPECT_EQ(seite.Seite.cboPersonen.Anzahl(), static_cast<int>(seite.Personen));
        Geprüft(seite.Seite, *seite.Blatt.Blatt, aus.Maß);
        Profil profil;
        ProjektEintragen(seite.Seite, profil);
        Dokument wieder;
        EXPECT_TRUE(ProjektLesen(profil, wieder).Unversehrt());
        EXPECT_TRUE(wieder.GleicherStand(seite.Seite)) << keim;
    }
    EXPECT_GT(gepasst, 30);
}

TEST(Stammbaumseite, MehrAls999WerdenNieGelegt) {
    std::string datei = "0 HEAD\n";
    for (int i = 0; i < 999; ++i) datei += Person(i, "x");
    EXPECT_EQ(Aus(datei + Person(999, "y")).Seite(Alle()).Ausgang, Seitenausgang::ZuVielePersonen);
    // The unknown father of the last one counts.
    const Stammbaumseite ergänzt = Aus(datei + "0 @F@ FAM\n1 WIFE @I1@\n1 CHIL @I998@\n").Seite(Alle());
    EXPECT_EQ(ergänzt.Ausgang, Seitenausgang::ZuVielePersonen);
    EXPECT_EQ(ergänzt.Personen, 1000U);
    EXPECT_EQ(ergänzt.Seite.cboPersonen.Anzahl(), 0);
    // Few persons can be many couples.
    std::string paare = "0 HEAD\n";
    for (int i = 0; i < 46; ++i) paare += Person(i, "x");
    int nr = 0;
    for (int a = 0; a < 46; ++a)
        for (int b = 0; b < a; ++b)
            paare += "0 @F" + std::to_string(nr++) + "@ FAM\n1 HUSB @I" + std::to_string(a) + "@\n1 WIFE @I" +
                     std::to_string(b) + "@\n";
    const Stammbaumseite viele = Aus(paare).Seite(Alle());
    EXPECT_EQ(viele.Ausgang, Seitenausgang::ZuVielePersonen);
    EXPECT_EQ(Seitenbefund(viele, Sprache::Englisch), "46 persons, 1035 couples. A project holds 999 at most.");
}

TEST(Stammbaumseite, WasNichtPasstHatAuswege) {
    for (unsigned keim = 1; keim <= 60; ++keim) {
        Aus aus(Zufallsfamilie(keim));
        Seitenwunsch wunsch;
        wunsch.Wahl = {3, 3, true, true, true, true, true};
        if (aus.Seite(wunsch).Ausgang == Seitenausgang::Passt) continue;
        int passende = 0;
        for (const Seitenwunsch &ausweg : Auswege(wunsch)) {
            EXPECT_FALSE(Auswegtext(wunsch, ausweg, Sprache::Deutsch).empty());
            if (passende < 2) passende += aus.Seite(ausweg).Ausgang == Seitenausgang::Passt;
        }
        EXPECT_EQ(passende, 2) << keim;
    }
}

TEST(Stammbaumseite, DasÜblichePapierKommtVorDemAnderen) {
    std::string datei = "0 HEAD\n";
    for (int i = 0; i < 40; ++i) datei += Person(i, "x");
    Aus aus(datei);
    Seitenwunsch wunsch = Alle();
    EXPECT_EQ(aus.Seite(wunsch).Blatt.Blatt->Papiercode, DinA4);
    wunsch.Blatt.Papiercode = UsLetter;
    EXPECT_EQ(aus.Seite(wunsch).Blatt.Blatt->Papiercode, UsLetter);
}

} // namespace kw
