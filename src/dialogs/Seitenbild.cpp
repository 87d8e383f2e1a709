#include "dialogs/Seitenbild.h"

#include "rendering/Seite.h"
#include "rendering/Zeichnung.h"

namespace kw {

void VorschaugrundZeichnen(Zeichenfläche &f, double breite, double höhe) {
    f.DrawStyle = StilDurchgezogen;
    f.FillStyle = Gefüllt;
    f.DrawWidth = 1;
    f.FillColor = Hellgrau;
    f.Line(KastenFarbig, 0, 0, breite, höhe, Hellgrau);
}

void SeitenvorschauZeichnen(Zeichenfläche &f, const Zeichnung &z, double breite, double höhe) {
    VorschaugrundZeichnen(f, breite, höhe);
    f.FillColor = Weiß;
    f.Line(KastenFarbig, 0, 0, z.ansicht.SeitenBreite, z.ansicht.SeitenHöhe, Weiß);
    SeitenbildZeichnen(f, z);
}

void SeitenvorschauZeichnen(Zeichenfläche &f, Dokument &dokument, Ansicht ansicht, const Uhr &uhr, double breite,
                            double höhe) {
    ansicht.bRasterAnzeigen = ansicht.bDruckrandAnzeigen = false;
    ansicht.StrichFaktor = 1;
    SeiteBestimmen(dokument, ansicht);
    Legendenblatt legende;
    LegendeAufbauen(dokument, legende);
    const Auswahl nichts;
    const Gestenlage ruhe;
    SeitenvorschauZeichnen(f, {dokument, ansicht, nichts, ruhe, legende, uhr}, breite, höhe);
}

} // namespace kw
