// A user in front of the real window: presses, drags, keys and menus at random, and whatever opens is answered.
#include "absturz/Protokoll.h"
#include "absturz/Sitzungen.h"

#include "app/Projekt.h"
#include "document/Dateien.h"
#include "qt/fenster/Arbeitsflaeche.h"
#include "qt/fenster/Hauptfenster.h"
#include "qt/formulare/Formularfenster.h"
#include "replay/Einblick.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <array>
#include <iterator>
#include <optional>
#include <random>

namespace kw {

namespace {

class Fensternutzer {
  public:
    Fensternutzer(Hauptfenster &fenster, unsigned saat, int schritte)
        : schritte_(schritte), fenster_(fenster), fläche_(*fenster.findChild<Arbeitsflaeche *>()),
          innen_(fenster.Modell()), zufall_(saat) {}

    const Einblick &Innen() const { return innen_; }

    /// The next deed stands ready before this one, since this one can wait for it in a box.
    void Handeln() {
        if (schritte_-- == 0) return QApplication::exit();
        QTimer::singleShot(0, &fenster_, [this] { Handeln(); });
        QWidget *offen = QApplication::activeModalWidget();
        QWidget *menü = QApplication::activePopupWidget();
        if (++tiefe_ == 1 && !offen && !menü) Festhalten(Eintrag::Art::Fertig, StandVon(innen_));
        if (menü) ImMenü(*menü);
        else if (auto *kasten = dynamic_cast<QMessageBox *>(offen)) ImKasten(*kasten);
        else if (auto *dateien = dynamic_cast<QFileDialog *>(offen)) BeimDateinamen(*dateien);
        else if (auto *form = dynamic_cast<Formularfenster *>(offen)) InDerForm(*form);
        else if (offen) QTest::keyClick(offen, Qt::Key_Escape);
        else AufDerSeite();
        --tiefe_;
    }

  private:
    int Würfel(qsizetype seiten) { return static_cast<int>(zufall_() % static_cast<size_t>(seiten)); }
    auto &Eines(auto &&viele) { return *std::next(viele.begin(), Würfel(static_cast<qsizetype>(viele.size()))); }

    void ImMenü(QWidget &menü) {
        for (int i = Würfel(8); i > 0; --i) QTest::keyClick(&menü, Qt::Key_Down);
        QTest::keyClick(&menü, Würfel(3) ? Qt::Key_Return : Qt::Key_Escape);
    }
    void ImKasten(QMessageBox &kasten) {
        const auto knöpfe = kasten.buttons();
        QAbstractButton *knopf = Eines(knöpfe);
        if (kasten.standardButton(knopf) == QMessageBox::No) Festhalten("answer no");
        knopf->click();
    }
    void BeimDateinamen(QFileDialog &dialog) {
        constexpr std::array Namen{"eins.kwp", "zwei.kwp", "drei.kwp", "bild.bmp"};
        auto *zeile = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (!zeile || Würfel(6) == 0) return dialog.reject();
        zeile->setText(QStringLiteral("%1/%2").arg(QDir::currentPath(), QLatin1String(Eines(Namen))));
        QTest::keyClick(zeile, Qt::Key_Return);
        if (QApplication::activeModalWidget() == &dialog) dialog.reject(); // a file that isn't there
    }
    void InDerForm(Formularfenster &form) {
        if (form.findChild<QWidget *>(QStringLiteral("lstFassungen"))) return form.reject();
        for (auto *zeile : form.findChildren<QLineEdit *>())
            if (Würfel(3) == 0) QTest::keyClicks(zeile, QStringLiteral("Ü%1").arg(Würfel(2000)));
        QList<QAbstractButton *> knöpfe = form.findChildren<QAbstractButton *>();
        knöpfe.removeIf([](QAbstractButton *knopf) { return !knopf->isEnabled() || !knopf->isVisible(); });
        if (Würfel(4) == 0 || knöpfe.isEmpty()) QTest::keyClick(&form, Qt::Key_Escape);
        else Eines(knöpfe)->click();
    }
    QPoint Ort() { return {80 + Würfel(fläche_.width() - 120), 20 + Würfel(fläche_.height() - 60)}; }
    /// Mostly where something stands by now.
    QPoint Wieder() { return Würfel(4) ? Eines(orte_) : Ort(); }

    void AufDerSeite() {
        if (Würfel(3) == 0) Eines(orte_) = Ort();
        switch (Würfel(8)) {
        case 0:
        case 1: Werkzeug(); [[fallthrough]];
        case 2: QTest::mouseClick(&fläche_, Qt::LeftButton, {}, Wieder()); break;
        case 3: Ziehen(Wieder(), Wieder()); break;
        case 4: QTest::mouseClick(&fläche_, Qt::RightButton, {}, Wieder()); break;
        case 5: Taste(); break;
        case 6: Menübefehl(); break;
        default: QTest::mouseDClick(&fläche_, Qt::LeftButton, {}, Wieder());
        }
    }
    void Ziehen(QPoint von, QPoint nach) {
        QTest::mousePress(&fläche_, Qt::LeftButton, {}, von);
        for (const QPoint ort : {(von + nach) / 2, nach}) {
            QMouseEvent zug(QEvent::MouseMove, ort, fläche_.mapToGlobal(ort), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&fläche_, &zug);
        }
        QTest::mouseRelease(&fläche_, Qt::LeftButton, {}, nach);
    }
    void Werkzeug() {
        const auto knöpfe = fläche_.findChildren<QAbstractButton *>();
        if (!knöpfe.isEmpty()) QTest::mouseClick(knöpfe[Würfel(Würfel(2) ? 2 : knöpfe.size())], Qt::LeftButton);
    }
    void Taste() {
        constexpr std::array Tasten{Qt::Key_S, Qt::Key_S, Qt::Key_Z, Qt::Key_Y, Qt::Key_C, Qt::Key_V, Qt::Key_X};
        if (Würfel(4) == 0) QTest::keyClick(&fläche_, Qt::Key_Delete);
        else QTest::keyClick(&fläche_, Eines(Tasten), Qt::ControlModifier);
    }
    /// Anything but what starts other programs, or prints.
    void Menübefehl() {
        auto befehle = fenster_.findChildren<QAction *>();
        befehle.removeIf([](QAction *b) {
            const QString text = b->text();
            return b->menu() || !b->isEnabled() || text.contains(QLatin1String("Help")) ||
                   text.contains(QLatin1String("Update")) || text.contains(QLatin1String("Print"));
        });
        if (!befehle.isEmpty()) Eines(befehle)->trigger();
    }

    int schritte_; ///< still to do
    Hauptfenster &fenster_;
    Arbeitsflaeche &fläche_;
    const Einblick innen_;
    std::mt19937_64 zufall_;
    std::array<QPoint, 6> orte_{QPoint{300, 200}, {500, 200}, {400, 350}, {300, 350}, {500, 350}, {600, 250}};
    int tiefe_ = 0;
};

int Laufen(const std::string &kommandozeile, const std::function<void(Hauptfenster &)> &nutzer) {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    int argc = 1;
    std::string name = "kinwright";
    char *argv[] = {name.data(), nullptr};
    const QApplication anwendung(argc, argv);
    Hauptfenster fenster(kommandozeile);
    fenster.show();
    fenster.activateWindow();
    nutzer(fenster);
    return QApplication::exec();
}

} // namespace

int Fenstersitzung(unsigned saat, const std::string &datei, int schritte) {
    std::optional<Fensternutzer> nutzer;
    const int ende = Laufen(datei.empty() ? "" : '"' + datei + '"', [&](Hauptfenster &fenster) {
        nutzer.emplace(fenster, saat, schritte);
        ProtokollBeginnen("../protokoll", [&] { return &nutzer->Innen(); });
        QTimer::singleShot(0, &fenster, [&] { nutzer->Handeln(); });
    });
    Festhalten(Eintrag());
    ::_exit(ende);
}

int Fensterneustart(int platz, const std::string &ziel) {
    constexpr int Geduld = 10000; // ms
    return Laufen("", [&](Hauptfenster &fenster) {
        auto *uhr = new QTimer(&fenster);
        QTimer::singleShot(Geduld, uhr, [] { QApplication::exit(1); });
        uhr->start(5);
        QObject::connect(uhr, &QTimer::timeout, uhr, [&fenster, uhr, platz, ziel] {
            QWidget *form = QApplication::activeModalWidget();
            auto *liste = form ? form->findChild<QAbstractItemView *>(QStringLiteral("lstFassungen")) : nullptr;
            if (!liste) return;
            uhr->stop();
            liste->setCurrentIndex(liste->model()->index(platz, 0));
            form->findChild<QAbstractButton *>(QStringLiteral("cmdÖffnen"))->click();
            DateiSchreiben(ziel, StandVon(Einblick(fenster.Modell())).Projekt);
            QApplication::exit(0);
        });
    });
}

} // namespace kw
