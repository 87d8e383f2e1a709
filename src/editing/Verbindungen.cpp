#include "editing/Verbindungen.h"

#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Treffer.h"
#include "rendering/Symbole.h"

#include <algorithm>

namespace kw {

namespace {

constexpr std::string_view NeuePersonEnde = "_0__0_0______";
constexpr double ElternAbstand = 3.6; ///< between the two of a new couple, cm
constexpr double ElternPlatz = 5.0;   ///< that a new couple needs to the right

double GerastertZehntel(double wert, double raster) { return Gerundet(Gerastert(wert, raster), 1); }

/// Appends a person without names, dates and marks; gives its number.
std::string PersonAnhängen(Werkbank &w, int typ, double x, double y) {
    std::string nr = w.dokument.NeuePersNr();
    w.dokument.cboPersonen.Anhängen(nr + "_" + std::to_string(typ) + "_" + ZahlSchreiben(x) + "_" + ZahlSchreiben(y) +
                                    "_" + ZahlSchreiben(w.lage.SymbolGröße) + std::string(NeuePersonEnde));
    return nr;
}

} // namespace

void PersonAnlegen(Werkbank &w, const Importperson *import) {
    if (w.lage.Aktion != Aktion::PersonSetzen) return;
    const double raster = w.ansicht.Rasterweite;
    const double x = GerastertZehntel(w.lage.MausX, raster);
    const double y = GerastertZehntel(w.lage.MausY, raster);
    if (import) w.dokument.cboPersonen.Anhängen(ImportSatz(*import, w.dokument.NeuePersNr(), x, y, GrößeNormal));
    else PersonAnhängen(w, w.lage.SymbolTyp, x, y);
    MarkierungsListBoxenLöschen(w);
    w.fenster.Vorschau();
}

void ElternAnlegen(Werkbank &w) {
    const double raster = w.ansicht.Rasterweite;
    const double rechtsaußen = w.ansicht.SeitenBreite - ElternPlatz;
    const double y = GerastertZehntel(w.lage.MausY, raster);
    const double x1 = GerastertZehntel(std::min(w.lage.MausX, rechtsaußen), raster);
    const double x2 = GerastertZehntel(x1 + ElternAbstand, raster);
    PersonAnhängen(w, TypMännlich, x1, y);
    PersonAnhängen(w, TypWeiblich, x2, y);
    const int mutter = w.dokument.cboPersonen.Anzahl() - 1;
    PaarVerbinden(w.dokument, mutter - 1, mutter);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

} // namespace kw
