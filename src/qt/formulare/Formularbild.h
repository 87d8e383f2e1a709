#pragma once

#include <QWidget>

#include <string>

namespace kw {

class Formular;
class Zeichenfläche;

/// A preview of a form: what the form draws, on page-white ground whatever the theme, and the labels that stand
/// in it. Sharp at every device pixel ratio; larger than life where the user's font is.
class Formularbild : public QWidget {
  public:
    /// `form` outlives the widget.
    Formularbild(Formular &form, std::string name, QWidget *eltern);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// The form's state is another: drawn anew when it next shows.
    void Auffrischen();

  protected:
    void paintEvent(QPaintEvent *ereignis) override;

  private:
    QImage Gezeichnet(QSize pixel, double pixelJeEinheit, double verhältnis);
    void BeschriftungenZeichnen(Zeichenfläche &fläche) const;

    Formular &form_;
    std::string name_;
};

} // namespace kw
