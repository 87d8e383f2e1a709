#pragma once

#include <QAbstractButton>
#include <QColor>

#include <functional>
#include <string>

class QLineEdit;

namespace kw {

class Formular;
struct Steuerelement;

/// What the widgets of a form tell of what the user did; each with the control's name.
struct Formularmelder {
    std::function<void(const std::string &)> Gedrückt;
    std::function<void(const std::string &, const QString &)> Getippt; ///< the whole text that now stands there
    std::function<void(const std::string &, int)> Gewählt;
};

/// The widget of a control, which reports to `melder`; none for labels that a preview draws and for warning frames.
/// It doesn't show the control's state yet.
QWidget *TeilBauen(Formular &form, const std::string &name, const Formularmelder &melder, QWidget *eltern);

/// Copies a control's state into its widget, which reports nothing of it.
void TeilZeigen(QWidget &teil, const Steuerelement &element);

/// Has a screen reader read the widget again, as if it got the focus anew; nothing for one that hasn't got it.
void NeuVorlesen(QWidget &teil);

/// The line edit in which a box's text stands; none for others.
QLineEdit *Eingabezeile(QWidget &teil);

/// A coloured plate that can be pressed.
class Farbplatte : public QAbstractButton {
  public:
    explicit Farbplatte(QWidget *eltern);
    void FarbeZeigen(const QColor &farbe);
    QString Name() const { return farbe_.name(); } ///< "#c0d1e2"
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *ereignis) override;

  private:
    QColor farbe_;
};

/// A red frame round another widget; takes no events.
class Warnrahmen : public QWidget {
  public:
    explicit Warnrahmen(QWidget &ziel);

  protected:
    void paintEvent(QPaintEvent *ereignis) override;
    bool eventFilter(QObject *objekt, QEvent *ereignis) override;

  private:
    void Folgen();
    QWidget &ziel_;
};

} // namespace kw
