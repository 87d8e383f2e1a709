// Records of any text, as they stand in memory: saved and loaded they are the same. An input is lines, a digit for the
// store and the record, in which bytes 1 and 2 stand for a line break and a NUL; "*" has the record before a hundred
// times more.
#include "Umlauf.h"

#include "document/Doppelnummern.h"
#include "document/Felder.h"
#include "document/saetze/Person.h"

#include <algorithm>
#include <string>

namespace kw {

namespace {

constexpr int MehrAlsGenug = 1500; ///< records

/// As the stores have it; nothing when none has.
std::string Satz(const Satzliste &speicher, const Dokument &dokument, std::string_view text) {
    std::string satz(text);
    std::replace(satz.begin(), satz.end(), '\1', '\n');
    std::replace(satz.begin(), satz.end(), '\2', '\0');
    if (&speicher == &dokument.cboFreehandlines) std::erase(satz, ' '); // the file has them without
    if (&speicher != &dokument.cboPersonen) return satz;
    PersonBau person(satz);
    const auto typ = person.Stand().Symboltyp();
    if (typ.find('.') != std::string_view::npos) person.Symboltyp("10"); // a file's code for it
    return person.Text();
}

} // namespace

} // namespace kw

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl) {
    using namespace kw;
    Dokument dokument;
    Satzliste *speicher = &dokument.cboPersonen;
    int gesamt = 0;
    for (auto rest = AlsText(bytes, anzahl); !rest.empty() && gesamt < MehrAlsGenug;) {
        auto zeile = Abgetrennt(rest, '\n');
        if (zeile.empty()) continue;
        int mal = 1;
        if (zeile[0] == '*') mal = 100;
        else
            speicher =
                &(dokument.*SpeicherTabelle[static_cast<unsigned char>(zeile[0]) % SpeicherTabelle.size()].Liste);
        const auto satz =
            mal > 1 && !speicher->Leer() ? speicher->Letzter() : Satz(*speicher, dokument, zeile.substr(1));
        for (; mal > 0; --mal, ++gesamt) speicher->Anhängen(satz);
    }
    DoppelnummernAuflösen(dokument);
    Halten(Gespeichert(dokument).GleicheSätze(dokument), "records come back from a file as they are");
    return 0;
}
