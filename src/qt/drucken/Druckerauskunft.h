#pragma once

#include "platform/Drucker.h"

#include <QStringList>

#include <memory>

namespace kw {

/// The printers of the system, as it told of them last.
struct Druckerstand {
    bool Beantwortet = false; ///< within the patience that there was; else the rest is what was told before
    QStringList Namen;        ///< in the system's order
    QString Vorgabe;          ///< the default one; where none is set, the first; empty without any
    Druckränder Ränder;       ///< of the default one
};

/// Asks the print system for its printers, aside: a server that takes the question and never answers would hold the
/// window for minutes.
class Druckerauskunft {
  public:
    enum class Geduld {
        Kurz, ///< a second for a new question, none for one that waits already
        Lang  ///< several seconds: the user has just asked for a printer and waits for it
    };

    Druckerauskunft();
    /// What the system tells; an answer of the last few seconds counts as well.
    Druckerstand Erfragen(Geduld geduld = Geduld::Kurz) const;

  private:
    struct Gespräch;
    static void Führen(const std::shared_ptr<Gespräch> &gespräch);

    std::shared_ptr<Gespräch> gespräch_; ///< the thread that waits for an answer may outlive this object
};

} // namespace kw
