#include "keyboard/Tastatur.h"

#include "document/Nachschlagen.h"
#include "editing/Abwahl.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Leinwand.h"
#include "editing/Linien.h"
#include "editing/Werkzeuge.h"
#include "keyboard/Ansagen.h"
#include "keyboard/Griff.h"
#include "platform/Benutzer.h"

#include <algorithm>
#include <iterator>

namespace kw {

namespace {

constexpr int Laufpause = 1000; ///< ms without a step that end a run
constexpr int Sprung = 10;      ///< steps of the raster

struct Pfeiltaste {
    kw::Taste Taste;
    kw::Richtung Richtung;
    int X, Y; ///< steps
};
constexpr Pfeiltaste Pfeiltasten[] = {{Taste::Hoch, Richtung::Hoch, 0, -1},
                                      {Taste::Runter, Richtung::Runter, 0, 1},
                                      {Taste::Links, Richtung::Links, -1, 0},
                                      {Taste::Rechts, Richtung::Rechts, 1, 0}};
/// What moves things by ten steps.
constexpr Pfeiltaste Sprungtasten[] = {{Taste::BildHoch, Richtung::Hoch, 0, -Sprung},
                                       {Taste::BildRunter, Richtung::Runter, 0, Sprung},
                                       {Taste::Anfang, Richtung::Links, -Sprung, 0},
                                       {Taste::Ende, Richtung::Rechts, Sprung, 0}};

template <size_t N> const Pfeiltaste *Finden(const Pfeiltaste (&tasten)[N], Taste taste) {
    const auto *zeile =
        std::find_if(std::begin(tasten), std::end(tasten), [&](const Pfeiltaste &p) { return p.Taste == taste; });
    return zeile == std::end(tasten) ? nullptr : zeile;
}

/// What a held key mustn't do again: it would go on in the form or the menu that it has opened.
bool WirktEinmal(const Tastendruck &t) {
    constexpr Taste Einmalige[] = {Taste::Eingabe, Taste::F2, Taste::Escape, Taste::Menü, Taste::F10};
    return t.Wiederholt && std::find(std::begin(Einmalige), std::end(Einmalige), t.Taste) != std::end(Einmalige);
}

bool Jedes(Element) { return true; }
bool IstPerson(Element e) { return e.Art == Elementart::Person; }

} // namespace

bool Tastatur::Drücken(const Tastendruck &t) {
    // A key during a drag would make another gesture of it.
    if ((MausZieht() && !t.Ist(Taste::Escape)) || WirktEinmal(t)) return true;
    w_.lage.Hinweis = nullptr;
    if (t.Taste != Taste::Leer) leertaste_ = false;
    if (ImLauf(t)) return true;
    if (t.Ist(Taste::Escape)) return Abbrechen();
    if (IstBereit(w_.lage)) return MitWerkzeug(t);
    if (IstLink(w_.lage.Aktion)) return MitLink(t);
    return Verschieben(t) || Gehen(t) || Handeln(t);
}

bool Tastatur::MausZieht() const { return w_.lage.Gedrückt && !kreuz_.Zeichnet(); }

/// Enter and Escape end a run and do nothing else; every other key ends it first.
bool Tastatur::ImLauf(const Tastendruck &t) {
    if (!lauf_.Läuft()) return false;
    const bool weiter =
        t.Alt && !t.Strg && !t.Umschalt && (Finden(Pfeiltasten, t.Taste) || Finden(Sprungtasten, t.Taste));
    if (weiter) return Verschieben(t);
    if (t.Ist(Taste::Escape)) lauf_.Zurücknehmen();
    else lauf_.Beenden();
    return t.Ist(Taste::Escape) || t.Ist(Taste::Eingabe);
}

bool Tastatur::Verschieben(const Tastendruck &t) {
    if (!t.Alt || t.Strg || t.Umschalt) return false;
    const Pfeiltaste *weg = Finden(Pfeiltasten, t.Taste);
    if (!weg) weg = Finden(Sprungtasten, t.Taste);
    if (!weg) return false;
    const auto gewählte = Gewählte(w_);
    const auto wer = gewählte.empty() ? cursor_.Element() : std::optional(gewählte.front());
    if (!lauf_.Schritt(cursor_.Element(), weg->X, weg->Y)) {
        const bool folgt = wer && (wer->Art == Elementart::Kind || wer->Art == Elementart::Beziehung);
        w_.lage.Hinweis = !wer ? &NichtsGewählt : folgt ? &LinienFolgen : &GehtNichtWeiter;
    }
    if (lauf_.Läuft()) w_.benutzer.ZeitgeberStarten("tmrLauf", Laufpause);
    return true;
}

bool Tastatur::MitWerkzeug(const Tastendruck &t) {
    if (t.Strg || t.Alt || !cursor_.Ort) return false;
    if (const Pfeiltaste *weg = Finden(Pfeiltasten, t.Taste)) {
        const int schritte = t.Umschalt ? Sprung : 1;
        cursor_.Ort = kreuz_.Bewegt(*cursor_.Ort, weg->X * schritte, weg->Y * schritte);
        return true;
    }
    if (!t.Ist(Taste::Eingabe)) return false;
    if (const auto neu = kreuz_.Ansetzen(*cursor_.Ort)) cursor_.Setzen(w_.dokument, *neu);
    return true;
}

/// What the link in hand can end at.
Elementfilter Tastatur::Ziele() const {
    return [this](Element e) {
        if (w_.lage.Aktion != Aktion::KindZiehen) return IstPerson(e) && KannZielSein(w_, e.Position);
        return e.Art == Elementart::Partnerschaft && KannKindSein(w_.dokument, e.Position, w_.lage.PersAuswahl - 1);
    };
}

bool Tastatur::MitLink(const Tastendruck &t) {
    if (t.Ist(Taste::Eingabe)) {
        Verknüpfen();
        return true;
    }
    if (t.Strg || t.Alt) return false;
    if (!Äußerstes(w_.dokument, false, Ziele())) { // the keyboard doesn't leave without a word
        w_.lage.Hinweis = &KeinZiel;
        return true;
    }
    if (!Wandern(t, Ziele())) return false;
    ZielZeigen();
    return true;
}

void Tastatur::ZielZeigen() {
    const auto ziel = cursor_.Element();
    if (!ziel || !Ziele()(*ziel)) return;
    const Seitenort ort = Greifort(w_, *ziel);
    w_.lage.MausX = ort.X;
    w_.lage.MausY = ort.Y;
    if (w_.lage.Aktion == Aktion::KindZiehen) KindLinkZeigen(w_, ziel->Position, {TasteKeine, ort.X, ort.Y});
    else LinkZiehen(w_, ziel->Position, ort.X, ort.Y);
}

void Tastatur::Verknüpfen() {
    const auto ziel = cursor_.Element();
    if (!ziel || !Ziele()(*ziel)) {
        w_.lage.Hinweis = Äußerstes(w_.dokument, false, Ziele()) ? &ZielWählen : &KeinZiel;
        return;
    }
    ZielZeigen(); // the pointer may have shown another
    if (w_.lage.Aktion == Aktion::KindZiehen) KindLinkBeenden(w_, {});
    else LinkBeenden(w_, {});
}

/// Round the page, and by place.
bool Tastatur::Wandern(const Tastendruck &t, const Elementfilter &kennt) {
    const Zweisprachig &sonst = IstLink(w_.lage.Aktion) ? KeinZiel : NichtsDort;
    if (t.Taste == Taste::Tabulator) {
        const auto nächstes = Nächstes(w_.dokument, cursor_.Element(), t.Umschalt, kennt);
        if (nächstes) cursor_.Setzen(w_.dokument, *nächstes);
        return nächstes.has_value();
    }
    if (t.Ist(Taste::Anfang) || t.Ist(Taste::Ende))
        return Hingehen(Äußerstes(w_.dokument, t.Taste == Taste::Ende, kennt), sonst);
    const Pfeiltaste *weg = Finden(Pfeiltasten, t.Taste);
    if (!weg) return false;
    const auto rahmen = Rahmen();
    if (!rahmen) return Hingehen(Äußerstes(w_.dokument, false, kennt), LeereSeite);
    return Hingehen(Benachbartes(w_.dokument, w_.legende, *rahmen, weg->Richtung, kennt), sonst);
}

bool Tastatur::Gehen(const Tastendruck &t) {
    if (t.Alt) return false;
    const auto von = cursor_.Element();
    const Pfeiltaste *weg = Finden(Pfeiltasten, t.Taste);
    if (weg && von && !t.Strg && HatVerwandte(von->Art, weg->Richtung))
        Hingehen(Verwandtes(w_.dokument, *von, weg->Richtung), KeinWeg(von->Art, weg->Richtung));
    else if (weg) Wandern(t, HatEinenPlatz);
    else if (t.Strg) return false;
    else return Wandern(t, t.Taste == Taste::Tabulator ? Elementfilter(Jedes) : Elementfilter(IstPerson));
    const auto bis = cursor_.Element();
    if (t.Umschalt && bis && bis != von) Dazunehmen(von.value_or(*bis), *bis);
    return true;
}

bool Tastatur::Hingehen(std::optional<Element> ziel, const Zweisprachig &sonst) {
    if (ziel) cursor_.Setzen(w_.dokument, *ziel);
    else w_.lage.Hinweis = &sonst;
    return true;
}

void Tastatur::Hinstellen(Element element) {
    lauf_.Beenden();
    sichtbar_ = true;
    w_.lage.Hinweis = nullptr;
    if (GibtEs(w_.dokument, element)) cursor_.Setzen(w_.dokument, element);
}

bool Tastatur::Handeln(const Tastendruck &t) {
    if (t.Ist(Taste::Leer)) leertaste_ = leertaste_ || !t.Wiederholt;
    else if (t.Ist(Taste::Eingabe) || t.Ist(Taste::F2)) Eingeben();
    else if (t.Ist(Taste::Menü) || t.Ist(Taste::F10, false, false, true)) KontextmenüÖffnen(w_, cursor_.Element());
    else if (t.Ist(Taste::A, true)) AllesAuswählen();
    else return false;
    return true;
}

void Tastatur::Eingeben() {
    if (const auto element = cursor_.Element()) Öffnen(w_, *element);
    else w_.lage.Hinweis = &NichtsGewählt;
}

void Tastatur::LeertasteLoslassen() {
    if (!std::exchange(leertaste_, false)) return;
    Umschalten();
}

void Tastatur::Umschalten() {
    const auto element = cursor_.Element();
    auto gewählte = Gewählte(w_);
    const auto hier = element ? std::find(gewählte.begin(), gewählte.end(), *element) : gewählte.end();
    if (!element) {
        w_.lage.Hinweis = &NichtsGewählt;
    } else if (hier != gewählte.end()) {
        gewählte.erase(hier);
        AuswahlSetzen(w_, gewählte);
    } else if (element->Art == Elementart::Legende) {
        w_.lage.Hinweis = &LegendeOhneMarke;
    } else if (gewählte.empty() || !KannInGruppe(gewählte.front())) {
        Auswählen(w_, *element);
    } else if (!KannInGruppe(*element)) {
        w_.lage.Hinweis = &KeineGruppe;
    } else {
        Dazunehmen(*element, *element);
    }
}

void Tastatur::Dazunehmen(Element a, Element b) {
    auto gewählte = Gewählte(w_);
    gewählte.insert(gewählte.end(), {a, b});
    std::erase_if(gewählte, [](Element e) { return !KannInGruppe(e); });
    if (gewählte.empty()) w_.lage.Hinweis = &KeineGruppe;
    else AuswahlSetzen(w_, gewählte);
}

void Tastatur::AllesAuswählen() {
    const auto alle = AlleElemente(w_.dokument);
    if (std::any_of(alle.begin(), alle.end(), KannInGruppe)) AuswahlSetzen(w_, alle);
    else w_.lage.Hinweis = &LeereSeite;
}

/// One thing a press: a gesture, a tool or a link, a selection.
bool Tastatur::Abbrechen() {
    if (Leinwand(w_).GesteZurücknehmen()) return true;
    if (w_.lage.Aktion == Aktion::Nichts && !w_.lage.BildAuswahl && w_.auswahl.Leer()) return false;
    NichtsAuswählen(w_);
    w_.fenster.Vorschau();
    return true;
}

bool Tastatur::Suchen(std::string_view text) {
    sichtbar_ = true;
    lauf_.Beenden();
    w_.lage.Hinweis = nullptr;
    const bool weiter = gesucht_ == text; // the same name again means the next who has it
    gesucht_ = text;
    if (Getrimmt(text).empty()) return false; // nobody is asked for yet
    const auto gefunden = PersonNamens(w_.dokument, text, weiter ? cursor_.Element() : std::nullopt);
    Hingehen(gefunden, NiemandNamens);
    return gefunden.has_value();
}

void Tastatur::MausGedrückt() {
    lauf_.Beenden();
    kreuz_.Ablegen();
    sichtbar_ = leertaste_ = false;
}

void Tastatur::MausBewegt() {
    if (cursor_.Ort && !w_.lage.Gedrückt) sichtbar_ = false;
}

void Tastatur::VorBefehl() {
    lauf_.Beenden();
    gewählteVorher_ = Gewählte(w_);
    if (IstBereit(w_.lage)) return;
    Umgebung umriss;
    for (const Element &e : *gewählteVorher_) {
        const Umgebung u = Elementrahmen(w_.dokument, w_.legende, e);
        umriss.Aufnehmen(u.Links, u.Oben, u.Rechts - u.Links, u.Unten - u.Oben);
    }
    kreuz_.UmrissMerken(umriss.Leer ? std::nullopt : std::optional(umriss));
}

void Tastatur::NachEreignis() {
    cursor_.Nachführen(w_.dokument);
    if (!IstBereit(w_.lage)) cursor_.Ort.reset();
    else if (!cursor_.Ort) cursor_.Ort = kreuz_.Anfang(Rahmen());
    if (IstLink(w_.lage.Aktion) && !link_ && Gültig(w_.dokument.cboPersonen, w_.lage.PersAuswahl - 1))
        cursor_.Setzen(w_.dokument, {Elementart::Person, w_.lage.PersAuswahl - 1});
    link_ = IstLink(w_.lage.Aktion);
    ZumNeuGewählten();
    if (!sichtbar_ && !link_ && w_.lage.Aktion != Aktion::GruppeGewählt)
        if (const auto gewählte = Gewählte(w_); gewählte.size() == 1) cursor_.Setzen(w_.dokument, gewählte.front());
    Zeigen();
}

/// What a command has selected, as pasting does, is where one goes on.
void Tastatur::ZumNeuGewählten() {
    const auto vorher = std::exchange(gewählteVorher_, std::nullopt);
    if (!vorher || !sichtbar_) return;
    const auto gewählte = Gewählte(w_);
    const auto hier = cursor_.Element();
    const bool dabei = hier && std::find(gewählte.begin(), gewählte.end(), *hier) != gewählte.end();
    if (!gewählte.empty() && !dabei && gewählte != *vorher) cursor_.Setzen(w_.dokument, gewählte.front());
}

Seitenort Tastatur::FreierOrt() const {
    constexpr double Daneben = 1.8; // cm, between the centres of two persons
    auto rahmen = Rahmen();
    if (rahmen) rahmen->Links = rahmen->Rechts = rahmen->MitteX() + Daneben;
    return kreuz_.Anfang(rahmen);
}

void Tastatur::ZurLetztenPerson() {
    sichtbar_ = true;
    cursor_.Setzen(w_.dokument, {Elementart::Person, w_.dokument.cboPersonen.Anzahl() - 1});
}

std::optional<Umgebung> Tastatur::Rahmen() const {
    if (!cursor_.Element()) return std::nullopt;
    return Elementrahmen(w_.dokument, w_.legende, *cursor_.Element());
}

/// The frame round the element, or the cross.
void Tastatur::Zeigen() {
    constexpr double Luft = 0.07; // cm between an element and the frame, which leaves a name below to be read
    constexpr double Arm = 0.5;   // cm, of the cross
    auto &[waagrecht, senkrecht] = w_.auflagen.Kreuz;
    w_.auflagen.shpCursor.Visible = waagrecht.Visible = senkrecht.Visible = false;
    if (!sichtbar_) return;
    if (const auto ort = cursor_.Ort) {
        waagrecht.Legen(ort->X - Arm, ort->Y, ort->X + Arm, ort->Y);
        senkrecht.Legen(ort->X, ort->Y - Arm, ort->X, ort->Y + Arm);
        waagrecht.Visible = senkrecht.Visible = true;
    } else if (const auto u = Rahmen()) {
        w_.auflagen.shpCursor.Legen(u->Links - Luft, u->Oben - Luft, u->Rechts - u->Links + 2 * Luft,
                                    u->Unten - u->Oben + 2 * Luft);
        w_.auflagen.shpCursor.Visible = true;
    }
}

} // namespace kw
