#include "dialogs/Formular.h"
#include "replay/Aufzeichnung.h"
#include "replay/Programm.h"
#include "replay/Skript.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace kw {
namespace {

/// What the pictures of a form show: what is drawn, and the labels in them.
std::string Gezeigt(Formular &form) {
    Aufzeichnung fläche;
    fläche.Schreibt = true;
    std::string schilder;
    for (const auto &name : form.Reihenfolge()) {
        const Steuerelement &element = *form.Finden(name);
        if (!element.Visible) continue;
        if (!element.Bei.empty()) schilder += name + " " + element.Caption + "\n";
        if (element.Kind != Art::Bild) continue;
        const auto [breite, höhe] = form.BildGröße(name);
        fläche.Scale(breite, höhe, 1);
        form.BildZeichnen(name, fläche);
    }
    return fläche.Text + schilder;
}

/// Chooses all that can be chosen in the form, one after the other, and looks whether each gives another picture.
int Durchwählen(Formular &form) {
    form.Laden();
    std::set<std::string> bilder;
    const auto ansehen = [&](const std::string &wahl) {
        EXPECT_TRUE(bilder.insert(Gezeigt(form)).second) << form.Name() << " " << wahl;
    };
    for (const auto &name : form.Reihenfolge()) {
        const Steuerelement &element = *form.Finden(name);
        if (element.Kind == Art::Option) form.Drücken(name), ansehen(name);
        if (element.Kind != Art::Liste) continue;
        for (size_t i = 0; i < element.Einträge.size(); ++i)
            form.Wählen(name, static_cast<int>(i)), ansehen(element.Einträge[i]);
    }
    form.Entladen();
    return static_cast<int>(bilder.size());
}

TEST(Formularbild, FolgtDerWahl) {
    std::ostringstream aus;
    Wiedergabe lauf(aus);
    std::map<std::string, int> bilder;
    lauf.Zeile("start");
    lauf.Läuft().benutzer.FormularSpielen = [&](Formular &form, const auto &) {
        bilder[form.Name()] = Durchwählen(form);
    };
    std::istringstream skript(
        "store cboPersonen 001_1_6_6_1.5_1_82_1_1_Ada_Öz_1975__\npopup mnuSymbolBearbeiten\n"
        "rclick 6 6\nstore cboPartnerschaftsLinien 001_2_6_8_18_8_001_001_6_6_6_18_1_1##1999\n"
        "set PLinieAuswahl 0\nmenu mnuPLiniebearbeiten\nstore cboBeziehungsLinien _3_1_1_5_1_001_001\n"
        "set BezAuswahl 0\nmenu mnuBLinieBearbeiten\nmenu mnuAltersangabe\n"
        "menu mnuLegendeEinstellungen\n");
    EXPECT_EQ(lauf.Ausführen(skript), 0) << aus.str();
    const std::map<std::string, int> soll{
        {"frmSymbol", 10}, {"frmPLinien", 4}, {"frmBezLinien", 8}, {"frmSymbGlobal", 3}, {"frmLegende", 2}};
    EXPECT_EQ(bilder, soll);
}

} // namespace
} // namespace kw
