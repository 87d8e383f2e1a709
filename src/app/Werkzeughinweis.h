#pragma once

namespace kw {

class Bedienelemente;
class Benutzer;

/// The name of the palette's button under the pointer: at once in the status row, and beside the button when the
/// pointer rests there. Owned by the main window.
class Werkzeughinweis {
  public:
    Werkzeughinweis(Bedienelemente &bedienung, Benutzer &benutzer) : bedienung_(bedienung), benutzer_(benutzer) {}

    /// The pointer is over the palette's button `werkzeug`, or over none (0).
    void PaletteBerührt(int werkzeug);
    /// It has rested there.
    void Zeigen();

  private:
    Bedienelemente &bedienung_;
    Benutzer &benutzer_;
    int berührt_ = 0;
};

} // namespace kw
