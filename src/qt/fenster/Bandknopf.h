#pragma once

#include <QToolButton>

namespace kw {

/// A button of the toolbar. Shows on every theme that it is pressed or opens a drop-down.
class Bandknopf : public QToolButton {
  public:
    /// Shows `aktion` and runs it; with a menu it opens that.
    Bandknopf(QAction &aktion, QWidget *band);

    bool ÖffnetMenü() const;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *) override;

  private:
    void GedrücktZeigen(QPainter &p) const;
    void FokusZeigen(QPainter &p) const;
    void PfeilZeigen(QPainter &p) const;
};

} // namespace kw
