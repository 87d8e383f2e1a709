// What the hand does: pointer on the canvas, palette, toolbar, menus. Events go to the real widgets, what came of them
// is read in the records and in the pixels that show.
#include "app/Befehle.h"
#include "app/Einzelbild.h"
#include "app/frmMain.h"
#include "commands/Bildertafel.h"
#include "commands/Menuetafel.h"
#include "document/Dateien.h"
#include "document/Zahlen.h"
#include "document/saetze/Person.h"
#include "editing/Personen.h"
#include "output/basBildExport.h"
#include "qt/drucken/Ausgabe.h"
#include "qt/drucken/QtBilder.h"
#include "qt/fenster/Arbeitsflaeche.h"
#include "qt/fenster/Bandknopf.h"
#include "qt/fenster/Importliste.h"
#include "qt/fenster/Menues.h"
#include "qt/fenster/Palettenknopf.h"
#include "qt/fenster/Symbolleiste.h"
#include "qt/fenster/Werkzeugpalette.h"
#include "qt/malen/Auflagenmaler.h"
#include "qt/malen/LeinwandFlaeche.h"
#include "qt/malen/Zeilenbild.h"
#include "replay/Einblick.h"
#include "replay/Plattform.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <memory>
#include <new>
#include <set>
#include <sstream>

#include <sys/resource.h>
#include <unistd.h>

using namespace kw;

namespace {

constexpr QRgb Symbolfarbe = qRgb(192, 209, 226);
constexpr int Zoom100 = 2; ///< places in the zoom list
constexpr int Zoom250 = 17;

/// Counts the redraws: each begins with clearing.
struct Zählleinwand : LeinwandFläche {
    Zählleinwand() : LeinwandFläche(1) {}
    void Cls() override {
        ++Bilder;
        LeinwandFläche::Cls();
    }
    int Bilder = 0;
};

class Bedienung : public testing::Test {
  protected:
    Bedienung() {
        fläche.resize(1000, 700);
        fläche.Verbinden(haupt, [] {});
        haupt.Laden();
        innen.bereich.GrößeÄndern(fläche.Innengröße().width(), fläche.Innengröße().height());
        innen.bereich.WerkzeugleisteZeigen();
        innen.bereich.ZoomWählen(Zoom100);
    }

    void Zeigen() {
        fläche.show();
        QApplication::processEvents();
        fläche.Auffrischen();
    }

    void Maus(QEvent::Type art, QPoint ort, Qt::MouseButton taste, Qt::MouseButtons unten) {
        QMouseEvent ereignis(art, ort, fläche.mapToGlobal(ort), taste, unten, Qt::NoModifier);
        QApplication::sendEvent(&fläche, &ereignis);
    }
    void Drücken(QPoint ort) { Maus(QEvent::MouseButtonPress, ort, Qt::LeftButton, Qt::LeftButton); }
    void Bewegen(QPoint ort, Qt::MouseButtons unten = Qt::NoButton) {
        Maus(QEvent::MouseMove, ort, Qt::NoButton, unten);
    }
    void Lassen(QPoint ort) { Maus(QEvent::MouseButtonRelease, ort, Qt::LeftButton, Qt::NoButton); }
    void Klicken(QPoint ort) {
        Bewegen(ort);
        Drücken(ort);
        Lassen(ort);
    }
    void PersonSetzen(QPoint ort) {
        ASSERT_TRUE(haupt.BefehlAusführen("cmdSymb(1)"));
        Klicken(ort);
    }

    QImage Bild() { return fläche.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    /// The field of the only person, cm.
    double PersonX() { return PersonSatz(innen.dokument.cboPersonen.Satz(0)).PosX(); }

    std::ostringstream aus;
    std::string wirkungen;
    DrehbuchBenutzer benutzer{aus, wirkungen};
    DrehbuchDrucker drucker{wirkungen};
    DrehbuchUhr uhr;
    Zählleinwand leinwand;
    DrehbuchBilder dateien{leinwand, wirkungen};
    frmMain haupt{
        {benutzer, drucker, dateien, uhr}, leinwand, {"", "/nonexistent/prog.ini", "", "", 1920 * 15, 1080 * 15}};
    Einblick innen{haupt};
    Arbeitsflaeche fläche{leinwand};
};

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

/// A resolution in the file would print the page at a size that nobody has chosen.
TEST_F(Bedienung, BildIstDieLeinwandOhneAuflösung) {
    PersonSetzen({400, 300});
    QtBilder kamera(leinwand);
    kamera.InZwischenablage({30, 45, 6000, 3000}); // twips
    EXPECT_EQ(QGuiApplication::clipboard()->image().convertToFormat(leinwand.Bild().format()),
              leinwand.Bild().copy(2, 3, 400, 200));
    const QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("bild"));
    const auto bytes = [&](int stelle, int anzahl) {
        QFile f(datei);
        EXPECT_TRUE(f.open(QIODevice::ReadOnly));
        return f.readAll().mid(stelle, anzahl).toHex();
    };
    ASSERT_EQ(kamera.SavePicture(datei.toStdString(), std::nullopt), Ursache::Keine);
    EXPECT_EQ(bytes(38, 8), QByteArray(16, '0'));
    ASSERT_EQ(kamera.AlsJpeg(datei.toStdString(), 100), Ursache::Keine);
    EXPECT_EQ(bytes(6, 12), "4a4649460001010000010001"); // JFIF 1.1, no unit
    EXPECT_EQ(QImage(datei).size(), leinwand.Bild().size());
}

/// Whatever is selected and however it is zoomed: to the byte what an export without a window writes.
TEST_F(Bedienung, PngUndSvgGleichenDenenDerBefehlszeile) {
    const std::string projekt = KW_TESTDATEN "/../samples/familie.kwp";
    const QTemporaryDir ordner;
    QtBilder kamera(leinwand);
    Bildexport bildexport(benutzer, kamera, innen.bereich, innen.ansicht,
                          {[] {}, [this](Zeichenfläche &papier) { innen.AufPapier(papier); }});
    ASSERT_TRUE(innen.projekt.Öffnen(projekt));
    ASSERT_TRUE(haupt.BefehlAusführen("mnuFarbig"));
    ASSERT_TRUE(haupt.BefehlAusführen("mnuRasterAnzeigen"));
    PersonAuswählen(innen, 0);
    Einzelbild allein(uhr, "");
    ASSERT_EQ(allein.Laden(projekt), "");
    for (const char *endung : {"png", "SVG"}) {
        const std::string hier = ordner.filePath(QStringLiteral("hier.")).toStdString() + endung;
        const std::string dort = ordner.filePath(QStringLiteral("dort.")).toStdString() + endung;
        benutzer.Antworten.push_back({DrehbuchBenutzer::Vorbereitet::Art::Datei, false, Antwort::Ok, hier});
        bildexport.SeiteExportieren(projekt);
        EXPECT_EQ(Exportieren(allein, dort, ÜblicheDpi, "familie"), "");
        std::string einer, anderer;
        EXPECT_TRUE(DateiLesen(hier, einer).Gelungen() && DateiLesen(dort, anderer).Gelungen());
        EXPECT_TRUE(einer == anderer) << endung;
    }
}

#ifndef __SANITIZE_ADDRESS__ // it would end the program itself
/// The page that is too large isn't drawn, and nothing is written; with the next one all is as before.
TEST_F(Bedienung, OhneSpeicherGehtNurDasGroßeBildNicht) {
    const QTemporaryDir ordner;
    QtBilder kamera(leinwand);
    rlimit vorher{};
    ::getrlimit(RLIMIT_AS, &vorher);
    std::ifstream belegt("/proc/self/statm");
    rlim_t seiten = 0;
    belegt >> seiten;
    const rlimit knapp{seiten * static_cast<rlim_t>(::getpagesize()) + (rlim_t{24} << 20), vorher.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_AS, &knapp), 0);
    innen.bereich.ZoomWählen(Zoom250);
    EXPECT_TRUE(leinwand.Bild().isNull());
    EXPECT_THROW(kamera.AlsJpeg(ordner.filePath(QStringLiteral("a.jpg")).toStdString(), 100), std::bad_alloc);
    EXPECT_THROW(kamera.InZwischenablage({0, 0, 6000, 3000}), std::bad_alloc);
    ::setrlimit(RLIMIT_AS, &vorher);
    EXPECT_TRUE(QDir(ordner.path()).isEmpty());
    innen.bereich.ZoomWählen(Zoom100);
    EXPECT_FALSE(leinwand.Bild().isNull());
}
#endif

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
