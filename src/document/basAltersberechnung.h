#pragma once

#include "platform/Sprache.h"
#include "platform/Uhr.h"

#include <optional>
#include <string>
#include <string_view>

namespace kw {

/// Turns a date of birth, which is free text, into the age of today and the year of birth. The four
/// results stand until a later call changes them, and callers count on what a call leaves alone: an
/// empty text changes nothing at all, a text under four characters leaves the outputs.
///
/// In the place of a date can stand a bare age ("Alter 45", "Age 45"), which stays the same for ever and tells no year.
class Altersberechnung {
  public:
    explicit Altersberechnung(const Uhr &uhr) : uhr_(uhr) {}

    std::string strGebDatumText; ///< the text as it goes into the conversion
    std::string strAlterText;    ///< completed years, "-" when negative
    std::string strGebJahrText;  ///< year of birth, four digits
    bool bDatumUngueltig = false;

    void AlterAusDatum(std::string_view text);

  private:
    void AlterBerechnen();
    int AlterInJahren(Datum geboren) const;

    const Uhr &uhr_;
};

/// The text of a bare age, whose digits are given, and those of such a text; nothing when it is none.
std::string AltersangabeFür(std::string_view jahre, Sprache sprache);
std::optional<std::string_view> AlterAusAngabe(std::string_view text);

/// A date in numbers separated by ".", "-" or "/" (one kind or mixed), in the locale's order; the other
/// order of day and month counts when only that one is a date, and a first number of three or more
/// digits is always the year. Years of one or two digits lie in 1930 to 2029. Nothing when it is no date.
std::optional<Datum> DatumLesen(std::string_view text, Datumsfolge folge);

} // namespace kw
