#pragma once

#include "platform/Sprache.h"

#include <QPoint>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace kw {

class frmMain;
struct Anblick;
struct Menüzeile;

/// A line of text in the program's font with room to spare, pixels. Reckoned, for to measure a font is to load the
/// fonts of the system.
int Zeilenhöhe();

/// What a menu says of that row, whose caption is `caption` now: trimmed, its letter marked for the toolkit.
QString Menütext(const Menüzeile &zeile, const std::string &caption, Sprache sprache);

/// The menus of the table. Captions and states are the model's.
class Menüs {
  public:
    /// `ausführen` runs the command that the user has picked in the menu bar, or by its shortcut.
    Menüs(frmMain &haupt, std::function<void(std::string_view)> ausführen);

    void Bauen(QMenuBar &leiste);
    /// How high the menu bar will be: for who keeps its place free until it is built.
    static int Höhe();
    /// Copies captions and states. After every event too, for shortcuts obey them without any menu.
    void Auffrischen();

    /// Shows context menu `menü` with its corner at `ort` on the screen, until the user is done. Gives the name of
    /// what was picked; runs nothing.
    std::optional<std::string> Popup(std::string_view menü, QPoint ort, QWidget &fenster);

  private:
    struct Eintrag {
        const Menüzeile *Zeile;
        QAction *Aktion;
    };
    void Füllen(QMenu &menü, std::string_view name, std::vector<Eintrag> &einträge);
    void Zeigen(const Eintrag &eintrag);

    frmMain &haupt_;
    const Anblick &anblick_;
    std::function<void(std::string_view)> ausführen_;
    QMenuBar *leiste_ = nullptr;
    std::vector<Eintrag> einträge_; ///< of the menu bar
};

} // namespace kw
