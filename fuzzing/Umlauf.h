#pragma once

#include "Ziel.h"

#include "document/Dokument.h"
#include "document/Profil.h"
#include "document/ProjektDatei.h"

namespace kw {

/// The document as it comes back from a new file.
inline Dokument Gespeichert(const Dokument &dokument) {
    Profil profil;
    ProjektEintragen(dokument, profil);
    const Profil neu(profil.Inhalt());
    Dokument wieder;
    const auto befund = ProjektLesen(neu, wieder);
    Halten(befund.IstProjekt && !befund.Verwaist, "a saved project has lost no text");
    return wieder;
}

/// What a document holds is in its file: every record, and what comes back stays so for good.
inline Dokument Umlauf(const Dokument &dokument) {
    auto einmal = Gespeichert(dokument);
    for (const auto &zeile : SpeicherTabelle)
        Halten((einmal.*zeile.Liste).Anzahl() == (dokument.*zeile.Liste).Anzahl(), "no record is lost");
    Halten(Gespeichert(einmal).GleicherStand(einmal), "a document is the same when it comes back");
    return einmal;
}

} // namespace kw
