#pragma once

class QFont;
class QPainter;
class QRectF;
class QString;

namespace kw {

/// Writes a text in grey into the middle of `feld` on the white page, its first line as a heading. Each further line is
/// a step and gets its number; lines are broken so that they fit. What doesn't fit all the same is made smaller.
void HinweisAufSeite(QPainter &p, const QRectF &feld, const QString &text, const QFont &schrift);

} // namespace kw
