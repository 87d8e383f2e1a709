#include "document/saetze/Kreislinie.h"
#include "rendering/Ebenen.h"
#include "rendering/basKurvenGlaettung.h"

#include <unordered_set>

namespace kw {

namespace {

/// The stroke's points with the working places around them, the first point once more at the end, and
/// how many that makes. Nothing for a stroke of fewer than two points; FeldFehlt for a point without
/// its second number.
Kurvenpunkte PunkteLesen(std::string_view satz, int &n) {
    Kurvenpunkte p(1);
    KreisSatz kreis(satz, Lücken::Fehler);
    while (const auto punkt = kreis.Nächster()) p.push_back({Gerundet(punkt->X, 2), Gerundet(punkt->Y, 2)});
    n = static_cast<int>(p.size());
    if (n <= 2) return {};
    p.push_back(p[1]);
    p.emplace_back();
    return p;
}

} // namespace

void KreislinienEbene(Zeichenfläche &f, const Zeichnung &z) {
    f.Ebene("kreislinien");
    const Ansicht &a = z.ansicht;
    f.ForeColor = a.Pfeilfarbe;
    f.DrawWidth = z.Druck ? 6 : 1;
    f.DrawStyle = StilDurchgezogen;
    std::unordered_set<int> gewählt; // one-based positions
    if (!z.Druck)
        for (const auto &eintrag : z.auswahl.lstMovedKreisLinien) gewählt.insert(Ganzzahl16(ZahlLesen(eintrag)));
    for (int i = 0; i < z.dokument.cboFreehandlines.Anzahl(); ++i) try {
            int n = 0;
            Kurvenpunkte punkte = PunkteLesen(z.dokument.cboFreehandlines.Satz(i), n);
            const bool hervorgehoben = gewählt.contains(i + 1);
            f.DrawWidth = z.Druck ? 3 : hervorgehoben ? 2 : 1;
            if (!punkte.empty()) KurveZeichnen(f, punkte, n, a.Glättungsgrad, hervorgehoben ? Rot : a.Pfeilfarbe, true);
        } catch (const FeldFehlt &) { // a damaged stroke isn't drawn
        }
}

} // namespace kw
