#include "layout/Familienlage.h"
#include "Probefamilien.h"
#include "layout/Strecken.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace kw {
namespace {

Familiengraph Leute(int anzahl) { return {std::vector<Familienperson>(static_cast<std::size_t>(anzahl)), {}}; }

/// Two couples of parents, theirs married to each other: 0 and 1, 2 and 3, children 4 to 6 and 7 to 8.
Familiengraph ZweiHäuser() {
    Familiengraph g = Leute(10);
    g.Familien = {{{0, 1}, {4, 5, 6}, {}}, {{2, 3}, {7, 8}, {}}, {{6, 7}, {9}, {}}};
    return g;
}

/// Nobody's line ends elsewhere than at its own symbol and bar, and twins' lines leave the bar at one point.
void LinienHängenRichtig(const Familiengraph &g, const Familienlage &lage, const Abstände &a) {
    const std::vector<Familie> familien = GeprüfteFamilien(g);
    const Gerüst gerüst = GerüstBauen(g, familien, Ebenen(g, familien));
    std::vector<Punkt> personen;
    for (const Ort &ort : lage.Personen) personen.push_back({Tausendstel(ort.X), Tausendstel(ort.Y)});
    const std::int64_t halb = Tausendstel(a.Symbol / 2);
    for (std::size_t f = 0; f < familien.size(); f++) {
        if (familien[f].Partner.empty()) continue;
        const std::int64_t bar = Tausendstel(lage.Balken[f]);
        std::vector<Strecke> linien;
        Linien(gerüst, personen, static_cast<int>(f), bar, halb, linien);
        std::map<int, std::int64_t> anfang;
        for (const Strecke &s : linien)
            if (s.Was == Strecke::Art::Kindlinie) {
                EXPECT_EQ(s.A.Y, bar);
                EXPECT_EQ(s.B.X, personen[static_cast<std::size_t>(s.Person)].X);
                EXPECT_LT(bar, s.B.Y);
                anfang[s.Person] = s.A.X;
            }
        for (const std::vector<int> &gruppe : familien[f].Zwillinge)
            for (const int zwilling : gruppe) EXPECT_EQ(anfang[zwilling], anfang[gruppe.front()]);
    }
}

/// All that has to hold whatever the family is.
void Geordnet(const Familiengraph &g, const Familienlage &lage, const Abstände &a) {
    const auto rest = [&](double x) { return std::abs(x / a.Raster - std::round(x / a.Raster)); };
    for (std::size_t i = 0; i < g.Personen.size(); i++) {
        const Ort &p = lage.Personen[i];
        EXPECT_GE(p.X, 0);
        if (a.Raster > 0) {
            EXPECT_LT(rest(p.X), 1e-6);
        }
        for (std::size_t j = 0; j < i; j++) {
            if (std::abs(p.Y - lage.Personen[j].Y) > 0.01) continue;
            const bool links = p.X < lage.Personen[j].X;
            const Familienperson &l = g.Personen[links ? i : j];
            const Familienperson &r = g.Personen[links ? j : i];
            EXPECT_GE(std::abs(p.X - lage.Personen[j].X) + 1e-6,
                      std::max(a.Personen, l.BreiteRechts + r.BreiteLinks + a.Namensluft));
        }
    }
    for (std::size_t f = 0; f < g.Familien.size(); f++)
        for (const int partner : g.Familien[f].Partner) {
            const double y = lage.Personen[static_cast<std::size_t>(partner)].Y;
            EXPECT_GE(lage.Balken[f] + 1e-6, y + a.Balken);
            for (const int kind : g.Familien[f].Kinder) {
                const double unten = lage.Personen[static_cast<std::size_t>(kind)].Y;
                EXPECT_GT(unten, y);
                EXPECT_GT(unten - a.Symbol / 2, lage.Balken[f]);
            }
        }
    EXPECT_EQ(lage.Befund.Überlagert, 0);
    EXPECT_EQ(lage.Befund.Durchquert, 0);
}

TEST(Familienlage, NiemandStehtAufJemandemUndKeineLinieLäuftDurchFremde) {
    int paare = 0;
    int verkehrt = 0;
    int anFremdem = 0;
    int kinder = 0;
    for (int saat = 1; saat <= 100; saat += KW_STICHPROBE) {
        SCOPED_TRACE(saat);
        Familiengraph g = Probefamilie(saat).Bauen(12 + saat % 41, 3 + saat % 5, saat % 4);
        for (Familie &familie : g.Familien) {
            const auto anzahl = static_cast<int>(familie.Kinder.size());
            kinder += anzahl;
            paare += anzahl * (anzahl - 1) / 2;
            if (anzahl > 1 && saat % 3 == 0) familie.Zwillinge = {{familie.Kinder[0], familie.Kinder[1]}};
        }
        const Familienlage lage = FamilieAnordnen(g);
        Geordnet(g, lage, {});
        LinienHängenRichtig(g, lage, {});
        EXPECT_LE(lage.Befund.Getrennt, 1);
        if (saat % 4 == 0) {
            EXPECT_EQ(lage.Befund.Ungleich, 0) << "nobody married within the family";
        }
        verkehrt += lage.Befund.Verkehrt;
        anFremdem += lage.Befund.AnFremdem;
        const Familienlage nochmal = FamilieAnordnen(g);
        for (std::size_t i = 0; i < g.Personen.size(); i++) EXPECT_EQ(lage.Personen[i].X, nochmal.Personen[i].X);
    }
    EXPECT_LE(verkehrt * 100, paare * 5) << "siblings in the wrong order, of " << paare;
    EXPECT_LE(anFremdem * 100, kinder) << "children on another couple's bar, of " << kinder;
}

TEST(Familienlage, HältNamenAuseinanderUndDasRasterEin) {
    Familiengraph g = Probefamilie(3).Bauen(40, 4, 1);
    for (std::size_t i = 0; i < g.Personen.size(); i++) {
        g.Personen[i].BreiteLinks = 0.4 + 0.2 * static_cast<double>(i % 7);
        g.Personen[i].BreiteRechts = 0.4 + 0.3 * static_cast<double>(i % 5);
    }
    Abstände klein{.Personen = 1.5, .Generationen = 2.8, .Balken = 1.4, .Symbol = 0.9, .Raster = 0.4};
    Geordnet(g, FamilieAnordnen(g, klein), klein);
}

TEST(Familienlage, KinderStehenNachAlterOhneKreuzung) {
    Familiengraph g = ZweiHäuser();
    Familienlage lage = FamilieAnordnen(g);
    EXPECT_EQ(lage.Befund.Kreuzungen, 0);
    EXPECT_EQ(lage.Befund.Verkehrt, 0);
    EXPECT_EQ(lage.Befund.Getrennt, 0);
    const double länge = lage.Befund.Länge;
    // Turned round by their ages: both houses change sides.
    for (const int kind : {4, 5, 6, 7, 8}) g.Personen[static_cast<std::size_t>(kind)].Geburtstag = 100 - kind;
    lage = FamilieAnordnen(g);
    EXPECT_EQ(lage.Befund.Kreuzungen, 0);
    EXPECT_LT(lage.Personen[6].X, lage.Personen[5].X);
    EXPECT_LT(lage.Personen[5].X, lage.Personen[4].X);
    EXPECT_LT(lage.Personen[8].X, lage.Personen[7].X);
    EXPECT_LT(lage.Personen[7].X, lage.Personen[6].X);
    EXPECT_NEAR(lage.Befund.Länge, länge, 0.11);
}

TEST(Familienlage, KinderHängenAufrechtUnterIhremBalken) {
    Familiengraph g = Leute(4);
    g.Familien = {{{0, 1}, {2, 3}, {}}};
    const Familienlage lage = FamilieAnordnen(g);
    EXPECT_EQ(lage.Personen[0].X, lage.Personen[2].X);
    EXPECT_EQ(lage.Personen[1].X, lage.Personen[3].X);
    EXPECT_DOUBLE_EQ(lage.Befund.Länge, 2.1 + 2 * 1.8 + 2 * 1.2);
    EXPECT_DOUBLE_EQ(lage.Balken[0], 1.8);
}

TEST(Familienlage, ZweiPartnerStehenAufBeidenSeitenVonDreienHängtEinBalkenTiefer) {
    Familiengraph g = Leute(4);
    g.Familien = {{{0, 1}, {}, {}}, {{0, 2}, {}, {}}};
    Familienlage lage = FamilieAnordnen(g);
    EXPECT_LT((lage.Personen[1].X - lage.Personen[0].X) * (lage.Personen[2].X - lage.Personen[0].X), 0);
    EXPECT_EQ(lage.Balken[0], lage.Balken[1]);
    g.Familien.push_back({{0, 3}, {}, {}});
    lage = FamilieAnordnen(g);
    std::vector<double> höhen = lage.Balken;
    std::sort(höhen.begin(), höhen.end());
    EXPECT_DOUBLE_EQ(höhen[0], 1.8);
    EXPECT_DOUBLE_EQ(höhen[2], 2.05);
    EXPECT_EQ(lage.Befund.Getrennt, 0);
}

TEST(Familienlage, ZwölfBalkenBleibenÜberDenKindern) {
    Familiengraph g = Leute(25);
    for (int i = 0; i < 12; i++) g.Familien.push_back({{0, 1 + i}, {13 + i}, {}});
    Geordnet(g, FamilieAnordnen(g), {});
}

/// The uncle marries his niece: he stands beside her, two rows below his parents.
TEST(Familienlage, WerInDieNächsteGenerationHeiratetHängtAnLangerAufrechterLinie) {
    Familiengraph g = Leute(6);
    g.Familien = {{{0, 1}, {2, 3}, {}}, {{2, 4}, {5}, {}}, {{3, 5}, {}, {}}};
    const Familienlage lage = FamilieAnordnen(g);
    EXPECT_DOUBLE_EQ(lage.Personen[3].Y, 7.2);
    EXPECT_DOUBLE_EQ(lage.Personen[5].Y, 7.2);
    Geordnet(g, lage, {});
    // Without a sibling that stands higher both hang from a low bar.
    Familiengraph tief = Leute(8);
    tief.Familien = {{{0, 1}, {2, 3}, {}}, {{6, 7}, {4}, {}}, {{4, 5}, {}, {}}, {{6, 2}, {}, {}}};
    tief.Personen[2].Ebene = 2;
    tief.Personen[3].Ebene = 2;
    tief.Personen[0].Ebene = 0;
    const Familienlage unten = FamilieAnordnen(tief);
    EXPECT_DOUBLE_EQ(unten.Balken[0], 5.4);
    EXPECT_EQ(unten.Befund.Durchquert, 0);
}

TEST(Familienlage, ZwillingeStehenZusammenUndTeilenEinenPunkt) {
    Familiengraph g = Leute(9);
    g.Familien = {{{0, 1}, {2, 3, 4}, {{2, 4}}}, {{2, 5}, {7}, {}}, {{4, 6}, {8}, {}}};
    const Familienlage lage = FamilieAnordnen(g);
    EXPECT_NEAR(std::abs(lage.Personen[2].X - lage.Personen[4].X), 2.1, 0.01);
    EXPECT_EQ(lage.Befund.Kreuzungen, 0);
    Familiengraph nurZwei = Leute(4);
    nurZwei.Familien = {{{0, 1}, {2, 3}, {{2, 3}}}};
    EXPECT_NEAR(FamilieAnordnen(nurZwei).Befund.Länge, 2.1 + 2 * 1.8 + 2 * std::hypot(1.05, 1.2), 0.01);
}

TEST(Familienlage, BehältWasGezeichnetIstAußerEsKostetKreuzungen) {
    Familiengraph g = ZweiHäuser();
    const double x[] = {10, 12, 2, 4, 14,
                        12, 10, 4, 2, 8}; // mirrored: the second house left, its younger child outside
    for (std::size_t i = 0; i < g.Personen.size(); i++) g.Personen[i].Gezeichnet = x[i];
    Familienlage lage = FamilieAnordnen(g);
    EXPECT_EQ(lage.Befund.Kreuzungen, 0);
    for (const auto &[l, r] : {std::pair{2, 3}, {3, 0}, {0, 1}, {8, 7}, {7, 6}})
        EXPECT_LT(lage.Personen[static_cast<std::size_t>(l)].X, lage.Personen[static_cast<std::size_t>(r)].X) << l;
    g.Personen[0].Gezeichnet = 1; // parents of those on the right
    g.Personen[1].Gezeichnet = 0;
    lage = FamilieAnordnen(g);
    EXPECT_EQ(lage.Befund.Kreuzungen, 0);
}

TEST(Familienlage, TeileStehenNebeneinanderUndEinzelneDahinter) {
    Familiengraph g = Leute(9);
    g.Familien = {{{4, 5}, {6}, {}}, {{0, 1}, {2}, {}}};
    const Familienlage lage = FamilieAnordnen(g);
    Geordnet(g, lage, {});
    for (const std::size_t links : {0U, 1U, 2U})
        for (const std::size_t rechts : {4U, 5U, 6U}) EXPECT_LT(lage.Personen[links].X, lage.Personen[rechts].X);
    EXPECT_EQ(lage.Personen[3].X, lage.Personen[7].X); // one below the other, as many as there are rows
    EXPECT_GT(lage.Personen[8].X, lage.Personen[7].X);
    g.Personen[4].Gezeichnet = -3; // as the user had them
    const Familienlage gezeichnet = FamilieAnordnen(g);
    EXPECT_LT(gezeichnet.Personen[5].X, gezeichnet.Personen[0].X);
}

TEST(Familienlage, EinElternteilTrägtDenBalkenAlleinOhneElternHängtNichts) {
    Familiengraph g = Leute(5);
    g.Familien = {{{0}, {1, 2}, {}}, {{}, {3, 4}, {}}};
    const Familienlage lage = FamilieAnordnen(g);
    EXPECT_DOUBLE_EQ(lage.Balken[0], 1.8);
    EXPECT_NEAR(lage.Personen[0].X, (lage.Personen[1].X + lage.Personen[2].X) / 2, 0.051);
    EXPECT_EQ(lage.Personen[3].Y, lage.Personen[4].Y);
    EXPECT_DOUBLE_EQ(lage.Personen[4].X - lage.Personen[3].X, 2.1);
}

TEST(Familienlage, NimmtAuchWasNichtSeinKann) {
    EXPECT_TRUE(FamilieAnordnen({}).Personen.empty());
    EXPECT_EQ(FamilieAnordnen(Leute(1)).Personen[0].X, 0);
    Familiengraph unsinn = Leute(6);
    unsinn.Familien = {{{0, 1, 2}, {1, 2, 2, 9, -3}, {{2, 2, 7}}}, {{0, 0}, {3}, {}}, {{}, {}, {}}, {{9}, {0}, {}}};
    Familiengraph eigenerAhn = Leute(4);
    eigenerAhn.Familien = {{{0, 1}, {2}, {}}, {{2, 3}, {0}, {}}, {{0, 2}, {}, {}}};
    Familiengraph kette = Leute(999); // deeper than any stack would bear
    for (int i = 0; i < 998; i++) kette.Familien.push_back({{i}, {i + 1}, {}});
    Familiengraph weit = Leute(3);
    weit.Personen[0].Ebene = 2'000'000'000;
    weit.Personen[1].Ebene = -2'000'000'000;
    for (const Familiengraph &g : {unsinn, eigenerAhn, kette, weit}) {
        const Familienlage lage = FamilieAnordnen(g);
        EXPECT_EQ(lage.Personen.size(), g.Personen.size());
        EXPECT_EQ(lage.Befund.Überlagert, 0);
    }
}

} // namespace
} // namespace kw
