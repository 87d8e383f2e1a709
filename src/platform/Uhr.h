#pragma once

namespace kw {

struct Datum {
    int Jahr = 0;
    int Monat = 0; ///< 1 to 12
    int Tag = 0;   ///< 1 to 31
    bool operator==(const Datum &) const = default;
};

/// The order in which the user's locale writes a date in numbers.
enum class Datumsfolge { TagMonatJahr, MonatTagJahr, JahrMonatTag };

/// Today's date and the order of dates, as the platform has them.
class Uhr {
  public:
    virtual ~Uhr() = default;
    virtual Datum Heute() const = 0;
    virtual Datumsfolge Folge() const = 0;
};

} // namespace kw
