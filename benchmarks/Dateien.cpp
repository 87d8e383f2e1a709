// Loading and saving, in memory and on the disk that the build stands on.

#include "document/Dateien.h"
#include "document/Profil.h"
#include "document/ProjektDatei.h"
#include "document/Sicherheitsnetz.h"

#include "Familien.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>

namespace kw {
namespace {

/// Another place for a person: a document that neither file nor net holds.
void Ändern(Dokument &d) {
    const std::string vorher = d.cboPersonen.Satz(0);
    d.cboPersonen.Ersetzen(0, d.cboPersonen.Satz(d.cboPersonen.Anzahl() - 1));
    d.cboPersonen.Ersetzen(d.cboPersonen.Anzahl() - 1, vorher);
}

std::string Projekttext(const Dokument &d) {
    Profil profil;
    ProjektEintragen(d, profil);
    return profil.Inhalt();
}

void Load(benchmark::State &lauf) {
    const std::string inhalt = Projekttext(Familien(static_cast<int>(lauf.range(0))));
    for (auto _ : lauf) {
        Dokument d;
        const Profil profil{std::string(inhalt)};
        ProjektLesen(profil, d);
        d.FreieNummernAufbauen();
        benchmark::DoNotOptimize(d);
    }
}

/// What a gesture costs beside itself: the document as it stands now is in the net.
void KeepInNet(benchmark::State &lauf) {
    Dokument d = Familien(static_cast<int>(lauf.range(0)));
    Sicherheitsnetz netz("bench-net");
    for (auto _ : lauf) {
        Ändern(d);
        benchmark::DoNotOptimize(netz.Festhalten(d, {}));
    }
    netz.Loslassen(d);
    std::filesystem::remove_all("bench-net");
}

/// As the program saves, but for the windows: the file is read, its foreign keys are kept, it is written and replaced.
void SaveToDisk(benchmark::State &lauf, Sicherheitsnetz *netz) {
    Dokument d = Familien(static_cast<int>(lauf.range(0)));
    Schreibweise wie;
    wie.Wahrer = netz;
    for (auto _ : lauf) {
        lauf.PauseTiming();
        Ändern(d);
        lauf.ResumeTiming();
        if (netz) netz->Festhalten(d, {});
        std::string inhalt;
        DateiLesen("bench.kwp", inhalt);
        Profil profil(std::move(inhalt));
        ProjektEintragen(d, profil);
        const std::string neu = profil.Inhalt();
        benchmark::DoNotOptimize(DateiSchreiben("bench.kwp", neu, wie));
        wie.Erwartet = FingerabdruckVon(neu);
        if (netz) netz->Loslassen(d);
    }
    std::remove("bench.kwp");
}

void Save(benchmark::State &lauf) { SaveToDisk(lauf, nullptr); }

void SaveWithNet(benchmark::State &lauf) {
    Sicherheitsnetz netz("bench-net");
    SaveToDisk(lauf, &netz);
    std::filesystem::remove_all("bench-net");
}

BENCHMARK(Load)->Apply(AlleGrößen);
BENCHMARK(KeepInNet)->Apply(AlleGrößen);
BENCHMARK(Save)->Apply(AlleGrößen);
BENCHMARK(SaveWithNet)->Apply(AlleGrößen);

} // namespace
} // namespace kw
