// Speed of what a user waits for, by the size of the document, within one process. Beside that:
//   --window          the real main window, until it has been painted once
//   --projects NAME   writes a project of each size, NAME10.kwp and so on

#include "document/Dateien.h"
#include "document/Profil.h"
#include "document/ProjektDatei.h"
#include "qt/fenster/Hauptfenster.h"

#include "Familien.h"

#include <QApplication>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace kw {
namespace {

/// Ends the process when its object is painted.
class Stoppuhr : public QObject {
  public:
    bool eventFilter(QObject *, QEvent *ereignis) override {
        if (ereignis->type() == QEvent::Paint) QTimer::singleShot(0, [] { std::_Exit(0); });
        return false;
    }
};

int FensterMalen(int argc, char **argv) {
    const QApplication anwendung(argc, argv);
    Hauptfenster fenster("");
    Stoppuhr stoppuhr;
    fenster.centralWidget()->installEventFilter(&stoppuhr);
    fenster.show();
    return QApplication::exec();
}

int ProjekteSchreiben(const std::string &name) {
    for (const int n : Personenzahlen) {
        Profil profil;
        ProjektEintragen(Familien(n), profil);
        if (!DateiSchreiben(name + std::to_string(n) + ".kwp", profil.Inhalt()).Gelungen()) return 1;
    }
    return 0;
}

} // namespace
} // namespace kw

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::string_view wunsch = argc > 1 ? argv[1] : "";
    if (wunsch == "--window") return kw::FensterMalen(argc, argv);
    if (wunsch == "--projects" && argc == 3) return kw::ProjekteSchreiben(argv[2]);
    const QApplication anwendung(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
