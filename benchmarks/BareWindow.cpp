// A bare window of the toolkit that ends once it has been painted: what the program's start is held against.
// "bare_window menus" has the program's menus, and so pays for the system's fonts as every window with a word in it
// does.

#include "commands/Menuetafel.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

#include <cstdlib>
#include <string_view>

namespace {

class Fenster : public QMainWindow {
  protected:
    void paintEvent(QPaintEvent *) override {
        QTimer::singleShot(0, [] { std::_Exit(0); });
    }
};

QString Text(const kw::Menüzeile &zeile) {
    return QString::fromUtf8(zeile.Caption.Deutsch.data(), static_cast<int>(zeile.Caption.Deutsch.size()));
}

void Füllen(QMenu &menü, std::string_view name) {
    for (const kw::Menüzeile &zeile : kw::Menütafel()) {
        if (zeile.Menü != name) continue;
        if (kw::IstMenü(zeile)) Füllen(*menü.addMenu(Text(zeile)), zeile.Name);
        else menü.addAction(Text(zeile));
    }
}

} // namespace

int main(int argc, char **argv) {
    const QApplication anwendung(argc, argv);
    Fenster fenster;
    if (argc > 1)
        for (const kw::Menüzeile &zeile : kw::Menütafel())
            if (zeile.Menü == kw::Menüleiste) Füllen(*fenster.menuBar()->addMenu(Text(zeile)), zeile.Name);
    fenster.resize(1200, 800);
    fenster.show();
    return QApplication::exec();
}
