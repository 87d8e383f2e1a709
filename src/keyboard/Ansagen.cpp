#include "keyboard/Ansagen.h"

namespace kw {

const Zweisprachig &KeinWeg(Elementart von, Richtung richtung) {
    static constexpr Zweisprachig KeineEltern{"Keine Eltern.", "No parents."};
    static constexpr Zweisprachig KeineKinder{"Keine Kinder.", "No children."};
    static constexpr Zweisprachig NiemandLinks{"Links keine Partner oder Geschwister.",
                                               "No partners or siblings on the left."};
    static constexpr Zweisprachig NiemandRechts{"Rechts keine Partner oder Geschwister.",
                                                "No partners or siblings on the right."};
    if (richtung == Richtung::Runter && (von == Elementart::Person || von == Elementart::Partnerschaft))
        return KeineKinder;
    if (von != Elementart::Person) return NichtsDort;
    return richtung == Richtung::Hoch ? KeineEltern : richtung == Richtung::Links ? NiemandLinks : NiemandRechts;
}

} // namespace kw
