#include "rendering/Zeichenbefund.h"

#include "document/Dokument.h"
#include "document/saetze/Textbox.h"
#include "rendering/Ansicht.h"
#include "rendering/Auswahl.h"
#include "rendering/Legende.h"

namespace kw {

namespace {

void Eintragen(const Textbefund &befund, Satzliste &boxen, Gestenlage &geste) {
    for (const Textmaße &maße : befund.Gemessen)
        boxen.Ersetzen(maße.Position, GemesseneTextbox(boxen.Satz(maße.Position), maße.Breite, maße.Höhe));
    if (befund.GesteBeendet) geste.Aktion = Aktion::Nichts;
    geste.TextRahmenUnten = befund.RahmenEnde.value_or(geste.TextRahmenUnten);
}

} // namespace

void Anwenden(const Zeichenbefund &befund, Dokument &dokument, Ansicht &ansicht, Gestenlage &geste,
              Legendenblatt &legende) {
    Eintragen(befund.Texte, dokument.cboTextboxen, geste);
    ansicht.Pfeilfarbe = befund.Pfeile.Pfeilfarbe;
    ansicht.PfeilMarkiert = befund.Pfeile.Markiert.value_or(ansicht.PfeilMarkiert);
    ansicht.Skalierung = befund.Skalierung.value_or(ansicht.Skalierung);
    ansicht.StrichFaktor = befund.StrichFaktor.value_or(ansicht.StrichFaktor);
    if (!befund.Legende) return;
    dokument.LegendeX = befund.Legende->X;
    dokument.LegendeY = befund.Legende->Y;
    legende.LegendeBreite = befund.Legende->Breite;
    legende.LegendeHoehe = befund.Legende->Höhe;
}

} // namespace kw
