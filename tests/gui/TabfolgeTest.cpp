// Every form walked by Tab, there and back: what can be used is reached, once a round.
#include "gui/AlleFormulare.h"
#include "qt/formulare/Formularfenster.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

using namespace kw;

namespace {

using Namen = std::vector<std::string>;

constexpr std::initializer_list<Art> Unbedienbar{Art::Beschriftung, Art::Bild, Art::Warnrahmen, Art::Rahmen};

/// What Tab must reach, in the table's order: of a group of options the chosen one.
Namen Bedienbare(Formular &form) {
    Namen namen;
    std::set<int> gewählt; // groups
    const auto &alle = form.Reihenfolge();
    for (const auto &name : alle)
        if (form[name].Kind == Art::Option && form[name].Value) gewählt.insert(form[name].Gruppe);
    for (const auto &name : alle) {
        const Steuerelement &element = form[name];
        if (!element.Visible || !element.Enabled || std::count(Unbedienbar.begin(), Unbedienbar.end(), element.Kind))
            continue;
        if (element.Kind == Art::Option && !element.Value && gewählt.contains(element.Gruppe)) continue;
        namen.push_back(name);
    }
    return namen;
}

/// The control that has the focus; what is none of the form's is told by its class.
std::string Fokus(Formular &form, const QWidget &fenster) {
    const QWidget *teil = QApplication::focusWidget();
    if (!teil || teil->window() != &fenster) return "outside";
    for (const QWidget *w = teil; w != &fenster; w = w->parentWidget())
        if (form.Finden(w->objectName().toStdString())) return w->objectName().toStdString();
    return teil->metaObject()->className();
}

void Schicken(Qt::Key taste) {
    QKeyEvent ab(QEvent::KeyPress, taste, taste == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    if (QWidget *ziel = QApplication::focusWidget()) QApplication::sendEvent(ziel, &ab);
}

/// From the control that has the focus on, until it comes round: so many steps, and what was met.
Namen Runde(Formular &form, const QWidget &fenster, Qt::Key taste) {
    Namen gang;
    const std::string anfang = Fokus(form, fenster);
    const size_t höchstens = 2 * form.Reihenfolge().size();
    do {
        gang.push_back(Fokus(form, fenster));
        Schicken(taste);
    } while (Fokus(form, fenster) != anfang && gang.size() < höchstens);
    return gang;
}

std::string Aufgezählt(const Namen &namen) {
    std::string text;
    for (const auto &name : namen) text += name + " ";
    return text;
}

/// A round begins where the focus was: turned so that it begins as the other one.
Namen Gedreht(Namen gang, const std::string &anfang) {
    std::rotate(gang.begin(), std::find(gang.begin(), gang.end(), anfang), gang.end());
    return gang;
}

void Umrunden(Formular &form, const QWidget &fenster, const std::string &wo) {
    const Namen soll = Bedienbare(form);
    Namen hin = Runde(form, fenster, Qt::Key_Tab);
    Namen zurück = Runde(form, fenster, Qt::Key_Backtab);
    std::reverse(zurück.begin(), zurück.end());
    EXPECT_EQ(Aufgezählt(Gedreht(hin, soll.front())), Aufgezählt(soll)) << wo << ", Tab";
    EXPECT_EQ(Aufgezählt(Gedreht(zurück, soll.front())), Aufgezählt(soll)) << wo << ", Shift+Tab";
}

/// As it comes up, and with each of its options and marks.
void FormUmrunden(Formular &form, const std::string &wo) {
    Formularfenster fenster(form, nullptr);
    QTimer::singleShot(0, &fenster, [&] {
        QApplication::processEvents();
        Umrunden(form, fenster, wo);
        for (const auto &name : form.Reihenfolge()) {
            const Art art = form[name].Kind;
            if ((art != Art::Option && art != Art::Ankreuzfeld) || !form[name].Enabled || !form[name].Visible) continue;
            auto *knopf = fenster.findChild<QAbstractButton *>(QString::fromStdString(name));
            knopf->setFocus(Qt::MouseFocusReason); // as a click does
            knopf->click();
            Umrunden(form, fenster, wo + " " + name);
        }
        fenster.close();
    });
    fenster.Ausführen();
}

TEST(Tabfolge, ErreichtAllesEinmalHinUndZurück) {
    qputenv("CUPS_SERVER", "localhost:1"); // nobody is there
    for (const std::string sprache : {"de", "en"})
        AlleFormulare(sprache, [&](Formular &form) { FormUmrunden(form, sprache + " " + form.Name()); });
    qunsetenv("CUPS_SERVER");
}

/// A letter that is held with Alt means one control of a form only.
TEST(Tabfolge, KeineTasteMeintZwei) {
    for (const std::string sprache : {"de", "en"})
        AlleFormulare(sprache, [&](Formular &form) {
            form.Laden();
            std::map<QChar, std::string> tasten;
            for (const auto &name : form.Reihenfolge()) {
                const QString text = QString::fromStdString(form[name].Caption).toLower();
                const auto marke = text.indexOf(u'&');
                if (marke < 0 || marke + 1 == text.size()) continue;
                const auto [andere, neu] = tasten.emplace(text[marke + 1], name);
                EXPECT_TRUE(neu) << sprache << " " << form.Name() << ": " << name << " and " << andere->second;
            }
        });
}

/// The samples of huge letters don't fit on their sheet: then Tab comes there, and its keys scroll.
TEST(Tabfolge, KommtZumBlattDasRollt) {
    AlleFormulare("de", [](Formular &form) {
        if (form.Name() != "frmSchrift") return;
        Formularfenster fenster(form, nullptr);
        QTimer::singleShot(0, &fenster, [&] {
            const auto *blatt = fenster.findChild<QScrollArea *>();
            form.TextEingeben("cboFontsize1", "200");
            form.Zeitgeber("Timer1"); // it heeds what is typed from here on
            form.Wirt->FokusGeben("cboFontsize1");
            // Letters, their labels, the sheet: each is laid out behind the one before.
            for (int i = 0; i < 50 && blatt->verticalScrollBar()->maximum() == 0; ++i) QApplication::processEvents();
            const Namen gang = Runde(form, fenster, Qt::Key_Tab);
            EXPECT_EQ(std::count(gang.begin(), gang.end(), "QScrollArea"), 1) << Aufgezählt(gang);
            for (size_t i = 0; i < gang.size() && QApplication::focusWidget() != blatt; ++i) Schicken(Qt::Key_Tab);
            Schicken(Qt::Key_Down);
            EXPECT_GT(blatt->verticalScrollBar()->value(), 0);
            fenster.close();
        });
        fenster.Ausführen();
    });
}

/// With huge letters a form is larger than the screen: it scrolls to where the keyboard is.
TEST(Tabfolge, BringtInsBildWasNichtAufDenSchirmPasst) {
    const QFont vorher = QApplication::font();
    QFont riesig = vorher;
    riesig.setPointSize(30);
    QApplication::setFont(riesig);
    int rollende = 0;
    AlleFormulare("de", [&](Formular &form) {
        Formularfenster fenster(form, nullptr);
        QTimer::singleShot(0, &fenster, [&] {
            QApplication::processEvents();
            const QSize schirm = fenster.screen()->availableSize();
            EXPECT_TRUE(fenster.width() <= schirm.width() && fenster.height() <= schirm.height()) << form.Name();
            rollende += fenster.findChild<QScrollArea *>(QString(), Qt::FindDirectChildrenOnly) ? 1 : 0;
            const Namen soll = Bedienbare(form);
            for (size_t i = 0; i <= soll.size(); ++i) {
                EXPECT_FALSE(QApplication::focusWidget()->visibleRegion().isEmpty())
                    << form.Name() << " " << Fokus(form, fenster);
                Schicken(Qt::Key_Tab);
                QApplication::processEvents();
            }
            fenster.close();
        });
        fenster.Ausführen();
    });
    EXPECT_GT(rollende, 0);
    QApplication::setFont(vorher);
}

} // namespace
