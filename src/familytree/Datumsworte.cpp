#include "familytree/Datumsworte.h"

#include "document/Texte.h"
#include "familytree/Leerraum.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

constexpr int FrühestesJahr = 100;
constexpr int SpätestesJahr = 2100;

/// In the order of the kinds; what has no word before it has none here.
constexpr std::array<Zweisprachig, 9> Vorworte{{{"", ""},
                                                {"um ", "about "},
                                                {"err. ", "calc. "},
                                                {"gesch. ", "est. "},
                                                {"vor ", "before "},
                                                {"nach ", "after "},
                                                {"ab ", "from "},
                                                {"bis ", "until "},
                                                {"", ""}}};
constexpr Zweisprachig VorChristus{" v. Chr.", " BC"};

std::string Stellig(int zahl, std::size_t stellen) {
    const auto ziffern = std::to_string(zahl);
    return std::string(stellen - std::min(ziffern.size(), stellen), '0') + ziffern;
}

std::string Tagestext(const Kalendertag &tag, Sprache sprache) {
    std::string text;
    if (tag.IstTag() && GibtEs(tag)) text += Stellig(tag.Tag, 2) + ".";
    if (tag.Monat > 0) text += Stellig(tag.Monat, 2) + ".";
    if (tag.Jahr > 0) return text + Stellig(tag.Jahr, 4);
    return text + std::to_string(1 - tag.Jahr) + std::string(VorChristus.In(sprache));
}

} // namespace

std::string Datumszeile(const Satz &satz, const Knoten &ereignis) {
    const auto *const datum = satz.Erstes(ereignis, "DATE");
    if (!datum) return {};
    const auto worte = Geglättet(satz.Text(*datum, "PHRASE"));
    return Randlos(datum->Wert).empty() && !worte.empty() ? "(" + worte + ")"
                                                          : Geglättet(EinfacheKlammeraffen(datum->Wert));
}

std::string Satzdatum(const Stammdatum &datum) {
    const auto &tag = datum.Erstes;
    if (datum.Art == Datumsart::Worte || tag.Jahr < FrühestesJahr || tag.Jahr > SpätestesJahr) return {};
    const bool genau = datum.Art == Datumsart::Genau && tag.IstTag() && GibtEs(tag);
    const auto jahr = Stellig(tag.Jahr, 4);
    return genau ? Stellig(tag.Tag, 2) + "." + Stellig(tag.Monat, 2) + "." + jahr : jahr;
}

std::string Datumstext(std::string_view roh, Sprache sprache) {
    const auto datum = StammdatumLesen(roh);
    std::string text;
    if (datum.Art == Datumsart::Worte) {
        if (roh.starts_with('(') && roh.ends_with(')')) roh = roh.substr(1, roh.size() - 2);
        text = roh;
    } else if (datum.Art == Datumsart::Zwischen || datum.Art == Datumsart::Zeitraum) {
        text = Tagestext(datum.Erstes, sprache) + "-" + Tagestext(datum.Zweites, sprache);
    } else {
        text =
            std::string(Vorworte[static_cast<std::size_t>(datum.Art)].In(sprache)) + Tagestext(datum.Erstes, sprache);
    }
    return Geglättet(MitBlanksFür("#_", text)); // which part the record
}

} // namespace kw
