#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QPixmap>

#include <functional>

namespace kw {

/// Draws an icon of `kante` logical pixels for a screen of that resolution.
using Bildmacher = std::function<QPixmap(int kante, double pixelverhältnis)>;

/// A button of the palette: an icon on a face that is light on every theme, since the symbols are drawn for the page.
/// Takes the focus by keyboard only: a press by mouse leaves it on the canvas.
class Palettenknopf : public QAbstractButton {
  public:
    Palettenknopf(Bildmacher bild, QWidget *palette);

    /// A key that isn't the button's own, arrows first of all. True when it was used.
    std::function<bool(int taste)> TasteWeitergeben;
    /// The pointer, or the keyboard's focus, comes to the button or leaves it.
    std::function<void(bool darauf)> Berührt;

  protected:
    void paintEvent(QPaintEvent *) override;
    void keyPressEvent(QKeyEvent *ereignis) override;
    void enterEvent(QEnterEvent *) override { Berühren(true); }
    void leaveEvent(QEvent *) override { Berühren(false); }
    void focusInEvent(QFocusEvent *ereignis) override {
        QAbstractButton::focusInEvent(ereignis);
        Berühren(true);
    }
    void focusOutEvent(QFocusEvent *ereignis) override {
        QAbstractButton::focusOutEvent(ereignis);
        Berühren(false);
    }
    /// Whether the button shows pressed is the model's word, not the click's.
    void nextCheckState() override {}

  private:
    void Berühren(bool darauf);

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

/// The name of the button under the pointer, its picture in large, and how a sign looks that could be taken for another
/// one. Looks like a tool tip, but stands still and lets presses through.
class Palettenhinweis : public QLabel {
  public:
    explicit Palettenhinweis(QWidget *fläche);
    void Zeigen(const QString &name, const QString &aussehen, Bildmacher bild);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *ereignis) override;

  private:
    QString aussehen_;
    Bildmacher bild_;
};

/// A bin.
QPixmap Papierkorb(int kante, double pixelverhältnis);

} // namespace kw
