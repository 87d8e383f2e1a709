#include "replay/Familiendatei.h"
#include "replay/Skript.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kw {
namespace {

std::string Fehler(const std::string &text) {
    try {
        FamilieLesen(text);
        return "";
    } catch (const Skriptfehler &fehler) {
        return fehler.what();
    }
}

TEST(Familiendatei, LiestPersonenUndFamilienInJederFolge) {
    const Familiendatei d =
        FamilieLesen("F\tF1\tA,B\tC\r\nP\tA\tM\t1900\t0\tA\r\nP\tB\tF\n\nP\tC\t?\t-\t1\tC\nF\tF2\t\t\n");
    EXPECT_EQ(d.Personen, (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_EQ(d.Graph.Personen[1].Art, Geschlecht::Frau);
    EXPECT_EQ(d.Graph.Familien[0].Partner, (std::vector<int>{0, 1}));
    EXPECT_EQ(d.Graph.Familien[0].Kinder, (std::vector<int>{2}));
    EXPECT_TRUE(d.Graph.Familien[1].Partner.empty());
}

TEST(Familiendatei, NenntDieZeileDieNichtZuLesenIst) {
    EXPECT_EQ(Fehler("P\tA\tM\nF\tF1\tA,B\t\n"), "family, line 2: no such person: B");
    EXPECT_EQ(Fehler("P\tA\tM\nP\tA\tM\n"), "family, line 2: twice: A");
    EXPECT_EQ(Fehler("P\tA\tM\nX\tA\n"), "family, line 2: neither P nor F: X");
    EXPECT_EQ(Fehler("P\tA\n"), "family, line 1: a field is missing");
    std::ostringstream aus;
    std::istringstream skript("layout nowhere.fam\n");
    EXPECT_EQ(Wiedergabe(aus).Ausführen(skript), 2);
    EXPECT_EQ(aus.str().rfind("line 1: nowhere.fam: ", 0), 0U) << aus.str();
}

} // namespace
} // namespace kw
