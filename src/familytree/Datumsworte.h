#pragma once

#include "familytree/Satzleser.h"
#include "familytree/Stammdatum.h"
#include "platform/Sprache.h"

#include <string>
#include <string_view>

namespace kw {

/// An event's date as it stands, or the words that the newer version has instead, as the older one writes them; empty
/// for neither.
std::string Datumszeile(const Satz &satz, const Knoten &ereignis);

/// A date as a person's record takes it: a day ("14.04.1865"), else its year ("1865"); empty for one that the age rule
/// refuses: before the year 100, after 2100, or no date.
std::string Satzdatum(const Stammdatum &datum);

/// A date as the short text that stands at a couple's line: "12.06.1984", "um 1890", "1890-1895". Without the marks
/// that a record is parted by.
std::string Datumstext(std::string_view roh, Sprache sprache);

} // namespace kw
