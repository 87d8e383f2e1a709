#include "replay/Skript.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kw {
namespace {

struct Ergebnis {
    int Code;
    std::string Text;
};

Ergebnis Gespielt(const std::string &skript) {
    std::istringstream ein(skript);
    std::ostringstream aus;
    Wiedergabe wiedergabe(aus);
    const int code = wiedergabe.Ausführen(ein);
    return {code, aus.str()};
}

/// A slip of the pen must not make a scenario that passes since it does nothing.
TEST(Wiedergabe, HältAnWoSieNichtsVersteht) {
    // clang-format off
    constexpr const char *Zeilen[] = {
        "klick 1 1", "print Nirgends", "print shape Line9", "print visible mnuNirgends", "set UndoSchritte 1",
        "store cboNirgends 1", "menu mnuNirgends", "key Ctrl+F12", "tool 0", "tool drillinge", "popup mnuNirgends",
        "raise Timer9", "pick cboNirgends 0", "pick cboRaster 99", "down middle 1 1", "down left 1", "click 1,5 2",
        "move - 1", "answer maybe", "wheel left", "print \"title"};
    // clang-format on
    for (const std::string zeile : Zeilen) {
        const Ergebnis e = Gespielt("# one\r\n" + zeile + "\nprint UndoTiefe\n");
        EXPECT_EQ(e.Code, 2) << zeile;
        EXPECT_TRUE(e.Text.starts_with("line 2: ")) << zeile << ": " << e.Text;
        EXPECT_EQ(e.Text.find("UndoTiefe"), std::string::npos) << zeile;
    }
    EXPECT_EQ(Gespielt("expect UndoTiefe = 7\n").Code, 1) << "what isn't so is told, and the script goes on";
}

TEST(Wiedergabe, LässtNichtsÜbrig) {
    EXPECT_EQ(Gespielt("popup mnuÖffnen\n").Text, "popups left over: 1\n");
    const Ergebnis vorStart = Gespielt("popup mnuÖffnen\npopup mnuBeenden\nanswer ok\nstart\nprint UndoTiefe\n");
    EXPECT_EQ(vorStart.Code, 1);
    EXPECT_EQ(vorStart.Text, "answers left over: 1\npopups left over: 2\nUndoTiefe = 6\n");
    const Ergebnis verbraucht = Gespielt("popup mnuÖffnen\ntool zwillinge\ntool zwillinge\n");
    EXPECT_EQ(verbraucht.Code, 0) << "an entry of another menu is spent, though it can't be picked";
    EXPECT_EQ(verbraucht.Text, "disabled mnuÖffnen\n");
}

} // namespace
} // namespace kw
