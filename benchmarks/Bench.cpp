// Speed of what a user waits for, by the size of the document, within one process. Beside that
// "--projects NAME" writes a project of each size, NAME10.kwp and so on; "--layouts FILE" lays out families and writes
// a table of that.

#include "document/Dateien.h"
#include "document/Profil.h"
#include "document/ProjektDatei.h"

#include "Familien.h"
#include "Stammbaeume.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace kw {
namespace {

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
    if (wunsch == "--projects" && argc == 3) return kw::ProjekteSchreiben(argv[2]);
    if (wunsch == "--layouts" && argc == 3) return kw::AuslegungenSchreiben(argv[2]);
    const QApplication anwendung(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
