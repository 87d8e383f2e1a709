#include "app/Wegweiser.h"

#include "commands/Menuetafel.h"
#include "document/Dokument.h"
#include "document/Texte.h"
#include "document/UndoRing.h"
#include "document/Verweise.h"
#include "editing/Absagen.h"
#include "editing/Leinwandlage.h"
#include "editing/Werkzeuge.h"
#include "keyboard/Tastatur.h"
#include "platform/Bedienelemente.h"
#include "rendering/Ansicht.h"

#include <algorithm>

namespace kw {

namespace {

/// What comes next while the canvas is in a state.
struct Schritt {
    kw::Aktion Aktion;
    Zweisprachig Text;
};

// A tool's name stands before it: "Männlich: auf die Seite klicken; Esc bricht ab".
constexpr Schritt Werkzeugschritte[] = {
    {Aktion::PersonSetzen, {"auf die Seite klicken; Esc bricht ab", "click the page; Esc cancels"}},
    {Aktion::ElternSetzen,
     {"auf die Seite klicken, die Mutter kommt rechts daneben; Esc bricht ab",
      "click the page, the mother comes to the right; Esc cancels"}},
    {Aktion::TextGesetzt,
     {"auf die Seite klicken, wo der Text beginnt; Esc bricht ab", "click where the text begins; Esc cancels"}},
    {Aktion::KreisZeichnen,
     {"mit gedrückter Taste um die Personen fahren; Esc bricht ab",
      "go round the persons with the button held down; Esc cancels"}},
    {Aktion::PfeilZeichnen, {"vom Anfang zum Ende ziehen; Esc bricht ab", "drag from start to end; Esc cancels"}},
};

constexpr Schritt Schritte[] = {
    // Links.
    {Aktion::PartnerschaftZiehen, {"Partner anklicken; Esc bricht ab", "Click the partner; Esc cancels"}},
    {Aktion::BeziehungZiehen, {"Die andere Person anklicken; Esc bricht ab", "Click the other person; Esc cancels"}},
    {Aktion::KindZiehen,
     {"Die Partnerschaftslinie der Eltern anklicken; Esc bricht ab",
      "Click the parents' partnership line; Esc cancels"}},
    // What is selected.
    {Aktion::PersonGewählt,
     {"Ziehen verschiebt; Doppelklick: Formular; rechte Taste: Menü; Entf löscht",
      "Drag to move; double-click: form; right button: menu; Del deletes"}},
    {Aktion::BeziehungGewählt,
     {"Doppelklick: Art der Beziehung; rechte Taste: Menü; Entf löscht",
      "Double-click: kind of relationship; right button: menu; Del deletes"}},
    {Aktion::PLinieGewählt,
     {"Doppelklick: Formular; rechte Taste: Menü; Entf löscht; ein Klick hebt auf, erst dann lässt sie sich ziehen",
      "Double-click: form; right button: menu; Del deletes; a click lets go, and only then can it be dragged"}},
    {Aktion::KindlinieGewählt,
     {"Doppelklick: leiblich, adoptiert, Pflegekind; Entf löscht",
      "Double-click: natural, adopted, foster child; Del deletes"}},
    {Aktion::GruppeGewählt,
     {"Im Rahmen ziehen verschiebt alles; rechte Taste: Menü; Entf löscht",
      "Drag within the frame to move all; right button: menu; Del deletes"}},
    {Aktion::KreisGewählt,
     {"Ziehen verschiebt; rechte Taste: Menü; Entf löscht", "Drag to move; right button: menu; Del deletes"}},
    {Aktion::TextGewählt,
     {"Ziehen verschiebt; Doppelklick: Text ändern; rechte Taste: Menü; Entf löscht",
      "Drag to move; double-click: change the text; right button: menu; Del deletes"}},
    {Aktion::PfeilGefasst,
     {"Ziehen verschiebt, an einem Ende nur dieses; Entf löscht", "Drag to move, at an end only that; Del deletes"}},
    {Aktion::PfeilGewählt,
     {"Ziehen verschiebt, an einem Ende nur dieses; Entf löscht", "Drag to move, at an end only that; Del deletes"}},
    {Aktion::PfeilEnde1, {"Das Ende ziehen; Entf löscht den Pfeil", "Drag the end; Del deletes the arrow"}},
    {Aktion::PfeilEnde2, {"Das Ende ziehen; Entf löscht den Pfeil", "Drag the end; Del deletes the arrow"}},
    {Aktion::MenüOffen,
     {"Ein Klick auf die Seite beendet die Auswahl; Entf löscht",
      "A click on the page ends the selection; Del deletes"}},
};

// While the button is down.
constexpr Schritt Züge[] = {
    {Aktion::RahmenZiehen,
     {"Rahmen um alles ziehen, was ausgewählt werden soll", "Drag a frame around what is to be selected"}},
    {Aktion::LegendeGefasst, {"Ziehen verschiebt die Legende", "Drag to move the legend"}},
    {Aktion::TextGefasst, {"Ziehen verschiebt; loslassen legt ab", "Drag to move; release to put it there"}},
};

constexpr Zweisprachig BildInDatei{"Rahmen um den Ausschnitt ziehen, der in eine Bilddatei soll; Esc bricht ab",
                                   "Drag a frame around what goes to an image file; Esc cancels"};
constexpr Zweisprachig BildInAblage{"Rahmen um den Ausschnitt ziehen, der in die Zwischenablage soll; Esc bricht ab",
                                    "Drag a frame around what goes to the clipboard; Esc cancels"};
constexpr Zweisprachig Geschwister{"Rechte Taste im Rahmen: als Zwillinge darstellen, Menü; Entf löscht",
                                   "Right button within the frame: represent as twins, menu; Del deletes"};
constexpr Zweisprachig ZweiPersonen{"Im Rahmen ziehen verschiebt beide; Zwillinge der beiden: Werkzeug links",
                                    "Drag within the frame to move both; twins of the two: tool at the left"};
// With keys.
constexpr Zweisprachig MitKreuzSetzen{"Pfeiltasten bewegen das Kreuz, Enter setzt; Esc bricht ab",
                                      "arrow keys move the cross, Enter places; Esc cancels"};
constexpr Zweisprachig AnfangSetzen{"Pfeiltasten bewegen das Kreuz, Enter setzt den Anfang; Esc bricht ab",
                                    "arrow keys move the cross, Enter sets the start; Esc cancels"};
constexpr Zweisprachig EndeSetzen{"Enter setzt das Ende; Esc nimmt den Anfang zurück",
                                  "Enter sets the end; Esc takes the start back"};
constexpr Zweisprachig ErstenPunktSetzen{"Pfeiltasten bewegen das Kreuz, Enter setzt den ersten Punkt; Esc bricht ab",
                                         "arrow keys move the cross, Enter sets the first point; Esc cancels"};
constexpr Zweisprachig PunktSetzen{"Enter setzt den nächsten Punkt, am ersten schließt er die Linie; Esc verwirft",
                                   "Enter sets the next point, at the first one it closes the line; Esc discards"};
constexpr Zweisprachig LinieUmlegen{"Enter legt die Linie um die Auswahl; Esc bricht ab",
                                    "Enter lays the line round the selection; Esc cancels"};
constexpr Zweisprachig ZielMitTasten{"Tab geht zum nächsten Ziel, Enter verknüpft; Esc bricht ab",
                                     "Tab goes to the next target, Enter links; Esc cancels"};
constexpr Zweisprachig AmElement{
    "Leertaste wählt aus; Enter: Formular; Menütaste: Menü; Alt und Pfeiltasten verschieben",
    "Space selects; Enter: form; menu key: menu; Alt and arrow keys move"};
constexpr Zweisprachig MitAuswahl{"Alt und Pfeiltasten verschieben; Menütaste: Menü; Entf löscht; Esc hebt auf",
                                  "Alt and arrow keys move; menu key: menu; Del deletes; Esc ends the selection"};

constexpr Zweisprachig LeereSeite{"Links ein Symbol anklicken, dann auf die Seite klicken",
                                  "Click a symbol at the left, then click the page"};
constexpr Zweisprachig Untätig{"Ein Klick wählt aus, ein Rahmen mehrere; rechte Taste: Menü",
                               "Click to select, drag a frame for several; right button: menu"};

constexpr Zweisprachig Einstieg{"So beginnt ein Genogramm\n"
                                "Links ein Symbol anklicken, dann hier auf die Seite: Dort steht die Person.\n"
                                "Ein Doppelklick auf sie öffnet das Formular für Namen und Daten.\n"
                                "Eine Person anklicken, links eine Linie wählen, dann ihr Ziel anklicken.\n"
                                "Die Zeile ganz unten sagt, was als Nächstes kommt; F1 öffnet die Anleitung.",
                                "How to begin a genogram\n"
                                "Click a symbol at the left, then here on the page: the person stands there.\n"
                                "A double-click on it opens the form for names and dates.\n"
                                "Click a person, choose a line at the left, then click its target.\n"
                                "The row at the bottom tells what comes next; F1 opens the manual."};

/// How the signs of the unborn look, which differ in little.
struct Ungeborenes {
    int Werkzeug;
    Zweisprachig Aussehen;
};
constexpr Ungeborenes AussehenUngeborener[] = {
    {3, {"Dreieck", "triangle"}},
    {4, {"kleiner gefüllter Kreis", "small filled circle"}},
    {5, {"Quadrat mit Kreuz", "square with a cross"}},
    {6, {"Kreis mit Kreuz", "circle with a cross"}},
    {7, {"Dreieck mit Kreuz", "triangle with a cross"}},
};

/// Why a command is disabled.
struct Sperre {
    Befehlsname Name;
    const Zweisprachig *Grund;
};
constexpr Sperre Sperren[] = {
    {Name::mnuLöschen1, &Absage::NichtsGewählt},
    {Name::cmdDelete, &Absage::NichtsGewählt},
    {Name::mnuAusschneiden, &Absage::NichtsGewählt},
    {Name::mnuKopieren, &Absage::NichtsGewählt},
    {Name::mnuEinfügen, &Absage::LeereAblage},
    {Name::mnuEinfügen8, &Absage::LeereAblage},
    {Name::mnuRückgängig, &Absage::NichtsZurück},
    {Name::mnuWiederholen, &Absage::NichtsWieder},
    {Name::mnuSymbolVergrößern, &Absage::GrößtesSymbol},
    {Name::mnuSymbolVerkleinern, &Absage::KleinstesSymbol},
    {Name::btnBildGrößer, &Absage::GrößterZoom},
    {Name::btnBildKleiner, &Absage::KleinsterZoom},
    {Name::mnuKindVon, &Absage::HatEltern},
    {Name::mnuStammbaumExport, &Absage::KeinStammbaum},
    {Name::mnuOhneNamen, &Absage::NichtsDa},
};

const Zweisprachig *Suchen(std::span<const Schritt> schritte, Aktion aktion) {
    const auto i = std::find_if(schritte.begin(), schritte.end(), [&](const Schritt &s) { return s.Aktion == aktion; });
    return i == schritte.end() ? nullptr : &i->Text;
}

bool IstUnberührt(const Dokument &d, const UndoRing &ring) {
    return Satzzahl(d) == 0 && ring.UndoSchritte() == 0 && ring.RedoSchritte() == 0;
}

} // namespace

void Wegweiser::PaletteBerührt(int werkzeug) {
    if (werkzeug == berührt_) return;
    berührt_ = werkzeug;
    überholt_ = z_.lage.Hinweis;
    bedienung_[Name::picToolTipp].Tipp = Aussehen();
    Zeigen();
}

void Wegweiser::Zeigen() {
    bedienung_[Name::lblStatus].Caption = Zeile();
    Bedienelement &einstieg = bedienung_[Name::lblEinstieg];
    einstieg.Visible = IstUnberührt(z_.dokument, z_.ring);
    einstieg.Caption = Einstieg.In(z_.ansicht.Sprache);
}

std::string Wegweiser::Zeile() const {
    const Zweisprachig *grund = z_.lage.Hinweis;
    if (berührt_ && (!grund || grund == überholt_)) return KnopfZeile();
    return grund ? std::string(grund->In(z_.ansicht.Sprache)) : NächsterSchritt();
}

/// Name and state of the button under the pointer.
std::string Wegweiser::KnopfZeile() const {
    if (WerkzeugGedrückt(berührt_, z_.lage)) return NächsterSchritt();
    const Bedienelement &knopf = bedienung_.Mit(WerkzeugName(berührt_));
    const std::string name(Getrimmt(knopf.Caption));
    const auto mit = [&](const Zweisprachig &text) { return name + ": " + std::string(text.In(z_.ansicht.Sprache)); };
    if (!knopf.Enabled)
        if (const Zweisprachig *grund = WarumGesperrt(WerkzeugName(berührt_))) return mit(*grund);
    const std::string_view aussehen = Aussehen();
    return aussehen.empty() ? name : name + ": " + std::string(aussehen);
}

/// How the sign of the button under the pointer looks; empty where its picture says enough.
std::string_view Wegweiser::Aussehen() const {
    const auto *zeichen = std::find_if(std::begin(AussehenUngeborener), std::end(AussehenUngeborener),
                                       [&](const Ungeborenes &z) { return z.Werkzeug == berührt_; });
    return zeichen == std::end(AussehenUngeborener) ? std::string_view() : zeichen->Aussehen.In(z_.ansicht.Sprache);
}

/// With the name of the tool in hand before it, if one is.
std::string Wegweiser::MitWerkzeugnamen(std::string schritt) const {
    for (int nummer = 1; nummer <= WerkzeugAnzahl; ++nummer)
        if (!IstLink(z_.lage.Aktion) && WerkzeugGedrückt(nummer, z_.lage))
            return std::string(Getrimmt(bedienung_.Mit(WerkzeugName(nummer)).Caption)) + ": " + schritt;
    return schritt;
}

/// The same for who works with keys: what the cursor, the cross or a link does next. None where keys do nothing else.
const Zweisprachig *Wegweiser::NächsteTaste() const {
    const Leinwandlage &lage = z_.lage;
    const bool zeichnet = z_.tastatur.MitKreuz().Zeichnet();
    if (!z_.tastatur.Sichtbar()) return nullptr;
    if (lage.BildAuswahl || lage.Aktion == Aktion::PfeilZeichnen) return zeichnet ? &EndeSetzen : &AnfangSetzen;
    if (lage.Aktion == Aktion::KreisZeichnen)
        return zeichnet ? &PunktSetzen : z_.tastatur.MitKreuz().UmrisstAuswahl() ? &LinieUmlegen : &ErstenPunktSetzen;
    if (IstBereit(lage)) return &MitKreuzSetzen;
    if (IstLink(lage.Aktion)) return &ZielMitTasten;
    if (lage.Gedrückt || !z_.tastatur.Cursor().Element()) return nullptr;
    return z_.auswahl.Leer() && lage.Aktion == Aktion::Nichts ? &AmElement : &MitAuswahl;
}

std::string Wegweiser::NächsterSchritt() const {
    const Leinwandlage &lage = z_.lage;
    const auto text = [&](const Zweisprachig &t) { return std::string(t.In(z_.ansicht.Sprache)); };
    if (const Zweisprachig *taste = NächsteTaste()) return MitWerkzeugnamen(text(*taste));
    if (lage.BildAuswahl) return text(lage.bAuswahlInDatei ? BildInDatei : BildInAblage);
    if (const Zweisprachig *schritt = Suchen(Werkzeugschritte, lage.Aktion)) return MitWerkzeugnamen(text(*schritt));
    if (const Zweisprachig *zug = Suchen(Züge, lage.Aktion)) return text(*zug);
    const bool gruppe = lage.Aktion == Aktion::GruppeGewählt;
    if (gruppe && lage.Angebot.Zwillinge) return text(Geschwister);
    if (gruppe && z_.auswahl.lstMovedPers.Anzahl() == 2) return text(ZweiPersonen);
    // What was dragged stays selected, though the gesture is over.
    const bool gezogen = lage.Aktion == Aktion::Nichts && z_.auswahl.lstMovedPers.Anzahl() == 1;
    if (const Zweisprachig *schritt = Suchen(Schritte, gezogen ? Aktion::PersonGewählt : lage.Aktion))
        return text(*schritt);
    return text(Satzzahl(z_.dokument) == 0 ? LeereSeite : Untätig);
}

const Zweisprachig *Wegweiser::WarumGesperrt(std::string_view name) const {
    if (IstLink(z_.lage.Aktion)) return nullptr; // it ends first
    for (const int link : {WerkzeugBeziehung, WerkzeugPartnerschaft, WerkzeugKind})
        if (name == WerkzeugName(link)) {
            const bool person = WerkzeugBrauchbar(WerkzeugPartnerschaft, z_.dokument, z_.auswahl, z_.lage);
            return link == WerkzeugKind && person ? &Absage::HatEltern : &Absage::OhnePerson;
        }
    const auto menü = Menügleich(name);
    const std::string_view gesucht = menü.empty() ? name : menü;
    const auto *sperre =
        std::find_if(std::begin(Sperren), std::end(Sperren), [&](const Sperre &s) { return s.Name.Text == gesucht; });
    return sperre == std::end(Sperren) ? nullptr : sperre->Grund;
}

} // namespace kw
