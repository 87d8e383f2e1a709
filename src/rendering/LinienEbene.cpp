#include "document/saetze/Partnerschaft.h"
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

    if (const auto *text = z.Druck ? nullptr : BalkenUnterMarke(z)) {
        const PartnerschaftSatz satz(*text);
        f.DrawWidth = 2;
        if (satz.HatBalken())
            f.Line(LinieFarbig, satz.BalkenX1(), satz.BalkenY1(), satz.BalkenX2(), satz.BalkenY2(), ZielFarbe);
    }
    f.DrawWidth = 1;
}

} // namespace kw
