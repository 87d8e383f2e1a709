#pragma once

#include "replay/Programm.h"
#include "replay/Skript.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace kw {

/// Opens each form once, some with another face; a box stands for what the user does in it.
inline constexpr const char *Formulare = R"(store cboPersonen 001_1_6_6_1.5_21_82_1_0_Ada_Öz_12.03.1975__
store cboPersonen 002_9_18_6_1.5_____Amt_____
store cboPartnerschaftsLinien 001_2_6_8_18_8_001_002_6_6_6_18_1_##1999
store cboBeziehungsLinien _3_6_6_18_6_001_002
popup mnuSymbolBearbeiten
rclick 6 6
popup mnuSymbolBearbeiten
rclick 18 6
popup mnuPLiniebearbeiten
rclick 12 8
rclick 12 8
set BezAuswahl 0
menu mnuBLinieBearbeiten
menu mnuSchriftart
menu mnuLegendeEinstellungen
menu mnuDrucken
menu mnuAltersangabe
menu mnuSeiteEinrichten
menu mnuEinstellungen
menu mnuInfo
menu mnuFassungen
menu mnuStammbaumExport
menu mnuOhneNamen
tool 10
click 9 12)";

/// Runs that script in that language; `zeigen` stands for the user of each form that opens.
inline void AlleFormulare(const std::string &sprache, const std::function<void(Formular &)> &zeigen) {
    std::ostringstream aus;
    Wiedergabe lauf(aus);
    const QTemporaryDir netz; // with a version to show
    const std::string start = "start printers=Laser state=" + netz.path().toStdString();
    for (const std::string &zeile : {start, std::string("tool 1"), std::string("click 6 6"), start}) lauf.Zeile(zeile);
    lauf.Zeile("set Sprache " + sprache);
    lauf.Läuft().benutzer.FormularSpielen = [&](Formular &form, const std::vector<std::string> &) {
        if (form.Name() == "frmStammbaum") { // from it another one opens
            form.Laden();
            form.Drücken("cmdBericht");
        }
        zeigen(form);
    };
    lauf.Zeile("answer file " KW_TESTDATEN "/scenarios/stammbaum/berger.ged");
    lauf.Zeile("menu mnuStammbaum");
    std::istringstream skript(Formulare);
    EXPECT_EQ(lauf.Ausführen(skript), 0) << aus.str();
}

} // namespace kw
