#include "keyboard/Lauf.h"

#include "document/Zahlen.h"
#include "editing/Gruppe.h"
#include "editing/Kreislinien.h"
#include "editing/Leinwand.h"
#include "keyboard/Griff.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace kw {

namespace {

/// The window while a run is on: what a step does to the document is drawn and kept when the run says so.
class StillesFenster : public Fensterdienste {
  public:
    void Vorschau() override {}
    void Sichern() override {}
    void AlsGeändertMerken() override {}
    void PopupÖffnen(Befehlsname) override {}
    void FormÖffnen(Formularname) override {}
    void AusschnittAusgeben(const Bildausschnitt &, bool) override {}
};

bool KannGehen(Element e) { return e.Art != Elementart::Kind && e.Art != Elementart::Beziehung; }

int Vorzeichen(int wert) { return wert > 0 ? 1 : wert < 0 ? -1 : 0; }

bool GleicherStand(const Dokument &a, const Dokument &b) {
    return a.GleicheSätze(b) && a.LegendeX == b.LegendeX && a.LegendeY == b.LegendeY;
}

} // namespace

bool Lauf::Beginnen(std::optional<Element> ersatz) {
    auto gewählte = Gewählte(w_);
    if (gewählte.empty() && ersatz) gewählte.push_back(*ersatz);
    if (gewählte.empty()) return false;
    const bool allein = w_.lage.Aktion != Aktion::GruppeGewählt;
    if (allein && !KannGehen(gewählte.front())) return false;
    if (allein) Auswählen(w_, gewählte.front());
    anfang_ =
        Zustand{w_.dokument, w_.auswahl, w_.lage, w_.auflagen, allein ? std::optional(gewählte.front()) : std::nullopt};
    schritteX_ = schritteY_ = 0;
    return true;
}

void Lauf::Wiederherstellen(const Zustand &zustand) {
    w_.dokument = zustand.dokument;
    w_.auswahl = zustand.auswahl;
    w_.lage = zustand.lage;
    w_.auflagen = zustand.auflagen;
}

void Lauf::Ziehen(double dx, double dy) {
    StillesFenster still;
    Werkbank w{w_.dokument, w_.ansicht, w_.auswahl,     w_.lage,     w_.auflagen,
               w_.ablage,   w_.legende, w_.picVorschau, w_.benutzer, still};
    Leinwand leinwand(w);
    const auto &element = anfang_->element;
    const Seitenort mitte = element ? Greifort(w, *element) : Seitenort{w.auflagen.shpBox.Left, w.auflagen.shpBox.Top};
    const Seitenort von{Gerundet(mitte.X, 2), Gerundet(mitte.Y, 2)}; // as gestures remember a press
    const Ereignis bis{TasteLinks, von.X + dx, von.Y + dy};
    if (element) {
        Fassen(w, *element, {TasteLinks, von.X, von.Y});
    } else {
        w.lage.Gedrückt = true;
        RahmenFassen(w, {TasteLinks, von.X, von.Y});
    }
    if (element && element->Art == Elementart::Kreis) KreisVerschieben(w, bis);
    else leinwand.MouseMove(TasteLinks, bis.X, bis.Y);
    leinwand.MouseUp(TasteLinks, bis.X, bis.Y);
    if (!element) return;
    Auswählen(w, *element);
}

/// One by one: the page's edge ends a leap where it is, so that the way back isn't longer than it looks.
bool Lauf::Schritt(std::optional<Element> ersatz, int schritteX, int schritteY) {
    if (!Läuft() && !Beginnen(ersatz)) return false;
    const Dokument vorher = w_.dokument;
    for (int i = std::max(std::abs(schritteX), std::abs(schritteY)); i > 0; --i)
        if (!EinSchritt(Vorzeichen(schritteX), Vorzeichen(schritteY))) break;
    w_.fenster.Vorschau();
    return !GleicherStand(w_.dokument, vorher);
}

bool Lauf::EinSchritt(int x, int y) {
    const Dokument vorher = w_.dokument;
    const auto hin = [this] {
        Wiederherstellen(*anfang_);
        if (schritteX_ != 0 || schritteY_ != 0)
            Ziehen(schritteX_ * w_.ansicht.Rasterweite, schritteY_ * w_.ansicht.Rasterweite);
    };
    schritteX_ += x;
    schritteY_ += y;
    hin();
    if (!GleicherStand(w_.dokument, vorher)) return true;
    schritteX_ -= x;
    schritteY_ -= y;
    hin();
    return false;
}

void Lauf::Beenden() {
    if (!Läuft()) return;
    const Dokument vorher = std::exchange(anfang_, std::nullopt)->dokument;
    if (!w_.dokument.GleicheSätze(vorher)) w_.fenster.Sichern();
    else if (!GleicherStand(w_.dokument, vorher)) w_.fenster.AlsGeändertMerken(); // no snapshot holds the legend
}

void Lauf::Zurücknehmen() {
    if (!Läuft()) return;
    Wiederherstellen(*anfang_);
    anfang_.reset();
    w_.fenster.Vorschau();
}

} // namespace kw
