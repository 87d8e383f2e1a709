#include "familytree/Verwandtschaft.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace kw {

namespace {

using Einträge = std::vector<Nummernlisten::Eintrag>;

Einträge Umgekehrt(const Nummernlisten &listen, std::size_t anzahl) {
    Einträge einträge;
    for (std::uint32_t liste = 0; liste < anzahl; ++liste)
        for (const auto nummer : listen[liste]) einträge.push_back({nummer, liste});
    return einträge;
}

std::uint32_t Familiennummer(const Stammbaum &baum, std::string_view kennung) {
    const auto *const familie = baum.Familie(kennung);
    return familie ? static_cast<std::uint32_t>(baum.Nummer(*familie)) : Keine;
}

std::uint32_t Personennummer(const Stammbaum &baum, std::string_view kennung) {
    const auto *const person = baum.Person(kennung);
    return person ? static_cast<std::uint32_t>(baum.Nummer(*person)) : Keine;
}

/// Calls `tun` with each person's place and each family that `nennt` gives of it.
template <class F, class G> void FürFamilien(const Stammbaum &baum, F nennt, G tun) {
    for (std::uint32_t person = 0; person < baum.Personen.size(); ++person)
        nennt(baum.Personen[person], [&](std::string_view kennung) {
            const auto familie = Familiennummer(baum, kennung);
            if (familie != Keine) tun(familie, person);
        });
}

Einträge Partnereinträge(const Stammbaum &baum) {
    Einträge einträge;
    for (std::uint32_t familie = 0; familie < baum.Familien.size(); ++familie)
        for (const auto kennung : baum.Familien[familie].Partner)
            if (const auto person = Personennummer(baum, kennung); person != Keine)
                einträge.push_back({familie, person});
    const auto nennt = [](const Stammperson &person, auto tun) {
        for (const auto familie : person.Familien) tun(familie);
    };
    FürFamilien(baum, nennt, [&](auto familie, auto person) { einträge.push_back({familie, person}); });
    return einträge;
}

Einträge Kindeinträge(const Stammbaum &baum) {
    Einträge einträge;
    for (std::uint32_t familie = 0; familie < baum.Familien.size(); ++familie)
        for (const auto &kind : baum.Familien[familie].Kinder)
            if (kind.Nummer != Keine) einträge.push_back({familie, kind.Nummer});
    const auto nennt = [](const Stammperson &person, auto tun) {
        for (const auto &herkunft : person.Eltern) tun(herkunft.Familie);
        for (const auto &adoption : person.Adoptionen) tun(adoption.Familie);
    };
    FürFamilien(baum, nennt, [&](auto familie, auto person) { einträge.push_back({familie, person}); });
    return einträge;
}

} // namespace

Nummernlisten::Nummernlisten(std::size_t anzahl, std::vector<Eintrag> einträge) : anfänge_(anzahl + 1) {
    const auto voriges = [](const Eintrag &a, const Eintrag &b) { return a.Liste < b.Liste; };
    std::stable_sort(einträge.begin(), einträge.end(), voriges);
    // The first of equal ones stays.
    std::vector<std::uint32_t> reihe(einträge.size());
    std::iota(reihe.begin(), reihe.end(), 0U);
    const auto schlüssel = [&](std::uint32_t i) { return std::pair(einträge[i].Liste, einträge[i].Nummer); };
    std::stable_sort(reihe.begin(), reihe.end(), [&](auto a, auto b) { return schlüssel(a) < schlüssel(b); });
    std::vector<bool> doppelt(einträge.size());
    for (std::size_t i = 1; i < reihe.size(); ++i) doppelt[reihe[i]] = schlüssel(reihe[i]) == schlüssel(reihe[i - 1]);
    for (std::size_t i = 0; i < einträge.size(); ++i) {
        if (doppelt[i]) continue;
        nummern_.push_back(einträge[i].Nummer);
        anfänge_[einträge[i].Liste + 1] = static_cast<std::uint32_t>(nummern_.size());
    }
    std::partial_sum(anfänge_.begin(), anfänge_.end(), anfänge_.begin(), [](auto a, auto b) { return std::max(a, b); });
}

Verwandtschaft::Verwandtschaft(const Stammbaum &baum)
    : partner_(baum.Familien.size(), Partnereinträge(baum)), kinder_(baum.Familien.size(), Kindeinträge(baum)),
      alsPartner_(baum.Personen.size(), Umgekehrt(partner_, baum.Familien.size())),
      alsKind_(baum.Personen.size(), Umgekehrt(kinder_, baum.Familien.size())) {}

} // namespace kw
