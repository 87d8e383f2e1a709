#include "document/Satzliste.h"

namespace kw {

// Not in the header: at each call with a literal, GCC 12 would see bounds crossed in the string's move that are not.
void Satzliste::Anhängen(std::string satz) { sätze_.push_back(std::move(satz)); }

} // namespace kw
