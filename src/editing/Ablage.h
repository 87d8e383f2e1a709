#pragma once

#include "document/Satzliste.h"

#include <string>

namespace kw {

/// The program's own clipboard: copies of records, for as long as the program runs. A copied group keeps moving
/// with each paste, so its records hold what the last paste made of them.
struct Zwischenablage {
    Satzliste ZA_Personen;
    Satzliste ZA_PLines;
    Satzliste ZA_KindLinien;
    Satzliste ZA_BeziehungsLinien;
    Satzliste ZA_Textboxen;
    Satzliste ZA_Kreislinien;
    Satzliste ZA_Pfeile;
    std::string KopierModus; ///< "Ausschneiden" or "Kopieren"
    std::string KopierPunkt; ///< left and top of the selection frame, cm, joined by "_"
    double KopierBreite = 0; ///< size of that frame
    double KopierHöhe = 0;

    /// Whether a paste would bring anything.
    bool HatEtwas() const {
        return !(ZA_Personen.Leer() && ZA_Textboxen.Leer() && ZA_Kreislinien.Leer() && ZA_Pfeile.Leer());
    }
};

} // namespace kw
