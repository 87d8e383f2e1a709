#include "document/Felder.h"
#include "document/Zahlen.h"
#include "rendering/Ebenen.h"

namespace kw {

namespace {

/// The bar that a link gesture or a selection points at; nothing when none does.
const std::string *BalkenUnterMarke(const Zeichnung &z) {
    const bool zeigt =
        z.geste.Aktion == Aktion::PLinieGewählt || (z.geste.Aktion == Aktion::KindZiehen && z.geste.PLinieUnterMaus);
    const auto &speicher = z.dokument.cboPartnerschaftsLinien;
    const int i = z.geste.PLinieAuswahl;
    return zeigt && i >= 0 && i < speicher.Anzahl() ? &speicher.Satz(i) : nullptr;
}

} // namespace

void LinienEbene(Zeichenfläche &f, const Zeichnung &z, double faktor) {
    f.Ebene("linien");
    f.DrawWidth = z.Strichbreite();
    f.DrawStyle = StilDurchgezogen;
    BeziehungslinienZeichnen(f, z);
    PartnerschaftslinienZeichnen(f, z, faktor);
    KindlinienZeichnen(f, z, faktor);

    if (const auto *satz = z.Druck ? nullptr : BalkenUnterMarke(z)) {
        const Felder feld(*satz);
        f.DrawWidth = 2;
        if (feld.Anzahl() > PLinieFeld::BalkenY2)
            f.Line(LinieFarbig, ZahlLesen(feld[PLinieFeld::BalkenX1]), ZahlLesen(feld[PLinieFeld::BalkenY1]),
                   ZahlLesen(feld[PLinieFeld::BalkenX2]), ZahlLesen(feld[PLinieFeld::BalkenY2]), ZielFarbe);
    }
    f.DrawWidth = 1;
}

} // namespace kw
