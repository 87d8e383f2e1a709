#pragma once

namespace kw {

/// What the canvas is doing: at once the armed tool, the gesture in progress and the kind of what is selected. There is
/// no other mode. Scripts know the numbers, which therefore stay.
enum class Aktion {
    Nichts = 0,
    PersonSetzen = 1,
    PersonGewählt = 3,
    BeziehungGewählt = 4,
    PLinieGewählt = 5,
    KindlinieGewählt = 6,
    PLinieBearbeitet = 8,
    TextGesetzt = 9,
    TextGefasst = 10,
    TextDialog = 11,
    BeziehungZiehen = 12,
    PartnerschaftZiehen = 13,
    MenüOffen = 14,
    KindZiehen = 15,
    RahmenZiehen = 16,
    GruppeGewählt = 17,
    KreisZeichnen = 18,
    KreisGewählt = 19,
    TextGewählt = 20,
    ElternPrüfen = 23,
    ElternSetzen = 24,
    PfeilZeichnen = 25,
    PfeilGefasst = 26,
    PfeilEnde2 = 27,
    PfeilEnde1 = 28,
    PfeilGewählt = 29,
    LegendeGefasst = 30,
};

/// Whether a rubber line runs from a person to the end of a new link.
constexpr bool IstLink(Aktion aktion) {
    return aktion == Aktion::BeziehungZiehen || aktion == Aktion::PartnerschaftZiehen || aktion == Aktion::KindZiehen;
}

/// Whether a tool waits for the page, or is used there just now.
constexpr bool IstWerkzeug(Aktion aktion) {
    return aktion == Aktion::PersonSetzen || aktion == Aktion::TextGesetzt || aktion == Aktion::KreisZeichnen ||
           aktion == Aktion::ElternSetzen || aktion == Aktion::PfeilZeichnen;
}

} // namespace kw
