#include "editing/Leinwand.h"

#include "document/Texte.h"
#include "document/Zahlen.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Bildausschnitt.h"
#include "editing/Gesten.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Legende.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"
#include "editing/Werkzeuge.h"
#include "platform/Befehlsnamen.h"
#include "platform/Benutzer.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace kw {

namespace {

/// What a gesture has changed before its release stays, as a step of its own: a placed person, a dragged circle line.
void Festhalten(Werkbank &w) {
    if (w.lage.Aktion == Aktion::KreisGewählt) KreisLoslassen(w, {});
    if (w.lage.Aktion == Aktion::PersonSetzen) PersonGesetzt(w, {});
}

bool Zurücksetzen(Werkbank &w, const Ereignis &) {
    if (std::exchange(w.lage.Gedrückt, true)) Festhalten(w); // the last release got lost
    w.lage.EbenAbgewählt = Aktion::Nichts;
    w.lage.Hinweis = nullptr;
    w.auflagen.Line5.Visible = false;
    w.lage.Angebot.Löschen = false;
    w.auflagen.shpMask.Visible = false;
    w.lage.Info.Visible = false;
    return false;
}

/// With a tool or a link in hand the right button only puts it away: no menu, and nothing selected.
bool Weglegen(Werkbank &w, const Ereignis &e) {
    if (!e.Rechts() || !WerkzeugWeglegen(w)) return false;
    w.lage.Gedrückt = false; // the release ends nothing more
    return true;
}

bool OrtMerken(Werkbank &w, const Ereignis &e) {
    w.lage.LetztX = w.lage.DownX = Gerundet(e.X, 2);
    w.lage.LetztY = w.lage.DownY = Gerundet(e.Y, 2);
    return false;
}

bool MenüWarOffen(Werkbank &w, const Ereignis &) {
    const bool ende = w.lage.Aktion == Aktion::MenüOffen;
    if (ende || w.lage.Aktion == Aktion::Nichts) Gummi1Parken(w.auflagen);
    if (ende) w.lage.Aktion = Aktion::Nichts;
    if (ende) w.lage.PersRecord.clear(); // the person that the menu was for
    return ende;
}

/// Whether the selected line of a kind lies under the point.
bool BeziehungDort(const Werkbank &w, double x, double y) {
    const Satzliste &linien = w.dokument.cboBeziehungsLinien;
    return Gültig(linien, w.lage.BezAuswahl) && BezLinieGetroffen(linien.Satz(w.lage.BezAuswahl), x, y);
}
bool PLinieDort(const Werkbank &w, double x, double y) {
    const Satzliste &linien = w.dokument.cboPartnerschaftsLinien;
    return Gültig(linien, w.lage.PLinieAuswahl) && PLinieGetroffen(linien.Satz(w.lage.PLinieAuswahl), x, y);
}
bool KindlinieDort(const Werkbank &w, double x, double y) {
    const Satzliste &linien = w.dokument.cboKindlinien;
    return Gültig(linien, w.lage.KindAuswahl) &&
           KindLinieGetroffen(linien.Satz(w.lage.KindAuswahl), x, y, w.lage.AuswahlGröße);
}

/// A kind of line by what selects it: its menu, and the form that a double click opens instead, if there is one.
struct Linienart {
    kw::Aktion Aktion;
    Befehlsname Menü;
    std::optional<Formularname> Form;
    bool (*Dort)(const Werkbank &, double x, double y);
};
constexpr Linienart Linienarten[] = {{Aktion::BeziehungGewählt, Name::mnuBezLinie, Name::frmBezLinien, BeziehungDort},
                                     {Aktion::PLinieGewählt, Name::mnuPLinie, Name::frmPLinien, PLinieDort},
                                     {Aktion::KindlinieGewählt, Name::mnuKindLinie, std::nullopt, KindlinieDort}};

const Linienart *LinieVon(Aktion aktion) {
    const auto *art = std::find_if(std::begin(Linienarten), std::end(Linienarten),
                                   [&](const Linienart &z) { return z.Aktion == aktion; });
    return art == std::end(Linienarten) ? nullptr : art;
}

/// Whether something is selected, or a menu was dismissed, elsewhere than at the point.
bool AnderesGewählt(const Werkbank &w, double x, double y) {
    if (const Linienart *art = LinieVon(w.lage.Aktion)) return !art->Dort(w, x, y);
    switch (w.lage.Aktion) {
    case Aktion::KreisGewählt:
        return KreisLinieBei(w.dokument, x, y, w.ansicht.Glättungsgrad) + 1 != w.lage.KreisAuswahl;
    case Aktion::GruppeGewählt: return !ImRahmen(w.auflagen, x, y);
    case Aktion::MenüOffen: return true;
    default: return false;
    }
}

/// A right press means what is under the pointer: a selection elsewhere ends, and the press goes on as without it.
/// Otherwise the menu of one thing would open over another, and delete it.
bool AnderesGemeint(Werkbank &w, const Ereignis &e) {
    if (!e.Rechts() || !AnderesGewählt(w, e.X, e.Y)) return false;
    AuswahlrahmenParken(w.auflagen);
    Gummi1Parken(w.auflagen);
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.lage.KreisAuswahl = 0;
    w.lage.PersRecord.clear();
    w.lage.Aktion = Aktion::Nichts;
    MarkerEntfernen(w);
    return false;
}

/// A line that is selected already: its menu, or the end of the selection.
bool LinieWarGewählt(Werkbank &w, const Ereignis &e) {
    const Linienart *art = LinieVon(w.lage.Aktion);
    if (!art) return false;
    if (e.Rechts()) {
        w.lage.Angebot.Löschen = true;
        PopupÖffnen(w, art->Menü);
        return true;
    }
    Gummi1Parken(w.auflagen);
    if (art->Dort(w, e.X, e.Y)) w.lage.EbenAbgewählt = w.lage.Aktion;
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    return true;
}

bool LinieTreffen(Werkbank &w, const Ereignis &e) {
    w.lage.Aktion = Aktion::Nichts;
    return BezLinieTreffer(w, e.X, e.Y) || PLinieTreffer(w, e.X, e.Y) || KindLinieTreffer(w, e.X, e.Y) ||
           PfeilTreffer(w, e.X, e.Y) || PfeilEndeTreffer(w, e.X, e.Y);
}

/// The order decides what a press means. A right press puts away what is armed. The tools of region, arrow, text and
/// circle line come first, then, when no selection elsewhere is in the way of a right press, the legend and the circle
/// lines under the pointer, whatever is armed or selected; then a group and what else is armed, then persons, lines,
/// arrows and text boxes under the pointer. On the empty page a marquee begins.
using Schritt = bool (*)(Werkbank &, const Ereignis &);
constexpr Schritt Schritte[] = {Zurücksetzen, Weglegen,      BildBeginnen,   PfeilBeginnen,   TextSetzen,
                                OrtMerken,    KreisBeginnen, AnderesGemeint, LegendeFassen,   KreisTreffen,
                                KreisGewählt, GruppeFassen,  TextWarGefasst, KindLinkBeenden, MenüWarOffen,
                                LinkBeenden,  PersonSetzen,  PersonTreffen,  LinieWarGewählt, LinieTreffen,
                                TextTreffen,  RahmenBeginnen};

/// Those of them that make something with a tool.
constexpr Schritt Werkzeugschritte[] = {Zurücksetzen, OrtMerken,     BildBeginnen, PfeilBeginnen,
                                        TextSetzen,   KreisBeginnen, PersonSetzen};

/// The form of the person under the pointer, or of the one that the press has selected.
void PersonÖffnen(Werkbank &w, int position) {
    constexpr int NachDemEreignis = 60; // ms
    if (position >= 0 && w.lage.Aktion != Aktion::PersonGewählt) {
        AuswahlrahmenParken(w.auflagen);
        PersonAuswählen(w, position);
        w.fenster.Vorschau();
    }
    if (!Getrimmt(w.lage.PersRecord).empty()) w.benutzer.ZeitgeberStarten("Timer3", NachDemEreignis); // opens frmSymbol
}

void PersonVerknüpfen(Werkbank &w, const Ereignis &e) { LinkZiehen(w, PersonBei(w.dokument, e.X, e.Y), e.X, e.Y); }

/// Only shapes over the page move, so nothing is redrawn; a dragged circle line is the exception.
struct Zug {
    kw::Aktion Aktion;
    bool NurLinks; ///< only while the left button is down
    void (*Ziehen)(Werkbank &, const Ereignis &);
};
constexpr Zug Züge[] = {
    {Aktion::PfeilZeichnen, true, PfeilAufziehen},
    {Aktion::PfeilGefasst, true, PfeilZiehen},
    {Aktion::PfeilEnde2, true, PfeilZiehen},
    {Aktion::PfeilEnde1, true, PfeilZiehen},
    {Aktion::KreisGewählt, true, KreisZiehen},
    {Aktion::KreisZeichnen, true, KreisZeichnen},
    {Aktion::LegendeGefasst, true, LegendeZiehen},
    {Aktion::GruppeGewählt, true, GruppeZiehen},
    {Aktion::BeziehungZiehen, false, PersonVerknüpfen},
    {Aktion::PartnerschaftZiehen, false, PersonVerknüpfen},
    {Aktion::KindZiehen, false, KindLinkZiehen},
    {Aktion::TextGefasst, false, TextZiehen},
    {Aktion::PersonGewählt, true, PersonZiehen},
    {Aktion::PLinieGewählt, true, BalkenZiehen},
    {Aktion::RahmenZiehen, true, RahmenZiehen},
};

struct Ende {
    kw::Aktion Aktion;
    void (*Loslassen)(Werkbank &, const Ereignis &);
};
constexpr Ende Enden[] = {
    {Aktion::PersonSetzen, PersonGesetzt},         {Aktion::PersonGewählt, PersonLoslassen},
    {Aktion::TextGefasst, TextLoslassen},          {Aktion::PLinieGewählt, BalkenLoslassen},
    {Aktion::BeziehungGewählt, BezLinieLoslassen}, {Aktion::KindlinieGewählt, KindLinieLoslassen},
    {Aktion::RahmenZiehen, RahmenLoslassen},       {Aktion::GruppeGewählt, GruppeLoslassen},
    {Aktion::LegendeGefasst, LegendeLoslassen},    {Aktion::KreisGewählt, KreisLoslassen},
    {Aktion::KreisZeichnen, KreisSchließen},       {Aktion::PfeilZeichnen, PfeilGezogen},
    {Aktion::PfeilEnde1, PfeilEndeLoslassen},      {Aktion::PfeilEnde2, PfeilEndeLoslassen},
    {Aktion::PfeilGefasst, PfeilLoslassen},
};

bool IstPfeilwahl(Aktion aktion) {
    return aktion == Aktion::PfeilGefasst || aktion == Aktion::PfeilGewählt || aktion == Aktion::PfeilEnde1 ||
           aktion == Aktion::PfeilEnde2;
}

void ZugAbbrechen(Werkbank &w) {
    w.auflagen.shpMask.Visible = w.auflagen.Line1.Visible = w.auflagen.Line5.Visible = false;
    w.lage.LinieVerschoben = false;
    w.lage.Zeiger = Mauszeiger::Pfeil;
    switch (w.lage.Aktion) {
    case Aktion::KreisGewählt:
    case Aktion::PersonSetzen: Festhalten(w); break;
    case Aktion::TextGefasst: w.lage.Aktion = Aktion::TextGewählt; break;
    case Aktion::GruppeGewählt: GruppeZurücksetzen(w); break;
    case Aktion::RahmenZiehen:
    case Aktion::KreisZeichnen:
    case Aktion::PfeilZeichnen:
    case Aktion::LegendeGefasst:
        AuswahlrahmenParken(w.auflagen);
        w.lage.PunktListe.clear();
        w.lage.BildAuswahl = false;
        w.lage.Aktion = Aktion::Nichts;
        break;
    default: break;
    }
}

} // namespace

void Leinwand::MouseDown(int taste, double x, double y) {
    const Ereignis e{taste, x, y};
    for (const Schritt schritt : Schritte)
        if (schritt(w, e)) return;
}

void Leinwand::DanebenGedrückt(int taste) {
    w.lage.Hinweis = nullptr;
    if (taste == TasteRechts) WerkzeugWeglegen(w);
    else if (EtwasInHand(w.lage)) w.lage.Hinweis = &Absage::Daneben;
}

bool Leinwand::WerkzeugAnsetzen(double x, double y) {
    if (!IstBereit(w.lage)) return false;
    w.lage.MausX = x;
    w.lage.MausY = y;
    const Ereignis e{TasteLinks, x, y};
    return std::any_of(std::begin(Werkzeugschritte), std::end(Werkzeugschritte),
                       [&](Schritt schritt) { return schritt(w, e); });
}

void Leinwand::MouseMove(int taste, double x, double y) {
    w.lage.MausX = x;
    w.lage.MausY = y;
    const Ereignis e{taste, x, y};
    const auto zug = std::find_if(std::begin(Züge), std::end(Züge), [&](const Zug &z) {
        return z.Aktion == w.lage.Aktion && ((e.Links() && w.lage.Gedrückt) || !z.NurLinks);
    });
    if (zug != std::end(Züge)) zug->Ziehen(w, e);
    if (w.lage.Aktion == Aktion::TextGesetzt) w.lage.Zeiger = Mauszeiger::Textfeld;
    if (w.lage.Aktion == Aktion::PersonSetzen) w.lage.Zeiger = Mauszeiger::Person;
}

void Leinwand::MouseUp(int taste, double x, double y) {
    if (!std::exchange(w.lage.Gedrückt, false)) return;
    for (Auflagenlinie &linie : w.auflagen.MarkLine) linie.Visible = false;
    if (w.lage.BildAuswahl) return BildLoslassen(w);
    w.auflagen.Line1.Visible = w.auflagen.Line5.Visible = false;
    w.lage.Zeiger = Mauszeiger::Pfeil;
    Gummi2Parken(w.auflagen);
    const Ereignis e{taste, x, y};
    for (const Ende &ende : Enden) {
        if (ende.Aktion != w.lage.Aktion) continue;
        ende.Loslassen(w, e);
        return;
    }
}

bool Leinwand::Zieht() const {
    return w.lage.Gedrückt && std::any_of(std::begin(Züge), std::end(Züge), [&](const Zug &z) {
               return z.Aktion == w.lage.Aktion && (z.NurLinks || !IstLink(z.Aktion));
           });
}

void Leinwand::DblClick(double x, double y) {
    if (w.lage.BildAuswahl) return; // a region is being dragged
    w.lage.Hinweis = nullptr;
    if (std::exchange(w.lage.Gedrückt, false)) Festhalten(w); // the last release got lost
    w.lage.MausX = x;
    w.lage.MausY = y;
    const int text = TextboxBei(w.dokument, x, y);
    if (text >= 0) {
        TextboxAuswählen(w, text);
        w.lage.Aktion = Aktion::TextDialog;
        w.fenster.Vorschau();
        w.fenster.FormÖffnen(Name::frmKommentar);
        return;
    }
    if (LegendeUnterMaus(w)) {
        w.fenster.FormÖffnen(Name::frmLegende);
        return;
    }
    const int person = PersonBei(w.dokument, x, y);
    if (person >= 0) return PersonÖffnen(w, person);
    // A press on a selected line has just unselected it: the double click means the line all the same.
    if (w.lage.Aktion == Aktion::Nichts) w.lage.Aktion = std::exchange(w.lage.EbenAbgewählt, Aktion::Nichts);
    if (const Linienart *art = LinieVon(w.lage.Aktion)) {
        if (art->Form) w.fenster.FormÖffnen(*art->Form);
        else w.fenster.PopupÖffnen(art->Menü);
        w.lage.Aktion = Aktion::Nichts;
        w.fenster.Vorschau();
        return;
    }
    if (w.lage.Aktion == Aktion::KreisGewählt || IstPfeilwahl(w.lage.Aktion)) w.lage.Hinweis = &Absage::OhneFormular;
    PersonÖffnen(w, person);
}

bool Leinwand::GesteZurücknehmen() {
    if (!w.lage.Gedrückt) return false;
    const int kreis = w.lage.KreisAuswahl - 1;
    if (w.lage.Aktion == Aktion::KreisGewählt && Gültig(w.dokument.cboFreehandlines, kreis) &&
        KreisPunkte(w.dokument.cboFreehandlines.Satz(kreis)) != w.lage.KreisPunkte)
        w.dokument.cboFreehandlines.Ersetzen(kreis, KreisText(w.lage.KreisPunkte));
    const bool pfeil = w.lage.Aktion == Aktion::PfeilEnde1 || w.lage.Aktion == Aktion::PfeilEnde2 ||
                       w.lage.Aktion == Aktion::PfeilGefasst;
    const bool bleibt = w.lage.Aktion == Aktion::PfeilZeichnen || w.lage.Aktion == Aktion::KreisZeichnen;
    const Aktion aktion = pfeil ? Aktion::PfeilGewählt : w.lage.Aktion;
    const bool bild = w.lage.BildAuswahl;
    const Mauszeiger zeiger = w.lage.Zeiger;
    w.lage.Gedrückt = false;
    ZugAbbrechen(w);
    if (bleibt || pfeil) w.lage.Aktion = aktion;
    if (bleibt || bild) w.lage.Zeiger = zeiger; // what is in hand still shows
    w.lage.BildAuswahl = bild;
    w.fenster.Vorschau();
    return true;
}

void Leinwand::GesteAbbrechen() {
    w.lage.Hinweis = nullptr;
    LinkAbbrechen(w.auswahl, w.lage, w.auflagen);
    if (std::exchange(w.lage.Gedrückt, false)) ZugAbbrechen(w);
}

} // namespace kw
