#include "document/Nummernvergabe.h"

#include "document/Zahlen.h"
#include "document/saetze/Satz.h"

namespace kw {

Nummernvergabe::Nummernvergabe(const Satzliste &speicher, Satzliste &freie, int gezählt)
    : freie_(freie), gezählt_(gezählt) {
    for (const auto &satz : speicher) vergeben_.emplace(Nummer(satz));
}

std::string Nummernvergabe::Nächste() {
    std::string nr;
    if (freie_.Leer()) {
        nr = Dreistellig(++gezählt_);
    } else {
        nr = freie_.Satz(0);
        freie_.Entfernen(0);
    }
    for (int frei = 1; vergeben_.contains(nr); ++frei) nr = Dreistellig(frei);
    vergeben_.insert(nr);
    return nr;
}

} // namespace kw
