#include "document/saetze/Person.h"

namespace kw {

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
