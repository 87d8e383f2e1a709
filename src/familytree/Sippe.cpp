#include "familytree/Sippe.h"

#include <algorithm>
#include <set>
#include <span>

namespace kw {

namespace {

class Sammler {
  public:
    using Reihe = std::vector<std::uint32_t>;

    Sammler(Sippschaft alle, bool adoptionVorGeburt)
        : baum_(alle.Baum), v_(alle.Verwandte), adoptionVorGeburt_(adoptionVorGeburt) {}

    /// Adds all of `reihe`; gives those who weren't there.
    Reihe Dazu(const Reihe &reihe) {
        Reihe neue;
        for (const std::uint32_t person : reihe)
            if (genommen_.insert(person).second) neue.push_back(person);
        return neue;
    }
    /// Both parents of each.
    Reihe Eltern(const Reihe &kinder) const {
        Reihe eltern;
        for (const std::uint32_t kind : kinder)
            if (const auto familie = Elternfamilie(kind); familie != Keine) Anhängen(eltern, v_.Partner(familie));
        return eltern;
    }
    Reihe Kinder(const Reihe &eltern) const {
        Reihe kinder;
        for (const std::uint32_t person : eltern)
            for (const std::uint32_t familie : v_.AlsPartner(person)) Anhängen(kinder, v_.Kinder(familie));
        return kinder;
    }
    Reihe Partner() const {
        Reihe partner;
        for (const std::uint32_t person : genommen_)
            for (const std::uint32_t familie : v_.AlsPartner(person)) Anhängen(partner, v_.Partner(familie));
        return partner;
    }
    /// Children, their children and so on, so many generations.
    void Nachkommen(Reihe reihe, int generationen) {
        for (; generationen > 0 && !reihe.empty(); --generationen) reihe = Dazu(Kinder(reihe));
    }
    Reihe Alle() const { return {genommen_.begin(), genommen_.end()}; }

  private:
    std::uint32_t Elternfamilie(std::uint32_t kind) const {
        const auto alle = v_.AlsKind(kind);
        const auto familien = alle.subspan(0, std::min(alle.size(), GenugEltern));
        const auto vorrang = [&](std::uint32_t familie) {
            return Elternvorrang(baum_.Personen[kind], baum_.Familien[familie], adoptionVorGeburt_);
        };
        const auto erste =
            std::min_element(familien.begin(), familien.end(), [&](auto a, auto b) { return vorrang(a) < vorrang(b); });
        return erste == familien.end() ? Keine : *erste;
    }
    static void Anhängen(Reihe &reihe, std::span<const std::uint32_t> weitere) {
        reihe.insert(reihe.end(), weitere.begin(), weitere.end());
    }

    const Stammbaum &baum_;
    const Verwandtschaft &v_;
    const bool adoptionVorGeburt_;
    std::set<std::uint32_t> genommen_;
};

} // namespace

bool Sippenwahl::IstTeilVon(const Sippenwahl &andere) const {
    constexpr bool Sippenwahl::*Alle[] = {&Sippenwahl::Geschwister, &Sippenwahl::TantenOnkel, &Sippenwahl::Cousins,
                                          &Sippenwahl::NichtenNeffen, &Sippenwahl::Partner};
    return Hinauf <= andere.Hinauf && Hinunter <= andere.Hinunter &&
           std::all_of(std::begin(Alle), std::end(Alle), [&](auto wer) { return this->*wer <= andere.*wer; });
}

std::vector<std::uint32_t> Sippe(Sippschaft alle, std::uint32_t proband, const Sippenwahl &wahl,
                                 bool adoptionVorGeburt) {
    Sammler sammler(alle, adoptionVorGeburt);
    Sammler::Reihe ahnen = sammler.Dazu({proband});
    sammler.Nachkommen(ahnen, wahl.Hinunter);
    std::vector<Sammler::Reihe> stufen; // of ancestors, the parents first: all of them before anybody aside
    for (int stufe = 1; stufe <= wahl.Hinauf && !ahnen.empty(); ++stufe)
        stufen.push_back(ahnen = sammler.Dazu(sammler.Eltern(ahnen)));
    for (size_t i = 0; i < stufen.size(); ++i) {
        const int über = static_cast<int>(i); // their children stand so many generations above the proband
        if (i == 0 ? !wahl.Geschwister : !wahl.TantenOnkel) continue;
        const Sammler::Reihe seitlich = sammler.Dazu(sammler.Kinder(stufen[i]));
        if (i == 0 ? wahl.NichtenNeffen : wahl.Cousins)
            sammler.Nachkommen(seitlich, i == 0 ? std::max(1, wahl.Hinunter) : über);
    }
    if (wahl.Partner) sammler.Dazu(sammler.Partner());
    return sammler.Alle();
}

} // namespace kw
