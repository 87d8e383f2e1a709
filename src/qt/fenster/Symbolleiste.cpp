#include "qt/fenster/Symbolleiste.h"

#include "app/Anblick.h"
#include "commands/Bildertafel.h"
#include "commands/Menuetafel.h"
#include "platform/Bedienelemente.h"
#include "platform/Befehlsnamen.h"
#include "qt/fenster/Bandknopf.h"
#include "qt/fenster/Menues.h"
#include "qt/grund/Text.h"
#include "qt/grund/Vorlesename.h"
#include "qt/malen/Svgsinnbild.h"
#include "rendering/Ansicht.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QStyle>

#include <algorithm>
#include <iterator>
#include <utility>

namespace kw {

namespace {

/// The last rows of groups: a line stands behind them.
constexpr std::string_view Gruppenenden[] = {Name::btnDrucken,     Name::btnRedo,       Name::btnQuerformat,
                                             Name::btnBlattränder, Name::btnPapier,     Name::btnBildKleiner,
                                             Name::btnLegende,     Name::btnFarbschema, Name::btnAuswahlZuBild};

/// Of a drop-down whose choices have no pictures the button shows the choice in words.
bool ZeigtZustand(const Menüzeile &zeile) {
    const auto tafel = Menütafel();
    return std::any_of(tafel.begin(), tafel.end(),
                       [&](const Menüzeile &z) { return z.Menü == zeile.Name && Bildname(z.Name).empty(); });
}

/// " (Ctrl+O)", or nothing.
QString Kürzel(std::string_view name) {
    const Menüzeile *zeile = MenüzeileFinden(Menügleich(name));
    if (!zeile || zeile->Kürzel.empty()) return {};
    const QKeySequence taste(Text(zeile->Kürzel), QKeySequence::PortableText);
    return QStringLiteral(" (%1)").arg(taste.toString(QKeySequence::NativeText));
}

} // namespace

Symbolleiste::Symbolleiste(const Anblick &anblick, QWidget &leinwand, std::function<void(std::string_view)> ausführen)
    : anblick_(anblick), leinwand_(leinwand), ausführen_(std::move(ausführen)) {
    setObjectName(Text(Werkzeugband));
    setMovable(false);
    setMinimumHeight(Höhe());
    Bauen();
    Auffrischen();
}

int Symbolleiste::Höhe() {
    constexpr int Luft = 15; // edges of band and buttons
    return std::max(QApplication::style()->pixelMetric(QStyle::PM_ToolBarIconSize), Zeilenhöhe()) + Luft;
}

void Symbolleiste::Bauen() {
    for (const Menüzeile &zeile : Menütafel())
        if (zeile.Menü == Werkzeugband) KnopfAnlegen(zeile);
    MehrAnlegen();
}

/// The toolkit's button gets a picture that shows on dark themes too.
void Symbolleiste::MehrAnlegen() {
    mehr_ = findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"));
    if (!mehr_) return;
    const int kante = style()->pixelMetric(QStyle::PM_ToolBarExtensionExtent);
    mehr_->setIconSize({kante, kante});
    mehr_->setIcon(Svgsinnbild("mehr"));
    KnopfEinreihen(*mehr_);
}

void Symbolleiste::KnopfAnlegen(const Menüzeile &zeile) {
    auto *aktion = new QAction(this);
    aktion->setCheckable(IstAnkreuzbar(zeile.Name));
    Knopf knopf{&zeile, aktion};
    if (IstMenü(zeile)) AuswahlAnlegen(knopf);
    else connect(aktion, &QAction::triggered, this, [this, name = zeile.Name] { ausführen_(name); });
    knopf.Feld = new Bandknopf(*aktion, this);
    knopf.Feld->setIconSize(iconSize());
    connect(this, &QToolBar::iconSizeChanged, knopf.Feld, &QToolButton::setIconSize);
    KnopfEinreihen(*knopf.Feld);
    if (ZeigtZustand(zeile)) BreiteFestlegen(knopf);
    knopf.Platz = addWidget(knopf.Feld);
    if (std::find(std::begin(Gruppenenden), std::end(Gruppenenden), zeile.Name) != std::end(Gruppenenden))
        knopf.Trenner = addSeparator();
    knöpfe_.push_back(std::move(knopf));
}

void Symbolleiste::KnopfEinreihen(QToolButton &knopf) {
    knopf.installEventFilter(this);
    EnterDrückt(knopf);
    fokus_.Aufnehmen(knopf);
}

/// A button that only opens its menu, one row of which is ticked.
void Symbolleiste::AuswahlAnlegen(Knopf &knopf) {
    auto *menü = new QMenu(this);
    for (const Menüzeile &zeile : Menütafel()) {
        if (zeile.Menü != knopf.Zeile->Name) continue;
        QAction *aktion = menü->addAction(QString());
        aktion->setCheckable(true);
        connect(aktion, &QAction::triggered, this, [this, name = zeile.Name] { ausführen_(name); });
        knopf.Auswahl.push_back({&zeile, aktion});
    }
    knopf.Aktion->setMenu(menü);
}

/// As wide as its widest state: else its neighbours would move under the pointer that presses them.
void Symbolleiste::BreiteFestlegen(const Knopf &knopf) {
    constexpr int Spielraum = 8; // the state may be written with a blank more than the choice
    int breite = 0;
    knopf.Feld->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    knopf.Aktion->setIcon(Svgsinnbild(Bildname(knopf.Zeile->Name)));
    for (const Wahl &wahl : knopf.Auswahl) {
        knopf.Aktion->setText(Text(wahl.Zeile->Caption.Deutsch));
        breite = std::max(breite, knopf.Feld->sizeHint().width());
    }
    knopf.Feld->setMinimumWidth(breite + Spielraum);
}

void Symbolleiste::Auffrischen() {
    for (Knopf &knopf : knöpfe_) Zeigen(knopf);
    TrennerZeigen();
    TabstoppSetzen();
    VorlesenAls(*this, Text(Zweisprachig{"Symbolleiste", "Toolbar"}.In(anblick_.ansicht.Sprache)));
    if (!mehr_) return;
    const QString name = Text(Zweisprachig{"Mehr", "More"}.In(anblick_.ansicht.Sprache));
    mehr_->setToolTip(name);
    VorlesenAls(*mehr_, name);
}

void Symbolleiste::Zeigen(Knopf &knopf) {
    const Bedienelement *element = anblick_.bedienung.Finden(knopf.Zeile->Name);
    if (!element) return;
    knopf.Platz->setVisible(element->Visible);
    knopf.Aktion->setEnabled(element->Enabled);
    knopf.Aktion->setChecked(element->Checked);
    NameZeigen(knopf, *element);
    AuswahlZeigen(knopf);
}

void Symbolleiste::NameZeigen(const Knopf &knopf, const Bedienelement &element) {
    const QString text = Text(element.Caption).simplified();
    const QString name = Text(element.Tipp).simplified();
    knopf.Aktion->setText(text);
    knopf.Aktion->setToolTip(name + Kürzel(knopf.Zeile->Name));
    VorlesenAls(*knopf.Feld, name == text ? name : name + QStringLiteral(": ") + text);
    if (QMenu *menü = knopf.Aktion->menu()) VorlesenAls(*menü, name);
}

/// The ticks of a drop-down. When the ticked row has a picture, the button wears that.
void Symbolleiste::AuswahlZeigen(Knopf &knopf) {
    std::string_view bildzeile = knopf.Zeile->Name;
    for (const Wahl &wahl : knopf.Auswahl) {
        const Bedienelement *element = anblick_.bedienung.Finden(wahl.Zeile->Name);
        if (!element) continue;
        wahl.Aktion->setText(Menütext(*wahl.Zeile, element->Caption, anblick_.ansicht.Sprache));
        wahl.Aktion->setVisible(element->Visible);
        wahl.Aktion->setEnabled(element->Enabled);
        wahl.Aktion->setChecked(element->Checked);
        if (element->Checked && !Bildname(wahl.Zeile->Name).empty()) bildzeile = wahl.Zeile->Name;
    }
    if (std::exchange(knopf.Bildzeile, bildzeile) != bildzeile) knopf.Aktion->setIcon(Svgsinnbild(Bildname(bildzeile)));
}

/// A line only stands between buttons that show.
void Symbolleiste::TrennerZeigen() {
    QAction *offen = nullptr;
    bool einerDavor = false;
    for (const Knopf &knopf : knöpfe_) {
        if (knopf.Platz->isVisible()) {
            if (offen) offen->setVisible(true);
            offen = nullptr;
            einerDavor = true;
        }
        if (!knopf.Trenner) continue;
        if (einerDavor && !offen) offen = knopf.Trenner;
        else knopf.Trenner->setVisible(false);
    }
    if (offen) offen->setVisible(false);
}

/// From a button that has gone, the stop goes back to the first.
void Symbolleiste::TabstoppSetzen() {
    if (!fokus_.Erreichbar()) fokus_.Zurücksetzen();
    fokus_.StoppSetzen();
}

bool Symbolleiste::Taste(QToolButton &feld, int taste) {
    if (taste == Qt::Key_Left || taste == Qt::Key_Right) {
        fokus_.Gehen(feld, taste == Qt::Key_Left ? -1 : 1);
        return true;
    }
    if (taste != Qt::Key_Down) return false;
    const auto *knopf = dynamic_cast<const Bandknopf *>(&feld);
    if (knopf && knopf->ÖffnetMenü()) feld.click();
    return true;
}

bool Symbolleiste::eventFilter(QObject *empfänger, QEvent *ereignis) {
    auto *feld = static_cast<QToolButton *>(empfänger);
    if (ereignis->type() == QEvent::KeyPress) return Taste(*feld, static_cast<QKeyEvent *>(ereignis)->key());
    if (ereignis->type() == QEvent::MouseButtonPress) leinwand_.setFocus(Qt::MouseFocusReason);
    return false;
}

} // namespace kw
