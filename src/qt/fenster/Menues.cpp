#include "qt/fenster/Menues.h"

#include "app/frmMain.h"
#include "commands/Menuetafel.h"
#include "document/Texte.h"
#include "qt/grund/Text.h"
#include "qt/grund/Vorlesename.h"
#include "qt/malen/Zeilenbild.h"
#include "rendering/Ansicht.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kw {

namespace {

bool IstTrennstrich(const Menüzeile &zeile) { return zeile.Caption.Englisch == Trennstrich; }

/// The toolkit takes a single "&" for its own.
QString OhneMarken(const std::string &text) { return Text(text).replace(u'&', QLatin1String("&&")); }

/// Menus show none unless they are told to.
void TippZeigen(QAction &aktion, const std::string &tipp) {
    aktion.setToolTip(Tipptext(tipp));
    if (auto *menü = qobject_cast<QMenu *>(aktion.parent())) menü->setToolTipsVisible(true);
}

/// As the key does it: when the bar is given the first menu instead, readers don't speak those that follow.
void AltTippen(QWidget &fenster) {
    QWidget *ziel = QApplication::focusWidget() ? QApplication::focusWidget() : &fenster;
    for (const auto art : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(
            ziel, new QKeyEvent(art, Qt::Key_Alt, art == QEvent::KeyPress ? Qt::AltModifier : Qt::NoModifier));
}

/// Sees to a press that dismisses a popup: it is a click on what lies there, as a popup's press is nobody's else.
class Danebenklick : public QObject {
  public:
    Danebenklick() { qApp->installEventFilter(this); }

    /// Once the popup is gone.
    void Nachreichen(const QWidget &fenster) const {
        QWidget *ziel = taste_ == Qt::NoButton ? nullptr : QApplication::widgetAt(ort_);
        if (!ziel || ziel->window() != &fenster) return;
        const QPoint ort = ziel->mapFromGlobal(ort_);
        for (const auto art : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(ziel, new QMouseEvent(art, ort, ort_, taste_,
                                                              art == QEvent::MouseButtonPress ? taste_ : Qt::NoButton,
                                                              Qt::NoModifier));
    }

  protected:
    bool eventFilter(QObject *empfänger, QEvent *ereignis) override {
        if (ereignis->type() != QEvent::MouseButtonPress || !qobject_cast<QMenu *>(empfänger)) return false;
        const auto *maus = static_cast<QMouseEvent *>(ereignis);
        const QPoint ort = maus->globalPosition().toPoint();
        if (qobject_cast<QMenu *>(QApplication::widgetAt(ort))) return false;
        ort_ = ort;
        taste_ = maus->button();
        return false;
    }

  private:
    QPoint ort_;
    Qt::MouseButton taste_ = Qt::NoButton;
};

} // namespace

/// Without the blanks that once aligned columns, and without the key's name behind it: the menu shows the shortcut
/// itself.
QString Menütext(const Menüzeile &zeile, const std::string &caption, Sprache sprache) {
    std::string_view text = Getrimmt(caption);
    if (!zeile.Kürzel.empty()) text = text.substr(0, text.find("  "));
    const Kennstelle stelle = KennstelleIn(zeile, text, sprache);
    if (stelle.Ab.empty()) return OhneMarken(stelle.Davor);
    return OhneMarken(stelle.Davor) + u'&' + OhneMarken(stelle.Ab);
}

int Zeilenhöhe() {
    constexpr double Zeile = 1.4; // of the font's size: enough for the usual fonts
    const QFont schrift = QApplication::font();
    const double punkt = QGuiApplication::primaryScreen()->logicalDotsPerInchY() / 72;
    const double größe = schrift.pixelSize() > 0 ? schrift.pixelSize() : schrift.pointSizeF() * punkt;
    return static_cast<int>(std::ceil(größe * Zeile));
}

Menüs::Menüs(frmMain &haupt, std::function<void(std::string_view)> ausführen)
    : haupt_(haupt), anblick_(haupt.DerAnblick()), ausführen_(std::move(ausführen)) {}

void Menüs::Füllen(QMenu &menü, std::string_view name, std::vector<Eintrag> &einträge) {
    for (const Menüzeile &zeile : Menütafel()) {
        if (zeile.Menü != name) continue;
        if (IstTrennstrich(zeile)) {
            einträge.push_back({&zeile, menü.addSeparator()});
        } else if (IstMenü(zeile)) {
            QMenu *unter = menü.addMenu(QString());
            unter->setIcon(Menübild(zeile.Name, anblick_.uhr));
            einträge.push_back({&zeile, unter->menuAction()});
            Füllen(*unter, zeile.Name, einträge);
        } else {
            QAction *aktion = menü.addAction(Menübild(zeile.Name, anblick_.uhr), QString());
            aktion->setData(Text(zeile.Name));
            einträge.push_back({&zeile, aktion});
        }
    }
}

int Menüs::Höhe() {
    constexpr int Luft = 6; // above and below the words
    return Zeilenhöhe() + Luft;
}

void Menüs::Bauen(QMenuBar &leiste) {
    leiste_ = &leiste;
    leiste.setMinimumHeight(Höhe());
    for (const Menüzeile &zeile : Menütafel()) {
        if (zeile.Menü != Menüleiste) continue;
        QMenu *menü = leiste.addMenu(QString());
        einträge_.push_back({&zeile, menü->menuAction()});
        Füllen(*menü, zeile.Name, einträge_);
        QObject::connect(menü, &QMenu::aboutToShow, menü, [this] {
            if (QGuiApplication::mouseButtons() == Qt::NoButton && !leiste_->underMouse()) haupt_.TastaturBenutzt();
            Auffrischen();
        });
    }
    // The keyboard's way in without a letter.
    const auto *öffnen = new QShortcut(QKeySequence(Qt::Key_F10), &leiste);
    QObject::connect(öffnen, &QShortcut::activated, &leiste, [&leiste] { AltTippen(*leiste.window()); });
    for (const auto &[zeile, aktion] : einträge_) {
        if (!zeile->Kürzel.empty()) aktion->setShortcut(QKeySequence(Text(zeile->Kürzel), QKeySequence::PortableText));
        if (!aktion->menu() && !aktion->isSeparator())
            QObject::connect(aktion, &QAction::triggered, aktion, [this, name = zeile->Name] { ausführen_(name); });
    }
}

void Menüs::Zeigen(const Eintrag &eintrag) {
    const Bedienelement *element = anblick_.bedienung.Finden(eintrag.Zeile->Name);
    if (!element) return;
    eintrag.Aktion->setVisible(element->Visible);
    if (eintrag.Aktion->isSeparator()) return;
    eintrag.Aktion->setText(Menütext(*eintrag.Zeile, element->Caption, anblick_.ansicht.Sprache));
    if (!element->Tipp.empty()) TippZeigen(*eintrag.Aktion, element->Tipp);
    if (QMenu *unter = eintrag.Aktion->menu()) VorlesenAls(*unter, eintrag.Aktion->text());
    eintrag.Aktion->setEnabled(element->Enabled);
    eintrag.Aktion->setCheckable(IstAnkreuzbar(eintrag.Zeile->Name));
    eintrag.Aktion->setChecked(element->Checked);
}

void Menüs::Auffrischen() {
    if (einträge_.empty()) return;
    VorlesenAls(*leiste_, Text(Zweisprachig{"Menüs", "Menus"}.In(anblick_.ansicht.Sprache)));
    haupt_.mnuBearbeiten_Öffnen();
    for (const Eintrag &eintrag : einträge_) Zeigen(eintrag);
}

std::optional<std::string> Menüs::Popup(std::string_view menü, QPoint ort, QWidget &fenster) {
    const QPointer<QMenu> popup = new QMenu(&fenster);
    VorlesenAls(*popup, Text(Zweisprachig{"Kontextmenü", "Context Menu"}.In(anblick_.ansicht.Sprache)));
    std::vector<Eintrag> einträge;
    Füllen(*popup, menü, einträge);
    for (const Eintrag &eintrag : einträge) Zeigen(eintrag);
    popup->setAttribute(Qt::WA_NoMouseReplay); // not by the toolkit too
    const Danebenklick daneben;
    const QAction *gewählt = popup->isEmpty() ? nullptr : popup->exec(ort);
    std::optional<std::string> name;
    if (popup && gewählt) name = gewählt->data().toString().toStdString();
    else if (popup) daneben.Nachreichen(fenster);
    delete popup;
    return name;
}

} // namespace kw
