#include "qt/malen/Seitenhinweis.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <vector>

namespace kw {

namespace {

constexpr QColor Grau{112, 112, 112}; ///< to be read on white, and no more than that
constexpr double Rand = 24;           ///< logical pixels, as below
constexpr double Breiteste = 50;      ///< widths of an "m"
constexpr double Überschrift = 1.3;
constexpr double Höchste = 1e4;
constexpr double KleinsteSchrift = 0.5;

struct Absatz {
    QString Nummer;
    QString Text;
    QFont Schrift;
    QRectF Feld; ///< from the first one's corner on; the number stands at its left
};

/// The lines one below the other, broken at that width; the fonts by that much of their size.
std::vector<Absatz> Gesetzt(const QStringList &zeilen, const QFont &schrift, double anteil, double breite) {
    std::vector<Absatz> absätze;
    double y = 0;
    for (qsizetype i = 0; i < zeilen.size(); ++i) {
        const bool oben = i == 0;
        QFont eigene = schrift;
        eigene.setBold(oben);
        const double größe = anteil * (oben ? Überschrift : 1);
        if (schrift.pointSizeF() > 0) eigene.setPointSizeF(schrift.pointSizeF() * größe);
        else eigene.setPixelSize(std::max(1, static_cast<int>(schrift.pixelSize() * größe)));
        const QFontMetricsF maß(eigene);
        const double einzug = oben ? 0 : maß.horizontalAdvance(QStringLiteral("9.  "));
        const QRectF platz(einzug, y, breite - einzug, Höchste);
        const double höhe = maß.boundingRect(platz, Qt::TextWordWrap, zeilen[i]).height();
        absätze.push_back(
            {oben ? QString() : QString::number(i) + u'.', zeilen[i], eigene, {einzug, y, breite - einzug, höhe}});
        y += höhe + maß.height() / 2;
    }
    return absätze;
}

} // namespace

void HinweisAufSeite(QPainter &p, const QRectF &feld, const QString &text, const QFont &schrift) {
    const QRectF innen = feld.adjusted(Rand, Rand, -Rand, -Rand);
    if (innen.width() <= 0 || innen.height() <= 0) return;
    const QStringList zeilen = text.split(u'\n');
    std::vector<Absatz> absätze;
    for (double anteil = 1; anteil >= KleinsteSchrift; anteil *= 0.85) {
        const double breite = std::min(innen.width(), QFontMetricsF(schrift).horizontalAdvance(u'm') * Breiteste);
        absätze = Gesetzt(zeilen, schrift, anteil, breite);
        if (absätze.back().Feld.bottom() <= innen.height()) break;
    }
    const QPointF ecke = innen.center() - absätze.back().Feld.bottomRight() / 2;
    p.save();
    p.setClipRect(feld, Qt::IntersectClip);
    p.setPen(Grau);
    for (const Absatz &absatz : absätze) {
        p.setFont(absatz.Schrift);
        p.drawText(QRectF(ecke.x(), ecke.y() + absatz.Feld.top(), absatz.Feld.left(), absatz.Feld.height()),
                   Qt::AlignLeft | Qt::AlignTop, absatz.Nummer);
        p.drawText(absatz.Feld.translated(ecke), Qt::TextWordWrap, absatz.Text);
    }
    p.restore();
}

} // namespace kw
