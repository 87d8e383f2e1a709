#include "rendering/Ebenen.h"
#include "rendering/Seite.h"

namespace kw {

namespace {

Zeichenbefund EbenenZeichnen(Zeichenfläche &f, const Zeichnung &z, double faktor) {
    Zeichenbefund befund;
    RasterZeichnen(f, z);
    LinienEbene(f, z, faktor);
    KreislinienEbene(f, z);
    befund.Pfeile = PfeilEbene(f, z);
    befund.Texte = PersonenEbene(f, z, faktor);
    if (z.dokument.LegendeSichtbar) befund.Legende = LegendenEbene(f, z, faktor);
    return befund;
}

} // namespace

Zeichenbefund VorschauZeichnen(Zeichenfläche &f, const Zeichnung &z) {
    f.Ebene("seite");
    const double faktor = SeiteEinpassen(f, z.ansicht);
    Zeichenbefund befund = EbenenZeichnen(f, z, faktor);
    befund.Skalierung = faktor;
    return befund;
}

Zeichenbefund SeitenbildZeichnen(Zeichenfläche &f, const Zeichnung &z) { return EbenenZeichnen(f, z, f.Faktor()); }

Zeichenbefund DruckZeichnen(Zeichenfläche &f, const Zeichnung &z) {
    Zeichnung druck = z;
    druck.Druck = true;
    f.FontTransparent = true;
    Zeichenbefund befund = EbenenZeichnen(f, druck, 1);
    befund.StrichFaktor = 1;
    return befund;
}

} // namespace kw
