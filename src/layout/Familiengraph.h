#pragma once

#include <optional>
#include <vector>

// A family as the layout engine sees it: who is there, who is whose partner, whose child. No page, no records, no text.
namespace kw {

struct Ort {
    double X = 0, Y = 0;
};

enum class Geschlecht { Unbekannt, Mann, Frau };

struct Familienperson {
    Geschlecht Art = Geschlecht::Unbekannt;
    std::optional<long> Geburtstag; ///< any number that grows with time; orders siblings where all of them have one
    double BreiteLinks = 0;         ///< what its label needs to the left of its centre, cm
    double BreiteRechts = 0;        ///< and to the right
    /// The x at which the user drew it, cm: the order of these is kept unless it costs.
    std::optional<double> Gezeichnet;
    std::optional<int> Ebene; ///< the generation in which it has to stand, if it can
    /// Where it stands, cm: it stays there, if nothing compels it to go and all of its part have a place.
    std::optional<Ort> Platz = {};
};

/// Persons by their position in `Familiengraph::Personen`. What can't be (a person that isn't there, a third partner,
/// somebody twice, one's own child) is passed over.
struct Familie {
    std::vector<int> Partner; ///< 0 to 2; under one alone hangs a bar of no width, without any there is none
    std::vector<int> Kinder;  ///< in the order that they have where birthdays are missing
    std::vector<std::vector<int>> Zwillinge; ///< groups of children that share a point of the bar, and stand together
    std::optional<double> Balken = {};       ///< the height at which its bar hangs, cm, kept like a person's place
};

struct Familiengraph {
    std::vector<Familienperson> Personen;
    std::vector<Familie> Familien;
};

/// The measures of a page, cm.
struct Abstände {
    double Personen = 2.1;     ///< least distance of two in a row, centre to centre
    double Generationen = 3.6; ///< from row to row
    double Balken = 1.8;       ///< from a couple down to its bar
    double Balkenstufe = 0.25; ///< between bars that would lie on each other
    double Symbol = 1.2;       ///< size of a person's symbol
    double Namensluft = 0.1;   ///< between two labels
    double Raster = 0;         ///< every x is a multiple of it; 0: of a twentieth of a centimetre
    double Treue = 20; ///< how much longer lines may get so that somebody who has a place stays there, by its way
};

} // namespace kw
