// What stands round the page: palette, menus, toolbar. Events go to the real widgets.
#include "app/Befehle.h"
#include "commands/Bildertafel.h"
#include "commands/Menuetafel.h"
#include "gui/Bedienung.h"
#include "qt/fenster/Bandknopf.h"
#include "qt/fenster/Menues.h"
#include "qt/fenster/Palettenknopf.h"
#include "qt/fenster/Symbolleiste.h"
#include "qt/fenster/Werkzeugpalette.h"
#include "qt/malen/Zeilenbild.h"
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <set>

#include <gtest/gtest.h>

using namespace kw;

namespace {

class Palettentest : public Bedienung {
  protected:
    Palettentest() : palette(&fläche, haupt, [this](std::string_view name) { haupt.BefehlAusführen(name); }) {
        fläche.show();
        fläche.activateWindow();
        QApplication::processEvents();
        palette.Auffrischen();
    }
    QList<Palettenknopf *> Knöpfe() {
        QList<Palettenknopf *> knöpfe;
        for (QObject *kind : palette.children())
            if (auto *knopf = dynamic_cast<Palettenknopf *>(kind)) knöpfe += knopf;
        return knöpfe;
    }
    void Taste(int taste) {
        for (const auto art : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent ereignis(art, taste, Qt::NoModifier);
            QApplication::sendEvent(QApplication::focusWidget(), &ereignis);
        }
    }

    Werkzeugpalette palette;
};

TEST_F(Palettentest, JederKnopfHatNamenUndLiegtInReichweite) {
    const auto knöpfe = Knöpfe();
    ASSERT_EQ(knöpfe.size(), 21);
    std::set<QString> namen;
    for (int höhe : {400, 900}) { // the lowest window, and one with room
        fläche.resize(1000, höhe);
        palette.Auffrischen();
        for (const Palettenknopf *knopf : knöpfe) {
            EXPECT_FALSE(knopf->accessibleName().isEmpty());
            EXPECT_FALSE(knopf->focusPolicy() & Qt::ClickFocus); // a mouse press leaves the focus on the canvas
            namen.insert(knopf->accessibleName());
            EXPECT_TRUE(palette.rect().contains(knopf->geometry())) << höhe << knopf->accessibleName().toStdString();
        }
    }
    EXPECT_EQ(namen.size(), 21U);

    // By keyboard: Tab from the canvas, then the arrows.
    fläche.setFocus();
    Taste(Qt::Key_Tab);
    std::set<QWidget *> erreicht;
    for (int i = 0; i < 21; ++i) {
        erreicht.insert(QApplication::focusWidget());
        Taste(Qt::Key_Right);
    }
    for (Palettenknopf *knopf : knöpfe)
        EXPECT_EQ(erreicht.contains(knopf), knopf->isEnabled()) << knopf->accessibleName().toStdString();
}

TEST_F(Palettentest, TasteUndMausDrücken) {
    fläche.setFocus();
    Taste(Qt::Key_Tab);
    for (const int taste : {Qt::Key_Right, Qt::Key_Return}) Taste(taste); // the second tool: female
    palette.Auffrischen();
    EXPECT_EQ(innen.lage.Aktion, Aktion::PersonSetzen);
    EXPECT_EQ(innen.lage.SymbolTyp, TypWeiblich);
    EXPECT_TRUE(Knöpfe()[1]->isChecked());
    EXPECT_FALSE(Knöpfe()[0]->isChecked());
    Palettenknopf *männlich = Knöpfe()[0];
    for (const auto art : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent ereignis(art, QPointF(5, 5), männlich->mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                             art == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(männlich, &ereignis);
    }
    EXPECT_EQ(innen.lage.SymbolTyp, TypMännlich);

    fläche.setFocus();
    innen.bereich.WerkzeugleisteVerbergen();
    palette.Auffrischen();
    Taste(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &fläche); // the hidden palette is no stop
}

/// The pointer, or the focus of the keyboard, on a tool: its name stands below, and beside it when it rests there.
TEST_F(Palettentest, BerührterKnopfWirdGenannt) {
    const auto berühren = [&](int stelle, QEvent::Type art) {
        QEnterEvent hinein({}, {}, {});
        QEvent hinaus(QEvent::Leave);
        QApplication::sendEvent(Knöpfe()[stelle], art == QEvent::Enter ? &hinein : &hinaus);
    };
    const auto hinweise = [&] {
        haupt.ZeitgeberAbgelaufen("tmrToolTipp");
        palette.Auffrischen();
        QStringList sichtbar;
        for (const auto *feld : fläche.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly))
            if (feld->isVisible() && feld->x() >= palette.width()) sichtbar += feld->text();
        return sichtbar;
    };
    fläche.setFocus();
    EXPECT_TRUE(hinweise().isEmpty());
    berühren(4, QEvent::Enter); // the fifth button isn't the fifth tool
    EXPECT_EQ(innen.bedienung[Name::lblTool].Caption, "Transgender - Female To Male");
    EXPECT_EQ(hinweise(), QStringList(QStringLiteral("Transgender - Female To Male")));
    berühren(4, QEvent::Leave);
    EXPECT_EQ(innen.bedienung[Name::lblTool].Caption, "");
    EXPECT_TRUE(hinweise().isEmpty());
    Taste(Qt::Key_Tab);
    EXPECT_EQ(innen.bedienung[Name::lblTool].Caption, "Male");
    Bewegen({400, 300});
    EXPECT_EQ(innen.bedienung[Name::lblTool].Caption, "");
}

TEST_F(Bedienung, MenüsZeigenNurWasGeht) {
    QMenuBar leiste;
    Menüs menüs(haupt, [this](std::string_view name) { haupt.BefehlAusführen(name); });
    menüs.Bauen(leiste);
    QList<QAction *> offen = leiste.actions();
    QAction *löschen = nullptr;
    while (!offen.isEmpty()) {
        QAction *aktion = offen.takeFirst();
        if (aktion->menu()) offen += aktion->menu()->actions();
        if (aktion->shortcut() == QKeySequence(Qt::Key_Delete)) löschen = aktion;
    }
    ASSERT_TRUE(löschen);
    PersonSetzen({400, 300});
    menüs.Auffrischen();
    EXPECT_EQ(löschen->text(), QStringLiteral("&Delete")); // the key stands beside it already
    EXPECT_FALSE(löschen->isEnabled());
    Klicken({400, 300});
    menüs.Auffrischen();
    löschen->trigger();
    EXPECT_EQ(innen.dokument.cboPersonen.Anzahl(), 0);
}

/// No row names a picture or does a command that isn't there.
TEST_F(Bedienung, JedeZeileFindetBildUndBefehl) {
    for (const Menüzeile &zeile : Menütafel()) {
        const bool da = !Menübild(zeile.Name, uhr).isNull();
        EXPECT_EQ(da, !Bildname(zeile.Name).empty() || zeile.Menü == Werkzeugband) << zeile.Name;
        const bool blatt = !IstMenü(zeile) && zeile.Caption.Englisch != Trennstrich && zeile.Menü != Fensterteile;
        EXPECT_EQ(static_cast<bool>(BefehlFinden(zeile.Name)), blatt || zeile.Name == "cmdRänder") << zeile.Name;
    }
}

TEST_F(Bedienung, BandZeigtWasDasModellSagt) {
    QMainWindow fenster;
    auto *band =
        new Symbolleiste(haupt.DerAnblick(), fläche, [this](std::string_view name) { haupt.BefehlAusführen(name); });
    fenster.addToolBar(band);
    fenster.resize(1900, 700);
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

} // namespace
