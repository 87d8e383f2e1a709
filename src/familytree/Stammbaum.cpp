#include "familytree/Stammbaum.h"

#include <algorithm>

namespace kw {

namespace {

template <class Liste>
auto Gefunden(const std::unordered_map<std::string_view, std::uint32_t> &nummern, const Liste &liste,
              std::string_view kennung) -> decltype(liste.data()) {
    const auto nummer = nummern.find(kennung);
    return nummer == nummern.end() ? nullptr : &liste[nummer->second];
}

} // namespace

std::string_view Stammperson::Kindschaft(std::string_view familie) const {
    const auto kindschaft = std::lower_bound(Kindschaften.begin(), Kindschaften.end(), familie,
                                             [](const auto &k, std::string_view f) { return k.first < f; });
    return kindschaft != Kindschaften.end() && kindschaft->first == familie ? kindschaft->second : std::string_view();
}

const Stammperson *Stammbaum::Person(std::string_view kennung) const { return Gefunden(personen_, Personen, kennung); }

const Stammfamilie *Stammbaum::Familie(std::string_view kennung) const {
    return Gefunden(familien_, Familien, kennung);
}

Satz Stammbaum::Zeilen(const Satzort &ort) const {
    Satz satz;
    Warnungen schonGemeldet;
    Satzleser leser(*text_, ort);
    leser.NurErstesVerdoppelt(Kopf.IstNeu());
    leser.Nächster(satz, schonGemeldet);
    return satz;
}

} // namespace kw
