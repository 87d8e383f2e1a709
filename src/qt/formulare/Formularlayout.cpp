#include "qt/formulare/Formularlayout.h"

#include "dialogs/Formular.h"
#include "qt/formulare/Formularplan.h"
#include "qt/grund/Text.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>

#include <set>
#include <string_view>
#include <vector>

namespace kw {

namespace {

/// Tab comes to a sheet only when its keys do something there.
void TabstoppWennEsRollt(QScrollArea &rolle) {
    const auto setzen = [&rolle] {
        const bool rollt = rolle.verticalScrollBar()->maximum() > 0 || rolle.horizontalScrollBar()->maximum() > 0;
        rolle.setFocusPolicy(rollt ? Qt::StrongFocus : Qt::NoFocus);
    };
    for (const QScrollBar *leiste : {rolle.verticalScrollBar(), rolle.horizontalScrollBar()})
        QObject::connect(leiste, &QScrollBar::rangeChanged, &rolle, setzen);
    setzen();
}

/// Builds layouts from a plan's rows, and remembers which of the form's widgets have found a place.
class Baumeister {
  public:
    Baumeister(const Formular &form, const Formularteile &teile, QWidget &fenster, QBoxLayout &spalte)
        : form_(form), teile_(teile), fenster_(fenster), offen_{&spalte} {}

    void Stellen(const Baustein &b);
    QGridLayout *NeueTafel() const;
    QWidget *Teil(std::string_view name);
    QWidget *Schild(std::string_view name, std::string_view box);
    /// Whether there is such a widget, which has no place yet.
    bool Hat(std::string_view name) const { return teile_.contains(name) && !gestellt_.contains(name); }
    /// One with a caption, or nullptr.
    QPushButton *Knopf(std::string_view name) const {
        const auto teil = teile_.find(name);
        return teil == teile_.end() ? nullptr : dynamic_cast<QPushButton *>(teil->second);
    }

  private:
    QWidget *Zugerichtet(const Baustein &b);
    void GrößeSetzen(QWidget &teil, const Baustein &b) const;
    void Einfügen(const Baustein &b, QWidget *teil);
    void Öffnen(const Baustein &b, QBoxLayout *kasten);
    void TafelÖffnen(const Baustein &b);
    void RahmenÖffnen(const Baustein &b, QBoxLayout::Direction richtung);
    void BlattÖffnen(const Baustein &b);
    QBoxLayout &Kasten() { return dynamic_cast<QBoxLayout &>(*offen_.back()); }
    QGridLayout &Tafel() { return dynamic_cast<QGridLayout &>(*offen_.back()); }

    const Formular &form_;
    const Formularteile &teile_;
    QWidget &fenster_;
    std::vector<QLayout *> offen_; ///< the innermost last
    std::set<std::string, std::less<>> gestellt_;
};

QWidget *Baumeister::Teil(std::string_view name) {
    gestellt_.emplace(name);
    const auto teil = teile_.find(name);
    return teil == teile_.end() ? nullptr : teil->second;
}

/// A label that belongs to a box: its mnemonic leads there.
QWidget *Baumeister::Schild(std::string_view name, std::string_view box) {
    QWidget *schild = Teil(name);
    if (auto *text = dynamic_cast<QLabel *>(schild)) text->setBuddy(teile_.at(std::string(box)));
    return schild;
}

QGridLayout *Baumeister::NeueTafel() const {
    auto *tafel = new QGridLayout;
    tafel->setVerticalSpacing(Zeilenabstand);
    tafel->setHorizontalSpacing(Formularabstand * 2 / 3);
    return tafel;
}

void Baumeister::Stellen(const Baustein &b) {
    switch (b.Was) {
    case Bau::Feld: return Einfügen(b, Zugerichtet(b));
    case Bau::Spalte: return Öffnen(b, new QVBoxLayout);
    case Bau::Reihe: return Öffnen(b, new QHBoxLayout);
    case Bau::Tafel: return TafelÖffnen(b);
    case Bau::Rahmenspalte: return RahmenÖffnen(b, QBoxLayout::TopToBottom);
    case Bau::Rahmenreihe: return RahmenÖffnen(b, QBoxLayout::LeftToRight);
    case Bau::Blatt: return BlattÖffnen(b);
    case Bau::Ende: return offen_.pop_back();
    case Bau::Lücke: return Kasten().addSpacing(b.Maß);
    case Bau::Rest: return Kasten().addStretch();
    case Bau::Spaltendehnung: return Tafel().setColumnStretch(b.Spalte, b.Dehnung);
    case Bau::Zeilendehnung: return Tafel().setRowStretch(b.Zeile, b.Dehnung);
    }
}

QWidget *Baumeister::Zugerichtet(const Baustein &b) {
    QWidget *teil = b.Box.empty() ? Teil(b.Teil) : Schild(b.Teil, b.Box);
    GrößeSetzen(*teil, b);
    if (b.Haltend) {
        QSizePolicy regel = teil->sizePolicy();
        regel.setRetainSizeWhenHidden(true);
        teil->setSizePolicy(regel);
    }
    if (b.Eingerückt) {
        const QStyle &stil = *teil->style();
        teil->setContentsMargins(stil.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                                     stil.pixelMetric(QStyle::PM_RadioButtonLabelSpacing),
                                 0, 0, 0);
    }
    if (auto *text = dynamic_cast<QLabel *>(teil); text && b.Absatz) {
        text->setWordWrap(true);
        text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    if (b.Schriftgrad != 1) {
        QFont schrift = teil->font();
        schrift.setPointSizeF(schrift.pointSizeF() * b.Schriftgrad);
        teil->setFont(schrift);
    }
    if (!b.Erklärung.empty()) teil->setAccessibleDescription(Text(form_.Finden(b.Erklärung)->Caption));
    return teil;
}

void Baumeister::GrößeSetzen(QWidget &teil, const Baustein &b) const {
    const QFontMetrics maß(fenster_.font());
    if (b.Breite > 0) teil.setMinimumWidth(maß.averageCharWidth() * b.Breite);
    if (b.Höhe > 0) teil.setMinimumHeight(maß.height() * b.Höhe);
    if (b.Höchstbreite > 0) teil.setMaximumWidth(maß.averageCharWidth() * b.Höchstbreite);
}

void Baumeister::Einfügen(const Baustein &b, QWidget *teil) {
    const Qt::Alignment bündig = b.Mittig ? Qt::AlignHCenter : Qt::Alignment();
    if (auto *tafel = dynamic_cast<QGridLayout *>(offen_.back()))
        tafel->addWidget(teil, b.Zeile, b.Spalte, b.Zeilen, b.Spalten, bündig);
    else Kasten().addWidget(teil, b.Dehnung, bündig);
}

void Baumeister::Öffnen(const Baustein &b, QBoxLayout *kasten) {
    if (b.Maß >= 0) kasten->setSpacing(b.Maß);
    if (auto *tafel = dynamic_cast<QGridLayout *>(offen_.back()))
        tafel->addLayout(kasten, b.Zeile, b.Spalte, b.Zeilen, b.Spalten);
    else Kasten().addLayout(kasten, b.Dehnung);
    offen_.push_back(kasten);
}

void Baumeister::TafelÖffnen(const Baustein &b) {
    QGridLayout *tafel = NeueTafel();
    Kasten().addLayout(tafel, b.Dehnung);
    offen_.push_back(tafel);
}

void Baumeister::RahmenÖffnen(const Baustein &b, QBoxLayout::Direction richtung) {
    QWidget *rahmen = Teil(b.Teil);
    Einfügen(b, rahmen);
    offen_.push_back(new QBoxLayout(richtung, rahmen));
}

void Baumeister::BlattÖffnen(const Baustein &b) {
    auto *rolle = new QScrollArea;
    auto *blatt = new QWidget;
    rolle->setWidget(blatt);
    rolle->setWidgetResizable(true);
    GrößeSetzen(*rolle, b);
    QPalette papier; // what lies on it stands on the page, whatever the theme
    papier.setColor(QPalette::Window, Qt::white);
    papier.setColor(QPalette::WindowText, Qt::black);
    blatt->setPalette(papier);
    blatt->setAutoFillBackground(true);
    Einfügen(b, rolle);
    offen_.push_back(new QVBoxLayout(blatt));
    TabstoppWennEsRollt(*rolle);
}

/// Two columns: a label in front of the box that follows it; what needs no label goes through both.
void ReihumStellen(Baumeister &m, const Formular &form, QBoxLayout &spalte) {
    auto *tafel = m.NeueTafel();
    const auto &namen = form.Reihenfolge();
    const auto istSchild = [&](const std::string &name) { return form.Finden(name)->Kind == Art::Beschriftung; };
    int reihe = 0;
    for (size_t i = 0; i < namen.size(); ++i) {
        const std::string &name = namen[i];
        if (!m.Hat(name) || m.Knopf(name)) continue;
        if (istSchild(name) && i + 1 < namen.size() && m.Hat(namen[i + 1]) && !istSchild(namen[i + 1])) {
            tafel->addWidget(m.Schild(name, namen[i + 1]), reihe, 0);
            tafel->addWidget(m.Teil(namen[++i]), reihe++, 1);
        } else {
            tafel->addWidget(m.Teil(name), reihe++, 0, 1, 2);
        }
    }
    tafel->setColumnStretch(1, 1);
    spalte.addLayout(tafel);
}

/// OK, cancel and whatever else has no place yet, in the order of the desktop.
void KnopfreiheStellen(const Baumeister &m, const Formular &form, QBoxLayout &spalte) {
    auto *reihe = new QDialogButtonBox;
    for (const auto &name : form.Reihenfolge()) {
        QPushButton *knopf = m.Knopf(name);
        if (!knopf || !m.Hat(name)) continue;
        const auto rolle = name == form.Vorgabeknopf   ? QDialogButtonBox::AcceptRole
                           : name == form.Abbruchknopf ? QDialogButtonBox::RejectRole
                                                       : QDialogButtonBox::ResetRole;
        reihe->addButton(knopf, rolle);
    }
    reihe->setFocusProxy(nullptr); // else Tab passes over whatever stands behind its first button
    spalte.addWidget(reihe);
}

} // namespace

void FormularAnordnen(const Formular &form, const Formularteile &teile, QWidget &fenster) {
    constexpr int Abstand = Formularabstand;
    auto *spalte = new QVBoxLayout(&fenster);
    spalte->setSpacing(Abstand * 2 / 3);
    spalte->setContentsMargins(Abstand, Abstand, Abstand, Abstand * 2 / 3);
    constexpr int Titelbeiwerk = 120; // the window manager's buttons beside the title
    spalte->addStrut(QFontMetrics(fenster.font()).horizontalAdvance(Text(form.Caption)) + Titelbeiwerk);
    Baumeister meister(form, teile, fenster, *spalte);
    const Formularplan *plan = PlanFür(form);
    if (plan)
        for (const Baustein &b : plan->Bausteine) meister.Stellen(b);
    ReihumStellen(meister, form, *spalte);
    KnopfreiheStellen(meister, form, *spalte);
    if (!plan || !plan->Ziehbar) spalte->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace kw
