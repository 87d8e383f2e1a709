#include "familytree/Uebergabebericht.h"

#include <algorithm>

namespace kw {

namespace {

struct Verlustwort {
    bool Weggelassen;
    Zweisprachig Eines, Mehrere;
};

/// In the order of the kinds.
constexpr std::array<Verlustwort, Übergabeverluste> Worte{{
    {true, {"Beziehungslinie", "relationship line"}, {"Beziehungslinien", "relationship lines"}},
    {true, {"Schwangerschaft", "pregnancy"}, {"Schwangerschaften", "pregnancies"}},
    {true, {"Fehlgeburt", "miscarriage"}, {"Fehlgeburten", "miscarriages"}},
    {true, {"Abtreibung", "abortion"}, {"Abtreibungen", "abortions"}},
    {true, {"Institution", "institution"}, {"Institutionen", "institutions"}},
    {true, {"Textfeld", "text"}, {"Textfelder", "texts"}},
    {true, {"Pfeil", "arrow"}, {"Pfeile", "arrows"}},
    {true, {"Kreislinie", "circle line"}, {"Kreislinien", "circle lines"}},
    {true, {"Legende", "legend"}, {"Legenden", "legends"}},
    {true, {"Kennzeichen \"Distanziert\"", "mark \"distant\""}, {"Kennzeichen \"Distanziert\"", "marks \"distant\""}},
    {true, {"Kennzeichen einer Sucht", "mark of an addiction"}, {"Kennzeichen einer Sucht", "marks of an addiction"}},
    {true,
     {"Kennzeichen einer Erkrankung", "mark of an illness"},
     {"Kennzeichen einer Erkrankung", "marks of an illness"}},
    {true,
     {"Partnerschaft mit jemandem, der nicht mitgeht", "partnership with somebody who is left out"},
     {"Partnerschaften mit jemandem, der nicht mitgeht", "partnerships with somebody who is left out"}},
    {true,
     {"Datum einer früheren Heirat oder Trennung, das die Seite nicht zeigt",
      "date of an earlier marriage or separation that the page doesn't show"},
     {"Daten früherer Heiraten oder Trennungen, die die Seite nicht zeigt",
      "dates of earlier marriages or separations that the page doesn't show"}},
    {true,
     {"Sterbealter, das keine Zahl ist", "age at death that is no number"},
     {"Sterbealter, die keine Zahl sind", "ages at death that are no number"}},
    {false,
     {"Symbol, das andere Programme nicht kennen", "symbol that other programs don't know"},
     {"Symbole, die andere Programme nicht kennen", "symbols that other programs don't know"}},
    {false,
     {"Geburtsdatum, das nur in Worten mitgeht", "date of birth that goes in words only"},
     {"Geburtsdaten, die nur in Worten mitgehen", "dates of birth that go in words only"}},
    {false,
     {"Name, in dem \"/\" zu \"-\" wird", "name in which \"/\" becomes \"-\""},
     {"Namen, in denen \"/\" zu \"-\" wird", "names in which \"/\" becomes \"-\""}},
}};
constexpr Zweisprachig Weggelassen{"weggelassen: ", "left out: "};
constexpr Zweisprachig Geändert{"geändert: ", "changed: "};

} // namespace

bool Übergabebericht::OhneVerlust() const {
    return std::all_of(anzahl_.begin(), anzahl_.end(), [](std::size_t anzahl) { return anzahl == 0; });
}

bool BleibtWeg(Übergabeverlust art) { return Worte[static_cast<std::size_t>(art)].Weggelassen; }

std::string Verlusttext(Übergabeverlust art, std::size_t anzahl, Sprache sprache) {
    const auto &wort = Worte[static_cast<std::size_t>(art)];
    return std::to_string(anzahl).append(" ").append((anzahl == 1 ? wort.Eines : wort.Mehrere).In(sprache));
}

std::vector<std::string> Berichtszeilen(const Übergabebericht &bericht, Sprache sprache) {
    std::vector<std::string> zeilen;
    for (const bool weggelassen : {true, false}) {
        const auto klasse = std::string((weggelassen ? Weggelassen : Geändert).In(sprache));
        for (std::size_t i = 0; i < Übergabeverluste; ++i) {
            const auto art = static_cast<Übergabeverlust>(i);
            if (bericht.Anzahl(art) == 0 || BleibtWeg(art) != weggelassen) continue;
            zeilen.push_back(klasse + Verlusttext(art, bericht.Anzahl(art), sprache));
        }
    }
    return zeilen;
}

} // namespace kw
