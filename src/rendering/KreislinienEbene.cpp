#include "document/Nachschlagen.h"
#include "document/saetze/Kreislinie.h"
#include "rendering/Ebenen.h"
#include "rendering/basKurvenGlaettung.h"

#include <unordered_set>

namespace kw {

namespace {

/// The stroke's points with the working places around them, the first point once more at the end, and
/// how many that makes. A stroke that ends in its first point is closed already: once more, and the curve would
/// have a thorn there. Nothing for a stroke of fewer than two points; FeldFehlt for a point without its second number.
Kurvenpunkte PunkteLesen(std::string_view satz, int &n) {
    Kurvenpunkte p(1);
    KreisSatz kreis(satz, Lücken::Fehler);
    while (const auto punkt = kreis.Nächster()) p.push_back({Gerundet(punkt->X, 2), Gerundet(punkt->Y, 2)});
    while (p.size() > 2 && p.back() == p[1]) p.pop_back();
    n = static_cast<int>(p.size());
    if (n <= 2) return {};
    p.push_back(p[1]);
    p.emplace_back();
    return p;
}

} // namespace

std::vector<Kurvenort> Kreiszug(std::string_view satz, int glättungsgrad) {
    try {
        int n = 0;
        Kurvenpunkte punkte = PunkteLesen(satz, n);
        return punkte.empty() ? std::vector<Kurvenort>() : KurvenZug(punkte, n, glättungsgrad, true);
    } catch (const FeldFehlt &) {
        return {};
    }
}

void KreislinienEbene(Zeichenfläche &f, const Zeichnung &z) {
    f.Ebene("kreislinien");
    const Ansicht &a = z.ansicht;
    f.ForeColor = a.Pfeilfarbe;
    f.DrawWidth = z.Druck ? 6 : 1;
    f.DrawStyle = StilDurchgezogen;
    const Satzliste &linien = z.dokument.cboFreehandlines;
    std::unordered_set<int> gewählt;
    if (!z.Druck) gewählt = PositionenAus(z.auswahl.lstMovedKreisLinien, linien, 1);
    for (int i = 0; i < linien.Anzahl(); ++i) try {
            int n = 0;
            Kurvenpunkte punkte = PunkteLesen(linien.Satz(i), n);
            const bool hervorgehoben = gewählt.contains(i);
            f.DrawWidth = z.Druck ? 3 : hervorgehoben ? 2 : 1;
            if (!punkte.empty()) KurveZeichnen(f, punkte, n, a.Glättungsgrad, hervorgehoben ? Rot : a.Pfeilfarbe, true);
        } catch (const FeldFehlt &) { // a damaged stroke isn't drawn
        }
}

} // namespace kw
