// A bare window of the toolkit that ends once it has been painted: what the program's start is held against.
// With an argument it shows one menu by that name, and so pays for the system's fonts as every window with a
// word in it does.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

#include <cstdlib>

class Fenster : public QMainWindow {
  protected:
    void paintEvent(QPaintEvent *) override {
        QTimer::singleShot(0, [] { std::_Exit(0); });
    }
};

int main(int argc, char **argv) {
    const QApplication anwendung(argc, argv);
    Fenster fenster;
    if (argc > 1) fenster.menuBar()->addMenu(QString::fromLocal8Bit(argv[1]));
    fenster.resize(1200, 800);
    fenster.show();
    return QApplication::exec();
}
