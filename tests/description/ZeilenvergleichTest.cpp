#include "description/Zeilenvergleich.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

using namespace kw;

namespace {

using Zeilen = std::vector<Elementzeile>;

Elementzeile Zeile(Elementart art, int position, const char *schlüssel, const char *name) {
    return {{art, position}, schlüssel, name, name, "", {}, false};
}

Zeilen Personen(std::initializer_list<std::pair<const char *, const char *>> nummernUndNamen) {
    Zeilen zeilen;
    for (const auto &[nr, name] : nummernUndNamen)
        zeilen.push_back(Zeile(Elementart::Person, static_cast<int>(zeilen.size()), nr, name));
    return zeilen;
}

/// Elements of a kind that has no number: the key is the position.
Zeilen Texte(std::initializer_list<const char *> namen) {
    Zeilen zeilen;
    for (const char *name : namen) zeilen.push_back(Zeile(Elementart::Text, static_cast<int>(zeilen.size()), "", name));
    return zeilen;
}

using Stellen = std::vector<int>;

} // namespace

TEST(Zeilenvergleich, WerEineNummerHatBleibtDerselbe) {
    const auto vorher = Personen({{"001", "Anna"}, {"002", "Jörg"}, {"003", "Mia"}});
    const auto v = Verglichen(vorher, Personen({{"001", "Änne"}, {"003", "Mia"}, {"002", "Kim"}}));
    EXPECT_EQ(v.Herkunft, (Stellen{0, 2, 1}));
    EXPECT_TRUE(v.Gegangen.empty());
    const auto ohne = Verglichen(vorher, Personen({{"003", "Mia"}, {"004", "Tom"}}));
    EXPECT_EQ(ohne.Herkunft, (Stellen{2, -1}));
    EXPECT_EQ(ohne.Gegangen, (Stellen{0, 1}));
}

TEST(Zeilenvergleich, DoppelteNummernWerdenDerReiheNachVergeben) {
    const auto doppelt = Personen({{"001", "Anna"}, {"001", "Jörg"}});
    EXPECT_EQ(Verglichen(doppelt, doppelt).Herkunft, (Stellen{0, 1}));
    EXPECT_EQ(Verglichen(doppelt, Personen({{"001", "Anna"}})).Gegangen, Stellen{1});
}

TEST(Zeilenvergleich, OhneNummerGehtNurWasFehltUndWasDazwischenLiegtIstGeändert) {
    const auto vorher = Texte({"a", "b", "c", "d"});
    EXPECT_EQ(Verglichen(vorher, Texte({"a", "c", "d"})).Herkunft, (Stellen{0, 2, 3}));
    EXPECT_EQ(Verglichen(vorher, Texte({"a", "c", "d"})).Gegangen, Stellen{1});
    EXPECT_EQ(Verglichen(vorher, Texte({"a", "B", "c", "d"})).Herkunft, (Stellen{0, 1, 2, 3}));
    EXPECT_EQ(Verglichen(vorher, Texte({"neu", "a", "b", "c", "d"})).Herkunft, (Stellen{-1, 0, 1, 2, 3}));
    // Two that say the same, as the lines of identical twins do.
    EXPECT_EQ(Verglichen(Texte({"a", "a"}), Texte({"a"})).Gegangen, Stellen{1});
}

TEST(Zeilenvergleich, ArtenMischenSichNicht) {
    Zeilen vorher = Personen({{"001", "Anna"}});
    Zeilen nachher = Texte({"Anna"});
    EXPECT_EQ(Verglichen(vorher, nachher).Herkunft, Stellen{-1});
    EXPECT_EQ(Verglichen(vorher, nachher).Gegangen, Stellen{0});
    EXPECT_EQ(Ergebnistext(vorher, nachher, Sprache::Englisch), "deleted: Anna; inserted: Anna");
    EXPECT_EQ(Ergebnistext(vorher, vorher, Sprache::Englisch), "");
}
