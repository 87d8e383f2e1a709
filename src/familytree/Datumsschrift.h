#pragma once

#include "platform/Uhr.h"

#include <string>
#include <string_view>

// The other way of `Stammdatum`: what stands in records as the format writes dates.
namespace kw {

/// A date in the format's terms, or the words that stand for one; both empty for none.
struct Datumsangabe {
    std::string Datum; ///< "14 APR 1865", "ABT 1890", "BET 1890 AND 1895"
    std::string Worte; ///< what isn't understood, as it stands
};

/// A person's date of birth: what the age rule takes for a day or for a year, anything else as words.
Datumsangabe GeburtAlsAngabe(std::string_view text, const Uhr &uhr);

/// A text that stands at a couple's line: days, months, years and what can stand before them in both languages.
/// `folge` is how the user's locale orders the numbers of a day.
Datumsangabe PaardatumAlsAngabe(std::string_view text, Datumsfolge folge);

} // namespace kw
