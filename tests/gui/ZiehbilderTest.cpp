// What a step of a drag repaints: as little as can be, and afterwards the screen shows what a whole repaint gives.
#include "document/Dateien.h"
#include "document/ProjektDatei.h"
#include "document/saetze/Person.h"
#include "editing/Werkzeuge.h"
#include "gui/Probeseite.h"

#include <QPaintEvent>
#include <QScreen>
#include <QTimer>

#include <gtest/gtest.h>

#include <random>

using namespace kw;

namespace {

/// Has the page shown anew where the window would.
struct Fensterbenutzer : DrehbuchBenutzer {
    using DrehbuchBenutzer::DrehbuchBenutzer;
    void AnzeigeAuffrischen() override {
        if (fläche) QTimer::singleShot(0, fläche, [this] { fläche->Auffrischen(); });
    }
    Arbeitsflaeche *fläche = nullptr;
};

class Ziehbilder : public testing::Test, protected Probeseite<Fensterbenutzer> {
  protected:
    Ziehbilder() : Probeseite({1000, 700}) {
        std::string inhalt;
        EXPECT_TRUE(DateiLesen(KW_TESTDATEN "/../samples/familie.kwp", inhalt).Gelungen());
        ProjektLesen(Profil(inhalt), innen.dokument);
        for (int i = 0; i < 3; ++i)
            innen.dokument.cboFreehandlines.Anhängen("3^3_" + std::to_string(9 + 5 * i) + "^4_12^15_4^12_3^3");
        innen.bereich.WerkzeugleisteZeigen();
        fläche.show();
        benutzer.fläche = &fläche;
        benutzer.FormularSpielen = [](Formular &, const std::vector<std::string> &) {}; // closes it
        fläche.installEventFilter(&lauscher);
    }

    void Zeigen(int zoom, int rechts, int unten) {
        innen.bereich.ZoomWählen(zoom);
        innen.bereich.Scrollen(rechts, unten);
        innen.fenster.Vorschau();
        haupt.ZeitgeberAbgelaufen(""); // an event has ended: what hangs on the document follows
        for (int i = 0; i < 3; ++i) QApplication::processEvents();
    }
    QImage Gezeigtes() { return fläche.screen()->grabWindow(fläche.winId()).toImage(); }

    /// One event of the pointer: what is on the screen then is all that should be. Gives how much was painted.
    qint64 Schritt(QEvent::Type art, QPoint ort, Qt::MouseButton taste, Qt::MouseButtons unten) {
        lauscher.Gemalt = 0;
        Maus(art, ort, taste, unten);
        for (int i = 0; i < 3; ++i) QApplication::processEvents(); // what one has changed the next shows
        QApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
        const qint64 gemalt = lauscher.Gemalt;
        const QImage zuSehen = Gezeigtes();
        fläche.repaint();
        EXPECT_TRUE(zuSehen == Gezeigtes()) << "at " << ort.x() << ' ' << ort.y() << " after " << zug;
        return gemalt;
    }
    /// Painted pixels of a step that redrew nothing, by those of the widget; the steps that did are left out.
    void Ziehen(const std::vector<QPoint> &weg) {
        Schritt(QEvent::MouseMove, weg.front(), Qt::NoButton, Qt::NoButton);
        Schritt(QEvent::MouseButtonPress, weg.front(), Qt::LeftButton, Qt::LeftButton);
        for (std::size_t i = 1; i < weg.size(); ++i) {
            const int bilder = leinwand.Bilder;
            const qint64 gemalt = Schritt(QEvent::MouseMove, weg[i], Qt::NoButton, Qt::LeftButton);
            if (leinwand.Bilder != bilder) continue;
            ++schritte;
            summe += static_cast<double>(gemalt) / (fläche.width() * fläche.height());
        }
        Schritt(QEvent::MouseButtonRelease, weg.back(), Qt::LeftButton, Qt::NoButton);
    }
    /// Where a person shows.
    QPoint PersonAufSchirm(int i) {
        const PersonSatz p(innen.dokument.cboPersonen.Satz(i));
        return Pixel(p.PosX(), p.PosY()).toPoint();
    }
    int Zahl(int von, int bis) { return std::uniform_int_distribution(von, bis)(zufall); }
    std::vector<QPoint> ZufälligerWeg() {
        const int anzahl = innen.dokument.cboPersonen.Anzahl();
        QPoint ort =
            Zahl(0, 2) > 0 && anzahl > 0 ? PersonAufSchirm(Zahl(0, anzahl - 1)) : QPoint(Zahl(80, 990), Zahl(0, 690));
        std::vector weg{ort};
        for (int i = Zahl(2, 7); i > 0; --i) weg.push_back(ort += QPoint(Zahl(-90, 110), Zahl(-90, 110)));
        return weg;
    }

    struct : QObject {
        bool eventFilter(QObject *, QEvent *e) override {
            if (e->type() == QEvent::Paint)
                for (const QRect &r : static_cast<QPaintEvent *>(e)->region())
                    Gemalt += static_cast<qint64>(r.width()) * r.height();
            return false;
        }
        qint64 Gemalt = 0; ///< pixels
    } lauscher;

    std::mt19937 zufall{14};
    std::string zug; ///< what is done, for a failure's words
    int schritte = 0;
    double summe = 0;
};

} // namespace

/// Persons, texts, lines, groups, circle lines, whatever lies there; tools and links in hand; out of the window and
/// back.
TEST_F(Ziehbilder, NachJedemSchrittIstZuSehenWasEinGanzesBildZeigte) {
    constexpr int Werkzeuge[] = {0,
                                 0,
                                 0,
                                 0,
                                 WerkzeugKreislinie,
                                 WerkzeugText,
                                 WerkzeugBeziehung,
                                 WerkzeugPartnerschaft,
                                 WerkzeugKind,
                                 WerkzeugPfeil,
                                 WerkzeugDoppelpfeil,
                                 1};
    for (const auto &[zoom, rechts, unten] :
         {std::tuple(0, 0, 0), std::tuple(2, 0, 0), std::tuple(7, 1300, 777), std::tuple(17, 9000, 6000)}) {
        Zeigen(zoom, rechts, unten);
        for (int i = 0; i < 12 && !HasFailure(); ++i) {
            const int werkzeug = Werkzeuge[Zahl(0, static_cast<int>(std::size(Werkzeuge)) - 1)];
            zug = "tool " + std::to_string(werkzeug) + ", zoom " + std::to_string(zoom) + ", drag " + std::to_string(i);
            if (werkzeug) haupt.BefehlAusführen(WerkzeugName(werkzeug));
            Ziehen(ZufälligerWeg());
        }
    }
    EXPECT_GT(schritte, 60);
}

/// A group's frame across the page, and a person: along their edges.
TEST_F(Ziehbilder, EinSchrittMaltNurWasSichÄndert) {
    Zeigen(2, 0, 0);
    Ziehen({{80, 5}, {500, 300}, {900, 600}});
    const QPoint mitte = PersonAufSchirm(0);
    Ziehen({mitte, mitte + QPoint(20, 10), mitte + QPoint(60, 60), mitte + QPoint(90, 70)});
    EXPECT_LT(summe / schritte, 0.08);
    Schritt(QEvent::MouseMove, {70, 650}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(Schritt(QEvent::MouseMove, {71, 655}, Qt::NoButton, Qt::NoButton), 0) << "nothing is dragged";
}
