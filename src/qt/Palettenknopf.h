#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QPixmap>

#include <functional>

namespace kw {

/// Draws an icon of `kante` logical pixels for a screen of that resolution.
using Bildmacher = std::function<QPixmap(int kante, double pixelverhältnis)>;

/// A button of the palette: an icon on a face of the page's colour on every theme, since that is what the
/// symbols are drawn for. Takes the focus by keyboard only: a press by mouse leaves it on the canvas.
class Palettenknopf : public QAbstractButton {
  public:
    Palettenknopf(Bildmacher bild, QWidget *palette);

    /// A key that isn't the button's own, arrows first of all. True when it was used.
    std::function<bool(int taste)> TasteWeitergeben;

  protected:
    void paintEvent(QPaintEvent *) override;
    void keyPressEvent(QKeyEvent *ereignis) override;
    void enterEvent(QEnterEvent *) override { update(); }
    void leaveEvent(QEvent *) override { update(); }
    /// Whether the button shows pressed is the model's word, not the click's.
    void nextCheckState() override {}

  private:
    Bildmacher bild_;
    QPixmap pixmap_;
};

/// A mark of the selected person: plain when it holds, faint when not.
class Merkmalfeld : public QLabel {
  public:
    Merkmalfeld(Bildmacher bild, QWidget *palette);
    void Zeigen(const QString &name, bool gilt);

  protected:
    void paintEvent(QPaintEvent *) override;

  private:
    Bildmacher bild_;
    QPixmap pixmap_;
    bool gilt_ = false;
};

/// A bin.
QPixmap Papierkorb(int kante, double pixelverhältnis);

} // namespace kw
