#include "app/Einblick.h"

#include "app/frmMain.h"

namespace kw {

Einblick::Einblick(frmMain &haupt)
    : start(haupt.start), picVorschau(haupt.picVorschau), dokument(haupt.dokument), ansicht(haupt.ansicht),
      auswahl(haupt.auswahl), lage(haupt.lage), auflagen(haupt.auflagen), ablage(haupt.ablage), legende(haupt.legende),
      ring(haupt.ring), bereich(haupt.bereich), bedienung(haupt.bedienung), einstellungen(haupt.einstellungen),
      darstellung(haupt.darstellung), druck(haupt.druck), import(haupt.import), projekt(haupt.projekt),
      werkbank(haupt.werkbank), Kommandozeile(haupt.Kommandozeile), cboRaster(haupt.cboRaster), fenster(haupt),
      haupt_(haupt) {}

void Einblick::AufPapier(Zeichenfläche &papier) const { haupt_.AufPapier(papier); }

Dialogumgebung Einblick::Umgebung() const { return haupt_.Umgebung(); }

} // namespace kw
