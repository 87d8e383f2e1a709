// Dates of birth as people type them, one a line.
#include "Ziel.h"

#include "document/Felder.h"
#include "document/Zahlen.h"
#include "document/basAltersberechnung.h"
#include "replay/Plattform.h"

#include <string>

namespace kw {

namespace {

std::string Geschrieben(const Datum &d, Datumsfolge folge) {
    const auto tag = std::to_string(d.Tag), monat = std::to_string(d.Monat);
    const auto jahr = std::string(d.Jahr < 1000 ? "0" : "") + std::to_string(d.Jahr);
    if (folge == Datumsfolge::JahrMonatTag) return jahr + "-" + monat + "-" + tag;
    return folge == Datumsfolge::TagMonatJahr ? tag + "." + monat + "." + jahr : monat + "/" + tag + "/" + jahr;
}

void Prüfen(std::string_view text, const DrehbuchUhr &uhr) {
    const auto datum = DatumLesen(text, uhr.Reihenfolge);
    if (datum) {
        Halten(datum->Jahr >= 100 && datum->Monat >= 1 && datum->Monat <= 12, "a date is one of the calendar's");
        Halten(datum->Tag >= 1 && datum->Tag <= 31, "a day is one of a month's");
        Halten(DatumLesen(Geschrieben(*datum, uhr.Reihenfolge), uhr.Reihenfolge) == datum, "a date stays what it is");
    }
    Altersberechnung alter(uhr);
    alter.AlterAusDatum(text);
    const double jahre = ZahlLesen(alter.strAlterText);
    Halten(jahre >= -10000 && jahre <= 10000, "an age is one of years");
    if (datum && !alter.bDatumUngueltig) Halten(alter.strGebJahrText.size() == 4, "a year has four digits");
}

} // namespace

} // namespace kw

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl) {
    using namespace kw;
    for (auto rest = AlsText(bytes, anzahl); !rest.empty();) {
        const auto zeile = Abgetrennt(rest, '\n');
        DrehbuchUhr uhr;
        for (const auto folge : {Datumsfolge::TagMonatJahr, Datumsfolge::MonatTagJahr, Datumsfolge::JahrMonatTag}) {
            uhr.Reihenfolge = folge;
            Prüfen(zeile, uhr);
        }
    }
    return 0;
}
