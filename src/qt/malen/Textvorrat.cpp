#include "qt/malen/Textvorrat.h"

#include "qt/grund/Text.h"

#include <QFontMetricsF>

namespace kw {

namespace {

// More than any page holds; what passes them is set afresh. A glyph takes some 40 bytes.
constexpr std::size_t HöchstzahlZeichen = 200000; ///< of one font
constexpr std::size_t HöchstzahlSchriften = 32;

QFont SchriftFür(const Schriftwunsch &w) {
    QFont schrift(Text(w.Name));
    schrift.setPixelSize(w.Größe);
    schrift.setBold(w.Fett);
    schrift.setItalic(w.Kursiv);
    schrift.setHintingPreference(QFont::PreferNoHinting);
    schrift.setKerning(true);
    return schrift;
}

} // namespace

Schriftsatz::Schriftsatz(const Schriftwunsch &wunsch, int nummer) : schrift_(SchriftFür(wunsch)), nummer_(nummer) {
    const QFontMetricsF maße(schrift_);
    höhe_ = maße.ascent() + maße.descent();
    strichTiefe_ = maße.ascent() + maße.underlinePos();
    strichDicke_ = maße.lineWidth();
}

const Schriftsatz::Gesetzt &Schriftsatz::Setzen(std::string_view utf8) {
    if (const auto bekannt = texte_.find(utf8); bekannt != texte_.end()) return bekannt->second;
    if (zeichen_ > HöchstzahlZeichen) {
        texte_.clear();
        zeichen_ = 0;
    }
    zeichen_ += utf8.size() + 1;
    const QString text = Lesbar(utf8);
    QStaticText gesetzt(text);
    gesetzt.setTextFormat(Qt::PlainText);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    gesetzt.setTextOption(option);
    gesetzt.setPerformanceHint(QStaticText::AggressiveCaching);
    gesetzt.prepare(QTransform(), schrift_);
    const double breite = QFontMetricsF(schrift_).horizontalAdvance(text);
    return texte_.emplace(utf8, Gesetzt{gesetzt, breite}).first->second;
}

Schriftsatz &Textvorrat::Finden(const Schriftwunsch &wunsch) {
    if (satz_ && wunsch == letzter_) return *satz_;
    auto i = sätze_.find(wunsch);
    if (i == sätze_.end()) {
        if (sätze_.size() >= HöchstzahlSchriften) sätze_.clear();
        i = sätze_.try_emplace(wunsch, wunsch, ++nummern_).first;
    }
    letzter_ = wunsch;
    satz_ = &i->second;
    return *satz_;
}

} // namespace kw
