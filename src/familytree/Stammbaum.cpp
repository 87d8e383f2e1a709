#include "familytree/Stammbaum.h"

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
    for (auto herkunft = Eltern.rbegin(); herkunft != Eltern.rend(); ++herkunft)
        if (herkunft->Familie == familie && !herkunft->Kindschaft.empty()) return herkunft->Kindschaft;
    return {};
}

const Stammperson *Stammbaum::Person(std::string_view kennung) const { return Gefunden(personen_, Personen, kennung); }

const Stammfamilie *Stammbaum::Familie(std::string_view kennung) const {
    return Gefunden(familien_, Familien, kennung);
}

Satz Stammbaum::Zeilen(const Satzort &ort) const {
    Satz satz;
    Warnungen schonGemeldet;
    Satzleser(*text_, ort).Nächster(satz, schonGemeldet);
    return satz;
}

} // namespace kw
