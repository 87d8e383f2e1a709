#include "app/Einblick.h"

#include "app/Befehle.h"
#include "app/frmMain.h"
#include "rendering/Zeichnung.h"

namespace kw {

Einblick::Einblick(frmMain &haupt)
    : start(haupt.start), picVorschau(haupt.picVorschau), dokument(haupt.dokument), ansicht(haupt.ansicht),
      auswahl(haupt.auswahl), lage(haupt.lage), auflagen(haupt.auflagen), ablage(haupt.ablage), legende(haupt.legende),
      ring(haupt.ring), bereich(haupt.bereich), bedienung(haupt.bedienung), einstellungen(haupt.einstellungen),
      darstellung(haupt.darstellung), anzeige(haupt.anzeige), druck(haupt.druck), bildexport(haupt.bildexport),
      import(haupt.import), projekt(haupt.projekt), werkbank(haupt.werkbank), Kommandozeile(haupt.Kommandozeile),
      cboRaster(haupt.cboRaster), fenster(haupt), dienste(haupt), drucker(haupt.plattform.drucker),
      uhr(haupt.plattform.uhr) {}

void Einblick::AufPapier(Zeichenfläche &papier) const {
    Anwenden(DruckZeichnen(papier, {dokument, ansicht, auswahl, lage, legende, uhr}), dokument, ansicht, lage, legende);
}

Dialogumgebung Einblick::FürFormulare() const {
    return {werkbank, einstellungen, start.IniDatei, uhr, drucker, dienste};
}

Befehlsumgebung Einblick::FürBefehle() const {
    return {werkbank, projekt,    darstellung, anzeige, bereich,   import,
            druck,    bildexport, ring,        dienste, bedienung, start};
}

} // namespace kw
