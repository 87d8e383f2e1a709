#include "keyboard/Griff.h"

#include "document/Nachschlagen.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "editing/Abwahl.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Legende.h"
#include "editing/Leinwand.h"
#include "editing/Linien.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"
#include "keyboard/Ansagen.h"
#include "platform/Befehlsnamen.h"

#include <algorithm>

namespace kw {

namespace {

/// Which end of the arrow at `position` is in hand: 1, 2, 0 for the whole or none.
int EndeInHand(const Leinwandlage &lage, int position) {
    if (lage.PfeilAuswahl != position) return 0;
    return lage.Aktion == Aktion::PfeilEnde2 ? 2 : lage.Aktion == Aktion::PfeilEnde1 ? 1 : 0;
}

void KreisFassen(Werkbank &w, int position, const Ereignis &e) {
    w.lage.KreisGetroffen = true;
    KreisAuswählen(w, position);
    KreisGewählt(w, e);
}

/// The legend looks where the pointer is.
void LegendeGreifen(Werkbank &w, const Ereignis &e) {
    w.lage.MausX = e.X;
    w.lage.MausY = e.Y;
    LegendeFassen(w, e);
}

void LinienmenüÖffnen(Werkbank &w, Befehlsname menü) {
    w.lage.Angebot.Löschen = true;
    PopupÖffnen(w, menü);
}

/// What a right press on an element of that kind opens, once it has been taken by the left one.
void MenüÖffnen(Werkbank &w, Elementart art) {
    const Ereignis rechts{TasteRechts, w.lage.DownX, w.lage.DownY};
    w.lage.Gedrückt = false;
    switch (art) {
    case Elementart::Partnerschaft: return LinienmenüÖffnen(w, Name::mnuPLinie);
    case Elementart::Kind: return LinienmenüÖffnen(w, Name::mnuKindLinie);
    case Elementart::Beziehung: return LinienmenüÖffnen(w, Name::mnuBezLinie);
    case Elementart::Text: return TextLoslassen(w, rechts);
    case Elementart::Pfeil: return PfeilLoslassen(w, rechts);
    default: return; // the press itself has opened it
    }
}

void FormÖffnen(Werkbank &w, Element element, Formularname form) {
    Auswählen(w, element);
    w.fenster.FormÖffnen(form);
    if (element.Art == Elementart::Person) return;
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
}

void TextÖffnen(Werkbank &w, int position) {
    NichtsAuswählen(w);
    TextboxAuswählen(w, position);
    w.lage.Aktion = Aktion::TextDialog;
    w.fenster.Vorschau();
    w.fenster.FormÖffnen(Name::frmKommentar);
}

/// The whole, its second end, its first, and so on.
void PfeilWeiterreichen(Werkbank &w, int position) {
    const Element pfeil{Elementart::Pfeil, position};
    const bool allein = w.lage.Aktion != Aktion::GruppeGewählt && IstGewählt(w.dokument, w.auswahl, w.lage, pfeil);
    const int ende = !allein || EndeInHand(w.lage, position) == 1 ? 0 : EndeInHand(w.lage, position) == 2 ? 1 : 2;
    if (!allein) NichtsAuswählen(w);
    PfeilFassen(w, position, ende);
    w.lage.Hinweis = ende == 0 ? &GanzerPfeil : ende == 1 ? &ErstesEnde : &ZweitesEnde;
}

/// Enters an element of a group in the list of its kind.
void Eintragen(const Dokument &d, Auswahl &auswahl, Element e) {
    const std::string nr = Elementschlüssel(d, e); // of kinds without a number the position from 1
    const std::string von0 = std::to_string(e.Position);
    switch (e.Art) {
    case Elementart::Person: return auswahl.lstMovedPers.Anhängen(nr);
    case Elementart::Partnerschaft: return auswahl.lstMovedPLines.Anhängen(nr);
    case Elementart::Text: return auswahl.lstMovedText.Anhängen(von0);
    case Elementart::Pfeil: return auswahl.lstMovedPfeile.Anhängen(von0);
    case Elementart::Kreis: return auswahl.lstMovedKreisLinien.Anhängen(nr);
    default: return;
    }
}

void AlsGruppe(Werkbank &w, const std::vector<Element> &elemente) {
    Umgebung rahmen;
    for (const Element &e : elemente) {
        Eintragen(w.dokument, w.auswahl, e);
        const Umgebung u = Elementrahmen(w.dokument, w.legende, e);
        rahmen.Aufnehmen(u.Links, u.Oben, u.Rechts - u.Links, u.Unten - u.Oben);
    }
    ZwillingeBereit(w);
    w.auflagen.shpBox.Legen(rahmen.Links, rahmen.Oben, rahmen.Rechts - rahmen.Links, rahmen.Unten - rahmen.Oben);
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = true;
    w.lage.Aktion = Aktion::GruppeGewählt;
}

} // namespace

Seitenort Greifort(const Werkbank &w, Element e) {
    if (!GibtEs(w.dokument, e)) return {};
    if (e.Art == Elementart::Person) {
        const PersonSatz p(w.dokument.cboPersonen.Satz(e.Position));
        return {p.PosX(), p.PosY()};
    }
    if (e.Art == Elementart::Partnerschaft) {
        const PartnerschaftSatz l(w.dokument.cboPartnerschaftsLinien.Satz(e.Position));
        return {(l.BalkenX1() + l.BalkenX2()) / 2, l.BalkenY1()};
    }
    const Umgebung u = Elementrahmen(w.dokument, w.legende, e);
    return {u.MitteX(), u.MitteY()};
}

void Fassen(Werkbank &w, Element element, const Ereignis &e) {
    const int ende = EndeInHand(w.lage, element.Position);
    NichtsAuswählen(w);
    w.lage.Gedrückt = true;
    w.lage.LetztX = w.lage.DownX = Gerundet(e.X, 2);
    w.lage.LetztY = w.lage.DownY = Gerundet(e.Y, 2);
    switch (element.Art) {
    case Elementart::Person: return PersonFassen(w, element.Position, e);
    case Elementart::Partnerschaft: return PLinieFassen(w, element.Position);
    case Elementart::Kind: return KindLinieFassen(w, element.Position);
    case Elementart::Beziehung: return BezLinieFassen(w, element.Position);
    case Elementart::Text: return TextFassen(w, element.Position, e);
    case Elementart::Pfeil: return PfeilFassen(w, element.Position, ende);
    case Elementart::Kreis: return KreisFassen(w, element.Position, e);
    case Elementart::Legende: return LegendeGreifen(w, e);
    }
}

void Auswählen(Werkbank &w, Element element) {
    const Seitenort ort = Greifort(w, element);
    Fassen(w, element, {TasteLinks, ort.X, ort.Y});
    Leinwand(w).MouseUp(TasteLinks, ort.X, ort.Y);
}

std::vector<Element> Gewählte(const Werkbank &w) {
    auto alle = AlleElemente(w.dokument);
    std::erase_if(alle, [&](const Element &e) { return !IstGewählt(w.dokument, w.auswahl, w.lage, e); });
    return alle;
}

bool KannInGruppe(Element e) {
    return e.Art != Elementart::Kind && e.Art != Elementart::Beziehung && e.Art != Elementart::Legende;
}

void AuswahlSetzen(Werkbank &w, const std::vector<Element> &elemente) {
    if (elemente.size() == 1) return Auswählen(w, elemente.front());
    std::vector<Element> gruppe;
    for (const Element &e : AlleElemente(w.dokument))
        if (KannInGruppe(e) && std::find(elemente.begin(), elemente.end(), e) != elemente.end()) gruppe.push_back(e);
    if (gruppe.size() == 1) return Auswählen(w, gruppe.front());
    NichtsAuswählen(w);
    if (!gruppe.empty()) AlsGruppe(w, gruppe);
    w.fenster.Vorschau();
}

void Öffnen(Werkbank &w, Element element) {
    switch (element.Art) {
    case Elementart::Person: return FormÖffnen(w, element, Name::frmSymbol);
    case Elementart::Partnerschaft: return FormÖffnen(w, element, Name::frmPLinien);
    case Elementart::Beziehung: return FormÖffnen(w, element, Name::frmBezLinien);
    case Elementart::Text: return TextÖffnen(w, element.Position);
    case Elementart::Pfeil: return PfeilWeiterreichen(w, element.Position);
    case Elementart::Legende: return w.fenster.FormÖffnen(Name::frmLegende);
    case Elementart::Kind:
    case Elementart::Kreis: return KontextmenüÖffnen(w, element);
    }
}

void KontextmenüÖffnen(Werkbank &w, std::optional<Element> element) {
    if (!element) {
        const auto &rahmen = w.auflagen.shpBox;
        if (w.lage.Aktion == Aktion::GruppeGewählt)
            return RahmenFassen(w, {TasteRechts, rahmen.Left + rahmen.Width / 2, rahmen.Top + rahmen.Height / 2});
        const Ereignis rechts{TasteRechts, w.ansicht.SeitenBreite / 2, w.ansicht.SeitenHöhe / 2};
        w.lage.MausX = rechts.X;
        w.lage.MausY = rechts.Y;
        RahmenBeginnen(w, rechts);
        return;
    }
    const Seitenort ort = Greifort(w, *element);
    const bool inGruppe = w.lage.Aktion == Aktion::GruppeGewählt && IstGewählt(w.dokument, w.auswahl, w.lage, *element);
    if (inGruppe) return RahmenFassen(w, {TasteRechts, ort.X, ort.Y});
    Fassen(w, *element, {TasteRechts, ort.X, ort.Y});
    MenüÖffnen(w, element->Art);
}

} // namespace kw
