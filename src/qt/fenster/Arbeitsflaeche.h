#pragma once

#include "qt/zugang/Seitenbaum.h"

#include <QScrollBar>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace kw {

class LeinwandFläche;
class Suchfeld;
class frmMain;
enum class Mauszeiger;
struct Anblick;
struct Rahmenort;
struct Tastendruck;

/// The inside of the main window: the dark frame, the page with its shadow, the overlay shapes, the scroll bars.
/// Shows what the model's work area says, in pixels; the model's inner area begins above and ends below it, so
/// that frame and bars meet the edges. Hands the model what the pointer does, in centimetres of the page.
class Arbeitsflaeche : public QWidget, public MitSeitenbaum {
  public:
    explicit Arbeitsflaeche(LeinwandFläche &leinwand);

    /// From then on events reach the model. `erstesBild` is called once, when something has been painted.
    void Verbinden(frmMain &haupt, std::function<void()> erstesBild);
    /// Copies the model's places into the widgets and repaints.
    void Auffrischen();
    /// Shows the field that finds a person by name.
    void SucheÖffnen();
    /// Below what the keyboard is on, on the screen; nothing while that doesn't show.
    std::optional<QPoint> Cursorort() const;
    /// The model's inner size for this widget's size, in twips.
    QSize Innengröße() const;
    Seitenbaum &Baum() override { return *baum_; }
    /// Whether the left button was pressed since Space went down: its release then means nothing else.
    bool LeertasteVerbraucht() const { return leerVerbraucht_; }

  protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void wheelEvent(QWheelEvent *ereignis) override;
    void mousePressEvent(QMouseEvent *ereignis) override;
    void mouseMoveEvent(QMouseEvent *ereignis) override;
    void mouseReleaseEvent(QMouseEvent *ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *ereignis) override;
    void keyReleaseEvent(QKeyEvent *ereignis) override;
    bool focusNextPrevChild(bool nächstes) override;
    void dragEnterEvent(QDragEnterEvent *ereignis) override;
    void dragMoveEvent(QDragMoveEvent *ereignis) override;
    void dragLeaveEvent(QDragLeaveEvent *ereignis) override;
    void dropEvent(QDropEvent *ereignis) override;
    void focusInEvent(QFocusEvent *ereignis) override;
    void focusOutEvent(QFocusEvent *ereignis) override;

  private:
    /// The page on this widget, logical pixels.
    QRectF Seite() const;
    QPointF InCm(QPointF ort) const;
    /// Whether the page is what shows there.
    bool AufSeite(QPointF ort) const;
    void Drücken(QMouseEvent &ereignis, const std::function<void(QPointF cm)> &melden);
    bool Loslassen();
    bool TasteMelden(const Tastendruck &taste);
    bool Melden(const std::function<void()> &ereignis);
    void GeändertesZeigen(const QRegion &auflagen);
    QRegion Auflagenspur() const;
    void EinstiegMalen(QPainter &p, const QRectF &feld) const;
    void ZeigerSetzen();
    Mauszeiger Zeiger() const;
    Rahmenort ImRahmen(QPointF ort) const;
    void SeiteUnterZeigerMelden();
    void LeertasteHalten(bool unten);
    bool SchiebenBeginnen(const QMouseEvent &ereignis);
    void SchiebenBeenden();
    void ZoomVormerken(int drehung);
    void AmRandScrollen();
    void LeisteStellen(QScrollBar &leiste, const struct Bildlaufleiste &modell);
    void Scrollen();

    Seitenquelle FürVorleser();
    QRect Sicht() const;
    QRect OrtVon(const Umgebung &cm) const;
    void Machen(Element element, Elementtat tat);

    LeinwandFläche &leinwand_;
    std::unique_ptr<Seitenbaum> baum_;
    frmMain *haupt_ = nullptr;
    const Anblick *anblick_ = nullptr; ///< what it shows
    std::function<void()> erstesBild_;
    Suchfeld *suche_ = nullptr; ///< from its first use on
    QScrollBar vScroll_{Qt::Vertical, this};
    QScrollBar hScroll_{Qt::Horizontal, this};
    bool zoomSteht_ = false;                 ///< notches of the wheel wait to be followed
    int radrest_ = 0;                        ///< eighths of a degree that make no notch yet
    Qt::MouseButton taste_ = Qt::NoButton;   ///< the button that is down on the canvas; another one doesn't count
    QPointF ort_;                            ///< of the last event, pixels
    Qt::MouseButton schiebt_ = Qt::NoButton; ///< the button that draws the page
    bool leer_ = false;                      ///< Space is held down
    bool leerVerbraucht_ = false;
    QTimer rand_;              ///< runs while something is dragged
    bool importzeile_ = false; ///< and that is a line of the import list
    bool imModell_ = false;    ///< an event is being worked on, perhaps in a popup's loop
    Mauszeiger zeiger_;
    double zeigerverhältnis_ = 0; ///< resolution of the pointer's picture
};

} // namespace kw
