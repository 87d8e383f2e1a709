#pragma once

#include "qt/LeinwandFlaeche.h"

#include <QScrollBar>
#include <QWidget>

#include <functional>

namespace kw {

class frmMain;

/// The inside of the main window: the dark frame, the page with its shadow, the scroll bars. Shows what the
/// model's work area says, in pixels; the model's inner area begins above and ends below it, so that frame
/// and bars meet the edges.
class Arbeitsflaeche : public QWidget {
  public:
    explicit Arbeitsflaeche(LeinwandFläche &leinwand);

    /// From then on events reach the model. `erstesBild` is called once, when something has been painted.
    void Verbinden(frmMain &haupt, std::function<void()> erstesBild);
    /// Copies the model's places into the widgets and repaints.
    void Auffrischen();
    /// The model's inner size for this widget's size, in twips.
    QSize Innengröße() const;

  protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void wheelEvent(QWheelEvent *ereignis) override;

  private:
    void LeisteStellen(QScrollBar &leiste, const struct Bildlaufleiste &modell);
    void Scrollen();

    LeinwandFläche &leinwand_;
    frmMain *haupt_ = nullptr;
    std::function<void()> erstesBild_;
    QScrollBar vScroll_{Qt::Vertical, this};
    QScrollBar hScroll_{Qt::Horizontal, this};
    int radrest_ = 0; ///< eighths of a degree that make no notch yet
};

} // namespace kw
