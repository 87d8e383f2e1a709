#pragma once

#include <QStatusBar>

#include <functional>
#include <string_view>

class QLabel;
class QToolButton;

namespace kw {

class frmMain;

/// The row below the page: what the pointer is over at the left, the printer's margins at the right. Its place is kept
/// free from the start; the words come with `Bauen`, since the first ones cost the loading of the system's fonts.
class Statuszeile : public QStatusBar {
  public:
    Statuszeile();

    /// Makes the row's parts; `ausführen` runs the command of the button.
    void Bauen(std::function<void(std::string_view)> ausführen);
    /// Copies captions and states; nothing before `Bauen`.
    void Auffrischen(const frmMain &haupt);

  private:
    QLabel *lblTool_ = nullptr;
    QToolButton *cmdRänder_ = nullptr;
};

} // namespace kw
