#pragma once

#include "qt/zugang/Seitenbaum.h"

#include <QAccessibleInterface>
#include <QAccessibleWidget>

namespace kw {

/// One element of the page. Reads the tree's rows, which outlive it or don't have it any more.
class Elementzugang : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    Elementzugang(Seitenbaum &baum, int nummer_) : nummer(nummer_), baum_(baum) {}

    bool isValid() const override { return baum_.Zeile(nummer) != nullptr; }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return baum_.leinwand.window()->windowHandle(); }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(&baum_.leinwand); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text was) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType art) override;

    QStringList actionNames() const override;
    QString localizedActionName(const QString &name) const override;
    QString localizedActionDescription(const QString &name) const override { return localizedActionName(name); }
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

    const int nummer;

  private:
    Seitenbaum &baum_;
};

/// Words that are read out at once: readers speak what has this role when it shows.
class Durchsage : public QAccessibleInterface {
  public:
    Durchsage(QWidget &leinwand, QString text) : leinwand_(leinwand), text_(std::move(text)) {}

    bool isValid() const override { return true; }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return leinwand_.window()->windowHandle(); }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(&leinwand_); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text was) const override { return was == QAccessible::Name ? text_ : QString(); }
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override { return {leinwand_.mapToGlobal(QPoint()), QSize(1, 1)}; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

  private:
    QWidget &leinwand_;
    const QString text_;
};

/// The canvas: its elements, then the widgets that lie on it.
class Leinwandzugang : public QAccessibleWidget {
  public:
    Leinwandzugang(QWidget &leinwand, Seitenbaum &baum)
        : QAccessibleWidget(&leinwand, QAccessible::Canvas), baum_(baum) {}

    int childCount() const override { return baum_.Anzahl() + QAccessibleWidget::childCount(); }
    QAccessibleInterface *child(int i) const override;
    int indexOfChild(const QAccessibleInterface *kind) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    QString text(QAccessible::Text was) const override;
    QAccessible::State state() const override;

  private:
    Seitenbaum &baum_;
};

/// From now on widgets with a tree of elements are seen so.
void SeitenzugangEinrichten();

} // namespace kw
