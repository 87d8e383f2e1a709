#pragma once

#include "keyboard/Kreuz.h"
#include "keyboard/Lauf.h"
#include "keyboard/Seitencursor.h"
#include "keyboard/Tastendruck.h"
#include "keyboard/Wege.h"

#include <string_view>

namespace kw {

/// What keys do on the page: everything that the pointer can. It has a cursor of its own, apart from `Aktion`; what it
/// selects, moves and makes comes from the gestures' routines. Why a key led to nothing stands in
/// `Leinwandlage::Hinweis`.
class Tastatur {
  public:
    explicit Tastatur(Werkbank &w) : w_(w), lauf_(w), kreuz_(w) {}

    /// False when the key is none of the page's now, so that others can have it: Tab at the ends leaves the page.
    bool Drücken(const Tastendruck &t);
    /// Space acts when it is let go, and not when the left button came between.
    void LeertasteLoslassen();

    /// The cursor goes to the next person of that name. False when there is none.
    bool Suchen(std::string_view text);

    /// The cursor goes to that element, whatever is in hand.
    void Hinstellen(Element element);

    /// What moves by keys comes to its end: before a press, a command, after a while.
    void LaufBeenden() { lauf_.Beenden(); }
    /// Whether such a run has moved something that no snapshot holds yet.
    bool IstUnterwegs() const { return lauf_.HatWeg(); }
    /// The keyboard is used, wherever: where it is on the page shows, but while the pointer drags something.
    void Benutzt() { sichtbar_ = sichtbar_ || !MausZieht(); }
    /// The pointer is used: the cursor goes with what it selects, and doesn't show.
    void MausGedrückt();
    void MausBewegt();
    /// A command is about to come: a tool that it arms will know what was selected.
    void VorBefehl();
    /// After every event: records, tool and selection may be others.
    void NachEreignis();
    /// Another document.
    void Vergessen() {
        lauf_.Verwerfen();
        cursor_.Vergessen();
    }

    const Seitencursor &Cursor() const { return cursor_; }
    /// Whether the keyboard is what was used last, so that the cursor shows.
    bool Sichtbar() const { return sichtbar_; }
    /// What the tool in hand is doing without the pointer.
    const Kreuz &MitKreuz() const { return kreuz_; }
    /// A place for something new: beside the cursor's element, else in the page's middle; cm, on the raster.
    Seitenort FreierOrt() const;
    /// What has come last among the persons has the cursor.
    void ZurLetztenPerson();

  private:
    bool MausZieht() const;
    bool ImLauf(const Tastendruck &t);
    bool Verschieben(const Tastendruck &t);
    bool MitWerkzeug(const Tastendruck &t);
    bool MitLink(const Tastendruck &t);
    bool Gehen(const Tastendruck &t);
    bool Wandern(const Tastendruck &t, const Elementfilter &kennt);
    bool Handeln(const Tastendruck &t);
    bool Abbrechen();
    void Eingeben();
    void Verknüpfen();
    void Umschalten();
    void AllesAuswählen();
    void Dazunehmen(Element a, Element b);
    bool Hingehen(std::optional<Element> ziel, const Zweisprachig &sonst);
    std::optional<Umgebung> Rahmen() const;
    Elementfilter Ziele() const;
    void ZielZeigen();
    void ZumNeuGewählten();
    void Zeigen();

    Werkbank &w_;
    Seitencursor cursor_;
    Lauf lauf_;
    Kreuz kreuz_;
    bool leertaste_ = false; ///< it is down, and nothing has come between
    bool sichtbar_ = false;
    std::string gesucht_;
    bool link_ = false;                                  ///< the link in hand is known
    std::optional<std::vector<Element>> gewählteVorher_; ///< before the command that runs
};

} // namespace kw
