#pragma once

#include <QStringList>

#include <memory>

namespace kw {

/// The printers of the system.
struct Druckerstand {
    QStringList Namen; ///< in the system's order
    QString Vorgabe;   ///< the default one; where none is set, the first; empty without any
};

/// Asks the print system for its printers, aside: a server that takes the question and never answers would hold the
/// window for minutes.
class Druckerauskunft {
  public:
    Druckerauskunft();
    /// What the system tells now. When it takes longer than a second, what it told before; at first no printers.
    Druckerstand Erfragen() const;
    /// Whether the last question hasn't been answered yet.
    bool StehtAus() const;

  private:
    struct Gespräch;
    static void Führen(const std::shared_ptr<Gespräch> &gespräch);

    std::shared_ptr<Gespräch> gespräch_; ///< the thread that waits for an answer may outlive this object
};

} // namespace kw
