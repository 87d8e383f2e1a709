#include "qt/fenster/Suchfeld.h"

#include "platform/Sprache.h"
#include "qt/grund/Text.h"

#include <QKeyEvent>

#include <utility>

namespace kw {

Suchfeld::Suchfeld(QWidget &seite, std::function<bool(std::string_view)> suchen, std::function<void()> zurück)
    : QLineEdit(&seite), suchen_(std::move(suchen)), zurück_(std::move(zurück)) {
    setFocusPolicy(Qt::ClickFocus);
    setClearButtonEnabled(true);
    hide();
    connect(this, &QLineEdit::textEdited, this, [this] { Suchen(); });
}

void Suchfeld::Öffnen(Sprache sprache) {
    if (isVisible() && hasFocus()) return Suchen();
    const QString name = Text(Zweisprachig{"Person suchen", "Find person"}.In(sprache));
    setPlaceholderText(name);
    if (accessibleName() != name) setAccessibleName(name);
    clear();
    constexpr int Rand = 8; // logical pixels
    const int breite = fontMetrics().averageCharWidth() * 30;
    setGeometry(parentWidget()->width() - breite - 4 * Rand, Rand, breite, sizeHint().height());
    show();
    raise();
    setFocus(Qt::ShortcutFocusReason);
}

void Suchfeld::Suchen() { suchen_(text().toStdString()); }

/// The page's shortcuts mustn't take what belongs to a field of text.
bool Suchfeld::event(QEvent *ereignis) {
    if (ereignis->type() == QEvent::ShortcutOverride) {
        const auto &taste = *static_cast<QKeyEvent *>(ereignis);
        if (taste.key() == Qt::Key_Delete || taste.key() == Qt::Key_Escape) {
            ereignis->accept();
            return true;
        }
    }
    return QLineEdit::event(ereignis);
}

void Suchfeld::keyPressEvent(QKeyEvent *ereignis) {
    switch (ereignis->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter: return zurück_();
    case Qt::Key_Down: return Suchen();
    default: QLineEdit::keyPressEvent(ereignis);
    }
}

/// There is nothing else to go to than the page.
bool Suchfeld::focusNextPrevChild(bool) {
    zurück_();
    return true;
}

void Suchfeld::focusOutEvent(QFocusEvent *ereignis) {
    QLineEdit::focusOutEvent(ereignis);
    if (ereignis->reason() != Qt::PopupFocusReason && ereignis->reason() != Qt::ActiveWindowFocusReason) hide();
}

} // namespace kw
