// Draws the manual's pictures of the real window and its forms, offscreen: fensterbilder LANGUAGE PROJECT FOLDER. What
// else it finds (settings, safety net) scripts/help-pictures has laid out.
#include "qt/fenster/Arbeitsflaeche.h"
#include "qt/fenster/Hauptfenster.h"
#include "qt/fenster/Statuszeile.h"
#include "qt/fenster/Symbolleiste.h"
#include "qt/fenster/Werkzeugpalette.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QMenuBar>
#include <QPainter>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <initializer_list>
#include <utility>

using namespace kw;

namespace {

constexpr int Ruhe = 600; // ms: behind every timer with which a window opens what it was started with

[[noreturn]] void Aufgeben(const QString &was) {
    std::fprintf(stderr, "fensterbilder: %s\n", was.toUtf8().constData());
    std::exit(1);
}

constexpr QSize Fenstermaß{960, 740};

/// What nobody who looks at the pictures needs to know.
void Schweigen(QtMsgType, const QMessageLogContext &, const QString &) {}

Arbeitsflaeche &Fläche(const Hauptfenster &fenster) { return *fenster.findChild<Arbeitsflaeche *>(); }

void Zeigen(Hauptfenster &fenster, QSize größe = Fenstermaß) {
    fenster.setGeometry(QRect(QPoint(), größe));
    fenster.show();
    fenster.activateWindow();
    while (!fenster.findChild<QMenuBar *>()) QTest::qWait(Ruhe);
    QTest::qWait(Ruhe);
}

void Tippen(const Hauptfenster &fenster, std::initializer_list<Qt::Key> tasten, Qt::KeyboardModifiers dazu = {}) {
    Fläche(fenster).setFocus();
    for (const Qt::Key taste : tasten) QTest::keyClick(&Fläche(fenster), taste, dazu);
    QTest::qWait(Ruhe);
}

/// Where on the page stands what a screen reader would call by a name that begins so.
QRect Ort(const Hauptfenster &fenster, const char *name) {
    QAccessibleInterface *seite = QAccessible::queryAccessibleInterface(&Fläche(fenster));
    for (int i = 0; seite && i < seite->childCount(); ++i)
        if (seite->child(i)->text(QAccessible::Name).startsWith(QString::fromUtf8(name)))
            return seite->child(i)->rect().translated(-Fläche(fenster).mapToGlobal(QPoint()));
    Aufgeben(QStringLiteral("not on the page: ") + QString::fromUtf8(name));
}

void Doppelklicken(const Hauptfenster &fenster, const char *name) {
    const QPoint ort = Ort(fenster, name).center();
    QTest::mouseClick(&Fläche(fenster), Qt::LeftButton, {}, ort);
    QTest::mouseDClick(&Fläche(fenster), Qt::LeftButton, {}, ort);
    QTest::qWait(Ruhe);
}

/// The numbers by which the manual tells of the window's parts.
void Beziffern(QImage &bild, const Hauptfenster &fenster) {
    const auto in = [&](const QWidget *teil, double x, double y) {
        if (!teil || !teil->isVisible()) Aufgeben(QStringLiteral("a part of the window doesn't show"));
        return QPointF(teil->mapTo(&fenster, QPoint())) + QPointF(teil->width() * x, teil->height() * y);
    };
    const Arbeitsflaeche &fläche = Fläche(fenster);
    QWidget *leiste = nullptr;
    for (auto *eine : fläche.findChildren<QScrollBar *>())
        if (eine->orientation() == Qt::Vertical) leiste = eine;
    QWidget *papierkorb = nullptr; // the lowest of the tools
    for (auto *knopf : fenster.findChild<Werkzeugpalette *>()->findChildren<QAbstractButton *>())
        if (knopf->isVisible() && (!papierkorb || knopf->y() > papierkorb->y())) papierkorb = knopf;
    const QPointF orte[] = {in(fenster.menuBar(), 0.4, 0.5),
                            in(fenster.findChild<Symbolleiste *>(), 0.95, 0.5),
                            in(papierkorb, 0.5, 1.9),
                            in(&fläche, 0.5, 0.1),
                            in(leiste, 0.5, 0.5),
                            in(fenster.findChild<Statuszeile *>(), 0.6, 0.5)};
    constexpr double Halbmesser = 13;
    QPainter p(&bild);
    p.setRenderHint(QPainter::Antialiasing);
    QFont schrift = fenster.font();
    schrift.setPixelSize(16);
    schrift.setBold(true);
    p.setFont(schrift);
    int nummer = 0;
    for (const QPointF &ort : orte) {
        const QRectF kreis = QRectF(ort, ort).adjusted(-Halbmesser, -Halbmesser, Halbmesser, Halbmesser);
        p.setPen(QPen(Qt::white, 2));
        p.setBrush(QColor(0xa4, 0x16, 0x1a));
        p.drawEllipse(kreis);
        p.drawText(kreis, Qt::AlignCenter, QString::number(++nummer));
    }
}

/// Takes the pictures; each has a name, to which the language comes.
class Aufnahme {
  public:
    Aufnahme(QString sprache, QString ordner) : sprache_(std::move(sprache)), ordner_(std::move(ordner)) {}

    void Sichern(const QPixmap &foto, const char *name) const { Sichern(foto.toImage(), name); }
    void Sichern(const QImage &foto, const char *name) const {
        QImage bild = foto.convertToFormat(QImage::Format_RGB32);
        bild.setDevicePixelRatio(1);
        const QString datei = QStringLiteral("%1/%2-%3.png").arg(ordner_, QLatin1String(name), sprache_);
        if (!bild.save(datei, "png", 0)) Aufgeben(datei);
    }

    /// The form that a deed opens, however much later, when what is to be chosen in it was; or the one that opens
    /// from that by a button.
    void Form(const char *name, const std::function<void()> &tat, const char *knopf = nullptr,
              const char *dahin = nullptr) const {
        QTimer uhr;
        int ticks = 0;
        QObject::connect(&uhr, &QTimer::timeout, &uhr, [&] {
            QWidget *form = QApplication::activeModalWidget();
            if (++ticks > 20) Aufgeben(QStringLiteral("no form for ") + QLatin1String(name));
            if (!form) return;
            if (dahin) { // not from here: no tick comes before this one is over
                auto *weiter = form->findChild<QAbstractButton *>(QLatin1String(std::exchange(dahin, nullptr)));
                return QTimer::singleShot(0, weiter, &QAbstractButton::click);
            }
            uhr.stop();
            if (knopf) form->findChild<QAbstractButton *>(QLatin1String(knopf))->click();
            QApplication::processEvents();
            Sichern(form->grab(), name);
            for (; form; form = QApplication::activeModalWidget()) QTest::keyClick(form, Qt::Key_Escape);
        });
        uhr.start(Ruhe);
        tat();
        while (uhr.isActive()) QTest::qWait(Ruhe);
    }

  private:
    QString sprache_, ordner_;
};

void FamilieAufnehmen(const Aufnahme &aufnahme, const std::string &projekt) {
    Hauptfenster fenster('"' + projekt + '"');
    Zeigen(fenster);
    QImage bild = fenster.grab().toImage();
    Beziffern(bild, fenster);
    aufnahme.Sichern(bild, "fenster");
    Tippen(fenster, {Qt::Key_J}, Qt::ControlModifier);
    aufnahme.Sichern(fenster.grab(), "ganz");
    QTest::mouseClick(&Fläche(fenster), Qt::LeftButton, {}, Ort(fenster, "Tom").center());
    fenster.Modell().BefehlAusführen("cmdSymb(13)");
    QTest::qWait(Ruhe);
    auto *zeile = fenster.findChild<Statuszeile *>();
    aufnahme.Sichern(zeile->grab({0, 0, 480, zeile->height()}), "statuszeile");
    Tippen(fenster, {Qt::Key_Escape, Qt::Key_Escape});
    // The oldest, a child, her brother.
    Tippen(fenster, {Qt::Key_Home, Qt::Key_Down, Qt::Key_Right});
    aufnahme.Sichern(Fläche(fenster).grab(Ort(fenster, "Martin").adjusted(-150, -135, 230, 95)), "tastatur");
    aufnahme.Form("stammbaumexport", [&] { fenster.Modell().BefehlAusführen("mnuStammbaumExport"); });
    aufnahme.Form("person", [&] { Doppelklicken(fenster, "Albert"); });
    aufnahme.Form(
        "ohne-namen", [&] { fenster.Modell().BefehlAusführen("mnuOhneNamen"); }, "optJahr");
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 4) return 2;
    qInstallMessageHandler(Schweigen);
    const QApplication anwendung(argc, argv);
    QApplication::setCursorFlashTime(0);
    const auto wort = [&](int i) { return QString::fromLocal8Bit(argv[i]); };
    const Aufnahme aufnahme(wort(1), wort(3));
    {
        Hauptfenster leer("");
        aufnahme.Form("fassungen", [&] { Zeigen(leer, {960, 480}); });
        aufnahme.Sichern(leer.grab(), "anfang");
    }
    FamilieAufnehmen(aufnahme, wort(2).toStdString());
    for (const auto &[name, knopf] :
         {std::pair<const char *, const char *>("stammbaum", nullptr), {"stammbaum-bericht", "cmdBericht"}}) {
        Hauptfenster stammbaum("stammbaum.ged");
        aufnahme.Form(
            name,
            [&] {
                Zeigen(stammbaum, {960, 480});
            },
            nullptr, knopf);
    }
    Hauptfenster fall("/dataimport fall");
    Zeigen(fall, {960, 480});
    aufnahme.Sichern(fall.grab(), "import");
    return 0;
}
