#include "app/Darstellung.h"

#include "app/Anzeige.h"
#include "document/Dokument.h"
#include "document/Zahlen.h"
#include "editing/Fensterdienste.h"
#include "output/Arbeitsbereich.h"
#include "platform/Drucker.h"
#include "rendering/Ansicht.h"

namespace kw {

void Darstellung::RasterUmschalten() {
    ansicht_.bRasterAnzeigen = !ansicht_.bRasterAnzeigen;
    anzeige_.RasterZeigen();
    fenster_.Vorschau();
}

void Darstellung::RasterSetzen(int listIndex) {
    if (listIndex < 0 || listIndex >= cboRaster_.Anzahl()) return;
    cboRaster_.ListIndex = listIndex;
    ansicht_.Rasterweite = ZahlLesen(cboRaster_.Text()) / 10;
    anzeige_.RasterweiteZeigen();
}

void Darstellung::RasterWählen(int listIndex) {
    RasterSetzen(listIndex);
    fenster_.Vorschau();
}

void Darstellung::FarbschemaWählen(int schema) {
    ansicht_.Farbschema = schema;
    anzeige_.FarbschemaZeigen();
    LinienfarbenSetzen();
    fenster_.Vorschau();
}

void Darstellung::LinienfarbenSetzen() { ansicht_.Linienfarben = LinienfarbenFür(ansicht_.Farbschema); }

void Darstellung::WerkzeugleisteUmschalten() {
    if (bereich_.WerkzeugleisteSichtbar()) bereich_.WerkzeugleisteVerbergen();
    else bereich_.WerkzeugleisteZeigen();
    anzeige_.WerkzeugleisteZeigen();
}

/// Else the page form, which shows how the printer stands, would turn the page.
void Darstellung::SeiteÜbernehmen() {
    anzeige_.SeiteZeigen();
    drucker_.OrientationSetzen(dokument_.Seitenlage == 1 ? 1 : 2);
}

void Darstellung::SeiteGeändert() {
    SeiteÜbernehmen();
    bereich_.Bildgrößenveränderung();
}

void Darstellung::SeiteWählen(int Dokument::*was, int wert) {
    if (dokument_.*was != wert) fenster_.AlsGeändertMerken();
    dokument_.*was = wert;
    SeiteGeändert();
}

void Darstellung::PapierWählen(int papiercode) { SeiteWählen(&Dokument::Papiercode, papiercode); }

void Darstellung::LageWählen(int seitenlage) { SeiteWählen(&Dokument::Seitenlage, seitenlage); }

} // namespace kw
