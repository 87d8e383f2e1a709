#pragma once

#include "document/Dokument.h"
#include "document/Zahlen.h"

#include <benchmark/benchmark.h>

#include <string>

namespace kw {

/// The sizes that everything is measured at.
inline constexpr int Personenzahlen[] = {10, 100, 200, 400, 900};

inline void AlleGrößen(benchmark::internal::Benchmark *b) {
    for (const int n : Personenzahlen) b->Arg(n);
    b->Unit(benchmark::kMicrosecond);
}

/// A document of `n` persons in families of four, with all that such persons bring along.
inline Dokument Familien(int n) {
    Dokument d;
    const auto z = [](double wert) { return ZahlSchreiben(wert); };
    for (int i = 0; i < n; ++i) {
        const double x = 1 + i % 30 * 0.92;
        const double y = 1 + i / 30 % 30 * 0.63;
        const std::string nr = Dreistellig(i + 1);
        const std::string mitte = z(x) + "_" + z(y);
        const char *marken = i % 5 == 0 ? "_1_$78_1_1_" : "_0__0_0_";
        d.cboPersonen.Anhängen(nr + "_" + std::to_string(i % 2 + 1) + "_" + mitte + "_0.6" + marken + "Jörg" +
                               std::to_string(i % 40) + "_Müller_" + std::to_string(1 + i % 28) + ".03.19" +
                               std::to_string(30 + i % 60) + "__");
        if (i % 2 == 0) continue;
        const std::string vorher = Dreistellig(i);
        d.cboBeziehungsLinien.Anhängen("_" + std::to_string(i % 8) + "_" + z(x - 0.92) + "_" + z(y) + "_" + mitte +
                                       "_" + vorher + "_" + nr);
        d.cboPartnerschaftsLinien.Anhängen(Dreistellig((i + 1) / 2) + "_" + std::to_string(i % 4) + "_" + z(x - 0.92) +
                                           "_" + z(y + 0.5) + "_" + z(x) + "_" + z(y + 0.5) + "_" + vorher + "_" + nr +
                                           "_" + z(y) + "_" + z(y) + "_" + z(x - 0.92) + "_" + z(x) +
                                           "__1980#1990#2000#2010");
        d.cboKindlinien.Anhängen(nr + "_" + std::to_string(i % 3) + "_001_" + z(x) + "_" + z(x - 0.4) + "_" + z(y) +
                                 "_" + z(y - 0.6));
        if (i % 20 == 1) d.cboTextboxen.Anhängen(mitte + "_Arial_11_255_0_0_0_0_Notiz zu#Müller_2_1");
    }
    return d;
}

} // namespace kw
