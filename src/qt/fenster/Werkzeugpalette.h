#pragma once

#include "qt/grund/Tastatur.h"
#include "qt/zugang/Seitenbaum.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace kw {

class frmMain;
struct Anblick;
class Merkmalfeld;
class Palettenhinweis;
class Palettenknopf;

/// The tool palette at the left of the page: the tools in two columns, the delete button, and below them what
/// holds for the selected person. One stop of the tab order; the arrow keys go from button to button.
class Werkzeugpalette : public QWidget, public MitRolle {
  public:
    /// `ausführen` runs the command that a pressed button stands for.
    Werkzeugpalette(QWidget *fläche, frmMain &haupt, std::function<void(std::string_view)> ausführen);

    /// Copies the model's states, and the strip beside the frame that the palette has; without one it hides.
    void Auffrischen();
    QAccessible::Role Rolle() const override { return QAccessible::ToolBar; }
    /// Where a popup opens that was asked for by keyboard: beside the button with the focus, on the screen.
    std::optional<QPoint> Popuport() const;

  protected:
    void resizeEvent(QResizeEvent *) override { Anordnen(); }

  private:
    struct Platz;
    void KnöpfeAnlegen();
    void Anordnen();
    bool Gehen(int von, int taste);
    void Berühren(int stelle, bool darauf);
    void HinweisZeigen();

    frmMain &haupt_;
    const Anblick &anblick_;
    std::function<void(std::string_view)> ausführen_;
    std::vector<Palettenknopf *> knöpfe_; ///< by their places
    std::vector<Merkmalfeld *> merkmale_;
    Wanderfokus fokus_;                  ///< from button to button
    int berührt_ = 0;                    ///< the button that was last pointed at
    Palettenhinweis *hinweis_ = nullptr; ///< its name, over the page
};

} // namespace kw
