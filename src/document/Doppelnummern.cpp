#include "document/Doppelnummern.h"

#include "document/Dokument.h"
#include "document/saetze/Person.h"

#include <unordered_set>

namespace kw {

namespace {

/// As far as it goes: a number beyond 999 has more than three digits.
std::string_view GanzeNummer(std::string_view satz) { return satz.substr(0, satz.find('_')); }

/// `umbenannt` makes the record that has another number.
template <typename Umbenannt> void Auflösen(Satzliste &speicher, Umbenannt umbenannt) {
    std::unordered_set<double> vergeben;
    for (const auto &satz : speicher) vergeben.insert(ZahlLesen(GanzeNummer(satz)));
    std::unordered_set<std::string> gesehen;
    int freie = 0;
    for (int i = 0; i < speicher.Anzahl(); ++i) {
        const std::string &satz = speicher.Satz(i);
        const std::string_view nr = GanzeNummer(satz);
        if (nr.empty() || gesehen.emplace(nr).second) continue;
        do ++freie;
        while (vergeben.contains(freie));
        speicher.Ersetzen(i, umbenannt(satz, Dreistellig(freie)));
    }
}

} // namespace

void DoppelnummernAuflösen(Dokument &d) {
    Auflösen(d.cboPersonen, [](const std::string &person, const std::string &nr) {
        return PersonBau(person).Nr(nr).ElternLinie("").Zwilling("").Text();
    });
    Auflösen(d.cboPartnerschaftsLinien, [](const std::string &linie, const std::string &nr) {
        return nr + linie.substr(GanzeNummer(linie).size()); // else a damaged one would get fields
    });
}

} // namespace kw
