#include "qt/zugang/Seitenzugang.h"

#include "qt/grund/Text.h"

#include <QTimer>

#include <algorithm>

namespace kw {

namespace {

/// What can be done to every element. What opens something answers the caller first: a reader that waits for the end
/// of a form takes the program for dead.
struct Tatzeile {
    QString Name;
    Elementtat Tat;
    Zweisprachig Wort;
    const char *Taste;
};

const std::vector<Tatzeile> &Taten() {
    using A = QAccessibleActionInterface;
    static const std::vector<Tatzeile> tafel{
        {A::pressAction(), Elementtat::Wählen, {"Markieren", "Select"}, "Space"},
        {QStringLiteral("Edit"), Elementtat::Bearbeiten, {"Bearbeiten", "Edit"}, "Return"},
        {A::showMenuAction(), Elementtat::MenüÖffnen, {"Menü öffnen", "Open menu"}, "Shift+F10"},
        {A::setFocusAction(), Elementtat::Fokussieren, {"Fokussieren", "Focus"}, ""},
    };
    return tafel;
}

const Tatzeile *TatMit(const QString &name) {
    const auto zeile = std::find_if(Taten().begin(), Taten().end(), [&](const Tatzeile &t) { return t.Name == name; });
    return zeile == Taten().end() ? nullptr : &*zeile;
}

QAccessibleInterface *Fabrik(const QString &, QObject *objekt) {
    const auto *rolle = dynamic_cast<MitRolle *>(objekt);
    if (rolle) return new QAccessibleWidget(static_cast<QWidget *>(objekt), rolle->Rolle());
    auto *seite = dynamic_cast<MitSeitenbaum *>(objekt);
    return seite ? new Leinwandzugang(seite->Baum().leinwand, seite->Baum()) : nullptr;
}

} // namespace

void SeitenzugangEinrichten() { QAccessible::installFactory(Fabrik); }

QString Elementzugang::text(QAccessible::Text was) const {
    const Elementzeile *zeile = baum_.Zeile(nummer);
    if (!zeile) return {};
    if (was == QAccessible::Name) return Text(zeile->Name);
    if (was == QAccessible::Description) return Text(zeile->Zusatz(baum_.quelle.InSprache()));
    return {};
}

QRect Elementzugang::rect() const {
    const Elementzeile *zeile = baum_.Zeile(nummer);
    if (!zeile) return {};
    QRect ort = baum_.Ort(*zeile);
    // What can be pointed at is what shows of it.
    if (const QRect sichtbar = ort & baum_.quelle.Sicht(); !sichtbar.isEmpty()) ort = sichtbar;
    return {baum_.leinwand.mapToGlobal(ort.topLeft()), ort.size()};
}

QAccessible::State Elementzugang::state() const {
    QAccessible::State stand;
    const Elementzeile *zeile = baum_.Zeile(nummer);
    if (!zeile) {
        stand.invalid = true;
        return stand;
    }
    stand.focusable = stand.selectable = stand.extSelectable = true;
    stand.selected = zeile->Gewählt;
    stand.focused = baum_.ElementHatFokus() && baum_.Fokuszugang() == this;
    stand.offscreen = !baum_.quelle.Sicht().intersects(baum_.Ort(*zeile));
    return stand;
}

void *Elementzugang::interface_cast(QAccessible::InterfaceType art) {
    return art == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
}

QStringList Elementzugang::actionNames() const {
    QStringList namen;
    for (const Tatzeile &tat : Taten()) namen += tat.Name;
    return namen;
}

QString Elementzugang::localizedActionName(const QString &name) const {
    const Tatzeile *tat = TatMit(name);
    return tat ? Text(tat->Wort.In(baum_.quelle.InSprache())) : QString();
}

QStringList Elementzugang::keyBindingsForAction(const QString &name) const {
    const Tatzeile *tat = TatMit(name);
    return tat && *tat->Taste ? QStringList(QString::fromLatin1(tat->Taste)) : QStringList();
}

void Elementzugang::doAction(const QString &name) {
    const Tatzeile *tat = TatMit(name);
    if (!tat) return;
    if (tat->Tat == Elementtat::Fokussieren) return baum_.Machen(nummer, tat->Tat);
    // By then this may be gone, and the element too.
    QTimer::singleShot(0, &baum_.leinwand, [baum = &baum_, nr = nummer, was = tat->Tat] { baum->Machen(nr, was); });
}

QAccessibleInterface *Leinwandzugang::child(int i) const {
    const int elemente = baum_.Anzahl();
    return i >= 0 && i < elemente ? baum_.Zugang(baum_.NummerAn(i)) : QAccessibleWidget::child(i - elemente);
}

int Leinwandzugang::indexOfChild(const QAccessibleInterface *kind) const {
    if (const auto *element = dynamic_cast<const Elementzugang *>(kind)) return baum_.StelleVon(element->nummer);
    const int stelle = QAccessibleWidget::indexOfChild(kind);
    return stelle < 0 ? stelle : baum_.Anzahl() + stelle;
}

/// Widgets lie over the page.
QAccessibleInterface *Leinwandzugang::childAt(int x, int y) const {
    if (QAccessibleInterface *teil = QAccessibleWidget::childAt(x, y)) return teil;
    return baum_.ZugangBei(baum_.leinwand.mapFromGlobal(QPoint(x, y)));
}

QAccessibleInterface *Leinwandzugang::focusChild() const {
    if (QAccessibleInterface *element = baum_.ElementHatFokus() ? baum_.Fokuszugang() : nullptr) return element;
    return QAccessibleWidget::focusChild();
}

QString Leinwandzugang::text(QAccessible::Text was) const {
    baum_.Wecken();
    return QAccessibleWidget::text(was);
}

/// Not two have the focus at once.
QAccessible::State Leinwandzugang::state() const {
    QAccessible::State stand = QAccessibleWidget::state();
    stand.multiSelectable = true;
    if (baum_.ElementHatFokus()) stand.focused = false;
    return stand;
}

} // namespace kw
