#include "app/Fenstertasten.h"

#include "app/Befehle.h"
#include "editing/Werkbank.h"
#include "keyboard/Tastendruck.h"
#include "output/Arbeitsbereich.h"
#include "platform/Befehlsnamen.h"
#include "platform/Benutzer.h"

#include <algorithm>
#include <iterator>

namespace kw {

namespace {

constexpr int ZoomHundert = 2; ///< place of 100 % in the zoom list

struct Zeile {
    kw::Taste Taste;
    bool Strg, Umschalt;
    kw::Fenstertaste Wirkung;
};
// clang-format off
constexpr Zeile Tabelle[] = {
    {Taste::F1, false, false, {[](Befehlsumgebung &u) { BefehlFinden(Name::mnuHilfethemen).Ausführen(u, 0); }}},
    {Taste::F6, false, false, {[](Befehlsumgebung &u) { u.werkbank.benutzer.FokusWeitergeben(false); }}},
    {Taste::F6, false, true, {[](Befehlsumgebung &u) { u.werkbank.benutzer.FokusWeitergeben(true); }}},
    {Taste::Plus, true, false, {[](Befehlsumgebung &u) { u.bereich.Vergrößern(); }}},
    {Taste::Gleich, true, false, {[](Befehlsumgebung &u) { u.bereich.Vergrößern(); }}},
    {Taste::Minus, true, false, {[](Befehlsumgebung &u) { u.bereich.Verkleinern(); }}},
    {Taste::Null, true, false, {[](Befehlsumgebung &u) { u.bereich.ZoomWählen(ZoomHundert); }}},
    {Taste::J, true, false, {[](Befehlsumgebung &u) { u.bereich.ZoomEinpassen(); }}},
    {Taste::BildHoch, false, false, {[](Befehlsumgebung &u) { u.bereich.Blättern(-1, false); }}},
    {Taste::BildRunter, false, false, {[](Befehlsumgebung &u) { u.bereich.Blättern(1, false); }}},
    {Taste::BildHoch, false, true, {[](Befehlsumgebung &u) { u.bereich.Blättern(-1, true); }}},
    {Taste::BildRunter, false, true, {[](Befehlsumgebung &u) { u.bereich.Blättern(1, true); }}},
};
// clang-format on

} // namespace

const Fenstertaste *FenstertasteFinden(const Tastendruck &t) {
    const auto *zeile = std::find_if(std::begin(Tabelle), std::end(Tabelle),
                                     [&](const Zeile &z) { return t.Ist(z.Taste, z.Strg, false, z.Umschalt); });
    return zeile == std::end(Tabelle) ? nullptr : &zeile->Wirkung;
}

} // namespace kw
