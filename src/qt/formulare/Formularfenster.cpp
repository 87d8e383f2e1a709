#include "qt/formulare/Formularfenster.h"

#include "qt/formulare/Formularteile.h"
#include "qt/grund/Tastatur.h"
#include "qt/grund/Text.h"
#include "qt/grund/Vorlesename.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QGroupBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kw {

namespace {

bool IstBox(Art art) { return art == Art::Textfeld || art == Art::Textblock || art == Art::Kombination; }

/// Whether a box would take the key as text; commands made with Ctrl aren't, what AltGr makes is.
bool FügtEin(const QKeyEvent &taste, Art art) {
    if (art == Art::Textblock && IstEnter(taste.key())) return true;
    const auto halter = taste.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier | Qt::ShiftModifier);
    if (taste.text().isEmpty() || halter == Qt::ControlModifier) return false;
    const QChar erstes = taste.text().front();
    return erstes.isPrint() || erstes.isSurrogate() || erstes.category() == QChar::Other_Format ||
           erstes.category() == QChar::Other_PrivateUse;
}

/// Whether the key goes through a list and means nothing to a line of text.
bool Blättert(const QKeyEvent &taste) {
    if ((taste.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
    constexpr int Blättertasten[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
    return std::find(std::begin(Blättertasten), std::end(Blättertasten), taste.key()) != std::end(Blättertasten);
}

/// The characters that the form lets into its box.
QString Erlaubtes(const Formular &form, const std::string &name, const QString &text) {
    QString erlaubt;
    for (const char32_t zeichen : text.toStdU32String()) {
        const QString eines = QString::fromUcs4(&zeichen, 1);
        if (form.TasteErlaubt(name, eines.toStdString())) erlaubt += eines;
    }
    return erlaubt;
}

/// What is read out for a control; a mnemonic's mark and a colon aren't.
QString Vorlesbar(QString aufschrift) {
    aufschrift.remove(QLatin1Char('&'));
    while (aufschrift.endsWith(QLatin1Char(':'))) aufschrift.chop(1);
    return aufschrift;
}

/// Tab comes to the chosen one of a group. The toolkit sees to that itself only once one of them has had the focus.
void TabstoppSetzen(const QButtonGroup &gruppe) {
    if (!gruppe.checkedButton()) return;
    for (QAbstractButton *knopf : gruppe.buttons())
        knopf->setFocusPolicy(knopf == gruppe.checkedButton() ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

Formularfenster::Formularfenster(Formular &form, QWidget *eltern) : QDialog(eltern), form_(form) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    TeileBauen();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *neu) { FokusGewandert(neu); });
}

Formularfenster::~Formularfenster() {
    disconnect(qApp, nullptr, this, nullptr); // one that goes while it shows loses the focus when it is none any more
    form_.Wirt = nullptr;
}

void Formularfenster::Ausführen() {
    form_.Wirt = this;
    form_.Laden();
    FormularAnordnen(form_, teile_, *this);
    Auffrischen();
    InBildschirmFassen();
    RahmenBauen();
    KnöpfeOrdnen();
    TabfolgeSetzen();
    Auffrischen();
    if (form_.Offen()) exec();
    form_.Wirt = nullptr;
    zeitgeber_.clear();
    form_.Entladen();
}

/// Where the screen is too small, or the fonts are too large, for all of the form it scrolls; its buttons stay in sight
/// where they can.
void Formularfenster::InBildschirmFassen() {
    constexpr QSize Fensterrand(8, 48); // title and edges that the window manager adds
    const QSize platz = screen()->availableSize() - Fensterrand;
    QLayout &inhalt = *layout();
    for (const QWidget *teil : findChildren<QWidget *>()) teil->ensurePolished(); // style and font say how large it is
    for (QLayout *teil : findChildren<QLayout *>())
        teil->invalidate(); // those within others keep what they knew before
    const bool ziehbar = inhalt.sizeConstraint() != QLayout::SetFixedSize;
    const QSize ganz = ziehbar ? inhalt.totalMinimumSize() : inhalt.totalSizeHint();
    if (ganz.width() <= platz.width() && ganz.height() <= platz.height()) return;
    const QMargins rand = inhalt.contentsMargins();
    const int knopfreihe = inhalt.count() - 1;
    const bool knöpfeBleiben =
        inhalt.itemAt(knopfreihe)->minimumSize().width() + rand.left() + rand.right() <= platz.width();
    const std::unique_ptr<QLayoutItem> knöpfe(knöpfeBleiben ? inhalt.takeAt(knopfreihe) : nullptr);
    auto *blatt = new QWidget;
    blatt->setLayout(&inhalt); // and with it all that stands on it
    auto *rolle = new QScrollArea(this);
    rolle->setFrameShape(QFrame::NoFrame);
    rolle->setFocusPolicy(Qt::NoFocus);
    rolle->setWidgetResizable(ziehbar);
    rolle->setWidget(blatt);
    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->addWidget(rolle);
    if (knöpfe) {
        auto *reihe = new QHBoxLayout;
        reihe->setContentsMargins(rand.left(), 0, rand.right(), rand.bottom());
        reihe->addWidget(knöpfe->widget());
        spalte->addLayout(reihe);
    }
    const int leiste = style()->pixelMetric(QStyle::PM_ScrollBarExtent); // takes room from the other direction
    resize((ganz + QSize(leiste, leiste)).boundedTo(platz));
}

void Formularfenster::TeileBauen() {
    const Formularmelder melder{
        [this](const std::string &name) { Ereignis([&] { form_.Drücken(name); }); },
        [this](const std::string &name, const QString &text) {
            Ereignis([&] { form_.TextEingeben(name, text.toStdString()); });
        },
        [this](const std::string &name, int index) { Ereignis([&] { form_.Wählen(name, index); }); }};
    for (const auto &name : form_.Reihenfolge()) {
        QWidget *teil = TeilBauen(form_, name, melder, this);
        if (!teil) continue;
        teil->setObjectName(Text(name));
        teile_[name] = teil;
        if (!IstBox(form_[name].Kind)) continue;
        teil->installEventFilter(this);
        if (QLineEdit *zeile = Eingabezeile(*teil); zeile && zeile != teil) zeile->installEventFilter(this);
        if (auto *block = dynamic_cast<QAbstractScrollArea *>(teil)) block->viewport()->installEventFilter(this);
    }
}

/// Frames lie over their boxes' neighbours, so they are made when all have found their places.
void Formularfenster::RahmenBauen() {
    for (const auto &name : form_.Reihenfolge()) {
        const Steuerelement &element = form_[name];
        const auto ziel = teile_.find(element.Bei);
        if (element.Kind != Art::Warnrahmen || ziel == teile_.end()) continue;
        teile_[name] = new Warnrahmen(*ziel->second);
        teile_[name]->setObjectName(Text(name));
    }
}

void Formularfenster::KnöpfeOrdnen() {
    std::map<int, QButtonGroup *> gruppen;
    for (const auto &[name, teil] : teile_) {
        const Steuerelement &element = form_[name];
        if (auto *knopf = dynamic_cast<QPushButton *>(teil)) {
            const bool beendet = name == form_.Vorgabeknopf || name == form_.Abbruchknopf;
            knopf->setAutoDefault(beendet && !form_.Vorgabeknopf.empty());
            knopf->setDefault(name == form_.Vorgabeknopf);
            if (!beendet) EnterDrückt(*knopf); // never the default: Enter means it only while it has the focus
        }
        if (element.Kind != Art::Option) continue;
        QButtonGroup *&gruppe = gruppen[element.Gruppe];
        if (!gruppe) gruppe = new QButtonGroup(this);
        gruppe->addButton(dynamic_cast<QAbstractButton *>(teil));
    }
}

void Formularfenster::TabfolgeSetzen() {
    QWidget *letztes = nullptr;
    for (const auto &name : form_.Reihenfolge()) {
        const auto teil = teile_.find(name);
        if (teil == teile_.end() || teil->second->focusPolicy() == Qt::NoFocus) continue;
        if (letztes) setTabOrder(letztes, teil->second);
        letztes = teil->second;
    }
}

/// Every event comes through here: the model first, then what shows of it, then the end if it was the last one.
void Formularfenster::Ereignis(const std::function<void()> &was) {
    if (!form_.Offen() || !form_.Wirt) return;
    was();
    Auffrischen();
    if (!form_.Offen()) done(QDialog::Accepted);
}

void Formularfenster::Auffrischen() {
    setWindowTitle(Text(form_.Caption));
    // An exclusive group wouldn't let go of its last option.
    const auto gruppen = findChildren<QButtonGroup *>();
    for (QButtonGroup *gruppe : gruppen) gruppe->setExclusive(false);
    for (const auto &name : form_.Reihenfolge())
        if (const auto teil = teile_.find(name); teil != teile_.end()) TeilZeigen(*teil->second, form_[name]);
    for (QButtonGroup *gruppe : gruppen) {
        gruppe->setExclusive(true);
        TabstoppSetzen(*gruppe);
    }
    Benennen();
    RahmenErklären();
    ListenwahlErklären();
}

/// A box is called what its label says, without one what its frame does; what has no caption as its tool tip says, and
/// a plate of colour besides by that.
void Formularfenster::Benennen() {
    std::map<QWidget *, QString> namen;
    for (const auto &[name, teil] : teile_) {
        const Steuerelement &element = form_[name];
        const auto *rahmen = dynamic_cast<QGroupBox *>(teil->parentWidget());
        if (!element.Tip.empty()) namen[teil] = Text(element.Tip);
        else if (IstBox(element.Kind) || element.Kind == Art::Liste || element.Kind == Art::Listenfeld)
            namen[teil] = Vorlesbar(rahmen ? rahmen->title() : windowTitle());
        if (const auto *platte = dynamic_cast<Farbplatte *>(teil)) namen[teil] += QStringLiteral(": ") + platte->Name();
    }
    for (auto *blatt : findChildren<QScrollArea *>()) namen[blatt] = windowTitle();
    for (const auto *schild : findChildren<QLabel *>())
        if (schild->buddy()) namen[schild->buddy()] = Vorlesbar(schild->text());
    for (const auto &[teil, name] : namen) {
        VorlesenAls(*teil, name);
        // Of a box with a list it is the line in it that gets the focus.
        if (QLineEdit *zeile = Eingabezeile(*teil); zeile && zeile != teil) VorlesenAls(*zeile, name);
    }
}

/// A frame lets the pointer through: the box within it says in its place what it has to say.
void Formularfenster::RahmenErklären() {
    for (const auto &[name, teil] : teile_) {
        const Steuerelement &rahmen = form_[name];
        if (rahmen.Kind != Art::Warnrahmen) continue;
        QWidget &box = *teile_.find(rahmen.Bei)->second;
        const QString warum = rahmen.Visible ? Text(rahmen.Tip) : QString();
        if (rahmen.Visible) box.setToolTip(warum);
        DazuVorlesen(box, warum);
    }
}

/// What is chosen in a list is read behind the search box that it belongs to: the focus stays there.
void Formularfenster::ListenwahlErklären() {
    for (const auto &[name, teil] : teile_) {
        const Steuerelement &box = form_[name];
        if (box.Kind == Art::Textfeld && !box.Bei.empty()) DazuVorlesen(*teil, Text(form_[box.Bei].Text));
    }
}

void Formularfenster::ZeitgeberStellen(std::string_view name, int ms) {
    auto &zeitgeber = zeitgeber_[std::string(name)];
    if (!zeitgeber) {
        zeitgeber = std::make_unique<QTimer>();
        zeitgeber->setSingleShot(true);
        connect(zeitgeber.get(), &QTimer::timeout, this,
                [this, eigenerName = std::string(name)] { Ereignis([&] { form_.Zeitgeber(eigenerName); }); });
    }
    if (ms > 0) zeitgeber->start(ms);
    else zeitgeber->stop();
}

/// What was enabled a moment ago must be so in the widget too, or it can't take the focus.
void Formularfenster::FokusGeben(std::string_view steuerelement) {
    Auffrischen();
    if (const auto teil = teile_.find(steuerelement); teil != teile_.end()) teil->second->setFocus();
}

/// Only what moves within the form counts: not another window, not a popup.
void Formularfenster::FokusGewandert(QWidget *neu) {
    if (!neu || neu->window() != this) return;
    const std::string name = NameVon(neu);
    if (name.empty() || name == fokus_) return;
    const std::string alt = std::exchange(fokus_, name);
    if (!alt.empty()) Ereignis([&] { form_.Verlassen(alt); });
    if (fokus_ == name) Ereignis([&] { form_.FokusErhalten(name); });
}

std::string Formularfenster::NameVon(const QObject *objekt) const {
    for (; objekt && objekt != this; objekt = objekt->parent())
        if (const std::string name = objekt->objectName().toStdString(); teile_.contains(name)) return name;
    return {};
}

void Formularfenster::reject() {
    const Steuerelement *abbruch = form_.Finden(form_.Abbruchknopf);
    if (abbruch) return Ereignis([this] { form_.Drücken(form_.Abbruchknopf); });
    Ereignis([this] { form_.Schließkreuz(); });
}

void Formularfenster::closeEvent(QCloseEvent *ereignis) {
    Ereignis([this] { form_.Schließkreuz(); });
    ereignis->setAccepted(!form_.Offen());
}

/// Some colours are mixed from the theme's.
void Formularfenster::changeEvent(QEvent *ereignis) {
    QDialog::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange && isVisible()) Auffrischen();
}

bool Formularfenster::eventFilter(QObject *objekt, QEvent *ereignis) {
    const auto typ = ereignis->type();
    if (typ != QEvent::KeyPress && typ != QEvent::InputMethod && typ != QEvent::MouseButtonPress) return false;
    const std::string name = NameVon(objekt);
    if (name.empty()) return false;
    if (typ == QEvent::KeyPress) {
        auto &taste = *dynamic_cast<QKeyEvent *>(ereignis);
        return InListeBlättern(name, taste) || TasteSchlucken(name, taste);
    }
    if (typ == QEvent::InputMethod)
        return EingabeSchlucken(*objekt, name, *dynamic_cast<QInputMethodEvent *>(ereignis));
    Ereignis([&] { form_.Drücken(name); });
    return !form_.Offen();
}

/// A search box hands the keys that go through a list to the list that it belongs to, and keeps the focus for what is
/// typed next.
bool Formularfenster::InListeBlättern(const std::string &name, QKeyEvent &taste) {
    const Steuerelement &box = form_[name];
    const auto liste = teile_.find(box.Bei);
    if (box.Kind != Art::Textfeld || liste == teile_.end() || !Blättert(taste)) return false;
    const std::string vorher = form_[box.Bei].Text;
    QCoreApplication::sendEvent(liste->second, &taste);
    if (form_[box.Bei].Text != vorher) NeuVorlesen(*teile_[name]);
    return true;
}

bool Formularfenster::TasteSchlucken(const std::string &name, const QKeyEvent &taste) const {
    const Art art = form_.Finden(name)->Kind;
    if (!FügtEin(taste, art)) return false;
    const QString text = IstEnter(taste.key()) ? QStringLiteral("\n") : taste.text();
    return Erlaubtes(form_, name, text) != text;
}

/// Composed characters (dead keys, input methods) pass the same filter; the rest of the event goes on.
bool Formularfenster::EingabeSchlucken(QObject &ziel, const std::string &name, const QInputMethodEvent &eingabe) {
    const QString erlaubt = Erlaubtes(form_, name, eingabe.commitString());
    if (erlaubt == eingabe.commitString()) return false;
    QInputMethodEvent ersatz(eingabe.preeditString(), eingabe.attributes());
    ersatz.setCommitString(erlaubt, eingabe.replacementStart(), eingabe.replacementLength());
    QCoreApplication::sendEvent(&ziel, &ersatz); // comes back here, and passes
    return true;
}

} // namespace kw
