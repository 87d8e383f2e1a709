// The keyboard at the real page: real key events, and what came of them in the model.
#include "document/saetze/Person.h"
#include "gui/Probeseite.h"
#include "qt/fenster/Suchfeld.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace kw;

namespace {

/// The page between two buttons, which stand for the rest of the window.
class Seitentasten : public testing::Test, protected Probeseite<> {
  protected:
    Seitentasten() : Probeseite({1000, 800}) {
        auto *spalte = new QVBoxLayout(&fenster);
        spalte->addWidget(davor = new QPushButton);
        spalte->addWidget(&fläche);
        spalte->addWidget(danach = new QPushButton);
        for (const char *satz : {"001_1_6_3_1.2_0__0_0_Ada____", "002_2_9.6_3_1.2_0__0_0_Jörg____"})
            innen.dokument.cboPersonen.Anhängen(satz);
        fenster.resize(1000, 800);
        fenster.show();
        QApplication::processEvents();
        fläche.setFocus();
    }

    ~Seitentasten() override { fläche.setParent(nullptr); } // it isn't the window's to delete

    void Taste(int taste, Qt::KeyboardModifiers mit = Qt::NoModifier, const QString &text = {}, bool hält = false) {
        QWidget *ziel = QApplication::focusWidget();
        ASSERT_NE(ziel, nullptr);
        QKeyEvent ab(QEvent::KeyPress, taste, mit, text, hält);
        QApplication::sendEvent(ziel, &ab);
        QKeyEvent auf(QEvent::KeyRelease, taste, mit, text, hält);
        if (QApplication::focusWidget()) QApplication::sendEvent(QApplication::focusWidget(), &auf);
    }
    std::string Cursor() { return haupt.DerAnblick().cursor.Text(innen.dokument); }
    std::size_t Gewählte() { return static_cast<std::size_t>(innen.auswahl.lstMovedPers.Anzahl()); }

    QWidget fenster;
    QPushButton *davor, *danach;
};

TEST_F(Seitentasten, TabGehtUmDieSeiteUndWeiter) {
    Taste(Qt::Key_Tab);
    EXPECT_EQ(Cursor(), "person 001");
    Taste(Qt::Key_Tab);
    EXPECT_EQ(Cursor(), "person 002");
    EXPECT_TRUE(fläche.hasFocus());
    Taste(Qt::Key_Tab);
    EXPECT_EQ(Cursor(), "person 002") << "it stays where the page was left";
    EXPECT_TRUE(danach->hasFocus());
    fläche.setFocus();
    Taste(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Cursor(), "person 001");
    Taste(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(davor->hasFocus());
    Taste(Qt::Key_Right);
    EXPECT_EQ(Cursor(), "person 001") << "another widget's key is none of the page's";
}

TEST_F(Seitentasten, LeertasteWirktBeimLoslassenUndNichtMitDerMaus) {
    Taste(Qt::Key_Home);
    QKeyEvent ab(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QKeyEvent auf(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
    QApplication::sendEvent(&fläche, &ab);
    EXPECT_EQ(Gewählte(), 0U);
    QKeyEvent nochmal(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&fläche, &nochmal);
    QApplication::sendEvent(&fläche, &auf);
    EXPECT_EQ(Gewählte(), 1U);
    Taste(Qt::Key_Right);
    QApplication::sendEvent(&fläche, &ab);
    haupt.MouseDown(TasteLinks, 20, 15);
    haupt.MouseUp(TasteLinks, 20, 15);
    QApplication::sendEvent(&fläche, &auf);
    EXPECT_EQ(Gewählte(), 0U) << "the press ended the selection, the key was the pointer's";
}

TEST_F(Seitentasten, EinLaufIstEinSchrittUndDasBildFolgt) {
    Taste(Qt::Key_End);
    for (int i = 0; i < 10; ++i) Taste(Qt::Key_Right, Qt::AltModifier);
    Taste(Qt::Key_End, Qt::AltModifier); // far to the right: it scrolls into sight
    haupt.ZeitgeberAbgelaufen("tmrLauf");
    EXPECT_EQ(innen.ring.UndoSchritte(), 1);
    EXPECT_NEAR(PersonSatz(innen.dokument.cboPersonen.Satz(1)).PosX(), 15.6, 1e-9);
    for (int i = 0; i < 4; ++i) Taste(Qt::Key_End, Qt::AltModifier);
    EXPECT_GT(innen.bereich.HScroll1.Value, 0);
}

TEST_F(Seitentasten, DieSucheFindetBeimTippenUndGibtDieSeiteZurück) {
    Taste(Qt::Key_F, Qt::ControlModifier);
    auto *feld = dynamic_cast<Suchfeld *>(QApplication::focusWidget());
    ASSERT_NE(feld, nullptr);
    for (const QChar c : QStringLiteral("jö")) Taste(c.toUpper().unicode(), Qt::NoModifier, c);
    EXPECT_EQ(Cursor(), "person 002");
    Taste(Qt::Key_Escape);
    EXPECT_TRUE(fläche.hasFocus());
    EXPECT_FALSE(feld->isVisible());
}

} // namespace
