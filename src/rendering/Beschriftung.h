#pragma once

#include "document/basAltersberechnung.h"
#include "document/saetze/Person.h"
#include "rendering/Ansicht.h"
#include "rendering/Zeichenflaeche.h"

namespace kw {

/// Names under a person's symbol, age or years of life inside it. `x`, `y`: the symbol's centre, `oben`
/// its top, `größe` its height (cm). Clears the age before and the year after, so that none carries
/// over to the next person. Throws FeldFehlt for a record without a date of birth.
void PersonBeschriften(Zeichenfläche &fläche, const Ansicht &ansicht, Altersberechnung &alter, const PersonSatz &person,
                       double x, double y, double oben, double größe, double faktor);

/// Whether the kind of the person shows names and an age.
bool ZeigtNamen(const PersonSatz &person);

/// How wide the names under the symbol are, cm; nothing for kinds that show none. The surface's font is another then.
double Namensbreite(Zeichenfläche &fläche, const PersonSatz &person);

struct Lebensdaten {
    bool Verstorben = false;
    std::string AlterText; ///< completed years
    std::string GebText;   ///< "* 1950"
    std::string TodText;   ///< age at death
};

/// The text inside the symbol alone, in the form that `altersanzeige` says.
void LebensdatenZeichnen(Zeichenfläche &fläche, int altersanzeige, const Lebensdaten &daten, double x, double y,
                         double größe, double faktor);

} // namespace kw
