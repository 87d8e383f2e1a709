#include "familytree/Paarangaben.h"

#include "document/Codepage.h"
#include "familytree/Auslassungen.h"
#include "familytree/Datumsworte.h"
#include "familytree/Marken.h"

#include <algorithm>
#include <optional>

namespace kw {

namespace {

/// Words of a type that say another state than the event itself would. A marriage "CIVIL" is one before the registrar.
struct Statuswort {
    std::string_view Wort;
    std::optional<Paarstatus> Status; ///< none: the file says that it isn't known
};
constexpr Statuswort Statusworte[] = {
    {"unknown", std::nullopt},
    {"unbekannt", std::nullopt},
    {"separat", Paarstatus::Getrennt},
    {"getrennt", Paarstatus::Getrennt},
    {"trennung", Paarstatus::Getrennt},
    {"unmarried", Paarstatus::Unverheiratet},
    {"not married", Paarstatus::Unverheiratet},
    {"unverheiratet", Paarstatus::Unverheiratet},
    {"nichtehelich", Paarstatus::Unverheiratet},
    {"außerehelich", Paarstatus::Unverheiratet},
    {"unehelich", Paarstatus::Unverheiratet},
    {"partner", Paarstatus::Unverheiratet},
    {"common law", Paarstatus::Unverheiratet},
    {"civil union", Paarstatus::Unverheiratet},
    {"cohabit", Paarstatus::Unverheiratet},
    {"lebensgem", Paarstatus::Unverheiratet},
};

struct Paarereignis {
    std::string_view Marke;
    Paarstatus Status;
};
constexpr Paarereignis Paarereignisse[] = {
    {"MARR", Paarstatus::Verheiratet}, {"DIV", Paarstatus::Geschieden}, {"ANUL", Paarstatus::Geschieden},
    {"DIVF", Paarstatus::Getrennt},    {"_SEPR", Paarstatus::Getrennt}, {"_SEP", Paarstatus::Getrennt},
};

const Statuswort *Wort(std::string_view art) {
    const auto klein = Kleingeschrieben(art);
    const auto *const wort = std::find_if(std::begin(Statusworte), std::end(Statusworte),
                                          [&](const Statuswort &w) { return klein.find(w.Wort) != std::string::npos; });
    return wort == std::end(Statusworte) ? nullptr : wort;
}

/// The state that an event tells of; nothing for one that tells of none.
std::optional<Paarstatus> Stand(const Satz &satz, const Knoten &knoten) {
    if (IstNein(knoten.Wert)) return {};
    const auto art = satz.Text(knoten, "TYPE");
    if (knoten.Marke == "EVEN" || knoten.Marke == "MARR")
        if (const auto *const wort = Wort(art.empty() && knoten.Marke == "EVEN" ? knoten.Wert : art))
            return wort->Status;
    const auto *const ereignis = std::find_if(std::begin(Paarereignisse), std::end(Paarereignisse),
                                              [&](const Paarereignis &e) { return e.Marke == knoten.Marke; });
    return ereignis == std::end(Paarereignisse) ? std::nullopt : std::optional(ereignis->Status);
}

/// The end of a couple counts more than its beginning, and a marriage more than the time before it.
constexpr std::array Rang{Paarstatus::Geschieden, Paarstatus::Getrennt, Paarstatus::Verheiratet,
                          Paarstatus::Unverheiratet};

std::string Nummer(Paarstatus status) { return std::to_string(static_cast<int>(status)); }

} // namespace

Paarangaben PaarÜbertragen(const Stammbaum &baum, const Stammfamilie &familie, std::string_view wer,
                           const Übernahmeregeln &regeln, Übernahmebericht &bericht) {
    const auto satz = baum.Zeilen(familie.Ort);
    Paarangaben paar;
    std::array<bool, Paarstatusanzahl> gesagt{};
    satz.FürKinder(satz.Wurzel(), [&](const Knoten &knoten) {
        const auto stand = Stand(satz, knoten);
        if (!stand) {
            // What is told by its type alone and says nothing of the couple's state is an event like any other.
            if (knoten.Marke == "EVEN") bericht.Hinzu(Befundart::EreignisWeggelassen, knoten.Zeile, wer, knoten.Wert);
            return;
        }
        gesagt[static_cast<std::size_t>(*stand)] = true;
        const auto datum = Datumszeile(satz, knoten);
        auto &text = paar.Daten[static_cast<std::size_t>(*stand)];
        if (text.empty()) text = Datumstext(datum, regeln.Textsprache);
        if (knoten.Marke == "MARR" && paar.Heiratsjahr == 0) paar.Heiratsjahr = StammdatumLesen(datum).Erstes.Jahr;
    });
    const auto *const status =
        std::find_if(Rang.begin(), Rang.end(), [&](Paarstatus s) { return gesagt[static_cast<std::size_t>(s)]; });
    paar.Angenommen = status == Rang.end();
    paar.Status = paar.Angenommen ? regeln.OhneHeirat : Nummer(*status);
    AuslassungenMelden(satz, wer, bericht);
    return paar;
}

Paarangaben Vereint(const Paarangaben &alt, const Paarangaben &neu) {
    const bool früher = neu.Heiratsjahr != 0 && alt.Heiratsjahr != 0 && neu.Heiratsjahr < alt.Heiratsjahr;
    const bool altGilt = (früher || neu.Angenommen) && !alt.Angenommen;
    Paarangaben paar = altGilt ? alt : neu;
    const auto &anderes = altGilt ? neu : alt;
    for (std::size_t i = 0; i < paar.Daten.size(); ++i)
        if (paar.Daten[i].empty()) paar.Daten[i] = anderes.Daten[i];
    paar.Heiratsjahr = std::max(alt.Heiratsjahr, neu.Heiratsjahr);
    return paar;
}

} // namespace kw
