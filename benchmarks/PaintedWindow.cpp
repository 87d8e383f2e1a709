// The program's main window that ends once its page has been painted. Alone, so that the libraries of what measures and
// of scripts aren't loaded with it: a start takes as long as its libraries take to be found and bound.

#include "qt/fenster/Hauptfenster.h"

#include <QApplication>
#include <QTimer>

#include <cstdlib>

namespace {

/// Ends the process when its object is painted.
class Stoppuhr : public QObject {
  public:
    bool eventFilter(QObject *, QEvent *ereignis) override {
        if (ereignis->type() == QEvent::Paint) QTimer::singleShot(0, [] { std::_Exit(0); });
        return false;
    }
};

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication anwendung(argc, argv);
    kw::Hauptfenster fenster("");
    Stoppuhr stoppuhr;
    fenster.centralWidget()->installEventFilter(&stoppuhr);
    fenster.show();
    return QApplication::exec();
}
