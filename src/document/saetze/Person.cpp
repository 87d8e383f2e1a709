#include "document/saetze/Person.h"

#include "document/Zahlen.h"

#include <cmath>

namespace kw {

int SymbolKennzahl(std::string_view symboltyp) {
    const double t = ZahlLesen(symboltyp);
    if (t == 1.1) return 10;
    if (t == 2.1) return 11;
    if (t == 1.2) return 12;
    return t >= 1 && t <= 12 && t == std::floor(t) ? static_cast<int>(t) : 0;
}

PersonBau &PersonBau::Institution(std::string_view text) {
    Symboltyp(TypInstitution);
    for (int feld = PersonSatz::FeldIndexPerson; feld < PersonSatz::FeldElternLinie; ++feld)
        Setzen(feld, std::string_view());
    return Vorname(text);
}

std::string NeuePerson(std::string_view nr, int typ, double x, double y, double größe) {
    PersonBau bau;
    bau.Nr(nr).Symboltyp(typ).Ort(x, y).Groesse(größe).IndexPerson("0").Sucht("0").Erkrankung("0");
    return bau.Text() + "_";
}

} // namespace kw
