#include "document/Netzeintrag.h"

#include "document/Maskierung.h"

#include <charconv>

namespace kw {

namespace {

constexpr std::string_view Kennzeile = "kinwright-net 1";

/// The line at the start of `rest`, which is taken from it. Nothing when there is no whole one.
std::optional<std::string_view> NächsteZeile(std::string_view &rest) {
    const auto ende = rest.find('\n');
    if (ende == std::string_view::npos) return {};
    const auto zeile = rest.substr(0, ende);
    rest.remove_prefix(ende + 1);
    return zeile;
}

template <typename Zahl> bool ZahlAus(std::string_view text, Zahl &zahl) {
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    return fehler == std::errc() && ende == text.data() + text.size() && zahl >= 0;
}

/// Takes what one line says; false when it can't be read. What a later version may add is passed over.
bool Übernehmen(std::string_view zeile, Netzkopf &kopf) {
    const auto gleich = zeile.find('=');
    if (gleich == std::string_view::npos) return false;
    const auto name = zeile.substr(0, gleich);
    const auto wert = zeile.substr(gleich + 1);
    if (name == "project") {
        const auto pfad = Demaskiert(wert);
        if (pfad) kopf.Projektdatei = *pfad;
        return pfad.has_value();
    }
    if (name == "from") return (kopf.Herkunft = FingerabdruckAus(wert)).has_value();
    if (name == "time") return ZahlAus(wert, kopf.Zeit);
    if (name == "persons") return ZahlAus(wert, kopf.Personen);
    if (name == "partial") kopf.Unganz = wert == "1";
    if (name == "import") kopf.Import = wert == "1";
    return true;
}

} // namespace

std::string Netzdatei(const Netzkopf &kopf, std::string_view inhalt) {
    std::string datei(Kennzeile);
    datei += "\nproject=" + Maskiert(kopf.Projektdatei) + "\ntime=" + std::to_string(kopf.Zeit) +
             "\npersons=" + std::to_string(kopf.Personen);
    if (kopf.Herkunft) datei += "\nfrom=" + AlsText(*kopf.Herkunft);
    if (kopf.Unganz) datei += "\npartial=1";
    if (kopf.Import) datei += "\nimport=1";
    return datei.append("\n\n").append(inhalt);
}

std::optional<Netzeintrag> NetzeintragAus(std::string_view datei) {
    Netzeintrag eintrag;
    if (NächsteZeile(datei) != Kennzeile) return {};
    while (const auto zeile = NächsteZeile(datei)) {
        if (zeile->empty()) {
            eintrag.Inhalt = datei;
            return eintrag;
        }
        if (!Übernehmen(*zeile, eintrag.Kopf)) return {};
    }
    return {};
}

} // namespace kw
