#include "qt/formulare/Formularlayout.h"

#include "dialogs/Formular.h"
#include "qt/grund/Text.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QToolButton>

#include <initializer_list>
#include <set>
#include <string_view>

namespace kw {

namespace {

constexpr int Abstand = 18; ///< between the parts of a form, pixels
constexpr int Zeilenabstand = 8;

/// Hands out a form's widgets, and remembers which have found a place.
class Baukasten {
  public:
    Baukasten(const Formular &form, const Formularteile &teile, QWidget &fenster)
        : Form(form), Fenster(fenster), teile_(teile) {}

    QWidget *Teil(std::string_view name) {
        gestellt_.emplace(name);
        const auto teil = teile_.find(name);
        return teil == teile_.end() ? nullptr : teil->second;
    }
    bool Hat(std::string_view name) const { return teile_.contains(name) && !gestellt_.contains(name); }
    Art ArtVon(std::string_view name) const { return Form.Finden(name)->Kind; }

    /// A label that belongs to a box: its mnemonic leads there.
    QWidget *Schild(std::string_view name, std::string_view box) {
        QWidget *schild = Teil(name);
        if (auto *text = dynamic_cast<QLabel *>(schild)) text->setBuddy(teile_.at(std::string(box)));
        return schild;
    }
    /// The room stays free while the control is hidden, so that nothing else moves.
    QWidget *Platzhalter(QWidget *teil) {
        QSizePolicy regel = teil->sizePolicy();
        regel.setRetainSizeWhenHidden(true);
        teil->setSizePolicy(regel);
        return teil;
    }
    /// Wide enough for so many average characters.
    QWidget *Mindestens(QWidget *teil, int zeichen) {
        teil->setMinimumWidth(Zeichenbreite() * zeichen);
        return teil;
    }
    QWidget *Höchstens(QWidget *teil, int zeichen) {
        teil->setMaximumWidth(Zeichenbreite() * zeichen);
        return teil;
    }
    /// A text of several lines, about so many characters wide.
    QLabel *Absatz(std::string_view name, int zeichen) {
        auto *text = dynamic_cast<QLabel *>(Teil(name));
        text->setWordWrap(true);
        text->setMinimumWidth(Zeichenbreite() * zeichen);
        text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        return text;
    }
    QGridLayout *Tafel() const {
        auto *tafel = new QGridLayout;
        tafel->setVerticalSpacing(Zeilenabstand);
        tafel->setHorizontalSpacing(Abstand * 2 / 3);
        return tafel;
    }
    /// A titled frame, with a layout for what stands in it.
    template <typename Layout> Layout *Rahmen(std::string_view name, QBoxLayout &wohin) {
        QWidget *rahmen = Teil(name);
        wohin.addWidget(rahmen);
        return new Layout(rahmen);
    }
    int Zeichenbreite() const { return QFontMetrics(Fenster.font()).averageCharWidth(); }

    const Formular &Form;
    QWidget &Fenster;

  private:
    const Formularteile &teile_;
    std::set<std::string, std::less<>> gestellt_;
};

QHBoxLayout *Nebeneinander(std::initializer_list<QWidget *> teile) {
    auto *reihe = new QHBoxLayout;
    for (QWidget *teil : teile) reihe->addWidget(teil);
    return reihe;
}

/// A preview below its title.
QVBoxLayout *Bildspalte(Baukasten &k, std::string_view schild, std::string_view bild) {
    auto *spalte = new QVBoxLayout;
    spalte->setSpacing(Zeilenabstand / 2);
    spalte->addWidget(k.Schild(schild, bild));
    spalte->addWidget(k.Teil(bild));
    spalte->addStretch();
    return spalte;
}

// One routine a form; each fills a column that the buttons' row ends.

void PersonStellen(Baukasten &k, QGridLayout &tafel) {
    struct Feld {
        const char *Schild;
        const char *Box;
        int Reihe, Spalte, Spalten;
    };
    constexpr Feld Felder[] = {
        {"Label1", "txtVorname", 0, 0, 4}, {"Label2", "txtNachname", 1, 0, 4},
        {"Label3", "cboSymbol", 2, 0, 4},  {"Label4", "txtGeburtsdatum", 3, 0, 1},
        {"Label6", "txtAlter", 3, 3, 1},   {"Label5", "txtSterbealter", 4, 3, 1},
    };
    for (const Feld &feld : Felder) {
        tafel.addWidget(k.Platzhalter(k.Schild(feld.Schild, feld.Box)), feld.Reihe, feld.Spalte);
        tafel.addWidget(k.Teil(feld.Box), feld.Reihe, feld.Spalte + 1, 1, feld.Spalten);
    }
    k.Mindestens(k.Teil("txtGeburtsdatum"), 14);
    for (const char *kurz : {"txtAlter", "txtSterbealter"}) k.Mindestens(k.Teil(kurz), 8);
    QWidget *vergleich = k.Platzhalter(k.Mindestens(k.Teil("imgVergleich"), 2)); // date and age: exact or about
    tafel.addWidget(vergleich, 3, 2, Qt::AlignHCenter);
    tafel.addWidget(k.Teil("chkVerstorben"), 4, 1);
    int reihe = 5;
    for (const char *name : {"chkIndexPerson", "chkSucht", "chkErkrankung"})
        tafel.addWidget(k.Teil(name), reihe++, 1, 1, 4);
    tafel.setColumnStretch(1, 2);
    tafel.setColumnStretch(4, 1);
    tafel.setRowStretch(reihe, 1);
}

void InstitutionStellen(Baukasten &k, QGridLayout &tafel) {
    tafel.addWidget(k.Schild("Label8", "txtInstitution"), 0, 0);
    tafel.addWidget(k.Mindestens(k.Teil("txtInstitution"), 40), 1, 0);
    tafel.setRowStretch(2, 1);
}

void SymbolStellen(Baukasten &k, QBoxLayout &spalte) {
    const bool person = k.Form.Finden("picBack")->Visible;
    auto *seite = new QHBoxLayout;
    seite->setSpacing(Abstand);
    auto *tafel = k.Tafel();
    seite->addLayout(tafel, 1);
    if (person) PersonStellen(k, *tafel);
    else InstitutionStellen(k, *tafel);
    seite->addLayout(Bildspalte(k, "Label7", person ? "picBack" : "picBack2"));
    spalte.addLayout(seite);
}

void PLinienStellen(Baukasten &k, QBoxLayout &spalte) {
    constexpr const char *Stände[][3] = {{"Option1", "Label1", "txtNichtEhelich"},
                                         {"Option2", "Label2", "txtVerheiratet"},
                                         {"Option4", "Label3", "txtGetrennt"},
                                         {"Option5", "Label4", "txtGeschieden"}};
    auto *tafel = k.Tafel();
    int reihe = 0;
    for (const auto &[option, schild, box] : Stände) {
        tafel->addWidget(k.Teil(option), reihe, 0);
        tafel->addWidget(k.Schild(schild, box), reihe, 1);
        tafel->addWidget(k.Mindestens(k.Teil(box), 18), reihe++, 2);
        k.Teil(box)->setAccessibleDescription(Text(k.Form.Finden(option)->Caption)); // the labels all read alike
    }
    tafel->setColumnStretch(2, 1);
    spalte.addLayout(tafel);
    spalte.addWidget(k.Teil("Check1"));
    spalte.addWidget(k.Teil("Picture1"), 0, Qt::AlignHCenter);
}

/// Plain kinds on the left, those with a conflict on the right.
void BezLinienStellen(Baukasten &k, QBoxLayout &spalte) {
    auto *tafel = k.Tafel();
    int reihe = 0;
    for (const char *name : {"optNormal", "optEng", "optVerschmolzen", "optDistanziert", "optAbbruch"})
        tafel->addWidget(k.Teil(name), reihe++, 0);
    tafel->addWidget(k.Teil("optKonflikthaft"), 0, 1);
    tafel->addWidget(k.Teil("optEng_Konflikt"), 1, 1);
    // The last caption's second line stands close below its first.
    auto *letzte = new QVBoxLayout;
    letzte->setSpacing(0);
    QWidget *option = k.Teil("optVerschm_Konflikthaft");
    QWidget *zweite = k.Teil("Label1");
    const QStyle &stil = *option->style();
    zweite->setContentsMargins(stil.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                                   stil.pixelMetric(QStyle::PM_RadioButtonLabelSpacing),
                               0, 0, 0);
    option->setAccessibleDescription(Text(k.Form.Finden("Label1")->Caption));
    for (QWidget *zeile : {option, zweite}) letzte->addWidget(zeile);
    letzte->addStretch();
    tafel->addLayout(letzte, 2, 1, 3, 1);
    spalte.addLayout(tafel);
    spalte.addWidget(k.Teil("Picture1"), 0, Qt::AlignHCenter);
}

void KommentarStellen(Baukasten &k, QBoxLayout &spalte) {
    const auto leiste = [&](std::initializer_list<std::initializer_list<const char *>> gruppen) {
        auto *reihe = new QHBoxLayout;
        for (const auto &gruppe : gruppen) {
            auto *knöpfe = new QHBoxLayout;
            knöpfe->setSpacing(2);
            for (const char *name : gruppe) knöpfe->addWidget(k.Teil(name));
            reihe->addLayout(knöpfe);
            reihe->addSpacing(Abstand / 2);
        }
        reihe->addStretch();
        return reihe;
    };
    auto *schrift = Nebeneinander({k.Schild("lblSchriftart", "cboSchriftart"), k.Teil("cboSchriftart")});
    schrift->addSpacing(Abstand / 2);
    schrift->addWidget(k.Schild("lblFontSize", "cboFontSize"));
    schrift->addWidget(k.Teil("cboFontSize"));
    schrift->setStretch(1, 1);
    spalte.addLayout(schrift);
    auto *knöpfe = leiste({{"btnSchriftgr_e(0)", "btnSchriftgr_e(1)", "btnSchriftgr_e(2)"},
                           {"imgColor", "lblColor"},
                           {"btnStyle(0)", "btnStyle(1)", "btnStyle(2)"},
                           {"btnLeft", "btnMid", "btnRight"}});
    knöpfe->addWidget(k.Teil("cmdEigenschaften"));
    spalte.addLayout(knöpfe);
    constexpr double Größen[] = {0.75, 1, 1.3}; // of the letters on the three buttons
    for (int i = 0; i < 3; ++i) {
        QWidget *knopf = k.Teil("btnSchriftgr_e(" + std::to_string(i) + ")");
        QFont schriftart = knopf->font();
        schriftart.setPointSizeF(schriftart.pointSizeF() * Größen[i]);
        knopf->setFont(schriftart);
    }
    QWidget *text = k.Teil("Text1");
    text->setMinimumSize(k.Zeichenbreite() * 48, QFontMetrics(k.Fenster.font()).height() * 6);
    spalte.addWidget(text, 1);
}

/// Samples are as large as they will be; whoever takes a huge size scrolls.
QScrollArea *Beispielblatt(Baukasten &k) {
    auto *blatt = new QWidget;
    auto *spalte = new QVBoxLayout(blatt);
    for (const char *name : {"lblBeispiel1", "lblBeispiel2", "lblBeispiel3"}) spalte->addWidget(k.Teil(name));
    spalte->addStretch();
    auto *rolle = new QScrollArea;
    rolle->setWidget(blatt);
    rolle->setWidgetResizable(true);
    rolle->setMinimumSize(k.Zeichenbreite() * 50, QFontMetrics(k.Fenster.font()).height() * 8);
    QPalette papier; // samples stand on the page, whatever the theme
    papier.setColor(QPalette::Window, Qt::white);
    papier.setColor(QPalette::WindowText, Qt::black);
    blatt->setPalette(papier);
    blatt->setAutoFillBackground(true);
    return rolle;
}

void SchriftStellen(Baukasten &k, QBoxLayout &spalte) {
    auto *tafel = k.Tafel();
    tafel->addWidget(k.Schild("lblSchriftart", "cboSchriftart"), 0, 0);
    tafel->addWidget(k.Teil("cboSchriftart"), 0, 1);
    for (int i = 1; i <= 3; ++i) {
        const std::string liste = "cboFontsize" + std::to_string(i);
        tafel->addWidget(k.Schild("lblFontsize" + std::to_string(i), liste), i, 0);
        tafel->addWidget(k.Höchstens(k.Teil(liste), 14), i, 1);
    }
    tafel->setColumnStretch(1, 1);
    spalte.addLayout(tafel);
    spalte.addWidget(Beispielblatt(k), 1);
}

void SymbGlobalStellen(Baukasten &k, QBoxLayout &spalte) {
    spalte.addWidget(k.Absatz("lblHinweis", 44));
    auto *seite = new QHBoxLayout;
    auto *wahl = new QVBoxLayout;
    for (int i = 0; i < 3; ++i) wahl->addWidget(k.Teil("optAltersanzeige(" + std::to_string(i) + ")"));
    wahl->addStretch();
    seite->addLayout(wahl, 1);
    seite->addLayout(Bildspalte(k, "lblVorschau", "picAltersanzeige"));
    spalte.addLayout(seite);
}

void LegendeStellen(Baukasten &k, QBoxLayout &spalte) {
    spalte.addWidget(k.Teil("chkLegendeAnzeigen"));
    spalte.addWidget(k.Teil("chkAlleSymbole"));
    auto *form = Nebeneinander({k.Teil("optHoch"), k.Teil("optQuer")});
    form->addStretch();
    spalte.addLayout(form);
    spalte.addWidget(k.Teil("imgAusrichtung"), 0, Qt::AlignHCenter);
}

void DruckenStellen(Baukasten &k, QBoxLayout &spalte) {
    k.Rahmen<QVBoxLayout>("Frame1", spalte)->addWidget(k.Mindestens(k.Teil("cboDrucker"), 40));
    auto *exemplare = k.Rahmen<QHBoxLayout>("Frame2", spalte);
    exemplare->addWidget(k.Schild("Label1", "txtCopies"));
    exemplare->addWidget(k.Höchstens(k.Teil("txtCopies"), 10));
    for (const char *name : {"cmdDBBildUp", "cmdDBBildDown"}) exemplare->addWidget(k.Teil(name));
    exemplare->addStretch();
}

void SeiteStellen(Baukasten &k, QBoxLayout &spalte) {
    k.Rahmen<QVBoxLayout>("Frame1", spalte)->addWidget(k.Mindestens(k.Teil("cboPapierformat"), 30));
    auto *ausrichtung = k.Rahmen<QHBoxLayout>("Frame2", spalte);
    for (const char *name : {"Option1", "Option2"}) ausrichtung->addWidget(k.Teil(name));
    ausrichtung->addStretch();
    spalte.addWidget(k.Teil("Check1"));
}

void EinstellungenStellen(Baukasten &k, QBoxLayout &spalte) {
    auto *reihe = Nebeneinander({k.Schild("Label1", "Combo1"), k.Mindestens(k.Teil("Combo1"), 20)});
    reihe->setStretch(1, 1);
    spalte.addLayout(reihe);
}

void InfoStellen(Baukasten &k, QBoxLayout &spalte) {
    spalte.addWidget(k.Teil("lblName"));
    spalte.addWidget(k.Teil("lblVersion"));
    spalte.addSpacing(Abstand / 2);
    spalte.addWidget(k.Absatz("lblBeschreibung", 44));
}

/// Two columns: a label in front of the box that follows it; what needs no label goes through both.
void ReihumStellen(Baukasten &k, QBoxLayout &spalte) {
    auto *tafel = k.Tafel();
    const auto &namen = k.Form.Reihenfolge();
    int reihe = 0;
    for (size_t i = 0; i < namen.size(); ++i) {
        const std::string &name = namen[i];
        if (!k.Hat(name) || dynamic_cast<QPushButton *>(k.Teil(name))) continue;
        const bool vorBox = k.ArtVon(name) == Art::Beschriftung && i + 1 < namen.size() && k.Hat(namen[i + 1]) &&
                            k.ArtVon(namen[i + 1]) != Art::Beschriftung;
        if (vorBox) {
            tafel->addWidget(k.Schild(name, namen[i + 1]), reihe, 0);
            tafel->addWidget(k.Teil(namen[++i]), reihe++, 1);
        } else {
            tafel->addWidget(k.Teil(name), reihe++, 0, 1, 2);
        }
    }
    tafel->setColumnStretch(1, 1);
    spalte.addLayout(tafel);
}

/// OK, cancel and whatever else, in the order of the desktop.
void KnopfreiheStellen(Baukasten &k, const Formularteile &teile, QBoxLayout &spalte) {
    auto *reihe = new QDialogButtonBox;
    for (const auto &name : k.Form.Reihenfolge()) {
        const auto teil = teile.find(name);
        auto *knopf = teil == teile.end() ? nullptr : dynamic_cast<QPushButton *>(teil->second);
        if (!knopf) continue;
        const auto rolle = name == k.Form.Vorgabeknopf   ? QDialogButtonBox::AcceptRole
                           : name == k.Form.Abbruchknopf ? QDialogButtonBox::RejectRole
                                                         : QDialogButtonBox::ResetRole;
        reihe->addButton(knopf, rolle);
    }
    spalte.addWidget(reihe);
}

struct Formularplan {
    std::string_view Form;
    void (*Stellen)(Baukasten &, QBoxLayout &);
    bool Ziehbar = false; ///< can be resized
};
constexpr Formularplan Pläne[] = {
    {"frmSymbol", SymbolStellen},
    {"frmPLinien", PLinienStellen},
    {"frmBezLinien", BezLinienStellen},
    {"frmKommentar", KommentarStellen, true},
    {"frmSchrift", SchriftStellen, true},
    {"frmSymbGlobal", SymbGlobalStellen},
    {"frmLegende", LegendeStellen},
    {"frmDrucken", DruckenStellen},
    {"frmSeiteEinrichten", SeiteStellen},
    {"frmEinstellungen", EinstellungenStellen},
    {"frmInfo", InfoStellen},
};

} // namespace

void FormularAnordnen(const Formular &form, const Formularteile &teile, QWidget &fenster) {
    Baukasten kasten(form, teile, fenster);
    auto *spalte = new QVBoxLayout(&fenster);
    spalte->setSpacing(Abstand * 2 / 3);
    spalte->setContentsMargins(Abstand, Abstand, Abstand, Abstand * 2 / 3);
    constexpr int Titelbeiwerk = 120; // the window manager's buttons beside the title
    spalte->addStrut(QFontMetrics(fenster.font()).horizontalAdvance(Text(form.Caption)) + Titelbeiwerk);
    bool ziehbar = false;
    for (const Formularplan &plan : Pläne) {
        if (plan.Form != form.Name()) continue;
        plan.Stellen(kasten, *spalte);
        ziehbar = plan.Ziehbar;
    }
    ReihumStellen(kasten, *spalte);
    KnopfreiheStellen(kasten, teile, *spalte);
    if (!ziehbar) spalte->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace kw
