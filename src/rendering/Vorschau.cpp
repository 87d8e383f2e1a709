#include "rendering/Ebenen.h"
#include "rendering/Seite.h"

namespace kw {

namespace {

void EbenenZeichnen(Zeichenfläche &f, Zeichnung &z, double faktor) {
    RasterZeichnen(f, z);
    LinienEbene(f, z, faktor);
    KreislinienEbene(f, z);
    PfeilEbene(f, z);
    PersonenEbene(f, z, faktor);
    if (z.dokument.LegendeSichtbar) LegendenEbene(f, z, faktor);
}

} // namespace

void VorschauZeichnen(Zeichenfläche &f, Zeichnung &z) {
    f.Ebene("seite");
    EbenenZeichnen(f, z, SeiteEinrichten(f, z));
}

void DruckZeichnen(Zeichenfläche &f, Zeichnung &z) {
    Zeichnung druck = z;
    druck.Druck = true;
    f.FontTransparent = true;
    EbenenZeichnen(f, druck, 1);
    // Whatever the zoom wanted, until it changes next. Meant.
    z.ansicht.StrichFaktor = 1;
}

} // namespace kw
