#include "absturz/Protokoll.h"
#include "absturz/Sitzungen.h"

#include "replay/Programm.h"
#include "replay/Skript.h"
#include "zufallsnutzer/Zufallsnutzer.h"

#include <sstream>

#include <unistd.h>

namespace kw {

namespace {

/// What reaches into the model beside all events; the next event takes it along.
bool IstEreignis(const std::string &schritt) { return !schritt.starts_with("store") && !schritt.starts_with("pick"); }

} // namespace

void Skriptsitzung(unsigned saat, const std::string &netz) {
    constexpr int Schritte = 400;
    std::ostringstream aus;
    Wiedergabe wiedergabe(aus);
    wiedergabe.Zeile("start state=" + netz);
    Programm *programm = &wiedergabe.Läuft();
    ProtokollBeginnen("../protokoll", [&] { return programm ? &programm->innen : nullptr; });
    Zufallsnutzer nutzer(saat);
    for (int i = 0; i < Schritte; ++i) {
        for (std::string schritt : nutzer.Nächstes(wiedergabe.Läuft().innen)) {
            const auto start = schritt.rfind("start", 0) == 0 ? 0 : schritt.find("\nstart");
            const bool startet = start != std::string::npos;
            if (startet) schritt.insert(schritt.find("start", start) + 5, " state=" + netz);
            if (schritt.starts_with("up") && wiedergabe.Läuft().Taste == 0) continue;
            Festhalten(startet ? "start\n" + schritt : schritt);
            std::istringstream zeilen(schritt);
            if (startet) programm = nullptr; // which one it is can't be asked meanwhile
            wiedergabe.Ausführen(zeilen);
            programm = &wiedergabe.Läuft();
            programm->benutzer.Formulare.clear();
            programm->benutzer.Antworten.clear();
            programm->benutzer.Menüwahlen.clear();
            // A drag that goes on has no outcome yet.
            if (IstEreignis(schritt) && programm->Taste == 0)
                Festhalten(Eintrag::Art::Fertig, StandVon(programm->innen));
            aus.str({});
        }
    }
    Festhalten(Eintrag());
    ::_exit(0);
}

} // namespace kw
