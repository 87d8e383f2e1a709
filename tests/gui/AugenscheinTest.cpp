// Every form and the window as they come up, in both languages and at three sizes of letters: what a user couldn't
// read or reach is found here.
#include "document/Dateien.h"
#include "gui/AlleFormulare.h"
#include "qt/fenster/Hauptfenster.h"
#include "qt/formulare/Formularfenster.h"
#include "replay/Aufzeichnung.h"
#include "replay/Einblick.h"
#include "replay/Programm.h"
#include "replay/Skript.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTimerEvent>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <sstream>

using namespace kw;

namespace {

/// Whether more is to be seen than a ground with a frame round it.
bool ZeigtEtwas(QWidget &teil) {
    const QImage bild = teil.grab().toImage().convertToFormat(QImage::Format_RGB32);
    constexpr int Rand = 2;
    for (int y = Rand; y < bild.height() - Rand; ++y)
        for (int x = Rand; x < bild.width() - Rand; ++x)
            if (bild.pixel(x, y) != bild.pixel(Rand, Rand)) return true;
    return false;
}

/// The room that a widget needs for what it says.
QSize Bedarf(const QWidget &teil) {
    const auto *schild = dynamic_cast<const QLabel *>(&teil);
    if (schild && schild->wordWrap()) return {schild->minimumSizeHint().width(), schild->heightForWidth(teil.width())};
    const bool spricht = schild || dynamic_cast<const QAbstractButton *>(&teil);
    constexpr QSize Luft(0, 1); // the status bar is as high as was reckoned before its letters were known
    return (spricht ? teil.sizeHint() : teil.minimumSizeHint()) - Luft;
}

/// What it says, to the eye or to whoever can't see it; nothing for what isn't there to say something.
std::optional<QString> Aufschrift(const QWidget &teil) {
    if (const auto *schild = dynamic_cast<const QLabel *>(&teil)) return schild->text();
    if (const auto *rahmen = dynamic_cast<const QGroupBox *>(&teil)) return rahmen->title();
    if (const auto *liste = dynamic_cast<const QComboBox *>(&teil)) return liste->itemText(0);
    const auto *knopf = dynamic_cast<const QAbstractButton *>(&teil);
    if (!knopf) return std::nullopt;
    return knopf->text().isEmpty() ? knopf->accessibleName() : knopf->text();
}

/// A caption's second line, which only German needs; the name of what is pointed at.
bool DarfSchweigen(const QWidget &teil) {
    return (teil.objectName() == QLatin1String("Label1") &&
            teil.window()->windowTitle() == QLatin1String("Relationship")) ||
           dynamic_cast<QStatusBar *>(teil.parentWidget());
}

/// What is wrong with one that shows; empty when it is whole.
std::string Mangel(const QWidget &teil) {
    const QWidget &eltern = *teil.parentWidget();
    if (dynamic_cast<const QComboBox *>(&eltern)) return ""; // its line is of its own make
    if (teil.width() < Bedarf(teil).width() || teil.height() < Bedarf(teil).height()) return "clipped";
    const auto *liste = dynamic_cast<const QListWidget *>(&teil);
    if (liste && liste->horizontalScrollBar()->maximum() > 0) return "a line is cut off";
    const bool rollt = dynamic_cast<QAbstractScrollArea *>(eltern.parentWidget());
    if (!rollt && !eltern.rect().contains(teil.geometry())) return "outside";
    if (!Aufschrift(teil)) return "";
    if (Aufschrift(teil)->isEmpty() && !DarfSchweigen(teil)) return "empty";
    for (const QWidget *anderer : eltern.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        if (anderer != &teil && anderer->isVisible() && Aufschrift(*anderer) &&
            anderer->geometry().intersects(teil.geometry()))
            return "covers " + Aufschrift(*anderer)->toStdString();
    return "";
}

/// Looks at all that shows in a window, and tells each fault with the name of what has it.
void Ansehen(const QWidget &fenster, const std::string &wo) {
    int gesehen = 0;
    for (const QWidget *teil : fenster.findChildren<QWidget *>()) {
        if (!teil->isVisible() || teil->isWindow()) continue;
        ++gesehen;
        EXPECT_EQ(Mangel(*teil), "") << wo << " " << teil->metaObject()->className() << " "
                                     << teil->objectName().toStdString() << " "
                                     << Aufschrift(*teil).value_or(QString()).toStdString();
    }
    EXPECT_GT(gesehen, 1) << wo;
    EXPECT_FALSE(fenster.windowTitle().isEmpty()) << wo;
}

class Augenschein : public testing::Test {
  protected:
    Augenschein() { qputenv("CUPS_SERVER", "localhost:1"); } // nobody is there
    ~Augenschein() override {
        QApplication::setFont(vorher_);
        qunsetenv("CUPS_SERVER");
    }
    /// Runs `prüfen` with each language, and a name for what is looked at, at each size of letters.
    void Überall(const std::function<void(const std::string &sprache, const std::string &wo)> &prüfen) {
        for (const int punkt : {7, 10, 16}) {
            QFont schrift = vorher_;
            schrift.setPointSize(punkt);
            QApplication::setFont(schrift);
            for (const std::string sprache : {"de", "en"}) prüfen(sprache, sprache + " " + std::to_string(punkt));
        }
    }

  private:
    const QFont vorher_ = QApplication::font();
};

/// Shows the form as it comes up, looks, and closes it.
void FormAnsehen(Formular &form, const std::string &wo) {
    Formularfenster fenster(form, nullptr);
    QTimer::singleShot(0, &fenster, [&] {
        QApplication::processEvents();
        Ansehen(fenster, wo);
        for (const auto &name : form.Reihenfolge()) {
            auto *bild = fenster.findChild<QWidget *>(QString::fromStdString(name));
            if (form[name].Kind != Art::Bild || !bild->isVisible()) continue;
            EXPECT_TRUE(ZeigtEtwas(*bild)) << wo << " " << name << ": draws nothing";
        }
        fenster.close();
    });
    fenster.Ausführen();
}

TEST_F(Augenschein, FormulareZeigenAllesGanz) {
    Überall([](const std::string &sprache, const std::string &wo) {
        std::set<std::string> gezeigt;
        AlleFormulare(sprache, [&](Formular &form) {
            FormAnsehen(form, wo + " " + form.Name());
            gezeigt.insert(form.Name());
        });
        // Each form has a header of its own: none is forgotten here.
        const QDir formulare(QStringLiteral(KW_TESTDATEN "/../src/dialogs"));
        EXPECT_EQ(gezeigt.size(), formulare.entryList({QStringLiteral("frm*.h")}).size());
    });
}

/// The first project of what is dropped on the window opens, when the box that is read has gone.
void Fallenlassen(Hauptfenster &fenster) {
    const QByteArray ordner = QByteArray("file://" KW_TESTDATEN "/../samples/");
    const QString vorher = fenster.windowTitle();
    QMimeData inhalt;
    for (const QByteArray &liste : {QByteArray("http://x/a.kwp\r\n"), "file://anderswo" + ordner.mid(7) + "zeichen.kwp",
                                    ordner + "bild.png\r\n" + ordner + "%7Aeichen.kwp\r\n" + ordner + "familie.kwp"}) {
        inhalt.setData(QStringLiteral("text/uri-list"), liste);
        QDragEnterEvent herein({50, 50}, Qt::CopyAction, &inhalt, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&fenster, &herein);
        EXPECT_EQ(herein.isAccepted(), liste.contains(".png")) << liste.toStdString();
        QDropEvent fallen({50, 50}, Qt::CopyAction, &inhalt, Qt::LeftButton, Qt::NoModifier);
        QMessageBox kasten(&fenster);
        kasten.open();
        QApplication::sendEvent(&fenster, &fallen);
        QApplication::processEvents();
        EXPECT_EQ(fenster.windowTitle(), vorher);
    }
    while (fenster.windowTitle() == vorher) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_TRUE(fenster.windowTitle().endsWith(QStringLiteral("zeichen.kwp")));
}

/// What is handed over while the window asks about its changes waits: for the page when it stays, else for another
/// start.
void ImSchließenÜbergeben(Hauptfenster &fenster) {
    const std::string datei = KW_TESTDATEN "/../samples/familie.kwp";
    fenster.Modell().BefehlAusführen("btnHochformat");
    QTimer::singleShot(0, &fenster, [&] {
        auto *frage = dynamic_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_TRUE(frage);
        fenster.Übernehmen(datei);
        QApplication::processEvents();
        frage->button(QMessageBox::No)->click();
    });
    EXPECT_TRUE(fenster.close());
    EXPECT_EQ(fenster.Wartende(), std::deque{datei});
    fenster.Beenden(); // the session's end opens nothing
    EXPECT_TRUE(fenster.Wartende().empty());
}

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

/// Chooses all that can be chosen in a form with pictures, one after the other: each gives another picture.
TEST_F(Augenschein, BilderFolgenDerWahl) {
    std::ostringstream aus;
    Wiedergabe lauf(aus);
    lauf.Zeile("start");
    std::map<std::string, size_t> anzahl;
    lauf.Läuft().benutzer.FormularSpielen = [&](Formular &form, const auto &) {
        if (anzahl.contains(form.Name())) return; // it has another face the second time
        form.Laden();
        std::set<std::string> bilder;
        const auto ansehen = [&](const std::string &wahl) {
            const std::string bild = Gezeigt(form);
            EXPECT_TRUE(bild.empty() || bilder.insert(bild).second) << form.Name() << " " << wahl;
        };
        for (const auto &name : form.Reihenfolge()) {
            const Steuerelement &element = *form.Finden(name);
            if (element.Kind == Art::Option) form.Drücken(name), ansehen(name);
            for (int i = 0; element.Kind == Art::Liste && i < static_cast<int>(element.Einträge.size()); ++i)
                form.Wählen(name, i), ansehen(element.Einträge[static_cast<size_t>(i)]);
        }
        form.Entladen();
        anzahl[form.Name()] = bilder.size();
    };
    std::istringstream skript(Formulare);
    EXPECT_EQ(lauf.Ausführen(skript), 0) << aus.str();
    const std::map<std::string, size_t> soll{
        {"frmSymbol", 10}, {"frmPLinien", 4}, {"frmBezLinien", 8}, {"frmSymbGlobal", 3}, {"frmLegende", 2}};
    for (const auto &[form, bilder] : soll) EXPECT_EQ(anzahl[form], bilder) << form;
}

/// The title bar says whether there is something to save; what the program calls the window stays as it is.
void ÄnderungenZeigen(Hauptfenster &fenster) {
    bool &geändert = Einblick(fenster.Modell()).projekt.Geändert;
    for (const bool soll : {true, false}) {
        geändert = soll;
        fenster.AnzeigeAuffrischen();
        QApplication::processEvents();
        EXPECT_EQ(fenster.isWindowModified(), soll);
        EXPECT_EQ(fenster.windowTitle(), "[*]" + QString::fromStdString(fenster.Modell().DerAnblick().Titel));
    }
}

/// The only test that starts the window: its settings are those beside the program that runs the tests.
TEST_F(Augenschein, FensterZeigtAllesGanz) {
    const std::string einstellungen = QCoreApplication::applicationDirPath().toStdString() + "/prog.ini";
    Überall([&](const std::string &sprache, const std::string &wo) {
        const std::string inhalt = "[DEFAULT]\r\nlanguage=" + sprache + "\r\nwindow=-9000,60,700,600,0\r\n";
        ASSERT_TRUE(DateiSchreiben(einstellungen, inhalt).Gelungen());
        Hauptfenster fenster("\"" KW_TESTDATEN "/../samples/familie.kwp\"");
        const QRect schirm = fenster.screen()->availableGeometry();
        EXPECT_TRUE(schirm.contains(fenster.geometry())) << "left on a screen that has gone";
        fenster.setGeometry(40, 60, 1400, 900);
        fenster.show();
        while (!fenster.findChild<QMenuBar *>()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        for (QTimer *zeitgeber : fenster.findChildren<QTimer *>()) { // the project is opened a moment later
            QTimerEvent abgelaufen(zeitgeber->timerId());
            QApplication::sendEvent(zeitgeber, &abgelaufen);
        }
        QApplication::processEvents();
        Ansehen(fenster, wo);
        EXPECT_EQ(fenster.menuBar()->actions().front()->text(), sprache == "de" ? "&Datei" : "&File");
        EXPECT_TRUE(fenster.windowTitle().contains(QStringLiteral("familie"))) << fenster.windowTitle().toStdString();
        for (QWidget *teil : {static_cast<QWidget *>(fenster.menuBar()), fenster.centralWidget()})
            EXPECT_TRUE(ZeigtEtwas(*teil)) << wo;
        Fallenlassen(fenster);
        ÄnderungenZeigen(fenster);
        EXPECT_FALSE(QMessageBox(&fenster).windowIcon().isNull()) << "not installed";
        fenster.showMinimized();
        fenster.NachVorn();
        EXPECT_FALSE(fenster.isMinimized());
        EXPECT_TRUE(fenster.close()) << "nothing has changed, nothing is asked";
        EXPECT_EQ(ProfilLesen(einstellungen, "DEFAULT", "window"), "40,60,1400,900,0");
        fenster.show();
        ImSchließenÜbergeben(fenster);
        QFile::remove(QString::fromStdString(einstellungen));
    });
}

} // namespace
