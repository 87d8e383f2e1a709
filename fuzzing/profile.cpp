// The calls on a profile. An input is lines of calls, their words parted by tabs (w SECTION KEY VALUE, r SECTION KEY,
// d SECTION), an empty line, the file.
#include "Ziel.h"

#include "document/Felder.h"
#include "document/Profil.h"

#include <array>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kw {

namespace {

constexpr std::size_t MehrAlsGenug = 1000; ///< calls, since a profile looks for each new section everywhere

/// All that can be asked of a section, in one text.
std::string Auskunft(const Profil &profil, const std::string &abschnitt) {
    std::string text = std::to_string(profil.SchlüsselAnzahl(abschnitt)) + profil.SchlüsselListe(abschnitt);
    text += std::to_string(profil.AbschnittAnzahl(abschnitt)) + (profil.HatFremdeZeilen(abschnitt) ? "!" : "");
    profil.FürAlleEinträge(abschnitt, [&](auto schlüssel, auto wert) {
        text.append("\n").append(schlüssel).append("=").append(wert).append("|");
        text += profil.WirdGekürzt(abschnitt, schlüssel) ? "..." : profil.Lesen(abschnitt, schlüssel);
    });
    return text;
}

/// Names that make a line which is no key's are nobody's in the program.
bool IstSchlüssel(std::string_view name) { return name.find_first_of("=[;\r\n") == std::string_view::npos; }
bool IstAbschnitt(std::string_view name) { return name.find_first_of("]\r\n") == std::string_view::npos; }

void Rufen(Profil &profil, std::string_view zeile, std::set<std::string> &abschnitte) {
    const auto ruf = Abgetrennt(zeile, '\t');
    const std::string abschnitt(Abgetrennt(zeile, '\t'));
    if (!IstAbschnitt(abschnitt)) return;
    abschnitte.insert(abschnitt);
    if (ruf == "d") {
        profil.AbschnittLöschen(abschnitt);
        return Halten(!profil.HatAbschnitt(abschnitt), "a deleted section is gone");
    }
    const std::string schlüssel(Abgetrennt(zeile, '\t'));
    if (!IstSchlüssel(schlüssel)) return;
    const auto vorher = profil.LesenUngekürzt(abschnitt, schlüssel);
    Halten(Profil::Gekürzt(vorher.value_or("")) == profil.Lesen(abschnitt, schlüssel), "the buffer cuts and no more");
    if (ruf != "w") return;
    profil.Schreiben(abschnitt, schlüssel, zeile);
    Halten(profil.LesenUngekürzt(abschnitt, schlüssel) == Profil::Abbild(zeile), "what was written can be read");
}

} // namespace

} // namespace kw

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl) {
    using namespace kw;
    auto rest = AlsText(bytes, anzahl);
    std::vector<std::string_view> rufe;
    while (!rest.empty() && !rest.starts_with('\n') && rufe.size() < MehrAlsGenug)
        rufe.push_back(Abgetrennt(rest, '\n'));
    Profil profil{std::string(rest)};
    std::set<std::string> abschnitte{"DEFAULT", "OBJECTS", ""};
    for (const auto ruf : rufe) Rufen(profil, ruf, abschnitte);

    const Profil neu(profil.Inhalt());
    Halten(Profil(neu.Inhalt()).Inhalt() == neu.Inhalt(), "what was read is written as it is");
    Halten(neu.HatVorspann() == profil.HatVorspann(), "text before the first section stays there");
    for (const auto &abschnitt : abschnitte)
        Halten(Auskunft(neu, abschnitt) == Auskunft(profil, abschnitt), "a file tells what memory did");
    return 0;
}
