#include "editing/Leinwand.h"
#include "editing/LeinwandSchritte.h"

#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "editing/Bildausschnitt.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Legende.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"

namespace kw {

/// The order decides what a press means: what is armed or selected comes before what lies under the pointer, and
/// of that circle lines come first, then persons, lines, arrows, text boxes.
void Leinwand::MouseDown(int taste, double x, double y) {
    using Schritt = bool (*)(Werkbank &, const Ereignis &);
    static constexpr Schritt Schritte[] = {
        Zurücksetzen, BildBeginnen,  PfeilBeginnen,   TextSetzen,     OrtMerken,       KreisBeginnen, LegendeFassen,
        KreisTreffen, KreisGewählt,  GruppeFassen,    TextWarGefasst, KindLinkBeenden, MenüWarOffen,  LinkBeenden,
        PersonSetzen, PersonTreffen, LinieWarGewählt, LinieTreffen,   TextTreffen,     RahmenBeginnen};
    const Ereignis e{taste, x, y};
    for (const Schritt schritt : Schritte)
        if (schritt(w, e)) return;
}

bool Zurücksetzen(Werkbank &w, const Ereignis &e) {
    // The last release got lost; a dragged circle line has moved already.
    if (std::exchange(w.lage.Gedrückt, true) && w.lage.Aktion == Aktion::KreisGewählt) KreisLoslassen(w, e);
    w.auflagen.Line5.Visible = false;
    w.bedienung["mnuLöschen1"].Enabled = false;
    w.auflagen.shpMask.Visible = false;
    w.lage.Info.Visible = false;
    w.bedienung["mnustr14"].Visible = false;
    return false;
}

bool OrtMerken(Werkbank &w, const Ereignis &e) {
    w.lage.LetztX = w.lage.DownX = Gerundet(e.X, 2);
    w.lage.LetztY = w.lage.DownY = Gerundet(e.Y, 2);
    return false;
}

bool MenüWarOffen(Werkbank &w, const Ereignis &) {
    const bool ende = w.lage.Aktion == Aktion::MenüOffen;
    if (ende || w.lage.Aktion == Aktion::Nichts) Gummi1Parken(w);
    if (ende) w.lage.Aktion = Aktion::Nichts;
    if (ende) w.lage.PersRecord.clear(); // a double click that begins so isn't meant for that person
    return ende;
}

/// A line that is selected already: its menu, or the end of the selection.
bool LinieWarGewählt(Werkbank &w, const Ereignis &e) {
    const char *menü = w.lage.Aktion == Aktion::BeziehungGewählt   ? "mnuBezLinie"
                       : w.lage.Aktion == Aktion::PLinieGewählt    ? "mnuPLinie"
                       : w.lage.Aktion == Aktion::KindlinieGewählt ? "mnuKindLinie"
                                                                   : nullptr;
    if (!menü) return false;
    if (e.Rechts()) {
        w.bedienung["mnuLöschen1"].Enabled = true;
        PopupÖffnen(w, menü);
        return true;
    }
    Gummi1Parken(w);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    return true;
}

bool LinieTreffen(Werkbank &w, const Ereignis &e) {
    w.lage.Aktion = Aktion::Nichts;
    return BezLinieTreffer(w, e.X, e.Y) || PLinieTreffer(w, e.X, e.Y) || KindLinieTreffer(w, e.X, e.Y) ||
           PfeilTreffer(w, e.X, e.Y) || PfeilEndeTreffer(w, e.X, e.Y);
}

void Leinwand::DblClick(double x, double y) {
    w.lage.MausX = x;
    w.lage.MausY = y;
    const int text = TextboxBei(w.dokument, x, y);
    if (text >= 0) {
        TextboxAuswählen(w, text);
        w.lage.Aktion = Aktion::TextDialog;
        w.fenster.Vorschau();
        w.fenster.FormÖffnen("frmKommentar");
        return;
    }
    if (LegendeUnterMaus(w)) {
        w.fenster.FormÖffnen("frmLegende");
        return;
    }
    // A press on a selected line has just unselected it: the double click means the line all the same.
    if (w.lage.Aktion == Aktion::Nichts && Getrimmt(w.lage.PersRecord).empty())
        BezLinieTreffer(w, x, y) || PLinieTreffer(w, x, y) || KindLinieTreffer(w, x, y);
    struct Tür {
        kw::Aktion Aktion;
        const char *Form;
    };
    for (const auto &[aktion, form] :
         {Tür{Aktion::BeziehungGewählt, "frmBezLinien"}, Tür{Aktion::PLinieGewählt, "frmPLinien"},
          Tür{Aktion::KindlinieGewählt, nullptr}}) {
        if (w.lage.Aktion != aktion) continue;
        if (form) w.fenster.FormÖffnen(form);
        else w.fenster.PopupÖffnen("mnuKindLinie");
        w.lage.Aktion = Aktion::Nichts;
        w.fenster.Vorschau();
        return;
    }
    constexpr int NachDemEreignis = 60;                                                               // ms
    if (!Getrimmt(w.lage.PersRecord).empty()) w.benutzer.ZeitgeberStarten("Timer3", NachDemEreignis); // opens frmSymbol
}

} // namespace kw
