#include "replay/Einblick.h"

#include "app/frmMain.h"

namespace kw {

Einblick::Einblick(frmMain &haupt_)
    : Werkbank(haupt_.werkbank), Befehlsumgebung(haupt_.FürBefehle()), einstellungen(haupt_.einstellungen),
      Kommandozeile(haupt_.Kommandozeile), cboRaster(haupt_.cboRaster), netz(haupt_.netz),
      drucker(haupt_.plattform.drucker), uhr(haupt_.plattform.uhr), haupt(haupt_) {}

void Einblick::AufPapier(Zeichenfläche &papier) const { haupt.AufPapier(papier); }

Dialogumgebung Einblick::FürFormulare() const { return haupt.FürFormulare(); }

} // namespace kw
