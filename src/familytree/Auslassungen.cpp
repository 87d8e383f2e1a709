#include "familytree/Auslassungen.h"

#include "familytree/Marken.h"
#include "familytree/Uebernehmer.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <utility>

namespace kw {

namespace {

using namespace std::string_view_literals;
using enum Befundart;

/// What is told of elsewhere or is taken: by the tag of the line that it lies in ("" for the record itself).
struct Genommenes {
    std::string_view In, Marke;
};
constexpr Genommenes Genommen[] = {
    {"", "SEX"},      {"", "BIRT"},      {"", "DEAT"},      {"", "BURI"},     {"", "CREM"},     {"", "FAMC"},
    {"", "FAMS"},     {"", "ADOP"},      {"", "HUSB"},      {"", "WIFE"},     {"", "CHIL"},     {"", "MARR"},
    {"", "DIV"},      {"", "ANUL"},      {"", "DIVF"},      {"", "_SEPR"},    {"", "_SEP"},     {"NAME", "GIVN"},
    {"NAME", "SURN"}, {"BIRT", "DATE"},  {"BIRT", "AGE"},   {"DEAT", "DATE"}, {"DEAT", "AGE"},  {"FAMC", "PEDI"},
    {"ADOP", "FAMC"}, {"CHIL", "_FREL"}, {"CHIL", "_MREL"}, {"MARR", "DATE"}, {"MARR", "TYPE"}, {"DIV", "DATE"},
    {"ANUL", "DATE"}, {"DIVF", "DATE"},  {"_SEPR", "DATE"}, {"_SEP", "DATE"}, {"EVEN", "TYPE"}, {"EVEN", "DATE"},
    {"FAMC", "ADOP"},
};

struct Markenart {
    std::string_view Marke;
    Befundart Art;
};
constexpr Markenart Markenarten[] = {
    {"NAME", NameWeggelassen},       {"ALIA", NameWeggelassen},       {"NICK", NameWeggelassen},
    {"NPFX", NameWeggelassen},       {"NSFX", NameWeggelassen},       {"SPFX", NameWeggelassen},
    {"ROMN", NameWeggelassen},       {"FONE", NameWeggelassen},       {"TRAN", NameWeggelassen},
    {"NOTE", NotizWeggelassen},      {"SNOTE", NotizWeggelassen},     {"SOUR", QuelleWeggelassen},
    {"OBJE", QuelleWeggelassen},     {"PLAC", OrtWeggelassen},        {"ADDR", OrtWeggelassen},
    {"ASSO", BeziehungWeggelassen},  {"_ASSO", BeziehungWeggelassen}, {"CHAN", VerwaltungWeggelassen},
    {"CREA", VerwaltungWeggelassen}, {"RIN", VerwaltungWeggelassen},  {"UID", VerwaltungWeggelassen},
    {"_UID", VerwaltungWeggelassen}, {"REFN", VerwaltungWeggelassen}, {"EXID", VerwaltungWeggelassen},
    {"AFN", VerwaltungWeggelassen},  {"RFN", VerwaltungWeggelassen},  {"RESN", VerwaltungWeggelassen},
    {"SUBM", VerwaltungWeggelassen}, {"ANCI", VerwaltungWeggelassen}, {"DESI", VerwaltungWeggelassen},
};

/// The format's events and attributes; all but these are other facts.
constexpr std::array Ereignisse{"CHR"sv,  "BAPM"sv, "BARM"sv, "BASM"sv, "BLES"sv, "CHRA"sv, "CONF"sv, "FCOM"sv,
                                "ORDN"sv, "NATU"sv, "EMIG"sv, "IMMI"sv, "CENS"sv, "PROB"sv, "WILL"sv, "GRAD"sv,
                                "RETI"sv, "EVEN"sv, "FACT"sv, "CAST"sv, "DSCR"sv, "EDUC"sv, "IDNO"sv, "NATI"sv,
                                "NCHI"sv, "NMR"sv,  "OCCU"sv, "PROP"sv, "RELI"sv, "RESI"sv, "SSN"sv,  "TITL"sv,
                                "ENGA"sv, "MARB"sv, "MARC"sv, "MARL"sv, "MARS"sv, "INIL"sv, "BAPL"sv, "CONL"sv,
                                "ENDL"sv, "SLGC"sv, "SLGS"sv, "BIRT"sv, "DEAT"sv, "BURI"sv, "CREM"sv};

constexpr std::size_t Genug = 200; ///< bytes of a value, more than a report shows

Befundart Art(std::string_view marke) {
    const auto *const art = std::find_if(std::begin(Markenarten), std::end(Markenarten),
                                         [&](const Markenart &m) { return m.Marke == marke; });
    if (art != std::end(Markenarten)) return art->Art;
    if (marke.starts_with('_')) return EigenesWeggelassen;
    const bool ereignis = std::find(Ereignisse.begin(), Ereignisse.end(), marke) != Ereignisse.end();
    return ereignis ? EreignisWeggelassen : SonstigesWeggelassen;
}

bool IstGenommen(std::string_view in, std::string_view marke) {
    return std::any_of(std::begin(Genommen), std::end(Genommen),
                       [&](const Genommenes &g) { return g.In == in && g.Marke == marke; });
}

bool IstZwillingsangabe(const Satz &satz, const Knoten &beziehung) {
    const auto *const rolle = satz.Erstes(beziehung, "ROLE");
    return IstZwillingsrolle(satz.Text(beziehung, "RELA")) ||
           (rolle && (IstZwillingsrolle(rolle->Wert) || IstZwillingsrolle(satz.Text(*rolle, "PHRASE"))));
}

} // namespace

void AuslassungenMelden(const Satz &satz, std::string_view wer, Übernahmebericht &bericht) {
    const bool familie = satz.Wurzel().Marke == "FAM";
    const auto melden = [&](const Knoten &k) {
        bericht.Hinzu(Art(k.Marke), k.Zeile, wer, std::string(k.Marke).append(" ").append(k.Wert.substr(0, Genug)));
    };
    // Of names the first is taken, of births and deaths the first that has a date.
    bool ersterName = true;
    std::set<std::string_view> datierte;
    satz.FürKinder(satz.Wurzel(), [&](const Knoten &knoten) {
        const bool name = !familie && knoten.Marke == "NAME" && std::exchange(ersterName, false);
        const bool art = familie && knoten.Marke == "EVEN"; // its type may tell the couple's state
        if (!name && !art && !IstGenommen("", knoten.Marke)) {
            // Twins are told of where it shows whether both are there.
            const bool zwilling = Art(knoten.Marke) == BeziehungWeggelassen && IstZwillingsangabe(satz, knoten);
            const bool symbol = satz.Erstes(knoten, Symbolmarke) != nullptr; // its own words, taken as a symbol
            return zwilling || symbol ? void() : melden(knoten);
        }
        const bool datiert = !familie && !satz.Text(knoten, "DATE").empty();
        if (datiert && !datierte.insert(knoten.Marke).second) return melden(knoten);
        satz.FürKinder(knoten, [&](const Knoten &darin) {
            if (!IstGenommen(knoten.Marke, darin.Marke)) melden(darin);
        });
    });
}

} // namespace kw
