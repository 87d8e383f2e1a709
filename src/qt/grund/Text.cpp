#include "qt/grund/Text.h"

#include <QTextDocument>

namespace kw {

namespace {

/// Controls and separators break a line, the non-characters an XML file.
bool IstLesbar(QChar c) {
    constexpr char16_t NichtZeichen = 0xFFFE;
    const QChar::Category art = c.category();
    return art != QChar::Other_Control && art != QChar::Separator_Line && art != QChar::Separator_Paragraph &&
           c.unicode() < NichtZeichen;
}

} // namespace

QString Lesbar(std::string_view utf8) {
    QString text = Text(utf8);
    for (QChar &c : text)
        if (!IstLesbar(c)) c = QLatin1Char(' ');
    return text;
}

QString FürXml(std::string_view utf8) { return Lesbar(utf8).toHtmlEscaped(); }

QString Tipptext(std::string_view utf8) {
    const QString text = Lesbar(utf8);
    return Qt::mightBeRichText(text) ? QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped())
                                     : text;
}

} // namespace kw
