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

} // namespace

int Statuszeile::Höhe() {
    constexpr int Luft = 8; // edges of row and button
    return Zeilenhöhe() + Luft;
}

Statuszeile::Statuszeile(std::function<void(std::string_view)> ausführen) {
    setSizeGripEnabled(false);
    setFixedHeight(Höhe());
    lblTool_ = new QLabel(this);
    lblTool_->setTextFormat(Qt::PlainText);
    lblTool_->setIndent(Einzug);
    lblTool_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // no word widens the window
    cmdRänder_ = new QToolButton(this);
    cmdRänder_->setAutoRaise(true);
    // A press by mouse leaves the focus on the canvas.
    cmdRänder_->setFocusPolicy(Qt::TabFocus);
    EnterDrückt(*cmdRänder_);
    connect(cmdRänder_, &QToolButton::clicked, this, [befehl = std::move(ausführen)] { befehl(Rändername); });
    addWidget(lblTool_, 1);
    addPermanentWidget(cmdRänder_);
}

void Statuszeile::Auffrischen(const Anblick &anblick) {
    VorlesenAls(*this, Text(Zweisprachig{"Statuszeile", "Status Bar"}.In(anblick.ansicht.Sprache)));
    const std::string &werkzeug = anblick.bedienung[Name::lblTool].Caption;
    lblTool_->setText(Text(werkzeug.empty() ? anblick.bedienung[Name::lblHinweis].Caption : werkzeug));
    const Bedienelement &knopf = *anblick.bedienung.Finden(Rändername);
    cmdRänder_->setText(Text(knopf.Caption));
    cmdRänder_->setEnabled(knopf.Enabled);
    cmdRänder_->setVisible(knopf.Visible);
}

} // namespace kw
