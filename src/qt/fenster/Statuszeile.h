#pragma once

#include <QStatusBar>

#include <functional>
#include <string_view>

class QToolButton;

namespace kw {

struct Anblick;

/// The row below the page: what comes next, or what the pointer is over, at the left, the printer's margins at the
/// right.
class Statuszeile : public QStatusBar {
  public:
    /// `ausführen` runs the command of the button.
    explicit Statuszeile(std::function<void(std::string_view)> ausführen);

    /// How high it will be, without a look at the system's fonts: for who keeps its place free until it comes.
    static int Höhe();
    /// Copies captions and states.
    void Auffrischen(const Anblick &anblick);

  private:
    std::function<void(const QString &)> zeigen_; ///< the text
    QToolButton *cmdRänder_ = nullptr;
};

} // namespace kw
