#include "editing/Rahmenauswahl.h"

#include "document/Felder.h"
#include "document/Zahlen.h"
#include "document/saetze/Kreislinie.h"
#include "document/saetze/Partnerschaft.h"
#include "editing/Geometrie.h"
#include "editing/Kinder.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Treffer.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

constexpr double SymbolÜberlappung = 0.1; ///< a symbol must reach that far into the box, on each axis

bool PersonImRahmen(const Felder &feld, const Auswahlkasten &k) {
    const double x = ZahlLesen(feld[PersonFeld::PosX]);
    const double y = ZahlLesen(feld[PersonFeld::PosY]);
    const double halb = ZahlLesen(feld[PersonFeld::Groesse]) / 2 - SymbolÜberlappung;
    return k.Überlappt(x - halb, y - halb, x + halb, y + halb);
}

/// Whether a sample of the arrow lies in the box. Samples begin at the first end, of an upright arrow at the upper
/// one, and step by the raster along the longer axis.
bool PfeilImRahmen(const Felder &feld, const Auswahlkasten &k, double raster) {
    constexpr double HöchstProben = 32767; // longer arrows are damage
    const double x1 = ZahlLesen(feld[PfeilFeld::PfeilX1]);
    const double y1 = ZahlLesen(feld[PfeilFeld::PfeilY1]);
    const double dx = ZahlLesen(feld[PfeilFeld::PfeilX2]) - x1;
    const double dy = ZahlLesen(feld[PfeilFeld::PfeilY2]) - y1;
    const double anfangY = dx == 0 ? std::min(y1, y1 + dy) : y1;
    const double länge = std::max(std::fabs(dx), std::fabs(dy));
    const int proben = static_cast<int>(std::min(std::floor(Gerundet(länge / raster, 6)), HöchstProben));
    const double wegX = länge > 0 ? dx / länge * raster : 0;
    const double wegY = dx == 0 ? raster : dy / länge * raster;
    for (int i = 0; i <= proben; ++i)
        if (k.Enthält(x1 + i * wegX, anfangY + i * wegY)) return true;
    return false;
}

/// Enters what `drin` finds, as its position from `erste`.
template <typename Drin> void Eintragen(Satzliste &liste, const Satzliste &speicher, int felder, int erste, Drin drin) {
    liste.Leeren();
    for (int i = 0; i < speicher.Anzahl(); ++i) {
        const Felder feld(speicher.Satz(i));
        if (feld.Anzahl() >= felder && drin(feld)) liste.Anhängen(std::to_string(i + erste));
    }
}

/// The same, as the record's number.
template <typename Drin> void NummernEintragen(Satzliste &liste, const Satzliste &speicher, int felder, Drin drin) {
    liste.Leeren();
    for (const auto &satz : speicher) {
        const Felder feld(satz);
        if (feld.Anzahl() >= felder && drin(feld)) liste.Anhängen(std::string(feld[0]));
    }
}

} // namespace

void RahmenAuswählen(Werkbank &w) {
    const Dokument &d = w.dokument;
    Auswahl &a = w.auswahl;
    const Auflagenform &box = w.auflagen.shpBox;
    const Auswahlkasten k{box.Left, box.Top, box.Left + box.Width, box.Top + box.Height};

    NummernEintragen(a.lstMovedPers, d.cboPersonen, PersonFeld::Anzahl,
                     [&](const Felder &f) { return PersonImRahmen(f, k); });
    ZwillingeBereit(w);
    Eintragen(a.lstMovedText, d.cboTextboxen, TextFeld::TextHoehe + 1, 0, [&](const Felder &f) {
        const double x = ZahlLesen(f[TextFeld::TextX]);
        const double y = ZahlLesen(f[TextFeld::TextY]);
        return k.Überlappt(x, y, x + ZahlLesen(f[TextFeld::TextBreite]), y + ZahlLesen(f[TextFeld::TextHoehe]));
    });
    a.lstMovedPLines.Leeren();
    for (const auto &satz : d.cboPartnerschaftsLinien)
        if (BalkenImKasten(satz, k)) a.lstMovedPLines.Anhängen(std::string(PartnerschaftSatz(satz).Nr()));
    a.lstMovedKreisLinien.Leeren();
    for (int i = 0; i < d.cboFreehandlines.Anzahl(); ++i) {
        const auto punkte = KreisPunkte(d.cboFreehandlines.Satz(i));
        if (std::any_of(punkte.begin(), punkte.end(), [&](const auto &p) { return k.Enthält(p.X, p.Y); }))
            a.lstMovedKreisLinien.Anhängen(std::to_string(i + 1));
    }
    Eintragen(a.lstMovedPfeile, d.cboPfeile, PfeilFeld::Anzahl, 0,
              [&](const Felder &f) { return PfeilImRahmen(f, k, w.ansicht.Rasterweite); });

    const bool etwas = !a.Leer();
    w.bedienung["mnuLöschen1"].Enabled = w.bedienung["mnuAusschneiden"].Enabled = etwas;
    w.lage.Aktion = etwas ? Aktion::GruppeGewählt : Aktion::Nichts;
    if (!etwas) AuswahlrahmenParken(w);
    w.fenster.Vorschau();
}

} // namespace kw
