#pragma once

#include "anonymity/OhneNamen.h"
#include "rendering/Zeichnung.h"

namespace kw {

/// The page of a document without names, as it is drawn for a preview or on paper. `uhr` must outlive it.
class NamenloseSeite {
  public:
    /// Of that document as it is now, shown as `ansicht` says, but for the ages.
    NamenloseSeite(const Dokument &dokument, const Ansicht &ansicht, Lebenszeit zeit, const Uhr &uhr);

    const Dokument &Inhalt() const { return dokument_; }
    double Breite() const { return ansicht_.SeitenBreite; } ///< cm
    double Höhe() const { return ansicht_.SeitenHöhe; }
    /// Nothing is selected or in hand there. Valid as long as the page.
    Zeichnung Bild() const { return {dokument_, ansicht_, auswahl_, ruhe_, legende_, uhr_}; }

  private:
    Dokument dokument_;
    Ansicht ansicht_;
    Auswahl auswahl_;
    Gestenlage ruhe_;
    Legendenblatt legende_;
    const Uhr &uhr_;
};

} // namespace kw
