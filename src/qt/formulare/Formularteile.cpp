#include "qt/formulare/Formularteile.h"

#include "dialogs/Formular.h"
#include "qt/formulare/Formularbild.h"
#include "qt/formulare/Zeichenknopf.h"
#include "qt/grund/Tastatur.h"
#include "qt/grund/Text.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFontMetrics>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kw {

namespace {

constexpr QColor Warnfarbe{226, 45, 45}; ///< stands out from light and dark grounds
constexpr int Warnstrich = 2;
constexpr int Warnabstand = 1; ///< between a box and the frame round it

QColor AlsFarbe(Farbe farbe) {
    const Farbe f = Aufgelöst(farbe);
    return QColor(static_cast<int>(f & 0xFFU), static_cast<int>(f >> 8U & 0xFFU), static_cast<int>(f >> 16U & 0xFFU));
}

/// The text as it was typed: the document's own plain text turns hard blanks into plain ones.
QString Blocktext(const QTextEdit &block) {
    QString text = block.document()->toRawText();
    for (const QChar umbruch : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        text.replace(umbruch, QLatin1Char('\n'));
    return text;
}

QWidget *KnopfBauen(QAbstractButton *knopf, const std::string &name, const Formularmelder &melder) {
    QObject::connect(knopf, &QAbstractButton::clicked, knopf, [=] { melder.Gedrückt(name); });
    return knopf;
}

QWidget *ZeileBauen(const std::string &name, const Formularmelder &melder, QWidget *eltern) {
    auto *zeile = new QLineEdit(eltern);
    QObject::connect(zeile, &QLineEdit::textEdited, zeile, [=](const QString &text) { melder.Getippt(name, text); });
    return zeile;
}

QWidget *BlockBauen(const std::string &name, const Formularmelder &melder, QWidget *eltern) {
    auto *block = new QTextEdit(eltern);
    block->setAcceptRichText(false);
    block->setTabChangesFocus(true);
    QObject::connect(block, &QTextEdit::textChanged, block, [=] { melder.Getippt(name, Blocktext(*block)); });
    return block;
}

/// Tells a screen reader of its current entry only while it has the focus: else the reader would take the focus to be
/// here, whenever a search box beside it finds somebody else.
class StillesListenfeld : public QListWidget {
  public:
    using QListWidget::QListWidget;

  protected:
    void currentChanged(const QModelIndex &neuer, const QModelIndex &alter) override {
        if (hasFocus()) QListWidget::currentChanged(neuer, alter);
        else QAbstractItemView::currentChanged(neuer, alter); // NOLINT(bugprone-parent-virtual-call): that is the point
    }
};

/// As high as its lines are: fonts of other scripts have taller ones than the list's own, and what has no room is cut.
class Zeilenmaß : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &wie, const QModelIndex &stelle) const override {
        const auto *liste = qobject_cast<const QListWidget *>(wie.widget);
        QSize größe = QStyledItemDelegate::sizeHint(wie, stelle);
        if (!liste) return größe;
        const int rand = liste->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &wie, liste) + 1;
        QTextLayout text(stelle.data().toString(), liste->font());
        double höhe = 0;
        text.beginLayout();
        for (auto zeile = text.createLine(); zeile.isValid(); zeile = text.createLine()) {
            zeile.setLineWidth(liste->viewport()->width() - 2 * rand);
            höhe += std::ceil(zeile.height());
        }
        text.endLayout();
        größe.setHeight(std::max(größe.height(), static_cast<int>(höhe)));
        return größe;
    }
};

QWidget *ListenfeldBauen(const std::string &name, const Formularmelder &melder, QWidget *eltern) {
    auto *liste = new StillesListenfeld(eltern);
    liste->setWordWrap(true); // what a line ends with counts as much as its beginning
    liste->setTextElideMode(Qt::ElideNone);
    liste->setItemDelegate(new Zeilenmaß(liste));
    liste->setResizeMode(QListView::Adjust);
    liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QObject::connect(liste, &QListWidget::currentRowChanged, liste, [=](int index) { melder.Gewählt(name, index); });
    return liste;
}

QWidget *ListeBauen(Art art, const std::string &name, const Formularmelder &melder, QWidget *eltern) {
    auto *liste = new QComboBox(eltern);
    if (art == Art::Kombination) {
        liste->setEditable(true);
        liste->setInsertPolicy(QComboBox::NoInsert);
        liste->setDuplicatesEnabled(true); // else Enter picks the entry that reads like the text
        liste->setCompleter(nullptr);      // only what is typed counts
        QObject::connect(liste->lineEdit(), &QLineEdit::textEdited, liste,
                         [=](const QString &text) { melder.Getippt(name, text); });
    }
    QObject::connect(liste, &QComboBox::activated, liste, [=](int index) { melder.Gewählt(name, index); });
    return liste;
}

/// Keeps the caret where the user has it.
void TextZeigen(QLineEdit &zeile, const QString &text) {
    if (zeile.text() == text) return;
    const int stelle = zeile.hasFocus() ? zeile.cursorPosition() : static_cast<int>(text.size());
    zeile.setText(text);
    zeile.setCursorPosition(stelle);
}

void BlockZeigen(QTextEdit &block, const Steuerelement &element) {
    const QString text = Text(element.Text);
    if (Blocktext(block) != text) {
        block.setPlainText(text);
        block.moveCursor(QTextCursor::End);
    }
    constexpr Qt::Alignment Bündig[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    QTextOption satz = block.document()->defaultTextOption();
    const Qt::Alignment bündig = Bündig[std::clamp(element.Alignment, 0, 2)];
    if (satz.alignment() == bündig) return;
    satz.setAlignment(bündig);
    block.document()->setDefaultTextOption(satz);
}

void ListenfeldZeigen(QListWidget &liste, const Steuerelement &element) {
    QStringList einträge;
    for (const auto &eintrag : element.Einträge) einträge += Text(eintrag);
    QStringList alte;
    for (int i = 0; i < liste.count(); ++i) alte += liste.item(i)->text();
    if (einträge != alte) {
        liste.clear();
        liste.addItems(einträge);
    }
    liste.setCurrentRow(element.ListIndex);
}

void ListeZeigen(QComboBox &liste, const Steuerelement &element) {
    QStringList einträge;
    for (const auto &eintrag : element.Einträge) einträge += Text(eintrag);
    QStringList alte;
    for (int i = 0; i < liste.count(); ++i) alte += liste.itemText(i);
    if (einträge != alte) {
        liste.clear();
        liste.addItems(einträge);
    }
    if (!liste.isEditable()) return liste.setCurrentIndex(element.ListIndex);
    // The entry that reads like the text is the current one: else the widget would pick it by itself later.
    const QString text = Text(element.Text);
    const int index = static_cast<int>(einträge.indexOf(text));
    QLineEdit &zeile = *liste.lineEdit();
    const bool gleich = zeile.text() == text;
    if (gleich && liste.currentIndex() == index) return; // keeps selection and edit history
    const int stelle = zeile.cursorPosition();
    liste.setCurrentIndex(index);
    zeile.setText(text);
    if (gleich) zeile.setCursorPosition(stelle);
    else if (zeile.hasFocus()) zeile.selectAll(); // the form has put it there itself: the next key replaces it
}

/// Readers don't speak what is chosen in a list: it is told as its description, and a new choice as another list that
/// gets the focus.
void WertVorlesen(QComboBox &liste) {
    const QString wert = liste.isEditable() ? QString() : liste.currentText();
    if (liste.accessibleDescription() == wert) return;
    liste.setAccessibleDescription(wert);
    NeuVorlesen(liste);
}

QFont SchriftVon(const Steuerelement &element) {
    QFont schrift;
    if (!element.FontName.empty()) schrift.setFamily(Text(element.FontName));
    if (element.FontSize > 0) schrift.setPointSizeF(element.FontSize);
    if (element.FontBold) schrift.setBold(true);
    if (element.FontItalic) schrift.setItalic(true);
    if (element.FontUnderline) schrift.setUnderline(true);
    return schrift;
}

/// What is written in a font of its own shows as on the page: on white, in its colour. Other boxes follow the theme.
QPalette FarbenVon(const Steuerelement &element) {
    const QPalette thema = QGuiApplication::palette();
    QPalette farben;
    if (element.Kind == Art::Textblock && !element.FontName.empty()) {
        farben.setColor(QPalette::Base, Qt::white);
        farben.setColor(QPalette::Text, AlsFarbe(element.Farbwert));
        return farben;
    }
    const auto grund = element.Weiß ? QPalette::Base : QPalette::Window;
    farben.setColor(QPalette::Base, thema.color(QPalette::Active, grund));
    return farben;
}

bool IstZeichen(const std::string &aufschrift) { return Text(aufschrift).size() == 1; }

bool IstEingabe(Art art) { return art == Art::Textfeld || art == Art::Textblock; }

} // namespace

QWidget *TeilBauen(Formular &form, const std::string &name, const Formularmelder &melder, QWidget *eltern) {
    const Steuerelement &element = form[name];
    switch (element.Kind) {
    case Art::Beschriftung: {
        if (!element.Bei.empty()) return nullptr;
        auto *text = new QLabel(eltern);
        text->setTextFormat(Qt::PlainText);
        return text;
    }
    case Art::Textfeld: return ZeileBauen(name, melder, eltern);
    case Art::Textblock: return BlockBauen(name, melder, eltern);
    case Art::Listenfeld: return ListenfeldBauen(name, melder, eltern);
    case Art::Liste:
    case Art::Kombination: return ListeBauen(element.Kind, name, melder, eltern);
    case Art::Ankreuzfeld: return KnopfBauen(new QCheckBox(eltern), name, melder);
    case Art::Option: return KnopfBauen(new QRadioButton(eltern), name, melder);
    case Art::Knopf:
        if (IstZeichen(element.Caption)) return KnopfBauen(new Zeichenknopf(eltern), name, melder);
        return KnopfBauen(new QPushButton(eltern), name, melder);
    case Art::Umschalter: {
        auto *knopf = new Zeichenknopf(eltern);
        knopf->setCheckable(true);
        return KnopfBauen(knopf, name, melder);
    }
    case Art::Farbfeld: return KnopfBauen(new Farbplatte(eltern), name, melder);
    case Art::Bild: return new Formularbild(form, name, eltern);
    case Art::Rahmen: return new QGroupBox(eltern);
    case Art::Warnrahmen: break;
    }
    return nullptr;
}

/// In lines: a button doesn't break its caption by itself: one of many words makes a form wider than the screen.
QString Umbrochen(QString text) {
    constexpr qsizetype Zeilenlänge = 60;
    for (qsizetype anfang = 0; text.size() - anfang > Zeilenlänge; ++anfang) {
        const auto blank = text.lastIndexOf(QLatin1Char(' '), anfang + Zeilenlänge);
        if (blank <= anfang) break;
        text[blank] = QLatin1Char('\n');
        anfang = blank;
    }
    return text;
}

void TeilZeigen(QWidget &teil, const Steuerelement &element) {
    const QSignalBlocker still(teil);
    teil.setEnabled(element.Enabled);
    teil.setVisible(element.Visible);
    teil.setToolTip(Text(element.Tip));
    const QFont schrift = SchriftVon(element);
    if (schrift.resolveMask() != 0 && teil.font() != schrift) teil.setFont(schrift);
    if (IstEingabe(element.Kind)) teil.setPalette(FarbenVon(element));
    if (auto *knopf = dynamic_cast<QAbstractButton *>(&teil)) {
        knopf->setText(qobject_cast<QPushButton *>(knopf) ? Umbrochen(Text(element.Caption)) : Text(element.Caption));
        if (knopf->isCheckable()) knopf->setChecked(element.Value);
    }
    if (auto *knopf = dynamic_cast<Zeichenknopf *>(&teil)) knopf->AusrichtungZeigen(element.Alignment);
    if (auto *text = dynamic_cast<QLabel *>(&teil)) text->setText(Text(element.Caption));
    if (auto *rahmen = dynamic_cast<QGroupBox *>(&teil)) rahmen->setTitle(Text(element.Caption));
    if (auto *zeile = dynamic_cast<QLineEdit *>(&teil)) TextZeigen(*zeile, Text(element.Text));
    if (auto *block = dynamic_cast<QTextEdit *>(&teil)) BlockZeigen(*block, element);
    if (auto *liste = dynamic_cast<QComboBox *>(&teil)) {
        ListeZeigen(*liste, element);
        WertVorlesen(*liste);
    }
    if (auto *liste = dynamic_cast<QListWidget *>(&teil)) ListenfeldZeigen(*liste, element);
    if (auto *platte = dynamic_cast<Farbplatte *>(&teil)) platte->FarbeZeigen(AlsFarbe(element.Farbwert));
    if (auto *bild = dynamic_cast<Formularbild *>(&teil)) bild->Auffrischen();
}

void NeuVorlesen(QWidget &teil) {
    if (!teil.hasFocus() || !QAccessible::isActive()) return;
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&teil)));
    QAccessibleEvent ereignis(&teil, QAccessible::Focus);
    QAccessible::updateAccessibility(&ereignis);
}

QLineEdit *Eingabezeile(QWidget &teil) {
    if (auto *liste = dynamic_cast<QComboBox *>(&teil)) return liste->lineEdit();
    return dynamic_cast<QLineEdit *>(&teil);
}

Farbplatte::Farbplatte(QWidget *eltern) : QAbstractButton(eltern) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    EnterDrückt(*this);
}

void Farbplatte::FarbeZeigen(const QColor &farbe) {
    farbe_ = farbe;
    update();
}

QSize Farbplatte::sizeHint() const {
    const int höhe = Zeichenknopfkante(*this);
    return {höhe * 3 / 2, höhe};
}

void Farbplatte::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    constexpr double Rundung = 3;
    const double strich = hasFocus() ? 2 : 1;
    p.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), strich));
    p.setBrush(palette().color(QPalette::Button));
    p.drawRoundedRect(QRectF(rect()).adjusted(strich / 2, strich / 2, -strich / 2, -strich / 2), Rundung, Rundung);
    if (!isEnabled()) p.setOpacity(0.4);
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.setBrush(farbe_);
    constexpr double Luft = 4.5;
    p.drawRoundedRect(QRectF(rect()).adjusted(Luft, Luft, -Luft, -Luft), 1, 1);
}

Warnrahmen::Warnrahmen(QWidget &ziel) : QWidget(ziel.parentWidget()), ziel_(ziel) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    ziel.installEventFilter(this);
    Folgen();
}

bool Warnrahmen::eventFilter(QObject *, QEvent *ereignis) {
    if (ereignis->type() == QEvent::Move || ereignis->type() == QEvent::Resize) Folgen();
    return false;
}

void Warnrahmen::Folgen() {
    constexpr int Außen = Warnstrich + Warnabstand;
    setGeometry(ziel_.geometry().adjusted(-Außen, -Außen, Außen, Außen));
    raise();
}

void Warnrahmen::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Warnfarbe, Warnstrich));
    constexpr double Rundung = 3;
    constexpr double Innen = Warnstrich / 2.0;
    p.drawRoundedRect(QRectF(rect()).adjusted(Innen, Innen, -Innen, -Innen), Rundung, Rundung);
}

} // namespace kw
