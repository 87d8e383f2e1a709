#pragma once

#include "qt/grund/Tastatur.h"

#include <QToolBar>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class QToolButton;

namespace kw {

class Bandknopf;
struct Anblick;
struct Menüzeile;

/// The toolbar of the table. Captions and states are the model's.
/// One stop of the tab order; the arrow keys go from button to button.
class Symbolleiste : public QToolBar {
  public:
    /// A press by mouse gives the focus to `leinwand`; `ausführen` runs the command of what was pressed or picked.
    Symbolleiste(const Anblick &anblick, QWidget &leinwand, std::function<void(std::string_view)> ausführen);

    /// How high it will be, without a look at the system's fonts: for who keeps its place free until it comes.
    static int Höhe();
    /// Copies captions and states.
    void Auffrischen();

  protected:
    bool eventFilter(QObject *empfänger, QEvent *ereignis) override;

  private:
    struct Wahl {
        const Menüzeile *Zeile;
        QAction *Aktion;
    };
    struct Knopf {
        const Menüzeile *Zeile;
        QAction *Aktion;
        std::vector<Wahl> Auswahl = {}; ///< of a drop-down
        Bandknopf *Feld = nullptr;
        QAction *Platz = nullptr;        ///< its place in the band, by which it shows
        QAction *Trenner = nullptr;      ///< the line behind it
        std::string_view Bildzeile = {}; ///< the row whose picture it wears
    };
    void Bauen();
    void KnopfAnlegen(const Menüzeile &zeile);
    void KnopfEinreihen(QToolButton &knopf);
    void AuswahlAnlegen(Knopf &knopf);
    void MehrAnlegen();
    void BreiteFestlegen(const Knopf &knopf);
    void Zeigen(Knopf &knopf);
    void AuswahlZeigen(Knopf &knopf);
    void NameZeigen(const Knopf &knopf, const struct Bedienelement &element);
    void TrennerZeigen();
    void TabstoppSetzen();
    bool Taste(QToolButton &feld, int taste);

    const Anblick &anblick_;
    QWidget &leinwand_;
    std::function<void(std::string_view)> ausführen_;
    std::vector<Knopf> knöpfe_;
    QToolButton *mehr_ = nullptr; ///< opens what doesn't fit into the window
    Wanderfokus fokus_;           ///< from button to button
};

} // namespace kw
