// What the hand does: pointer on the canvas, palette, menus. Events go to the real widgets, what came of them is
// read in the records and in the pixels that show.
#include "app/frmMain.h"
#include "document/Felder.h"
#include "document/Zahlen.h"
#include "qt/Arbeitsflaeche.h"
#include "qt/Auflagenmaler.h"
#include "qt/Menues.h"
#include "qt/Palette.h"
#include "qt/Palettenknopf.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QProcess>
#include <QTimer>

#include <gtest/gtest.h>

#include <cmath>
#include <set>

using namespace kw;

namespace {

constexpr QRgb Symbolfarbe = qRgb(192, 209, 226);
constexpr int Zoom100 = 2; ///< places in the zoom list
constexpr int Zoom250 = 17;

/// A user who answers nothing, but may do something while a popup is open.
struct Niemand : Benutzer {
    std::function<void()> BeimPopup;
    Antwort Fragen(const Nachfrage &) override { return Antwort::Abbrechen; }
    std::optional<std::string> DateiÖffnen(const Dateiwahl &) override { return std::nullopt; }
    std::optional<std::string> DateiSpeichern(const Dateiwahl &) override { return std::nullopt; }
    std::optional<std::string> PopupZeigen(std::string_view) override {
        if (BeimPopup) BeimPopup();
        return std::nullopt;
    }
    void ZeitgeberStarten(std::string_view, int) override {}
    void NachErstemBild(std::function<void()>) override {}
    void AnzeigeAuffrischen() override {}
    void FensterSchließen() override {}
    std::string Desktopordner() const override { return "/"; }
    std::vector<std::string> Schriftarten() const override { return {}; }
};

struct KeinDrucker : Drucker {
    std::optional<std::string> DeviceName() const override { return std::nullopt; }
    Druckränder Ränder() const override { return {}; }
    int Orientation() const override { return 2; }
};

struct FesteUhr : Uhr {
    Datum Heute() const override { return {2026, 3, 12}; }
    Datumsfolge Folge() const override { return Datumsfolge::TagMonatJahr; }
};

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
        haupt.bereich.GrößeÄndern(fläche.Innengröße().width(), fläche.Innengröße().height());
        haupt.bereich.WerkzeugleisteZeigen();
        haupt.bereich.ZoomWählen(Zoom100);
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
    double Person(int feld) { return ZahlLesen(Felder(haupt.dokument.cboPersonen.Satz(0))[feld]); }

    Niemand benutzer;
    KeinDrucker drucker;
    FesteUhr uhr;
    Zählleinwand leinwand;
    frmMain haupt{{benutzer, drucker, uhr}, leinwand, {"", "/nonexistent/prog.ini", 1920 * 15, 1080 * 15}};
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
        haupt.dokument.SpeicherLeeren();
        haupt.bereich.ZoomWählen(fall.Zoom);
        haupt.bereich.Scrollen(fall.Rechts, fall.Unten);
        Zeigen();
        const QPoint ort(500, 300);
        PersonSetzen(ort);
        ASSERT_EQ(haupt.dokument.cboPersonen.Anzahl(), 1);
        const double verhältnis = fläche.devicePixelRatioF();
        const QRect gerät = Fleck(Bild(), Symbolfarbe);
        const QRectF symbol(QPointF(gerät.topLeft()) / verhältnis, QSizeF(gerät.size()) / verhältnis);
        const double pixelJeCm = haupt.bereich.picVorschau().Width / 15.0 / haupt.ansicht.SeitenBreite;
        // The symbol snaps to the grid, so it is off by half a step at most.
        const double erlaubt = haupt.ansicht.Rasterweite / 2 * pixelJeCm + 2;
        EXPECT_NEAR(symbol.center().x(), ort.x(), erlaubt) << fall.Zoom << ' ' << fall.Rechts;
        EXPECT_NEAR(symbol.center().y(), ort.y(), erlaubt) << fall.Zoom << ' ' << fall.Unten;
        EXPECT_NEAR(symbol.width(), 1.2 * pixelJeCm, 4) << fall.Zoom;
    }
}

/// A screen's resolution holds for a whole process.
TEST(Pixelverhältnis, PersonStehtAuchBeiDoppelterAuflösung) {
    QProcess prozess;
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    prozess.setProcessEnvironment(umgebung);
    prozess.setProcessChannelMode(QProcess::MergedChannels);
    prozess.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--gtest_filter=Bedienung.PersonStehtWoGeklicktWird")});
    ASSERT_TRUE(prozess.waitForFinished());
    const QByteArray aus = prozess.readAll();
    EXPECT_EQ(prozess.exitCode(), 0) << aus.toStdString();
    EXPECT_TRUE(aus.contains("PASSED  ] 1 test"));
}

/// The same against the page's own corner as it shows, for an error that drawing and clicking share.
TEST_F(Bedienung, ZentimeterZählenAbDerSeitenecke) {
    Zeigen();
    const QRect weiß = Fleck(Bild().copy(65, 0, 935, 690), qRgb(255, 255, 255)).translated(65, 0);
    const double pixelJeCm = haupt.bereich.picVorschau().Width / 15.0 / 29.7;
    PersonSetzen(weiß.topLeft() + QPoint(qRound(6.02 * pixelJeCm), qRound(9.02 * pixelJeCm)));
    EXPECT_EQ(Person(PersonFeld::PosX), 6);
    EXPECT_EQ(Person(PersonFeld::PosY), 9);
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
    EXPECT_TRUE(ZeigtAuflagen(haupt.auflagen));
    EXPECT_NE(Bild(), vorher); // the mask follows
    const double x = Person(PersonFeld::PosX);
    Lassen(ort + QPoint(120, 60));
    EXPECT_GT(leinwand.Bilder, bilder);
    EXPECT_GT(Person(PersonFeld::PosX), x);
    EXPECT_FALSE(ZeigtAuflagen(haupt.auflagen));
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
    const double x = Person(PersonFeld::PosX);
    Bewegen(ziel + QPoint(200, 0)); // no button is down any more: the drag ended at the last place
    const double neu = Person(PersonFeld::PosX);
    EXPECT_GT(neu, x);
    Lassen(ziel + QPoint(200, 0));
    EXPECT_EQ(Person(PersonFeld::PosX), neu);
    Maus(QEvent::MouseButtonPress, ziel, Qt::MiddleButton, Qt::MiddleButton);
    Bewegen(ziel + QPoint(90, 90), Qt::MiddleButton);
    Maus(QEvent::MouseButtonRelease, ziel + QPoint(90, 90), Qt::MiddleButton, Qt::NoButton);
    EXPECT_EQ(Person(PersonFeld::PosX), neu);
}

/// The click that dismisses a popup arrives within the click that opened it, and may be half swallowed.
TEST_F(Bedienung, KlickNebenDasPopupZähltDanach) {
    Zeigen();
    const QPoint ort(400, 300);
    PersonSetzen(ort);
    int presse = 0;
    benutzer.BeimPopup = [&] {
        ++presse;
        EXPECT_EQ(haupt.lage.Aktion, AktionMenüOffen);
        Drücken(ort + QPoint(150, 100));
        EXPECT_EQ(haupt.lage.Aktion, AktionMenüOffen);
    };
    Maus(QEvent::MouseButtonPress, ort, Qt::RightButton, Qt::RightButton);
    QApplication::processEvents();
    EXPECT_EQ(presse, 1);
    EXPECT_EQ(haupt.lage.Aktion, AktionNichts); // the click has closed what the popup left open
    Klicken(ort);
    EXPECT_EQ(haupt.lage.Aktion, AktionPersonGewählt);
}

TEST_F(Bedienung, PopupGibtDenNamenUndTutNichts) {
    Zeigen();
    Menüs menüs(haupt, [](std::string_view) { FAIL(); });
    QTimer::singleShot(0, [] {
        auto *popup = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(popup);
        popup->setActiveAction(popup->actions().at(1));
        QKeyEvent ereignis(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(popup, &ereignis);
    });
    EXPECT_EQ(menüs.Popup("mnuSymbolEinfügen", {100, 100}, fläche), "mnuEinfügenWeiblich");
    EXPECT_EQ(haupt.lage.Aktion, AktionNichts);
}

TEST_F(Bedienung, ZeigerGiltNurAufDerSeite) {
    Zeigen();
    haupt.BefehlAusführen("cmdSymb(1)");
    Bewegen({400, 300});
    EXPECT_EQ(fläche.cursor().shape(), Qt::BitmapCursor);
    haupt.bereich.Scrollen(32767, 0); // the page's right edge comes into the frame
    Bewegen({960, 300});
    EXPECT_EQ(fläche.cursor().shape(), Qt::ArrowCursor);
}

TEST(Auflagenmaler, StehtAufJedemGerätAmSelbenOrt) {
    for (const double verhältnis : {1.0, 1.5, 2.0}) {
        QImage bild(QSize(200, 100) * verhältnis, QImage::Format_RGB32);
        bild.setDevicePixelRatio(verhältnis);
        bild.fill(Qt::black);
        Auflagen auflagen;
        auflagen.shpMask.Visible = auflagen.Line1.Visible = true; // parked: don't show
        EXPECT_FALSE(ZeigtAuflagen(auflagen));
        auflagen.shpPerson.Legen(1, 1, 2, 2);
        auflagen.shpPerson.Visible = true;
        QPainter p(&bild);
        AuflagenMalen(p, auflagen, 1, 30); // logical pixels a centimetre
        p.end();
        EXPECT_EQ(qRed(bild.pixel(QPoint(qRound(30 * verhältnis), qRound(60 * verhältnis)))), 251) << verhältnis;
        EXPECT_EQ(qRed(bild.pixel(QPoint(qRound(60 * verhältnis), qRound(60 * verhältnis)))), 0) << verhältnis;
        const QRect strich = Fleck(bild, qRgb(251, 59, 15));
        EXPECT_NEAR(strich.width(), 62 * verhältnis, 2) << verhältnis;
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
            EXPECT_EQ(knopf->toolTip(), knopf->accessibleName());
            namen.insert(knopf->accessibleName());
            EXPECT_TRUE(palette.rect().contains(knopf->geometry())) << höhe << knopf->toolTip().toStdString();
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
        EXPECT_EQ(erreicht.contains(knopf), knopf->isEnabled()) << knopf->toolTip().toStdString();
}

TEST_F(Palettentest, TasteDrücktMausLässtDenFokus) {
    fläche.setFocus();
    Taste(Qt::Key_Tab);
    Taste(Qt::Key_Right);
    Taste(Qt::Key_Return); // the second tool: female
    palette.Auffrischen();
    EXPECT_EQ(haupt.lage.Aktion, AktionPersonSetzen);
    EXPECT_EQ(haupt.lage.SymbolTyp, TypWeiblich);
    EXPECT_TRUE(Knöpfe()[1]->isChecked());
    EXPECT_FALSE(Knöpfe()[0]->isChecked());

    fläche.setFocus();
    Palettenknopf *männlich = Knöpfe()[0];
    for (const auto art : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent ereignis(art, QPointF(5, 5), männlich->mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                             art == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(männlich, &ereignis);
    }
    EXPECT_EQ(haupt.lage.SymbolTyp, TypMännlich);
    EXPECT_EQ(QApplication::focusWidget(), &fläche);

    haupt.bereich.WerkzeugleisteVerbergen();
    palette.Auffrischen();
    Taste(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &fläche); // the hidden palette is no stop
}

TEST_F(Bedienung, MenüsZeigenNurWasGeht) {
    Zeigen();
    QMenuBar leiste;
    Menüs menüs(haupt, [this](std::string_view name) { haupt.BefehlAusführen(name); });
    menüs.Bauen(leiste);
    menüs.Auffrischen();
    QAction *löschen = nullptr;
    int blätter = 0;
    QList<QAction *> offen = leiste.actions();
    while (!offen.isEmpty()) {
        QAction *aktion = offen.takeFirst();
        if (aktion->isSeparator()) continue;
        EXPECT_EQ(aktion->text(), aktion->text().trimmed());
        if (aktion->menu()) {
            EXPECT_FALSE(aktion->menu()->actions().isEmpty()) << aktion->text().toStdString();
            offen += aktion->menu()->actions();
            continue;
        }
        ++blätter;
        if (aktion->shortcut() == QKeySequence(Qt::Key_Delete)) löschen = aktion;
    }
    EXPECT_GT(blätter, 10);
    ASSERT_TRUE(löschen);
    EXPECT_EQ(löschen->text(), QStringLiteral("Delete"));
    EXPECT_FALSE(löschen->isEnabled());
    PersonSetzen({400, 300});
    Klicken({400, 300});
    menüs.Auffrischen();
    EXPECT_TRUE(löschen->isEnabled());
    löschen->trigger();
    EXPECT_EQ(haupt.dokument.cboPersonen.Anzahl(), 0);
}

} // namespace
