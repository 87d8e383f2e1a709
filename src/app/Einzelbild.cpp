#include "app/Einzelbild.h"

#include "document/Dateien.h"
#include "document/Einstellungen.h"
#include "document/ProjektDatei.h"
#include "rendering/Seite.h"

namespace kw {

Einzelbild::Einzelbild(const Uhr &uhr, const std::string &iniDatei) : uhr_(uhr) {
    const Einstellungen e = EinstellungenAus(iniDatei);
    ansicht.Sprache = e.Sprache;
    ansicht.Altersanzeige = e.Altersanzeige;
    ansicht.Pfeilfarbe = PfeilfarbeFür(ansicht.Farbschema); // a window has drawn before it shows anything
    ansicht.Linienfarben = LinienfarbenFür(DateiVorhanden(iniDatei) ? e.Farbschema : ansicht.Farbschema);
}

std::string Einzelbild::Laden(const std::string &datei) {
    std::string inhalt;
    const Dateibefund befund = DateiLesen(datei, inhalt);
    if (!befund.Gelungen()) return befund.Meldung;
    const Profil profil(std::move(inhalt));
    const Ladebefund gefunden = ProjektLesen(profil, dokument);
    LegendeAufbauen(dokument, legende_);
    SeiteBestimmen(dokument, ansicht);
    gelesen_ = gefunden.IstProjekt;
    return Ladetext(gefunden, Sprache::Englisch);
}

void Einzelbild::OhneNamen(Lebenszeit zeit) {
    dokument = kw::OhneNamen(dokument, zeit, uhr_, ansicht.Sprache);
    ansicht.Altersanzeige = AltersanzeigeFür(zeit);
    LegendeAufbauen(dokument, legende_);
    ohneNamen_ = true;
}

} // namespace kw
