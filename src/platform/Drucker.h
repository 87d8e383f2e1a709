#pragma once

#include <optional>
#include <string>

namespace kw {

/// What of a sheet a printer can't reach, in cm.
struct Druckränder {
    double Links = 0;
    double Rechts = 0;
    double Oben = 0;
    double Unten = 0;
};

/// The printers of the platform.
class Drucker {
  public:
    virtual ~Drucker() = default;
    /// Name of the current printer, at first the default one; nothing when there is no printer.
    virtual std::optional<std::string> DeviceName() const = 0;
    /// Margins of the default printer, in its own orientation.
    virtual Druckränder Ränder() const = 0;
    /// 1 portrait, 2 landscape, as the current printer stands.
    virtual int Orientation() const = 0;
};

} // namespace kw
