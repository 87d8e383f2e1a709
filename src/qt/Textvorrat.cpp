#include "qt/Textvorrat.h"

#include <QFontMetricsF>

namespace kw {

namespace {

// More than any page holds; what passes them is set afresh.
constexpr std::size_t HöchstzahlTexte = 20000;
constexpr std::size_t HöchstzahlSchriften = 200;

QFont SchriftFür(const Schriftwunsch &w) {
    QFont schrift(QString::fromUtf8(w.Name.data(), static_cast<qsizetype>(w.Name.size())));
    schrift.setPixelSize(w.Größe);
    schrift.setBold(w.Fett);
    schrift.setItalic(w.Kursiv);
    schrift.setUnderline(w.Unterstrichen);
    schrift.setHintingPreference(QFont::PreferNoHinting);
    schrift.setKerning(true);
    return schrift;
}

/// Control characters would break lines or vanish; they show as blanks.
QString Lesbar(std::string_view utf8) {
    QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    for (QChar &c : text)
        if (c.category() == QChar::Other_Control) c = QLatin1Char(' ');
    return text;
}

} // namespace

Schriftsatz::Schriftsatz(const Schriftwunsch &wunsch) : schrift_(SchriftFür(wunsch)) {
    const QFontMetricsF maße(schrift_);
    höhe_ = maße.ascent() + maße.descent();
}

const Schriftsatz::Gesetzt &Schriftsatz::Setzen(std::string_view utf8) {
    if (const auto bekannt = texte_.find(utf8); bekannt != texte_.end()) return bekannt->second;
    if (texte_.size() >= HöchstzahlTexte) texte_.clear();
    const QString text = Lesbar(utf8);
    QStaticText gesetzt(text);
    gesetzt.setTextFormat(Qt::PlainText);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    gesetzt.setTextOption(option);
    gesetzt.setPerformanceHint(QStaticText::AggressiveCaching);
    gesetzt.prepare(QTransform(), schrift_);
    const double breite = QFontMetricsF(schrift_).horizontalAdvance(text);
    return texte_.emplace(utf8, Gesetzt{std::move(gesetzt), breite}).first->second;
}

Schriftsatz &Textvorrat::Finden(const Schriftwunsch &wunsch) {
    if (satz_ && wunsch == letzter_) return *satz_;
    auto i = sätze_.find(wunsch);
    if (i == sätze_.end()) {
        if (sätze_.size() >= HöchstzahlSchriften) sätze_.clear();
        i = sätze_.try_emplace(wunsch, wunsch).first;
    }
    letzter_ = wunsch;
    satz_ = &i->second;
    return *satz_;
}

} // namespace kw
