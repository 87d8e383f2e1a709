#pragma once

#include "anonymity/OhneNamen.h"
#include "description/Seitentext.h"
#include "document/Dokument.h"
#include "editing/Leinwandlage.h"
#include "platform/Uhr.h"
#include "rendering/Zeichnung.h"

#include <string>

namespace kw {

/// A project that is loaded to be exported or described once, without a window: what the command line works with. It
/// looks as it would in the window after a start with the same settings; where there are none yet, it is
/// in full colour, though the window's very first start still has the lines of black and white.
class Einzelbild {
  public:
    /// `iniDatei` need not exist.
    Einzelbild(const Uhr &uhr, const std::string &iniDatei);

    /// Loads the project. Gives the empty text, or one plain line that says what is wrong with it.
    std::string Laden(const std::string &datei);
    /// Whether anything of a project could be read; what was read can be exported all the same.
    bool IstGelesen() const { return gelesen_; }

    /// Leaves out what says whose family it is; see `kw::OhneNamen`. To be shown so and not to be read as before.
    void OhneNamen(Lebenszeit zeit);
    bool IstOhneNamen() const { return ohneNamen_; }

    Dokument dokument;
    Ansicht ansicht; ///< its page must be set up again when that of the document changes

    /// The page in plain sentences.
    std::string InWorten() const { return Seitentext({dokument, ansicht, auswahl_, lage_, legende_, uhr_}); }
    Zeichnung DasBild() const { return {dokument, ansicht, auswahl_, lage_, legende_, uhr_}; }
    void Übernehmen(const Zeichenbefund &befund) { Anwenden(befund, dokument, ansicht, lage_, legende_); }
    /// One print run on a surface whose scale is set.
    void AufPapier(Zeichenfläche &papier) { Übernehmen(DruckZeichnen(papier, DasBild())); }

  private:
    const Uhr &uhr_;
    Auswahl auswahl_;
    Leinwandlage lage_;
    Legendenblatt legende_;
    bool gelesen_ = false;
    bool ohneNamen_ = false;
};

} // namespace kw
