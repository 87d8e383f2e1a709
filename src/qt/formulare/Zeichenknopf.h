#pragma once

#include <QToolButton>

namespace kw {

/// Edge of a square button that carries a single sign, in the font of the window `feld` stands in.
int Zeichenknopfkante(const QWidget &feld);

/// A square button with one character, or with lines that show how a text is aligned. Pressing it by mouse leaves
/// the focus where it is, in the text that it changes.
class Zeichenknopf : public QToolButton {
  public:
    explicit Zeichenknopf(QWidget *eltern);

    /// 0 left, 1 right, 2 centred: what a button without a character shows.
    void AusrichtungZeigen(int ausrichtung);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *ereignis) override;

  private:
    void UntenZeigen(QPainter &p) const;
    void LinienZeigen(QPainter &p) const;

    int ausrichtung_ = 0;
};

} // namespace kw
