// The toolbar and the pictures: what the band shows is the model's word, and no row names
// a picture or does a command that isn't there.
#include "app/Befehle.h"
#include "app/frmMain.h"
#include "commands/Bildertafel.h"
#include "commands/Menuetafel.h"
#include "qt/fenster/Arbeitsflaeche.h"
#include "qt/fenster/Bandknopf.h"
#include "qt/fenster/Symbolleiste.h"
#include "qt/malen/LeinwandFlaeche.h"
#include "qt/malen/Zeilenbild.h"
#include "replay/Plattform.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenu>

#include <gtest/gtest.h>

#include <sstream>

using namespace kw;

TEST(Bilder, JedeZeileFindetIhres) {
    const DrehbuchUhr uhr;
    for (const Menüzeile &zeile : Menütafel()) {
        const bool da = !Menübild(zeile.Name, uhr).isNull();
        EXPECT_EQ(da, !Bildname(zeile.Name).empty() || zeile.Menü == Werkzeugband) << zeile.Name;
        const bool blatt = !IstMenü(zeile) && zeile.Caption.Englisch != Trennstrich && zeile.Menü != Fensterteile;
        EXPECT_EQ(static_cast<bool>(BefehlFinden(zeile.Name)), blatt || zeile.Name == "cmdRänder") << zeile.Name;
    }
}

TEST(Band, ZeigtWasDasModellSagt) {
    std::ostringstream aus;
    std::string wirkungen;
    DrehbuchBenutzer benutzer{aus, wirkungen};
    DrehbuchDrucker drucker{wirkungen};
    const DrehbuchUhr uhr;
    LeinwandFläche leinwand{1};
    DrehbuchBilder bilder{leinwand, wirkungen};
    frmMain haupt{
        {benutzer, drucker, bilder, uhr}, leinwand, {"", "/nonexistent/prog.ini", "", "", 1920 * 15, 1080 * 15}};
    haupt.Laden();
    QMainWindow fenster;
    auto *fläche = new Arbeitsflaeche(leinwand);
    fenster.setCentralWidget(fläche);
    auto *band =
        new Symbolleiste(haupt.DerAnblick(), *fläche, [&](std::string_view name) { haupt.BefehlAusführen(name); });
    fenster.addToolBar(band);
    fenster.show();
    QApplication::processEvents();
    const auto knopf = [&](const char *name) -> Bandknopf * {
        band->Auffrischen();
        for (auto *kind : band->findChildren<QToolButton *>())
            if (kind->accessibleName().startsWith(QLatin1String(name))) return dynamic_cast<Bandknopf *>(kind);
        return nullptr;
    };
    for (int mal = 0; mal < 2; ++mal) knopf("Portrait")->click();
    EXPECT_TRUE(knopf("Portrait")->isChecked()); // as it was when it was clicked again
    const int breite = knopf("Zoom:")->width();
    knopf("Zoom:")->defaultAction()->menu()->actions().first()->trigger();
    EXPECT_TRUE(knopf("Zoom:")->text().startsWith(QStringLiteral("80")));
    QApplication::processEvents();
    EXPECT_EQ(knopf("Zoom:")->width(), breite); // else its neighbours would move under the pointer
}
