#include "dialogs/Seitenbild.h"

#include "rendering/Zeichnung.h"

namespace kw {

void SeitenvorschauZeichnen(Zeichenfläche &f, const Zeichnung &z, double breite, double höhe) {
    f.DrawStyle = StilDurchgezogen;
    f.FillStyle = Gefüllt;
    f.DrawWidth = 1;
    f.FillColor = Hellgrau;
    f.Line(KastenFarbig, 0, 0, breite, höhe, Hellgrau);
    f.FillColor = Weiß;
    f.Line(KastenFarbig, 0, 0, z.ansicht.SeitenBreite, z.ansicht.SeitenHöhe, Weiß);
    SeitenbildZeichnen(f, z);
}

} // namespace kw
