#include "familytree/Uebernehmer.h"

#include "document/Codepage.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

template <class Worte> bool EnthältEines(std::string_view text, const Worte &worte) {
    const auto klein = Kleingeschrieben(text);
    return std::any_of(worte.begin(), worte.end(), [&](auto wort) { return klein.find(wort) != std::string::npos; });
}

/// The last one is the newer version's own, for siblings of one pregnancy.
constexpr std::array<std::string_view, 3> Zwillingsworte{"twin", "zwilling", "multiple"};
constexpr std::array<std::string_view, 2> Eineiige{"identical", "eineiig"};
constexpr std::array<std::string_view, 4> Zweieiige{"non-identical", "nonidentical", "fraternal", "zweieiig"};

} // namespace

bool IstZwillingsrolle(std::string_view rolle) { return EnthältEines(rolle, Zwillingsworte); }

bool Übernehmer::SindGeschwister(std::uint32_t a, std::uint32_t b) const {
    const auto &personen = ergebnis_.Personen;
    return a != Keine && b != Keine && a != b && personen[a].Paar != Keine && personen[a].Paar == personen[b].Paar;
}

void Übernehmer::Verzwillingen(std::uint32_t a, std::uint32_t b, bool eineiig) {
    auto &eine = ergebnis_.Personen[a], &andere = ergebnis_.Personen[b];
    eine.Zwilling = b;
    andere.Zwilling = a;
    // Brother and sister are never identical.
    eine.Eineiig = andere.Eineiig = eineiig && eine.Angaben.Symboltyp == andere.Angaben.Symboltyp;
}

/// Twins that the file calls so.
void Übernehmer::AngegebeneZwillinge() {
    for (const auto &b : baum_.Beziehungen) {
        const auto rolle = std::string(b.Rolle).append(" ").append(b.Worte);
        if (!IstZwillingsrolle(rolle)) continue;
        const auto *const von = baum_.Person(b.Von), *const zu = baum_.Person(b.Zu);
        const auto eine = von ? Ort(static_cast<std::uint32_t>(baum_.Nummer(*von))) : Keine;
        const auto andere = zu ? Ort(static_cast<std::uint32_t>(baum_.Nummer(*zu))) : Keine;
        if (eine == Keine) continue;
        const bool frei = SindGeschwister(eine, andere) && ergebnis_.Personen[eine].Zwilling == Keine &&
                          ergebnis_.Personen[andere].Zwilling == Keine;
        const bool schon = andere != Keine && ergebnis_.Personen[eine].Zwilling == andere;
        const bool gesagt = EnthältEines(rolle, Eineiige) || EnthältEines(rolle, Zweieiige);
        const bool eineiig = EnthältEines(rolle, Eineiige) && !EnthältEines(rolle, Zweieiige);
        if (frei) Verzwillingen(eine, andere, gesagt ? eineiig : regeln_.ZwillingeEineiig);
        else if (!schon) ergebnis_.Bericht.Hinzu(Befundart::BeziehungWeggelassen, b.Zeile, Anzeigename(*von), rolle);
    }
}

/// Children of a family with one date of birth, two by two.
void Übernehmer::GleichaltrigeZwillinge(std::uint32_t familie) {
    for (const auto &gruppe : baum_.Familien[familie].Gleichaltrige) {
        std::vector<std::uint32_t> freie;
        for (const auto kennung : gruppe) {
            const auto ort = Ort(static_cast<std::uint32_t>(baum_.Nummer(*baum_.Person(kennung))));
            const bool dabei = ort != Keine && ergebnis_.Personen[ort].Paar != Keine;
            if (dabei && ergebnis_.Personen[ort].Zwilling == Keine && (freie.empty() || SindGeschwister(freie[0], ort)))
                freie.push_back(ort);
        }
        if (freie.size() < 2) continue;
        const auto melden = [&](Befundart art, std::uint32_t wer, std::string_view text) {
            const auto &person = baum_.Personen[ergebnis_.Personen[wer].Quelle];
            ergebnis_.Bericht.Hinzu(art, person.Ort.Zeile, Anzeigename(person), text);
        };
        const auto anderer = Anzeigename(baum_.Personen[ergebnis_.Personen[freie[1]].Quelle]);
        const bool ja = regeln_.GleichaltrigeSindZwillinge;
        if (ja) Verzwillingen(freie[0], freie[1], regeln_.ZwillingeEineiig);
        else ergebnis_.Vorschläge.push_back({freie[0], freie[1]});
        melden(ja ? Befundart::ZwillingeAngenommen : Befundart::ZwillingeMöglich, freie[0], anderer);
        for (std::size_t i = 2; i < freie.size(); ++i) melden(Befundart::MehrlingeWeggelassen, freie[i], {});
    }
}

} // namespace kw
