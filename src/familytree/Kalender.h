#pragma once

namespace kw {

/// A day of the Gregorian calendar; month and day are 0 where they aren't known. The year before 1 is 0.
struct Kalendertag {
    int Jahr = 0, Monat = 0, Tag = 0;
    bool operator==(const Kalendertag &) const = default;
    bool IstTag() const { return Tag > 0; }
};

/// Whether month and day are some of that year's.
bool GibtEs(const Kalendertag &tag);

// Years are at most four digits, months and days those of the calendar, counted from 1; 0 is unknown. A year alone
// stays a year: of the two that it overlaps the one in which it begins.
Kalendertag AusJulianisch(int jahr, int monat, int tag);
/// The years of the republic; the thirteenth month are the days that complete it.
Kalendertag AusFranzösisch(int jahr, int monat, int tag);
/// The years of the world; months from Tishri, the sixth and seventh are the two of Adar. Without a day only the year
/// is known.
Kalendertag AusHebräisch(int jahr, int monat, int tag);

} // namespace kw
