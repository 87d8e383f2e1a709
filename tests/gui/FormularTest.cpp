// A form with a control of each kind, driven by keys and mouse: what the model hears, what shows of its state.
#include "qt/formulare/Formularfenster.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>
#include <QtEvents>

#include <gtest/gtest.h>

using namespace kw;

namespace {

constexpr Formularzeile Zeilen[] = {
    {"Label1", Art::Beschriftung, {"&Name:", ""}},
    {"txt", Art::Textfeld},
    {"shp", Art::Warnrahmen, {}, {"warum", ""}, "txt"},
    {"block", Art::Textblock},
    {"cbo", Art::Kombination},
    {"lst", Art::Liste},
    {"btn", Art::Umschalter, {"F", ""}, {"Fett", ""}},
    {"chk", Art::Ankreuzfeld, {"Haken", ""}},
    {"opt1", Art::Option, {"opt1", ""}},
    {"opt2", Art::Option, {"opt2", ""}},
    {"farbe", Art::Farbfeld},
    {"pic", Art::Bild},
    {"Frame1", Art::Rahmen, {"Rahmen", ""}},
    {"cmdOK", Art::Knopf, {"cmdOK", ""}},
    {"cmdNein", Art::Knopf, {"cmdNein", ""}},
    {"cmdWeg", Art::Knopf, {"cmdWeg", ""}},
};
constexpr Formulartafel Tafel{"Probe", {"Probe", ""}, Zeilen, "cmdOK", "cmdNein"};

struct Probe : Formular {
    Probe() : Formular(Tafel, Sprache::Deutsch) {
        for (const char *name : {"cbo", "lst"}) (*this)[name].Einträge = {"eins", "zwei"};
    }
    void Laden() override { BeimLaden(); }
    void Entladen() override { Spur += "weg"; }
    void Schließkreuz() override { Spur += "kreuz ", Schließen(); }
    void Zeitgeber(std::string_view name) override { Spur.append(name) += ' '; }
    bool TasteErlaubt(std::string_view, std::string_view z) const override { return z != "#" && z != "ß"; }
    void Geändert(std::string_view name) override { (*this)["shp"].Visible = (*this)[name].Text.size() > 5; }
    void MausGedrückt(std::string_view name) override { Spur.append("maus:").append(name) += ' '; }
    void Fokussiert(std::string_view name) override { Spur.append("+").append(name) += ' '; }
    void FokusVerloren(std::string_view name) override { Spur.append("-").append(name) += ' '; }
    void Geklickt(std::string_view name) override {
        Spur.append(name) += ' ';
        if (name == "farbe") BeimFarbfeld();
        if (name.starts_with("cmd")) Schließen();
    }
    std::string Spur; ///< what the model has heard
    std::function<void()> BeimLaden = [] {}, BeimFarbfeld = [] {};
};

QWidget *Teil(const char *name) { return QApplication::activeModalWidget()->findChild<QWidget *>(name); }
void Taste(QWidget *ziel, int taste, const QString &text = {}) {
    QKeyEvent ereignis(QEvent::KeyPress, taste, Qt::NoModifier, text);
    QApplication::sendEvent(ziel, &ereignis);
}
void Tippen(QWidget *ziel, const QString &text) {
    for (const QChar c : text) c == '\n' ? Taste(ziel, Qt::Key_Return, "\r") : Taste(ziel, 0, c);
}
void Klicken(QWidget *ziel) {
    for (const auto art : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent ereignis(art, QPointF(6, 6), ziel->mapToGlobal(QPointF(6, 6)), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(ziel, &ereignis);
    }
}
/// Shows the form; `tun` is the user. What then is still open is closed by its close box.
void Zeigen(Probe &form, const std::function<void()> &tun) {
    Formularfenster fenster(form, nullptr);
    QTimer::singleShot(0, &fenster, [&] { QApplication::processEvents(), tun(), form.Offen() && fenster.close(); });
    fenster.Ausführen();
}

TEST(Formularfenster, JedeArtMeldetUndZeigt) {
    Probe form, innen;
    form.BeimFarbfeld = [&] { Zeigen(innen, [] { Klicken(Teil("chk")); }); }; // a form that opens a form waits for it
    Zeigen(form, [&] {
        auto *zeile = dynamic_cast<QLineEdit *>(Teil("txt"));
        EXPECT_EQ(zeile->accessibleName() + Teil("btn")->accessibleName(), "NameFett");
        Tippen(zeile, "a#cß"); // what is refused is swallowed, also when it is composed
        QInputMethodEvent komponiert;
        komponiert.setCommitString("ßé");
        QApplication::sendEvent(zeile, &komponiert);
        zeile->setCursorPosition(1);
        Tippen(zeile, "b"); // in the middle, and the caret stays there
        EXPECT_TRUE(!Teil("shp")->isVisible() && zeile->toolTip().isEmpty());
        zeile->insert("#"); // as pasting does, which isn't filtered
        EXPECT_EQ(form["txt"].Text, "ab#cé");
        EXPECT_TRUE(Teil("shp")->isVisible() && Teil("shp")->geometry().contains(zeile->geometry()));
        EXPECT_EQ(zeile->toolTip() + zeile->accessibleDescription(), "warumwarum"); // in the frame's place
        Tippen(Teil("block"), "x\ny#");
        Tippen(Teil("cbo"), "zwei");
        Taste(Teil("lst"), Qt::Key_Down);
        EXPECT_EQ(form["block"].Text + form["cbo"].Text + form["lst"].Text, "x\nyzweieins");
        for (const char *name : {"txt", "chk", "opt1", "opt1", "opt2", "btn", "farbe"}) Klicken(Teil(name));
        EXPECT_TRUE(form["chk"].Value && form["opt2"].Value && form["btn"].Value && !form["opt1"].Value);
        EXPECT_FALSE(Teil("opt1")->property("checked").toBool());
    });
    EXPECT_EQ(form.Spur, "+txt lst maus:txt chk opt1 opt1 opt2 btn farbe kreuz weg");
    EXPECT_EQ(innen.Spur, "+txt chk kreuz weg");
}

/// The model gives the focus to what it has just enabled; of timers the last start counts; keys press their buttons.
TEST(Formularfenster, FokusZeitgeberUndTasten) {
    for (const auto &[taste, knopf] : {std::pair{Qt::Key_Return, "cmdOK "}, std::pair{Qt::Key_Escape, "cmdNein "}}) {
        Probe form;
        form.BeimLaden = [&] { form["txt"].Enabled = false; };
        Zeigen(form, [&, gedrückt = taste] {
            for (const auto &[name, ms] : {std::pair{"T1", 1}, {"T1", 2}, {"T2", 1}, {"T2", 0}, {"T3", 3}})
                form.Wirt->ZeitgeberStellen(name, ms);
            // They run out in the order of their times: what isn't told before the last one has been stopped.
            while (!form.Spur.ends_with("T3 ")) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
            form["txt"].Enabled = true;
            form.Wirt->FokusGeben("txt");
            for (int i = 0; i < 3; ++i) Taste(QApplication::focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(QApplication::focusWidget(), Teil("lst"));
            Taste(Teil("lst"), gedrückt);
        });
        EXPECT_EQ(form.Spur,
                  std::string("+block T1 T3 -block +txt -txt +block -block +cbo -cbo +lst ") + knopf + "weg");
    }
}

/// Tab goes by the table, to every control; what neither takes nor cancels comes last and never takes an Enter that
/// wasn't meant for it.
TEST(Formularfenster, TabfolgeUndEnter) {
    for (const char *fokus : {"cmdWeg", "lst"}) {
        Probe form;
        std::string folge;
        Zeigen(form, [&] {
            Teil("txt")->setFocus();
            for (int i = 0; i < 12; ++i) {
                Taste(QApplication::focusWidget(), Qt::Key_Tab);
                folge += QApplication::focusWidget()->objectName().toStdString() + " ";
                EXPECT_FALSE(Teil("cmdWeg")->property("default").toBool());
            }
            Teil(fokus)->setFocus();
            form.Spur.clear();
            Taste(Teil(fokus), Qt::Key_Return);
        });
        EXPECT_EQ(folge, "block cbo lst btn chk opt1 farbe cmdOK cmdNein cmdWeg txt block ");
        EXPECT_EQ(form.Spur, std::string(fokus) == "lst" ? "cmdOK weg" : "cmdWeg weg");
    }
}

constexpr Formularzeile Suchzeilen[] = {
    {"txt", Art::Textfeld, {}, {"Suche", ""}, "liste"},
    {"liste", Art::Listenfeld},
};
constexpr Formulartafel Suchtafel{"Suche", {"Suche", ""}, Suchzeilen};

struct Suchprobe : Formular {
    Suchprobe() : Formular(Suchtafel, Sprache::Deutsch) { (*this)["liste"].Einträge = {"eins", "zwei", "drei"}; }
    void Laden() override { IndexSetzen("liste", 0); }
    void Geändert(std::string_view) override { IndexSetzen("liste", 1); }
};

/// Whoever types into a search box chooses among what it has found without leaving it, and hears the choice.
TEST(Formularfenster, SuchfeldBlättertInSeinerListe) {
    Suchprobe form;
    Formularfenster fenster(form, nullptr);
    std::string gewählte, gehörte;
    QTimer::singleShot(0, &fenster, [&] {
        QApplication::processEvents();
        QWidget *feld = Teil("txt");
        feld->setFocus();
        const auto merken = [&] {
            gewählte += form["liste"].Text + " ";
            gehörte += feld->accessibleDescription().toStdString() + " ";
        };
        merken();
        for (const int taste : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Up, Qt::Key_PageUp}) {
            Taste(feld, taste);
            merken();
        }
        Tippen(feld, "x");
        merken();
        Taste(feld, Qt::Key_Home); // belongs to the text
        merken();
        EXPECT_EQ(QApplication::focusWidget(), feld);
        EXPECT_EQ(form["txt"].Text, "x");
        fenster.close();
    });
    fenster.Ausführen();
    EXPECT_EQ(gewählte, "eins zwei drei drei zwei eins zwei zwei ");
    EXPECT_EQ(gehörte, gewählte);
}

} // namespace
