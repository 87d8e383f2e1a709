// The files of the safety net: as they stand in its folder, and as they are written.
#include "Buehne.h"
#include "Ziel.h"

#include "document/Netzeintrag.h"

#include <algorithm>
#include <string>

namespace kw {

namespace {

void Umlauf(const Netzkopf &kopf, std::string_view inhalt) {
    const auto eintrag = NetzeintragAus(Netzdatei(kopf, inhalt));
    Halten(eintrag.has_value(), "what is written can be read");
    Halten(eintrag->Inhalt == inhalt && eintrag->Kopf.Projektdatei == kopf.Projektdatei, "path and content stay");
    Halten(eintrag->Kopf.Zeit == kopf.Zeit && eintrag->Kopf.Personen == kopf.Personen, "the numbers stay");
    Halten(eintrag->Kopf.Herkunft == kopf.Herkunft, "the origin stays");
}

} // namespace

} // namespace kw

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl) {
    using namespace kw;
    const auto text = AlsText(bytes, anzahl);
    if (const auto eintrag = NetzeintragAus(text)) Umlauf(eintrag->Kopf, eintrag->Inhalt);
    Netzkopf kopf;
    kopf.Projektdatei = text.substr(0, std::min<std::size_t>(anzahl, 1000));
    kopf.Zeit = static_cast<std::int64_t>(anzahl) << 40;
    kopf.Personen = static_cast<int>(anzahl);
    if (anzahl % 2 == 1) kopf.Herkunft = FingerabdruckVon(text);
    Umlauf(kopf, text);

    static const Bühne Bühne;
    std::filesystem::remove_all(Bühne.Ort("netz"));
    Bühne.Datei("netz/fuzz.stand", text);
    Bühne.Datei("netz/fuzz-1.alt", text);
    Bühne.Spielen(
        "start state=netz\nform frmFassungen\npick lstFassungen 1\npick lstFassungen 0\npress cmdÖffnen\nend\n"
        "wait 100\ndraw\nprint net\nterminate\n");
    return 0;
}
