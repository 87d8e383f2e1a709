#include "app/Einzelbild.h"

#include "document/Einstellungen.h"
#include "document/Felder.h"
#include "document/ProjektDatei.h"
#include "rendering/Seite.h"

namespace kw {

Einzelbild::Einzelbild(const Uhr &uhr, const std::string &iniDatei) : uhr_(uhr) {
    const Einstellungen e = EinstellungenAus(iniDatei);
    ansicht_.Sprache = e.Sprache;
    ansicht_.Altersanzeige = e.Altersanzeige;
    ansicht_.Pfeilfarbe = PfeilfarbeFür(ansicht_.Farbschema); // a window has drawn before it shows anything
    ansicht_.Linienfarben = LinienfarbenFür(DateiVorhanden(iniDatei) ? e.Farbschema : ansicht_.Farbschema);
}

std::string Einzelbild::Laden(const std::string &datei) {
    std::string inhalt;
    const Dateibefund befund = DateiLesen(datei, inhalt);
    if (!befund.Gelungen()) return befund.Meldung;
    const Profil profil(std::move(inhalt));
    SeiteLesen(profil, dokument_);
    try {
        SpeicherLesen(profil, dokument_);
        LegendeLesen(profil, dokument_);
    } catch (const FeldFehlt &) { // a damaged project, or an old one without a legend
    }
    LegendeAufbauen(dokument_, legende_);
    SeiteBestimmen(dokument_, ansicht_);
    const std::string schaden = Ladeprüfung(profil, dokument_);
    gelesen_ = schaden != KeinProjekt;
    return schaden;
}

} // namespace kw
