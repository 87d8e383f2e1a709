#pragma once

#include "description/Elementzeilen.h"

#include <QAccessible>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <deque>
#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

namespace kw {

/// What can be done to an element by name, as a screen reader asks for it.
enum class Elementtat { Fokussieren, Wählen, Bearbeiten, MenüÖffnen };

/// What the tree asks of the window. Places are logical pixels of the canvas's widget.
struct Seitenquelle {
    std::function<const std::vector<Elementzeile> &()> Zeilen; ///< called when somebody listens, and not before
    std::function<Sprache()> InSprache;
    std::function<QRect(const Umgebung &)> Ort;
    std::function<QRect()> Sicht;                    ///< the part of the page that shows
    std::function<std::optional<Element>()> Fokus;   ///< the element at the keyboard's cursor
    std::function<void(Element, Elementtat)> Machen; ///< may open something modal
};

/// The page as screen readers see it: the canvas with one child an element, none of them a QObject. Nothing is kept
/// before somebody asks. Each event's outcome reaches listeners as the difference to what they were told before.
class Seitenbaum : private QAccessible::ActivationObserver {
  public:
    /// `leinwand` has the keyboard's focus for all elements, and owns this.
    Seitenbaum(QWidget &leinwand, Seitenquelle quelle);
    ~Seitenbaum() override;
    Seitenbaum(const Seitenbaum &) = delete;
    Seitenbaum &operator=(const Seitenbaum &) = delete;

    /// An event is over: tells what is gone, new, selected and focused, then what was to be announced.
    void Auffrischen();
    /// The canvas has got the focus: its element is told behind the event, without one what there is on the page.
    void FokusKam();
    /// It has lost it.
    void FokusGing() { erzählterFokus_ = 0; }
    /// Is read out whatever has the focus, behind what the event tells of elements.
    void Ansagen(const QString &text);
    /// The canvas's widget has a focused child; false while its own element has it.
    bool ElementHatFokus() const;

    // For the interfaces, which name an element by a number that no other one ever gets.
    int Anzahl();
    int NummerAn(int stelle) const { return einträge_[static_cast<std::size_t>(stelle)].Nummer; }
    int StelleVon(int nummer) const;
    const Elementzeile *Zeile(int nummer) const;
    QAccessibleInterface *Zugang(int nummer);
    QAccessibleInterface *ZugangBei(QPoint ort);
    QAccessibleInterface *Fokuszugang();
    QRect Ort(const Elementzeile &zeile) const;
    void Machen(int nummer, Elementtat tat);
    /// Somebody asks: from now on the page is kept in words.
    void Wecken();

    QWidget &leinwand;
    const Seitenquelle quelle;

  private:
    struct Eintrag {
        int Nummer;
        Elementzeile Zeile;
        QAccessible::Id Zugang = 0; ///< 0 while nobody has asked for it
        bool Veraltet = false;      ///< its description has changed since it was told
    };

    void accessibilityActiveChanged(bool aktiv) override;
    std::vector<Eintrag> Nachfolger(const std::vector<Elementzeile> &neue, std::vector<int> &gewählte);
    bool MussNeu(Eintrag &alter, const Elementzeile &neu, std::vector<int> &gewählte) const;
    void Vergessen(Eintrag &eintrag);
    void Nummerieren();
    int Fokusnummer() const;
    void FokusErzählen();
    void AnsagenLesen();

    std::vector<Eintrag> einträge_;          ///< in the page's order
    std::unordered_map<int, int> stellen_;   ///< by number
    std::vector<QString> ansagen_;           ///< that wait
    std::deque<QAccessible::Id> durchsagen_; ///< the last that were told: readers ask for their words later
    int letzteNummer_ = 0;
    int erzählterFokus_ = 0; ///< number of the element that was last told to have the focus
    bool wach_ = false;
    bool fokusSteht_ = false; ///< the focus is told behind this event
};

/// A widget that shows a page.
class MitSeitenbaum {
  public:
    virtual ~MitSeitenbaum() = default;
    virtual Seitenbaum &Baum() = 0;
};

/// A widget that is something else to screen readers than its class says.
class MitRolle {
  public:
    virtual ~MitRolle() = default;
    virtual QAccessible::Role Rolle() const = 0;
};

} // namespace kw
