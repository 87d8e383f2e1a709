#include "../layout/Probefamilien.h"
#include "arrangement/Umzug.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "replay/Programm.h"
#include "replay/Skript.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kw {
namespace {

/// A page on which families are drawn by hand.
struct Zeichenblatt {
    std::ostringstream Aus;
    Wiedergabe Lauf{Aus};
    Dokument &D = Lauf.Läuft().innen.dokument;

    /// With the first person there; false when the page doesn't hold it.
    bool Zeichnen(const Familiengraph &g, const Familienlage &lage, Ort ecke) {
        if (lage.Breite + ecke.X > 28 || lage.Höhe + ecke.Y > 19.5) return false;
        std::vector<std::string> eltern(g.Personen.size());
        const auto ort = [&](int p) {
            const Ort &o = lage.Personen[static_cast<size_t>(p)];
            return Ort{Gerundet(o.X + ecke.X, 2), Gerundet(o.Y + ecke.Y, 2)};
        };
        const auto nr = [](size_t i) { return Dreistellig(static_cast<int>(i) + 1); };
        const auto z = [](double zahl) { return ZahlSchreiben(zahl); };
        for (size_t f = 0; f < g.Familien.size(); ++f) {
            const auto &[partner, kinder, zwillinge, balken] = g.Familien[f];
            const auto [a, b] = std::pair(ort(partner[0]), ort(partner[1]));
            const double y = Gerundet(lage.Balken[f] + ecke.Y, 2);
            D.cboPartnerschaftsLinien.Anhängen(nr(f) + "_0_" + z(a.X) + "_" + z(y) + "_" + z(b.X) + "_" + z(y) + "_" +
                                               nr(static_cast<size_t>(partner[0])) + "_" +
                                               nr(static_cast<size_t>(partner[1])) + "_" + z(a.Y) + "_" + z(b.Y) + "_" +
                                               z(a.X) + "_" + z(b.X) + "__###");
            for (const int kind : kinder) {
                const Ort k = ort(kind);
                const double oben = std::clamp(k.X, std::min(a.X, b.X), std::max(a.X, b.X));
                D.cboKindlinien.Anhängen(nr(static_cast<size_t>(kind)) + "_0_" + nr(f) + "_" + z(k.X) + "_" + z(oben) +
                                         "_" + z(k.Y) + "_" + z(y));
                eltern[static_cast<size_t>(kind)] = nr(f);
            }
        }
        for (size_t i = 0; i < eltern.size(); ++i) {
            const Ort o = ort(static_cast<int>(i));
            D.cboPersonen.Anhängen(nr(i) + "_1_" + z(o.X) + "_" + z(o.Y) + "_1.2_0__0_0_Ida____" + eltern[i] + "_");
        }
        return true;
    }
    void Versetzen(int person, Ort ort) {
        D.cboPersonen.Ersetzen(person, PersonBau(D.cboPersonen.Satz(person)).Ort(ort.X, ort.Y).Text());
    }
    Ort Stelle(int person) const {
        const PersonSatz satz(D.cboPersonen.Satz(person));
        return {satz.PosX(), satz.PosY()};
    }
    /// A child in a row of three or more: of two, either one could be the one who is too low. -1 without one.
    int InVollerReihe() const {
        for (int i = 0; i < D.cboPersonen.Anzahl(); ++i) {
            int reihe = 0;
            for (int k = 0; k < D.cboPersonen.Anzahl(); ++k) reihe += Stelle(k).Y == Stelle(i).Y ? 1 : 0;
            if (reihe > 2 && PersonSatz(D.cboPersonen.Satz(i)).HatEltern()) return i;
        }
        return -1;
    }
    /// Whoever stood elsewhere before.
    int Bewegte() {
        const Dokument vorher = D;
        Lauf.Zeile("menu mnuAnordnen");
        int anzahl = 0;
        for (int i = 0; i < D.cboPersonen.Anzahl(); ++i) {
            const PersonSatz alt(vorher.cboPersonen.Satz(i));
            anzahl += alt.PosX() != Stelle(i).X || alt.PosY() != Stelle(i).Y ? 1 : 0;
        }
        return anzahl;
    }
    int Überlagerte() const {
        int anzahl = 0;
        for (int i = 0; i < D.cboPersonen.Anzahl(); ++i)
            for (int k = 0; k < i; ++k) {
                const Ort a = Stelle(i);
                const Ort b = Stelle(k);
                anzahl += std::abs(a.X - b.X) < 1.49 && std::abs(a.Y - b.Y) < 1.87 ? 1 : 0;
            }
        return anzahl;
    }
};

constexpr Abstände Weit{.Personen = 3, .Generationen = 4.5, .Balken = 2.1, .Raster = 0.3};

template <typename Prüfung> void FürZeichnungen(Prüfung prüfung) {
    int geprüft = 0;
    for (int saat = 1; saat <= 60; saat += KW_STICHPROBE) {
        SCOPED_TRACE(saat);
        const Familiengraph g = Probefamilie(saat).Bauen(13, 4, 0);
        const Familienlage lage = FamilieAnordnen(g, Weit);
        Zeichenblatt blatt;
        if (lage.Befund.Kreuzungen > 0 || !blatt.Zeichnen(g, lage, {1.8, 1.8})) continue;
        prüfung(blatt, saat);
        ++geprüft;
    }
    EXPECT_GE(geprüft * KW_STICHPROBE, 10);
}

TEST(Anordnen, LässtEineGuteZeichnungWieSieIst) {
    FürZeichnungen([](Zeichenblatt &blatt, int) {
        const Dokument vorher = blatt.D;
        blatt.Lauf.Zeile("menu mnuAnordnen");
        EXPECT_TRUE(blatt.D.GleicheSätze(vorher));
    });
}

TEST(Anordnen, BewegtNurWerImWegIst) {
    FürZeichnungen([](Zeichenblatt &blatt, int) {
        const int wer = blatt.InVollerReihe();
        if (wer < 0) return;
        const Ort soll = blatt.Stelle(wer);
        blatt.Versetzen(wer, {soll.X + 0.3, soll.Y + 0.9}); // lower than its generation
        EXPECT_EQ(blatt.Bewegte(), 1);
        EXPECT_EQ(blatt.Stelle(wer).Y, soll.Y);
        EXPECT_EQ(blatt.Überlagerte(), 0);
        EXPECT_EQ(blatt.Bewegte(), 0) << "a second time";
    });
}

TEST(Anordnen, MachtAusJederUnordnungEineSeite) {
    FürZeichnungen([](Zeichenblatt &blatt, int saat) {
        Zufall zufall(static_cast<std::uint64_t>(saat));
        for (int i = 0; i < blatt.D.cboPersonen.Anzahl(); ++i)
            blatt.Versetzen(i, {2 + zufall.Unter(80) * 0.3, 2 + zufall.Unter(50) * 0.3});
        EXPECT_GT(blatt.Bewegte(), 0);
        EXPECT_EQ(blatt.Überlagerte(), 0);
        for (int i = 0; i < blatt.D.cboPersonen.Anzahl(); ++i) {
            EXPECT_GE(blatt.Stelle(i).X, 1.6);
            EXPECT_LE(blatt.Stelle(i).X, 28.1);
        }
        EXPECT_EQ(blatt.Bewegte(), 0) << "a second time";
    });
}

} // namespace
} // namespace kw
