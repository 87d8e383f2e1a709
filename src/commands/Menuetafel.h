#pragma once

#include "platform/Sprache.h"

#include <span>
#include <string>
#include <string_view>

namespace kw {

class Bedienelemente;

/// One thing that the user can choose: a menu entry, a toolbar item, a button of the palette. Menu bar, context
/// menus, palette, shortcuts and replay all read these rows; what a row does stands in app/Befehle.cpp under
/// the same name.
struct Menüzeile {
    std::string_view Name;
    std::string_view Menü; ///< the menu that it stands in; a group below for what stands in none
    Zweisprachig Caption;
    Zweisprachig Kennbuchstabe = {}; ///< the letter that picks it in its menu; no other row of that has it
    std::string_view Kürzel = {};    ///< "Ctrl+O"
    bool Enabled = true;
    bool Visible = true;
};

/// Groups of rows that are no menus.
inline constexpr std::string_view Menüleiste = "Menüleiste";   ///< top entries, in their order
inline constexpr std::string_view Kontextmenü = "Kontextmenü"; ///< popups; no caption
inline constexpr std::string_view Werkzeugband = "Coolbar1";   ///< toolbar items, caption the tool tip, at first
inline constexpr std::string_view Palette = "frmToolbar";      ///< palette buttons, caption is the tool's name
inline constexpr std::string_view Fensterteile = "frmMain";    ///< what else stands in the window

/// A caption of a line between entries.
inline constexpr std::string_view Trennstrich = "-";

/// All rows, those of one menu together and in their order.
std::span<const Menüzeile> Menütafel();
/// The row of that name, or nothing.
const Menüzeile *MenüzeileFinden(std::string_view name);
/// Whether other rows stand in this one.
bool IstMenü(const Menüzeile &zeile);
/// Whether the row `name` stands in `menü` or in a menu below it.
bool GehörtZu(std::string_view name, std::string_view menü);

/// Whether the row can be ticked, or a button pressed, and let go again.
bool IstAnkreuzbar(std::string_view name);

/// A caption in two pieces, with the letter that picks it at the beginning of the second one.
struct Kennstelle {
    std::string Davor; ///< all of it when the letter isn't in it
    std::string Ab;
};
/// Splits what the row shows now, `caption`: its own one, another that says a state, or a file's name. The letter
/// counts as it is written, at the beginning of a word if it is at one. A mark that the row's own caption has goes.
Kennstelle KennstelleIn(const Menüzeile &zeile, std::string_view caption, Sprache sprache);

/// The menu entry that toolbar item `name` stands for, in what it does and in its shortcut; empty for an item of its
/// own. Undo and redo have a second name, under which nothing shows.
std::string_view Menügleich(std::string_view name);

/// Creates the states of all rows, as at start, in English.
void BedienelementeAnlegen(Bedienelemente &elemente);

} // namespace kw
