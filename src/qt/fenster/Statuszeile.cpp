#include "qt/fenster/Statuszeile.h"

#include "app/Anblick.h"
#include "platform/Bedienelemente.h"
#include "platform/Befehlsnamen.h"
#include "qt/fenster/Menues.h"
#include "qt/grund/Tastatur.h"
#include "qt/grund/Text.h"
#include "qt/grund/Vorlesename.h"
#include "rendering/Ansicht.h"

#include <QLabel>
#include <QToolButton>

#include <utility>

namespace kw {

namespace {

constexpr std::string_view Rändername = Name::cmdRänder;
constexpr int Einzug = 6;

/// A line of text that ends in dots where the room does, and then tells all as its tip.
class Textzeile : public QLabel {
  public:
    explicit Textzeile(QWidget *zeile) : QLabel(zeile) {
        setTextFormat(Qt::PlainText);
        setIndent(Einzug);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // no word widens the window
    }
    void Zeigen(const QString &text) {
        if (text == ganz_) return;
        ganz_ = text;
        setAccessibleName(ganz_);
        Kürzen();
    }

  protected:
    void resizeEvent(QResizeEvent *ereignis) override {
        QLabel::resizeEvent(ereignis);
        Kürzen();
    }

  private:
    void Kürzen() {
        const QString kurz = fontMetrics().elidedText(ganz_, Qt::ElideRight, width() - 2 * Einzug);
        setText(kurz);
        setToolTip(kurz == ganz_ ? QString() : ganz_);
    }
    QString ganz_;
};

} // namespace

int Statuszeile::Höhe() {
    constexpr int Luft = 8; // edges of row and button
    return Zeilenhöhe() + Luft;
}

Statuszeile::Statuszeile(std::function<void(std::string_view)> ausführen) {
    setSizeGripEnabled(false);
    setFixedHeight(Höhe());
    auto *text = new Textzeile(this);
    zeigen_ = [text](const QString &zeile) { text->Zeigen(zeile); };
    cmdRänder_ = new QToolButton(this);
    cmdRänder_->setAutoRaise(true);
    // A press by mouse leaves the focus on the canvas.
    cmdRänder_->setFocusPolicy(Qt::TabFocus);
    EnterDrückt(*cmdRänder_);
    connect(cmdRänder_, &QToolButton::clicked, this, [befehl = std::move(ausführen)] { befehl(Rändername); });
    addWidget(text, 1);
    addPermanentWidget(cmdRänder_);
}

void Statuszeile::Auffrischen(const Anblick &anblick) {
    VorlesenAls(*this, Text(Zweisprachig{"Statuszeile", "Status Bar"}.In(anblick.ansicht.Sprache)));
    zeigen_(Text(anblick.bedienung[Name::lblStatus].Caption));
    const Bedienelement &knopf = *anblick.bedienung.Finden(Rändername);
    cmdRänder_->setText(Text(knopf.Caption));
    cmdRänder_->setEnabled(knopf.Enabled);
    cmdRänder_->setVisible(knopf.Visible);
}

} // namespace kw
