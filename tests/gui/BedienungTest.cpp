// What the hand does on the page: events go to the real widget, what came of them is read in the records and in the
// pixels that show.
#include "gui/Bedienung.h"
#include "qt/fenster/Importliste.h"
#include "qt/malen/Auflagenmaler.h"
#include <QAbstractItemView>
#include <QDropEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMimeData>
#include <QTimer>
#include <QWheelEvent>
#include <memory>

#include <gtest/gtest.h>

using namespace kw;

namespace {

constexpr QRgb Symbolfarbe = qRgb(192, 209, 226);

/// The box round all pixels of that colour.
QRect Fleck(const QImage &bild, QRgb farbe) {
    QRect fleck;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (bild.pixel(x, y) == farbe) fleck |= QRect(x, y, 1, 1);
    return fleck;
}

TEST_F(Bedienung, PersonStehtWoGeklicktWird) {
    struct Fall {
        int Zoom, Rechts, Unten; ///< scrolled by, twips
    };
    for (const Fall fall :
         {Fall{Zoom100, 0, 0}, Fall{Zoom100, 0, 900}, Fall{Zoom250, 0, 0}, Fall{Zoom250, 9000, 6000}}) {
        innen.dokument.SpeicherLeeren();
        innen.bereich.ZoomWählen(fall.Zoom);
        innen.bereich.Scrollen(fall.Rechts, fall.Unten);
        Zeigen();
        const QPoint ort(500, 300);
        PersonSetzen(ort);
        ASSERT_EQ(innen.dokument.cboPersonen.Anzahl(), 1);
        const double verhältnis = fläche.devicePixelRatioF();
        const QRect gerät = Fleck(Bild(), Symbolfarbe);
        const QRectF symbol(QPointF(gerät.topLeft()) / verhältnis, QSizeF(gerät.size()) / verhältnis);
        const double pixelJeCm = innen.bereich.picVorschau().Width / 15.0 / innen.ansicht.SeitenBreite;
        // The symbol snaps to the grid, so it is off by half a step at most.
        const double erlaubt = innen.ansicht.Rasterweite / 2 * pixelJeCm + 2;
        EXPECT_NEAR(symbol.center().x(), ort.x(), erlaubt) << fall.Zoom << ' ' << fall.Rechts;
        EXPECT_NEAR(symbol.center().y(), ort.y(), erlaubt) << fall.Zoom << ' ' << fall.Unten;
    }
}

TEST_F(Bedienung, ZiehenKostetKeinBild) {
    Zeigen();
    const QPoint ort(400, 300);
    PersonSetzen(ort);
    Bewegen(ort);
    Drücken(ort);
    const QImage vorher = Bild();
    const int bilder = leinwand.Bilder;
    for (int i = 1; i <= 20; ++i) Bewegen(ort + QPoint(6 * i, 3 * i), Qt::LeftButton);
    EXPECT_EQ(leinwand.Bilder, bilder);
    EXPECT_FALSE(AuflagenSpur(innen.auflagen, 1, 40).isEmpty());
    EXPECT_NE(Bild(), vorher); // the mask follows
    const double x = PersonX();
    Lassen(ort + QPoint(120, 60));
    EXPECT_GT(leinwand.Bilder, bilder);
    EXPECT_GT(PersonX(), x);
    EXPECT_TRUE(AuflagenSpur(innen.auflagen, 1, 40).isEmpty());
}

/// What lies beside the page is no canvas: an armed tool would place what nobody sees.
TEST_F(Bedienung, NebenDerSeiteGeschiehtNichts) {
    Zeigen();
    PersonSetzen({69, 3});
    EXPECT_EQ(innen.dokument.cboPersonen.Anzahl(), 0);
    EXPECT_EQ(innen.lage.Aktion, Aktion::PersonSetzen);
}

/// A popup or a box can swallow a release; a second button is no new press; the middle one is none at all.
TEST_F(Bedienung, NurEineTasteZählt) {
    Zeigen();
    const QPoint ort(400, 300);
    PersonSetzen(ort);
    const QPoint ziel = ort + QPoint(120, 0);
    Drücken(ort);
    Bewegen(ziel, Qt::LeftButton);
    Maus(QEvent::MouseButtonPress, ziel, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    Maus(QEvent::MouseButtonRelease, ziel, Qt::RightButton, Qt::LeftButton);
    const double x = PersonX();
    Bewegen(ziel + QPoint(200, 0)); // no button is down any more: the drag ended at the last place
    const double neu = PersonX();
    EXPECT_GT(neu, x);
    Lassen(ziel + QPoint(200, 0));
    EXPECT_EQ(PersonX(), neu);
    Maus(QEvent::MouseButtonPress, ziel, Qt::MiddleButton, Qt::MiddleButton);
    Bewegen(ziel + QPoint(90, 90), Qt::MiddleButton);
    EXPECT_EQ(PersonX(), neu);
}

TEST_F(Bedienung, ImportzeileFälltNurAufDieSeite) {
    for (const char *zeile : {"1;Jörg;Öz;M;;N;N;N;J", "2;Eva;;W;1.2.1980;J", "3;Kim;Ude;X"})
        innen.import.Listenzeilen.push_back(ImportpersonAus(zeile));
    Zeigen();
    Importliste liste(haupt.DerAnblick(), [](int) {});
    QAbstractItemModel &modell = *liste.findChild<QAbstractItemView *>()->model();
    ASSERT_EQ(modell.rowCount(), 3);
    EXPECT_EQ(modell.index(0, 0).data(), QStringLiteral("Jörg Öz"));
    const auto ziehen = [&](const QMimeData &inhalt, QPoint ort) {
        QDragEnterEvent herein(ort, Qt::CopyAction, &inhalt, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&fläche, &herein);
        QDragMoveEvent darüber(ort, Qt::CopyAction, &inhalt, Qt::LeftButton, Qt::NoModifier);
        if (herein.isAccepted()) QApplication::sendEvent(&fläche, &darüber);
        if (!herein.isAccepted() || !darüber.isAccepted()) return;
        QDropEvent fallen(ort, Qt::CopyAction, &inhalt, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&fläche, &fallen);
    };
    const std::unique_ptr<QMimeData> erste(modell.mimeData({modell.index(0, 0)}));
    ziehen(*erste, {69, 3}); // beside the page
    QMimeData fremdes;
    fremdes.setText(QStringLiteral("0"));
    ziehen(fremdes, {400, 300});
    EXPECT_EQ(innen.dokument.cboPersonen.Anzahl(), 0);
    ziehen(*erste, {400, 300});
    ASSERT_EQ(innen.dokument.cboPersonen.Anzahl(), 1);
    Zeigen();
    EXPECT_TRUE(Fleck(Bild(), Symbolfarbe).contains(395, 300));
    EXPECT_TRUE(innen.dokument.cboPersonen.Satz(0).ends_with("_0_$_0_0_Jörg_Öz___"));
}

class Weg : public Bedienung {
  protected:
    Weg() {
        innen.bereich.ZoomWählen(5);
        innen.bereich.MausradIndex = 5;
        Zeigen();
    }
    void Rad(QPoint ort, QPoint drehung, Qt::KeyboardModifiers dazu = Qt::NoModifier, QPoint finger = {}) {
        QWheelEvent ereignis(ort, fläche.mapToGlobal(ort), finger, drehung, Qt::NoButton, dazu, Qt::NoScrollPhase,
                             false);
        QApplication::sendEvent(&fläche, &ereignis);
        QApplication::processEvents();
    }
    void Leertaste(QEvent::Type art) {
        QKeyEvent ereignis(art, Qt::Key_Space, Qt::NoModifier);
        QApplication::sendEvent(&fläche, &ereignis);
    }
    /// What of the page is under that pixel, cm.
    QPointF Dort(QPoint ort) {
        const Rahmenort null = innen.bereich.InRahmen(0, 0, innen.ansicht.SeitenBreite);
        const QPointF twips = QPointF(ort) * 15 - QPointF(innen.bereich.picBack.Left + null.X, null.Y);
        return twips * (innen.ansicht.SeitenBreite / innen.bereich.picVorschau().Width);
    }
    static void Warten(int ms) {
        QEventLoop schleife;
        QTimer::singleShot(ms, &schleife, &QEventLoop::quit);
        schleife.exec();
    }
    QPoint Stand() { return {innen.bereich.HScroll1.Value, innen.bereich.VScroll1.Value}; }
};

TEST_F(Weg, RadZoomtWoDerZeigerIst) {
    const QPoint ort(800, 450);
    innen.bereich.Scrollen(2000, 1500);
    const QPointF vorher = Dort(ort);
    for (int i = 0; i < 3; ++i) Rad(ort, {0, 120});
    EXPECT_EQ(innen.bereich.cboBildGröße.ListIndex, 8);
    EXPECT_NEAR(Dort(ort).x(), vorher.x(), 0.01);
    EXPECT_NEAR(Dort(ort).y(), vorher.y(), 0.01);
    Rad(ort, {0, -360}); // three notches in one event
    EXPECT_EQ(innen.bereich.cboBildGröße.ListIndex, 5);
    EXPECT_NEAR(Dort(ort).x(), vorher.x(), 0.01);
}

TEST_F(Weg, ZweiFingerUndUmschaltScrollen) {
    const QPoint ort(500, 300);
    Rad(ort, {-40, -60}, Qt::NoModifier, {-20, -30}); // a pad counts pixels
    EXPECT_EQ(Stand(), QPoint(300, 450));
    Rad(ort, {0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(Stand(), QPoint(300, 1350));
    for (const auto &[drehung, dazu] : {std::pair(QPoint(0, -120), Qt::AltModifier), {{-120, 0}, Qt::NoModifier}}) {
        const int vorher = Stand().x();
        Rad(ort, drehung, dazu);
        EXPECT_EQ(Stand(), QPoint(vorher + 900, 1350));
    }
    EXPECT_EQ(innen.bereich.cboBildGröße.ListIndex, 5);
    Rad(ort, {0, -120}, Qt::ControlModifier, {0, -30});
    EXPECT_EQ(innen.bereich.cboBildGröße.ListIndex, 4);
}

/// With the middle button or with Space; nothing of the page is touched, and Space alone stays what it is.
TEST_F(Weg, HandVerschiebtDieSeite) {
    innen.bereich.Scrollen(3000, 3000);
    haupt.BefehlAusführen("cmdSymb(1)");
    const QPointF vorher = Dort({500, 300});
    Maus(QEvent::MouseButtonPress, {500, 300}, Qt::MiddleButton, Qt::MiddleButton);
    Bewegen({520, 290}, Qt::MiddleButton);
    EXPECT_EQ(fläche.cursor().shape(), Qt::ClosedHandCursor);
    Bewegen({450, 340}, Qt::MiddleButton);
    Maus(QEvent::MouseButtonRelease, {450, 340}, Qt::MiddleButton, Qt::NoButton);
    EXPECT_NEAR(Dort({450, 340}).x(), vorher.x(), 0.01);
    EXPECT_NEAR(Dort({450, 340}).y(), vorher.y(), 0.01);

    Leertaste(QEvent::KeyPress);
    EXPECT_FALSE(fläche.LeertasteVerbraucht());
    EXPECT_EQ(fläche.cursor().shape(), Qt::OpenHandCursor);
    const QPoint stand = Stand();
    Drücken({500, 300});
    Bewegen({500, 280}, Qt::LeftButton);
    Lassen({500, 280});
    Leertaste(QEvent::KeyRelease);
    EXPECT_EQ(Stand(), stand + QPoint(0, 300));
    EXPECT_TRUE(fläche.LeertasteVerbraucht());
    EXPECT_EQ(innen.dokument.cboPersonen.Anzahl(), 0);
    EXPECT_EQ(innen.lage.Aktion, Aktion::PersonSetzen);
    EXPECT_NE(fläche.cursor().shape(), Qt::OpenHandCursor);
}

TEST_F(Weg, ZugAmRandScrolltUndNimmtMit) {
    PersonSetzen({500, 300});
    Drücken({500, 300});
    Bewegen({fläche.width() - 20, 300}, Qt::LeftButton); // held there, and nothing more
    for (int i = 0; i < 200 && Stand().x() == 0; ++i) Warten(10);
    EXPECT_GT(Stand().x(), 0);
    const QPoint ende(fläche.width() - 20, 300);
    Lassen(ende);
    const int stand = Stand().x();
    EXPECT_NEAR(PersonX(), Dort(ende).x(), innen.ansicht.Rasterweite);
    Warten(100);
    EXPECT_EQ(Stand().x(), stand);
}

/// How to begin shows on the page, and in no picture of it; the right button beside the page ends a tool too.
TEST_F(Weg, EinstiegStehtNurAufDemSchirm) {
    innen.bereich.ZoomWählen(Zoom100);
    Zeigen();
    const auto grau = [](const QImage &bild) { return !Fleck(bild, qRgb(112, 112, 112)).isNull(); };
    EXPECT_TRUE(grau(Bild()));
    EXPECT_FALSE(grau(leinwand.Bild().convertToFormat(QImage::Format_RGB32)));
    haupt.BefehlAusführen("cmdSymb(1)");
    Maus(QEvent::MouseButtonPress, {69, 3}, Qt::RightButton, Qt::RightButton);
    Maus(QEvent::MouseButtonRelease, {69, 3}, Qt::RightButton, Qt::NoButton);
    EXPECT_EQ(innen.lage.Aktion, Aktion::Nichts);
    PersonSetzen({400, 300});
    EXPECT_FALSE(grau(Bild()));
}

/// A page that fits stands in the middle of what shows, whether the palette does or not.
TEST_F(Weg, WasPasstStehtInDerMitte) {
    innen.bereich.ZoomWählen(0);
    for (const QSize größe : {QSize(1900, 1000), QSize(1500, 700)}) {
        fläche.resize(größe);
        for (const bool palette : {true, false}) {
            palette ? innen.bereich.WerkzeugleisteZeigen() : innen.bereich.WerkzeugleisteVerbergen();
            Zeigen();
            ASSERT_FALSE(innen.bereich.HScroll1.Visible);
            const QRect weiß = Fleck(Bild(), qRgb(255, 255, 255));
            const int links = palette ? innen.bereich.picBack.Left / 15 : 0;
            const int rechts = innen.bereich.VScroll1.Visible ? innen.bereich.VScroll1.Left / 15 : größe.width();
            EXPECT_NEAR(weiß.left() - links, rechts - 1 - weiß.right(), 2) << größe.width() << palette;
        }
    }
}

} // namespace
