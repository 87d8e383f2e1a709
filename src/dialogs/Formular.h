#pragma once

#include "platform/Sprache.h"
#include "rendering/Farben.h"

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

class Zeichenfläche;

/// What kind of control a form's element is, so that a face can make one.
enum class Art {
    Beschriftung, ///< `Caption`
    Textfeld,     ///< `Text`, one line
    Textblock,    ///< `Text`, lines joined by "\n"
    Liste,        ///< `Einträge`, `ListIndex`; nothing can be typed
    Listenfeld,   ///< the same, with its entries in sight
    Kombination,  ///< a list into which can be typed: `Text` counts
    Ankreuzfeld,  ///< `Caption`, `Value`
    Option,       ///< `Caption`, `Value`; one of its `Gruppe` at most
    Knopf,        ///< `Caption`
    Umschalter,   ///< a button that stays down: `Caption`, `Value`
    Farbfeld,     ///< `Farbe`; can be clicked
    Bild,         ///< a picture that the form draws
    Warnrahmen,   ///< a red frame round the box `Bei`; `Visible` is all it says
    Rahmen,       ///< a titled group, `Caption`
};

/// State of one control of a form. The form's rules write it, the face shows it.
struct Steuerelement {
    Art Kind = Art::Beschriftung;
    std::string Caption; ///< with "&" before a mnemonic
    std::string Text;
    std::vector<std::string> Einträge;
    int ListIndex = -1;
    int Gruppe = 0; ///< of options
    bool Value = false;
    bool Enabled = true;
    bool Visible = true;
    bool Weiß = true;   ///< a box's background: white, or the form's own colour
    std::string Bei;    ///< a warning frame's box; a preview label's preview; the list that a search box's keys move
    std::string Tip;    ///< tool tip
    Farbe Farbwert = 0; ///< of a colour swatch, or of a text
    // A label within a preview, and the font of whatever shows one: units of the preview, points.
    double Left = 0;
    double Top = 0;
    double Width = 0;
    std::string FontName;
    double FontSize = 0;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    int Alignment = 0; ///< 0 left, 1 right, 2 centred
};

/// A row of a form's table: a control, what stands on it and what its tool tip says.
struct Formularzeile {
    std::string_view Name;
    Art Kind;
    Zweisprachig Caption = {};
    Zweisprachig Tip = {};
    std::string_view Bei = {}; ///< as of the control
};

/// What a form is built from.
struct Formulartafel {
    std::string_view Name;
    Zweisprachig Titel;
    std::span<const Formularzeile> Zeilen; ///< in the tab order
    std::string_view Vorgabeknopf = {};    ///< the button that Enter presses; empty for none
    std::string_view Abbruchknopf = {};    ///< the button that Escape presses; empty for none
};

/// What a form asks of whoever shows it.
class Formularwirt {
  public:
    virtual ~Formularwirt() = default;
    /// Lets `Formular::Zeitgeber` be called once with this name after `ms`; 0 stops it. A second start replaces
    /// the first.
    virtual void ZeitgeberStellen(std::string_view name, int ms) = 0;
    virtual void FokusGeben(std::string_view steuerelement) = 0;
};

/// A form as a presentation model: the states of its controls under their names, and every rule. A face shows it
/// (`Benutzer::FormZeigen`): it sets `Wirt`, calls `Laden`, hands over what the user does until the form isn't
/// open any more, and calls `Entladen`. The close box is `Schließkreuz`.
class Formular {
  public:
    /// Makes every control of the table, with the captions of that language.
    Formular(const Formulartafel &tafel, Sprache sprache);
    virtual ~Formular() = default;
    Formular(const Formular &) = delete;
    Formular &operator=(const Formular &) = delete;

    const std::string &Name() const { return name_; }
    std::string Caption; ///< the title
    Formularwirt *Wirt = nullptr;
    bool Offen() const { return offen_; }

    /// Control `name`; an unknown name is a fault of the program and throws std::out_of_range.
    Steuerelement &operator[](std::string_view name);
    const Steuerelement *Finden(std::string_view name) const;
    /// The controls' names in their order, which is the tab order.
    const std::vector<std::string> &Reihenfolge() const { return reihenfolge_; }
    /// As in the table.
    const std::string Vorgabeknopf;
    const std::string Abbruchknopf;

    /// The form comes up, before it is seen.
    virtual void Laden() = 0;
    /// The form has gone, by whatever road.
    virtual void Entladen() {}
    /// A timer has run out.
    virtual void Zeitgeber(std::string_view /*name*/) {}
    /// Draws the preview `name` on a surface that has been scaled to `BildGröße`; nothing by itself.
    virtual void BildZeichnen(std::string_view /*name*/, Zeichenfläche & /*fläche*/) {}
    /// Width and height of the preview `name`, in the units that it is drawn in.
    virtual std::pair<double, double> BildGröße(std::string_view /*name*/) const { return {1, 1}; }
    /// How large it shows: centimetres of the screen by those units, 1 for the page's own size.
    virtual double BildMaßstab(std::string_view /*name*/) const { return 1; }

    // What the user does. Controls that are disabled or hidden take nothing.

    /// Whether the key may come into the box. `zeichen` is one UTF-8 character, "\n" for Enter; Backspace always may.
    virtual bool TasteErlaubt(std::string_view /*name*/, std::string_view /*zeichen*/) const { return true; }
    /// The text of a box is another now: typed, pasted, deleted. A box of one line takes what stands before the
    /// first line break.
    void TextEingeben(std::string_view name, std::string_view text);
    /// Types one character at the end of a box: filter first, then the change. "\b" takes the last one away.
    void Tippen(std::string_view name, std::string_view zeichen);
    /// A button, check box, option, toggle or swatch is pressed; in a box, the mouse goes down.
    void Drücken(std::string_view name);
    /// An entry of a list is chosen; in a combination its text becomes the text.
    void Wählen(std::string_view name, int index);
    void FokusErhalten(std::string_view name) { Fokussiert(name); }
    void Verlassen(std::string_view name) { FokusVerloren(name); }
    /// The window's own close box: as the cancel button, unless a form says otherwise.
    virtual void Schließkreuz() { Schließen(); }

  protected:
    void Schließen() { offen_ = false; }

    // Setting by the form itself raises the same events as the user's doing, when it makes a difference.
    void TextSetzen(std::string_view name, std::string_view text);
    void WertSetzen(std::string_view name, bool wert);
    void IndexSetzen(std::string_view name, int index);
    /// Ticks an option, clears the others of its group; the click comes each time.
    void OptionSetzen(std::string_view name);
    void ZeitgeberStellen(std::string_view name, int ms) {
        if (Wirt) Wirt->ZeitgeberStellen(name, ms);
    }
    void FokusGeben(std::string_view name) {
        if (Wirt) Wirt->FokusGeben(name);
    }

    // The rules.
    virtual void Geändert(std::string_view /*name*/) {}     ///< a box's text
    virtual void Geklickt(std::string_view /*name*/) {}     ///< button, check box, option, toggle, swatch, list
    virtual void MausGedrückt(std::string_view /*name*/) {} ///< in a box
    virtual void Fokussiert(std::string_view /*name*/) {}
    virtual void FokusVerloren(std::string_view /*name*/) {}

  private:
    std::string name_;
    std::map<std::string, Steuerelement, std::less<>> elemente_;
    std::vector<std::string> reihenfolge_;
    bool offen_ = true;
};

} // namespace kw
