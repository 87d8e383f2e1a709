#include "familytree/Sippe.h"

#include "familytree/Personensuche.h"

#include <gtest/gtest.h>

namespace kw {

namespace {

struct Baumtafel {
    std::string_view Personen; ///< their names, which are the file's own names too
    /// Couples and their children: "Opa Oma: Vater Onkel".
    std::vector<std::string_view> Familien;
};

std::vector<std::string> Worte(std::string_view text) {
    std::vector<std::string> worte;
    for (size_t i = 0; i < text.size();) {
        const size_t ende = std::min(text.find(' ', i), text.size());
        if (ende > i) worte.emplace_back(text.substr(i, ende - i));
        i = ende + 1;
    }
    return worte;
}

std::string Datei(const Baumtafel &tafel) {
    std::string text = "0 HEAD\n1 CHAR UTF-8\n";
    for (const auto &person : Worte(tafel.Personen))
        text += "0 @" + person + "@ INDI\n1 NAME " + person + "\n1 SEX M\n";
    for (size_t i = 0; i < tafel.Familien.size(); ++i) {
        const std::string_view familie = tafel.Familien[i];
        const size_t grenze = familie.find(':');
        text += "0 @F" + std::to_string(i) + "@ FAM\n";
        for (const auto &partner : Worte(familie.substr(0, grenze))) text += "1 HUSB @" + partner + "@\n";
        for (const auto &kind : Worte(familie.substr(grenze + 1))) text += "1 CHIL @" + kind + "@\n";
    }
    return text;
}

const Baumtafel Familie{
    "Ich Mann Kind Enkel Schwester Schwager Neffe Halbbruder Vater Mutter Frau2 Onkel Tante Cousin Opa "
    "Oma Uropa Uroma Großonkel Fremder",
    {"Uropa Uroma: Opa Großonkel", "Opa Oma: Vater Onkel", "Vater Mutter: Ich Schwester", "Vater Frau2: Halbbruder",
     "Onkel Tante: Cousin", "Schwester Schwager: Neffe", "Ich Mann: Kind", "Kind: Enkel"}};

std::string Namen(const Stammbaum &baum, const std::vector<std::uint32_t> &personen) {
    std::string namen;
    for (const auto person : personen) namen += (namen.empty() ? "" : " ") + std::string(baum.Personen[person].Vorname);
    return namen;
}

std::string Gewählte(const Baumtafel &tafel, const Sippenwahl &wahl, bool adoption = false,
                     const std::string &mehr = {}) {
    const Stammbaum baum = StammbaumLesen(Datei(tafel) + mehr);
    return Namen(baum, Sippe({baum, Verwandtschaft(baum)}, 0, wahl, adoption));
}

} // namespace

TEST(Sippe, NimmtWenManAnkreuzt) {
    const Sippenwahl niemand{0, 0, false, false, false, false, false};
    const std::pair<Sippenwahl, std::string_view> fälle[] = {
        {niemand, "Ich"},
        {{}, "Ich Mann Kind Schwester Schwager Halbbruder Vater Mutter Frau2 Onkel Tante Opa Oma"},
        {{1, 0, true, true, true, false, false}, "Ich Schwester Halbbruder Vater Mutter"},
        {{0, 2, true, true, true, true, true}, "Ich Mann Kind Enkel"},
        {{1, 0, true, false, false, true, false}, "Ich Schwester Neffe Halbbruder Vater Mutter"},
        {{2, 0, false, true, true, false, false}, "Ich Vater Mutter Onkel Cousin Opa Oma"},
        {{3, 0, false, true, false, false, false}, "Ich Vater Mutter Onkel Opa Oma Uropa Uroma Großonkel"},
    };
    for (const auto &[wahl, namen] : fälle) EXPECT_EQ(Gewählte(Familie, wahl), namen);
}

TEST(Sippe, FolgtDenElternDieDieSeiteZeigt) {
    const Baumtafel tafel{"Ich Adoptivvater Vater", {"Adoptivvater: Ich", "Vater: Ich"}};
    const std::string adoption = "0 @Ich@ INDI\n1 NAME Ich\n1 FAMC @F0@\n2 PEDI adopted\n1 FAMC @F1@\n";
    const Stammbaum baum = StammbaumLesen("0 HEAD\n" + adoption + Datei(tafel).substr(Datei(tafel).find("0 @Adopt")));
    const Verwandtschaft verwandte(baum);
    EXPECT_EQ(Namen(baum, Sippe({baum, verwandte}, 0, {}, false)), "Ich Vater");
    EXPECT_EQ(Namen(baum, Sippe({baum, verwandte}, 0, {}, true)), "Ich Adoptivvater");
}

TEST(Sippe, EndetInEinerDateiImKreis) {
    const Baumtafel kreis{"Ich Vater", {"Vater: Ich", "Ich: Vater"}};
    EXPECT_EQ(Gewählte(kreis, {99, 99, true, true, true, true, true}), "Ich Vater");
}

TEST(Personensuche, FindetNachAnfängenVonWortenUndJahren) {
    const Stammbaum baum = StammbaumLesen("0 HEAD\n1 CHAR UTF-8\n1 _ROOT @I3@\n"
                                          "0 @I1@ INDI\n1 NAME Jürgen \"Jo\" /Weiß/\n1 BIRT\n2 DATE 3 MAR 1950\n"
                                          "0 @I2@ INDI\n1 NAME Łukasz /Øst/\n1 DEAT\n2 DATE 1999\n"
                                          "0 @I3@ INDI\n1 NAME Иван /Петров/\n1 BIRT\n2 DATE 1950\n1 DEAT Y\n"
                                          "0 @I4@ INDI\n1 NAME Jo /Weiss-Ott/\n0 @I5@ INDI\n");
    const Personensuche suche(baum);
    const auto gefunden = [&](std::string_view text) {
        std::string kennungen;
        for (const auto person : suche.Finden(text, 10).Personen) kennungen += baum.Personen[person].Kennung;
        return kennungen;
    };
    EXPECT_EQ(gefunden("jurgen weis"), "I1");
    EXPECT_EQ(gefunden("WEISS J"), "I1I4");
    EXPECT_EQ(gefunden(" 1950 "), "I1I3");
    EXPECT_EQ(gefunden("lukasz ost 1999"), "I2");
    EXPECT_EQ(gefunden("ПЕТР"), "I3");
    EXPECT_EQ(gefunden("eiß"), "");
    EXPECT_EQ(gefunden("i5"), "I5");
    EXPECT_EQ(gefunden(""), "I1I2I3I4I5");
    EXPECT_EQ(suche.Finden("", 2).Anzahl, 5U);
    EXPECT_EQ(suche.Finden("", 2).Personen.size(), 2U);
    EXPECT_EQ(suche.Vorschlag(), 2U);
    EXPECT_EQ(suche.Zeile(0), "Jürgen \"Jo\" Weiß, * 1950 (I1)");
    EXPECT_EQ(suche.Zeile(4), "? (I5)");
}

TEST(Personensuche, MeintEherWerGanzSoHeißt) {
    const Stammbaum baum =
        StammbaumLesen("0 HEAD\n0 @I1@ INDI\n1 NAME Anna /Meierhofer/\n0 @I2@ INDI\n1 NAME Anna /Meier/\n"
                       "0 @Anna@ INDI\n1 NAME Bea /Ott/\n");
    const Personensuche suche(baum);
    EXPECT_EQ(suche.Gemeint("anna meier", 9).Personen, std::vector<std::uint32_t>{1});
    EXPECT_EQ(suche.Gemeint("mei", 9).Anzahl, 2U);
    EXPECT_EQ(suche.Gemeint("@I1@", 9).Personen, std::vector<std::uint32_t>{0});
    EXPECT_EQ(suche.Gemeint("Anna", 9).Personen, std::vector<std::uint32_t>{2}) << "the file's own name comes first";
    EXPECT_EQ(suche.Gemeint("niemand", 9).Anzahl, 0U);
}

} // namespace kw
