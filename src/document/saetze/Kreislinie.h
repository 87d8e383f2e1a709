#pragma once

#include "document/saetze/Satz.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

/// A point of a circle line, cm on the page.
struct Kreispunkt {
    double X = 0;
    double Y = 0;
    bool operator==(const Kreispunkt &) const = default;
};

/// A circle line's record, walked point by point. Allocates nothing.
class KreisSatz {
  public:
    /// A point without its second number throws `FeldFehlt`, or is left out.
    explicit KreisSatz(std::string_view satz, Lücken lücken = Lücken::Leer) : rest_(satz), lücken_(lücken) {}
    /// The next point; nothing behind the last.
    std::optional<Kreispunkt> Nächster();

  private:
    std::string_view rest_;
    Lücken lücken_;
};

/// All points of a record, those left out that lack their second number.
std::vector<Kreispunkt> KreisPunkte(std::string_view satz);
/// The record of these points.
std::string KreisText(const std::vector<Kreispunkt> &punkte);
/// One more point for a line in the making, whose text ends in "_".
void KreisPunktAnhängen(std::string &punktListe, Kreispunkt punkt);
/// The record with every point shifted.
std::string KreisVerschoben(std::string_view satz, double dx, double dy);

} // namespace kw
