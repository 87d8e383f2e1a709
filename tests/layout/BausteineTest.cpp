#include "Probefamilien.h"
#include "layout/Differenzen.h"
#include "layout/Reihensuche.h"
#include "layout/Strecken.h"

#include <gtest/gtest.h>

namespace kw {
namespace {

/// Against all values there are.
TEST(Differenzen, FindetDieKleinsteSumme) {
    constexpr int Anzahl = 4;
    constexpr int Weite = 9;
    for (int saat = 1; saat <= 60; saat++) {
        Zufall z(static_cast<std::uint64_t>(saat));
        Differenzen d(Anzahl);
        std::vector<std::array<int, 3>> schranken;
        for (int a = 0; a < Anzahl; a++)
            for (int b = a + 1; b < Anzahl; b++) {
                if (z.Unter(2) == 0) {
                    schranken.push_back({a, b, z.Unter(3)});
                    d.Mindestens(a, b, schranken.back()[2]);
                }
                const auto art = static_cast<Kostenart>(z.Unter(4));
                const bool vor = z.Unter(2) == 0;
                d.Kosten(art, vor ? a : b, vor ? b : a, z.Unter(7) - 3, 1 + z.Unter(90), 3);
            }
        std::vector<int> x;
        ASSERT_TRUE(d.Kleinste(x));
        d.Lösen(x, 4);
        for (const auto &[a, b, abstand] : schranken)
            EXPECT_GE(x[static_cast<std::size_t>(b)] - x[static_cast<std::size_t>(a)], abstand);
        const std::int64_t gefunden = d.Summe(x);
        std::vector<int> y(Anzahl, 0);
        for (int i = 0; i < Weite * Weite * Weite; i++) {
            y = {Weite, i % Weite + 5, i / Weite % Weite + 5, i / Weite / Weite + 5};
            const bool erlaubt = std::all_of(schranken.begin(), schranken.end(), [&](const auto &s) {
                return y[static_cast<std::size_t>(s[1])] - y[static_cast<std::size_t>(s[0])] >= s[2];
            });
            if (erlaubt) {
                EXPECT_LE(gefunden, d.Summe(y)) << saat;
            }
        }
    }
}

TEST(Differenzen, SagtWennNichtsGeht) {
    Differenzen d(2);
    d.Mindestens(0, 1, 1);
    d.Mindestens(1, 0, 0);
    std::vector<int> x;
    EXPECT_FALSE(d.Kleinste(x));
}

/// What each exchange says that it costs must be what the whole costs when it is counted anew.
TEST(Reihen, TauschenWeißWasEsKostet) {
    for (int saat = 1; saat <= 12; saat++) {
        Familiengraph g = Probefamilie(saat).Bauen(30, 5, 5);
        for (std::size_t i = 0; i < g.Personen.size(); i += 3)
            g.Personen[i].Gezeichnet = static_cast<double>(i * 7 % 11);
        for (Familie &familie : g.Familien)
            if (familie.Kinder.size() > 2) familie.Zwillinge = {{familie.Kinder[0], familie.Kinder[2]}};
        g.Familien.push_back({{0}, {5, 6}, {}});
        const std::vector<Familie> familien = GeprüfteFamilien(g);
        const Gerüst gerüst = GerüstBauen(g, familien, Ebenen(g, familien));
        Zufall zufall(7);
        Reihen reihen(g, gerüst, {});
        Reihen neu = reihen;
        reihen.Setzen(ErzählteReihen(gerüst, zufall));
        for (int i = 0; i < 300; i++) {
            const int zeile = zufall.Unter(reihen.Anzahl());
            const auto breite = static_cast<int>(reihen.Zeile(zeile).size());
            if (breite < 2) continue;
            const int platz = zufall.Unter(breite - 1);
            const Reihen::Marke vorher = reihen.Merken();
            const int mehr = reihen.Tauschen(zeile, platz);
            if (i % 4 == 0) { // there and back, further on the way
                if (platz > 0) reihen.Tauschen(zeile, platz - 1);
                Reihen kopie = reihen;
                kopie.Tauschen(zeile, platz);
                reihen.Zurück(vorher);
                EXPECT_EQ(reihen.Kosten(), vorher.Kosten);
                EXPECT_EQ(reihen.Tauschen(zeile, platz), mehr);
                neu.Setzen(kopie.Zeilen());
                ASSERT_EQ(kopie.Kosten(), neu.Kosten()) << saat << " " << i;
            }
            if (i % 7 == 0) reihen.Behalten();
            neu.Setzen(reihen.Zeilen());
            ASSERT_EQ(reihen.Kosten(), neu.Kosten()) << saat << " " << i;
        }
    }
}

TEST(Strecken, KreuzenSichOderBerührenSichNur) {
    using enum Strecke::Art;
    const Strecke balken{{0, 1800}, {2100, 1800}, 1, -1, Balken};
    const auto kind = [](std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2) {
        return Strecke{{x1, y1}, {x2, y2}, 2, 0, Kindlinie};
    };
    EXPECT_TRUE(Kreuzen(balken, kind(1000, 0, 1100, 3000)));
    EXPECT_TRUE(Kreuzen(balken, kind(1000, 1800, 1100, 3000))) << "an end on the other line";
    EXPECT_FALSE(Kreuzen(balken, kind(2100, 1800, 2100, 3000))) << "both ends";
    EXPECT_FALSE(Kreuzen(balken, kind(2200, 0, 2200, 3000)));
    EXPECT_TRUE(Kreuzen(balken, kind(1500, 1800, 4000, 1800))) << "on each other";
    EXPECT_FALSE(Kreuzen(balken, kind(2050, 1800, 4000, 1800))) << "for less than a millimetre";
    EXPECT_FALSE(Kreuzen(balken, kind(0, 2050, 2100, 2050)));
    EXPECT_TRUE(Durchquert(kind(0, 0, 3000, 3000), {1500, 1500}, 600));
    EXPECT_FALSE(Durchquert(kind(0, 1300, 1300, 0), {1500, 1500}, 600)) << "past the corner";
    EXPECT_FALSE(Durchquert(kind(900, 0, 900, 3000), {1500, 1500}, 600)) << "along the edge";
}

} // namespace
} // namespace kw
