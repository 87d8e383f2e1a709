#include "anonymity/NamenloseSeite.h"

#include "rendering/Seite.h"

namespace kw {

NamenloseSeite::NamenloseSeite(const Dokument &dokument, const Ansicht &ansicht, Lebenszeit zeit, const Uhr &uhr)
    : dokument_(OhneNamen(dokument, zeit, uhr, ansicht.Sprache)), ansicht_(ansicht), uhr_(uhr) {
    ansicht_.Altersanzeige = AltersanzeigeFür(zeit);
    ansicht_.bRasterAnzeigen = ansicht_.bDruckrandAnzeigen = false;
    ansicht_.StrichFaktor = 1;
    LegendeAufbauen(dokument_, legende_);
    SeiteBestimmen(dokument_, ansicht_);
}

} // namespace kw
