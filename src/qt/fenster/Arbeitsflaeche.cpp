#include "qt/fenster/Arbeitsflaeche.h"

#include "app/frmMain.h"
#include "editing/Leinwandlage.h"
#include "platform/Befehlsnamen.h"
#include "qt/fenster/Importliste.h"
#include "qt/fenster/Suchfeld.h"
#include "qt/fenster/Tasten.h"
#include "qt/grund/Text.h"
#include "qt/grund/Vorlesename.h"
#include "qt/malen/Auflagenmaler.h"
#include "qt/malen/LeinwandFlaeche.h"
#include "qt/malen/Seitenhinweis.h"
#include "qt/malen/Zeigerbild.h"

#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QResizeEvent>
#include <QSignalBlocker>

#include <cmath>
#include <utility>

namespace kw {

namespace {

// The page is white and what lies behind it is dark on every theme.
constexpr QColor Hintergrund{35, 35, 35};
constexpr QColor Schatten{15, 15, 15};
constexpr int FrameOben = Arbeitsbereich::FrameOben; ///< the model's inner area begins that far above the widget
constexpr int Zeile = 20 * TwipsJePixel;

double Pixel(int twips) { return static_cast<double>(twips) / TwipsJePixel; }

QRectF Fläche(const Steuerfläche &s) { return {Pixel(s.Left), Pixel(s.Top), Pixel(s.Width), Pixel(s.Height)}; }

/// Moves the painter by less than a pixel so that `ort` falls on a whole device pixel: a picture of the
/// device's own resolution is copied sharp at every scale.
void AufPixelRücken(QPainter &p, QPointF ort) {
    const QPointF gerät = p.deviceTransform().map(ort);
    const double maßstab = p.deviceTransform().m11();
    p.translate((std::round(gerät.x()) - gerät.x()) / maßstab, (std::round(gerät.y()) - gerät.y()) / maßstab);
}

/// As the model counts them; the middle button and the others are none of the canvas.
int Tastencode(Qt::MouseButton taste) {
    return taste == Qt::LeftButton ? TasteLinks : taste == Qt::RightButton ? TasteRechts : TasteKeine;
}

} // namespace

Arbeitsflaeche::Arbeitsflaeche(LeinwandFläche &leinwand) : leinwand_(leinwand), zeiger_(Mauszeiger::Pfeil) {
    baum_ = std::make_unique<Seitenbaum>(*this, FürVorleser());
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true); // rubber lines follow the pointer without a button
    setAcceptDrops(true);
    for (QScrollBar *leiste : {&vScroll_, &hScroll_}) {
        leiste->setFocusPolicy(Qt::NoFocus); // the keyboard keeps working on the canvas
        leiste->setSingleStep(Zeile);
        leiste->hide();
        connect(leiste, &QScrollBar::valueChanged, this, [this] { Scrollen(); });
    }
    rand_.setInterval(Arbeitsbereich::RandTakt);
    connect(&rand_, &QTimer::timeout, this, [this] { AmRandScrollen(); });
    // Below the model's least size frame and bars would stand outside.
    const QSize fehlt = QSize(Arbeitsbereich::KleinsteBreite, Arbeitsbereich::KleinsteHöhe) - Innengröße();
    setMinimumSize(size() + (fehlt + QSize(TwipsJePixel - 1, TwipsJePixel - 1)) / TwipsJePixel);
}

void Arbeitsflaeche::Verbinden(frmMain &haupt, std::function<void()> erstesBild) {
    haupt_ = &haupt;
    anblick_ = &haupt.DerAnblick();
    haupt.LeistenSetzen(vScroll_.sizeHint().width() * TwipsJePixel);
    erstesBild_ = std::move(erstesBild);
}

QSize Arbeitsflaeche::Innengröße() const {
    return {(width() - vScroll_.sizeHint().width()) * TwipsJePixel + Arbeitsbereich::BalkenRechts,
            (height() - hScroll_.sizeHint().height()) * TwipsJePixel + FrameOben - Arbeitsbereich::BalkenUnten};
}

void Arbeitsflaeche::resizeEvent(QResizeEvent *) {
    if (!haupt_) return;
    haupt_->GrößeÄndern(Innengröße().width(), Innengröße().height());
    Auffrischen();
}

void Arbeitsflaeche::LeisteStellen(QScrollBar &leiste, const Bildlaufleiste &modell) {
    const QSignalBlocker still(leiste);
    leiste.setRange(0, std::max(modell.Max, 0));
    leiste.setPageStep(leiste.orientation() == Qt::Vertical ? modell.Height : modell.Width);
    leiste.setValue(modell.Value);
    leiste.setVisible(modell.Visible && !erstesBild_); // the first one that is painted has the style set itself up
}

void Arbeitsflaeche::Auffrischen() {
    if (!haupt_) return;
    VorlesenAls(*this, Text(Zweisprachig{"Genogramm", "Genogram"}.In(anblick_->ansicht.Sprache)));
    VorlesenAls(vScroll_,
                Text(Zweisprachig{"Senkrechter Bildlauf", "Vertical Scrolling"}.In(anblick_->ansicht.Sprache)));
    VorlesenAls(hScroll_,
                Text(Zweisprachig{"Waagrechter Bildlauf", "Horizontal Scrolling"}.In(anblick_->ansicht.Sprache)));
    const Arbeitsbereich &b = anblick_->bereich;
    const int breite = vScroll_.sizeHint().width();
    const int höhe = hScroll_.sizeHint().height();
    const QRect senkrecht = Fläche(b.VScroll1).translated(0, -Pixel(FrameOben)).toRect();
    const QRect waagrecht = Fläche(b.HScroll1).translated(0, -Pixel(FrameOben)).toRect();
    vScroll_.setGeometry(senkrecht.left(), senkrecht.top(), breite, senkrecht.height());
    // Up to the other bar or the edge: the frame that the model lays out leaves room for the palette at both sides.
    const int rechts = b.VScroll1.Visible ? senkrecht.left() : width();
    hScroll_.setGeometry(waagrecht.left(), waagrecht.top(), rechts - waagrecht.left(), höhe);
    LeisteStellen(vScroll_, b.VScroll1);
    LeisteStellen(hScroll_, b.HScroll1);
    ZeigerSetzen();
    leinwand_.Geändertes(); // shows with all else
    update();
    baum_->Auffrischen();
}

QRectF Arbeitsflaeche::Seite() const {
    const Arbeitsbereich &b = anblick_->bereich;
    return Fläche(b.picVorschau()).translated(Fläche(b.picBack).topLeft()).translated(0, -Pixel(FrameOben));
}

QPointF Arbeitsflaeche::InCm(QPointF ort) const {
    const QRectF seite = Seite();
    return (ort - seite.topLeft()) * (anblick_->ansicht.SeitenBreite / seite.width());
}

bool Arbeitsflaeche::AufSeite(QPointF ort) const {
    return Seite().contains(ort) && ort.x() >= Pixel(anblick_->bereich.picBack.Left);
}

void Arbeitsflaeche::Scrollen() {
    haupt_->Scrollen(hScroll_.value(), vScroll_.value());
    update();
}

void Arbeitsflaeche::paintEvent(QPaintEvent *ereignis) {
    QPainter p(this);
    p.fillRect(ereignis->rect(), Hintergrund);
    if (!haupt_) return;
    p.fillRect(QRectF(0, 0, Pixel(anblick_->bereich.picBack.Left), height()), palette().window()); // the tool palette's
    if (leinwand_.Pixelverhältnis() != devicePixelRatioF()) { // the window came to another screen
        leinwand_.PixelverhältnisSetzen(devicePixelRatioF());
        haupt_->Vorschau();
    }
    const Arbeitsbereich &b = anblick_->bereich;
    // The page shows up to the scroll bars, which stand a little outside the frame that it is laid out in.
    const QRectF rahmen = Fläche(b.picBack).translated(0, -Pixel(FrameOben));
    const double unten = b.HScroll1.Visible ? Pixel(b.HScroll1.Top - FrameOben) : height();
    const double rechts = b.VScroll1.Visible ? Pixel(b.VScroll1.Left) : width();
    const QRectF sicht(rahmen.left(), 0, rechts - rahmen.left(), unten);
    p.setClipRect(sicht);
    p.fillRect(Fläche(b.shpSchatten).translated(rahmen.topLeft()), Schatten);
    const QRectF seite = Seite();
    AufPixelRücken(p, seite.topLeft());
    p.translate(seite.topLeft());
    p.drawImage(QPointF(), leinwand_.Bild());
    const double pixelJeCm = seite.width() / anblick_->ansicht.SeitenBreite;
    AuflagenMalen(p, anblick_->auflagen, anblick_->lage.PfeilArt, pixelJeCm);
    if (hasFocus() || (suche_ && suche_->hasFocus())) CursorMalen(p, anblick_->auflagen, pixelJeCm);
    if (!erstesBild_) EinstiegMalen(p, (seite & sicht).translated(-seite.topLeft()));
    if (auto erstesBild = std::exchange(erstesBild_, nullptr)) QTimer::singleShot(0, this, erstesBild);
}

/// How to begin, in grey, where the page shows. Only here: no picture and no print has it. `feld` is what shows of the
/// page, in the painter's units.
void Arbeitsflaeche::EinstiegMalen(QPainter &p, const QRectF &feld) const {
    const Bedienelement &einstieg = anblick_->bedienung[Name::lblEinstieg];
    if (einstieg.Visible) HinweisAufSeite(p, feld, Text(einstieg.Caption), font());
}

/// The page has moved under a pointer that rests: what is dragged, and rubber lines, follow it.
void Arbeitsflaeche::SeiteUnterZeigerMelden() {
    Auffrischen();
    if (imModell_) return;
    const QPointF cm = InCm(ort_);
    Melden([&] { haupt_->MouseMove(Tastencode(taste_), cm.x(), cm.y()); });
}

/// Hands the model an event. What it opens then (a popup, a box) runs a loop of its own, which can outlive this
/// widget. False when it has.
bool Arbeitsflaeche::Melden(const std::function<void()> &ereignis) {
    const QPointer<Arbeitsflaeche> ich = this;
    const bool vorher = std::exchange(imModell_, true);
    const Auflagen auflagen = anblick_->auflagen;
    const QRegion spur = Auflagenspur();
    ereignis();
    if (!ich) return false;
    imModell_ = vorher;
    ZeigerSetzen();
    GeändertesZeigen(auflagen == anblick_->auflagen ? QRegion() : spur + Auflagenspur());
    return true;
}

/// Where the shapes over the page are on this widget.
QRegion Arbeitsflaeche::Auflagenspur() const {
    const QRectF seite = Seite();
    const QRegion spur =
        AuflagenSpur(anblick_->auflagen, anblick_->lage.PfeilArt, seite.width() / anblick_->ansicht.SeitenBreite);
    return spur.translated(seite.topLeft().toPoint());
}

/// Repaints what a gesture has changed: the shapes over the page, `auflagen`, and what it drew on the kept picture. The
/// rest of the page stays on the screen.
void Arbeitsflaeche::GeändertesZeigen(const QRegion &auflagen) {
    const QRect neu = leinwand_.Geändertes();
    const double k = leinwand_.Pixelverhältnis();
    const QRectF bild(QPointF(neu.topLeft()) / k, QSizeF(neu.size()) / k);
    const QRect amOrt = bild.translated(Seite().topLeft()).toAlignedRect().adjusted(-1, -1, 1, 1);
    update(neu.isEmpty() ? auflagen : auflagen + amOrt);
}

/// A press and a double click.
void Arbeitsflaeche::Drücken(QMouseEvent &ereignis, const std::function<void(QPointF)> &melden) {
    ereignis.accept();
    if (SchiebenBeginnen(ereignis)) return setFocus(Qt::MouseFocusReason);
    if (!haupt_ || imModell_ || Tastencode(ereignis.button()) == TasteKeine) return;
    if (taste_ != Qt::NoButton && ereignis.buttons() & taste_) return;
    if (!Loslassen()) return;
    setFocus(Qt::MouseFocusReason);
    if (!Seite().contains(ereignis.position())) { // a gesture may leave the page, but begins on it
        Melden([&] { haupt_->DanebenGedrückt(Tastencode(ereignis.button())); });
        return;
    }
    const QPointF cm = InCm(ereignis.position());
    // The model also judges by the last move, which a popup or a box over the page may have kept from us.
    if (std::exchange(ort_, ereignis.position()) != ereignis.position())
        Melden([&] { haupt_->MouseMove(TasteKeine, cm.x(), cm.y()); });
    taste_ = ereignis.button();
    if (taste_ == Qt::LeftButton) rand_.start();
    const bool unten = QGuiApplication::mouseButtons() & taste_;
    if (!Melden([&] { melden(cm); })) return;
    if (unten && !(QGuiApplication::mouseButtons() & taste_)) Loslassen(); // the popup has swallowed the release
}

void Arbeitsflaeche::mousePressEvent(QMouseEvent *ereignis) {
    Drücken(*ereignis, [this](QPointF cm) { haupt_->MouseDown(Tastencode(taste_), cm.x(), cm.y()); });
}

/// The second press of a double click, which comes in place of a press. Right clicks count singly, however fast.
void Arbeitsflaeche::mouseDoubleClickEvent(QMouseEvent *ereignis) {
    if (ereignis->button() != Qt::LeftButton) return mousePressEvent(ereignis);
    Drücken(*ereignis, [this](QPointF cm) { haupt_->DblClick(cm.x(), cm.y()); });
}

void Arbeitsflaeche::mouseMoveEvent(QMouseEvent *ereignis) {
    if (!haupt_ || imModell_) return;
    if (schiebt_ != Qt::NoButton) {
        if (!(ereignis->buttons() & schiebt_)) return SchiebenBeenden();
        ort_ = ereignis->position();
        haupt_->SeiteSchieben(ImRahmen(ort_));
        return SeiteUnterZeigerMelden();
    }
    if (!(ereignis->buttons() & taste_) && !Loslassen()) return; // it went up where nobody told
    ort_ = ereignis->position();
    const QPointF cm = InCm(ort_);
    Melden([&] { haupt_->MouseMove(Tastencode(taste_), cm.x(), cm.y()); });
}

void Arbeitsflaeche::mouseReleaseEvent(QMouseEvent *ereignis) {
    if (schiebt_ != Qt::NoButton && ereignis->button() == schiebt_) return SchiebenBeenden();
    if (!haupt_ || imModell_ || taste_ == Qt::NoButton || ereignis->button() != taste_) return;
    ort_ = ereignis->position();
    Loslassen();
}

/// The button of the gesture is up, at the place of the last event. False when this widget is gone.
bool Arbeitsflaeche::Loslassen() {
    rand_.stop();
    const Qt::MouseButton taste = std::exchange(taste_, Qt::NoButton);
    if (taste == Qt::NoButton) return true;
    const QPointF cm = InCm(ort_);
    return Melden([&] { haupt_->MouseUp(Tastencode(taste), cm.x(), cm.y()); });
}

/// A key for the model, which may open a menu or a form. False when it means nothing there.
bool Arbeitsflaeche::TasteMelden(const Tastendruck &taste) {
    if (!haupt_ || imModell_) return false;
    bool gemeint = false;
    Melden([&] { gemeint = haupt_->TasteDrücken(taste); });
    return gemeint;
}

void Arbeitsflaeche::keyPressEvent(QKeyEvent *ereignis) {
    if (ereignis->key() == Qt::Key_Space && !ereignis->isAutoRepeat()) LeertasteHalten(true);
    const auto taste = hasFocus() ? TasteVon(*ereignis) : std::nullopt; // the palette's come by here too
    if (taste && taste->Ist(Taste::F, true)) return SucheÖffnen();
    if (taste && TasteMelden(*taste)) return;
    ereignis->ignore();
    const std::string_view befehl = hasFocus() ? BefehlMitKürzel(*ereignis) : std::string_view();
    if (!befehl.empty() && haupt_ && !imModell_)
        Melden([&] { haupt_->BefehlAusführen(befehl); }); // which tells why not
}

void Arbeitsflaeche::keyReleaseEvent(QKeyEvent *ereignis) {
    if (ereignis->key() != Qt::Key_Space || ereignis->isAutoRepeat()) return QWidget::keyReleaseEvent(ereignis);
    LeertasteHalten(false);
    if (leerVerbraucht_ || !hasFocus() || !haupt_ || imModell_) return;
    Melden([this] { haupt_->LeertasteLoslassen(); });
}

/// Where the keyboard is shows only while it works here.
void Arbeitsflaeche::focusInEvent(QFocusEvent *) {
    update();
    baum_->FokusKam();
}

void Arbeitsflaeche::focusOutEvent(QFocusEvent *) {
    LeertasteHalten(false);
    update();
    baum_->FokusGing();
}

/// Tab walks round the page, and on from its ends.
bool Arbeitsflaeche::focusNextPrevChild(bool nächstes) {
    return TasteMelden({Taste::Tabulator, false, false, !nächstes}) || QWidget::focusNextPrevChild(nächstes);
}

void Arbeitsflaeche::SucheÖffnen() {
    if (!suche_)
        suche_ = new Suchfeld(
            *this, [this](std::string_view name) { return haupt_->PersonSuchen(name); },
            [this] { setFocus(Qt::OtherFocusReason); });
    suche_->Öffnen(anblick_->ansicht.Sprache);
}

std::optional<QPoint> Arbeitsflaeche::Cursorort() const {
    const Auflagenform &form = anblick_->auflagen.shpCursor;
    if (!hasFocus() || !form.Visible) return std::nullopt;
    const QRectF seite = Seite();
    const double pixelJeCm = seite.width() / anblick_->ansicht.SeitenBreite;
    const QPointF unten(form.Left + form.Width / 2, form.Top + form.Height);
    return mapToGlobal((seite.topLeft() + unten * pixelJeCm).toPoint());
}

/// Every place is asked for anew, so that the pointer tells where a row of the import list can be dropped.
void Arbeitsflaeche::dragEnterEvent(QDragEnterEvent *ereignis) {
    if (!haupt_ || !GezogeneZeile(*ereignis->mimeData())) return;
    ereignis->accept();
    importzeile_ = true;
    ort_ = ereignis->position();
    rand_.start();
}

void Arbeitsflaeche::dragLeaveEvent(QDragLeaveEvent *) {
    importzeile_ = false;
    rand_.stop();
}

void Arbeitsflaeche::dragMoveEvent(QDragMoveEvent *ereignis) {
    const QPointF ort = ort_ = ereignis->position();
    ereignis->setAccepted(haupt_ && AufSeite(ort) && !childAt(ort.toPoint()));
}

void Arbeitsflaeche::dropEvent(QDropEvent *ereignis) {
    dragLeaveEvent(nullptr);
    const auto zeile = GezogeneZeile(*ereignis->mimeData());
    if (!zeile || imModell_) return;
    ereignis->accept();
    setFocus(Qt::OtherFocusReason);
    const QPointF cm = InCm(ereignis->position());
    Melden([&] { haupt_->ImportzeileAblegen(*zeile, cm.x(), cm.y()); });
}

Mauszeiger Arbeitsflaeche::Zeiger() const {
    if (schiebt_ != Qt::NoButton) return Mauszeiger::Griff;
    if (leer_) return Mauszeiger::Hand;
    return AufSeite(ort_) ? anblick_->lage.Zeiger : Mauszeiger::Pfeil;
}

void Arbeitsflaeche::ZeigerSetzen() {
    if (!anblick_) return;
    const Mauszeiger zeiger = Zeiger();
    if (zeiger == zeiger_ && zeigerverhältnis_ == devicePixelRatioF()) return;
    zeiger_ = zeiger;
    zeigerverhältnis_ = devicePixelRatioF();
    setCursor(Zeigerbild(zeiger_, zeigerverhältnis_));
}

} // namespace kw
