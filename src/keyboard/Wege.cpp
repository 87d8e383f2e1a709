#include "keyboard/Wege.h"

#include "document/Codepage.h"
#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace kw {

namespace {

std::optional<Element> Person(int position) {
    return position < 0 ? std::nullopt : std::optional(Element{Elementart::Person, position});
}

/// From left to right; ties from the top, then as stored.
bool StehtVor(const Dokument &d, int a, int b) {
    const auto rang = [&](int i) {
        const PersonSatz p(d.cboPersonen.Satz(i), Lücken::Leer);
        return std::tuple(p.PosX(), p.PosY(), i);
    };
    return rang(a) < rang(b);
}

/// Persons of a row, without those that don't exist.
std::vector<int> Reihe(const Dokument &d, std::vector<int> personen) {
    std::erase_if(personen, [](int i) { return i < 0; });
    std::sort(personen.begin(), personen.end(), [&](int a, int b) { return StehtVor(d, a, b); });
    personen.erase(std::unique(personen.begin(), personen.end()), personen.end());
    return personen;
}

std::optional<Element> Erste(const Dokument &d, const std::vector<int> &personen) {
    const auto reihe = Reihe(d, personen);
    return reihe.empty() ? std::nullopt : Person(reihe.front());
}

std::optional<Element> Letzte(const Dokument &d, const std::vector<int> &personen) {
    const auto reihe = Reihe(d, personen);
    return reihe.empty() ? std::nullopt : Person(reihe.back());
}

PartnerschaftSatz Linie(const Dokument &d, int position) {
    return PartnerschaftSatz(d.cboPartnerschaftsLinien.Satz(position), Lücken::Leer);
}

std::vector<int> Partner(const Dokument &d, const Bezüge &bezüge, int linie) {
    return {bezüge.Person(Linie(d, linie).PersNr1()), bezüge.Person(Linie(d, linie).PersNr2())};
}

void KinderAnhängen(const Dokument &d, const Bezüge &bezüge, int linie, std::vector<int> &kinder) {
    for (const int i : bezüge.KinderVon(Linie(d, linie).Nr()))
        kinder.push_back(bezüge.Person(KindSatz(d.cboKindlinien.Satz(i), Lücken::Leer).KindNr()));
}

/// The person with partners and full siblings.
std::vector<int> Umfeld(const Dokument &d, const Bezüge &bezüge, int person) {
    const PersonSatz satz(d.cboPersonen.Satz(person), Lücken::Leer);
    std::vector<int> alle{person};
    for (const int linie : bezüge.Partnerschaften(satz.Nr()))
        for (const int i : Partner(d, bezüge, linie)) alle.push_back(i);
    if (const int eltern = bezüge.PLinie(satz.ElternLinie()); satz.HatEltern() && eltern >= 0)
        KinderAnhängen(d, bezüge, eltern, alle);
    return Reihe(d, alle);
}

std::optional<Element> VonPerson(const Dokument &d, int person, Richtung richtung) {
    const Bezüge bezüge(d);
    const PersonSatz satz(d.cboPersonen.Satz(person), Lücken::Leer);
    if (richtung == Richtung::Hoch) {
        const int eltern = satz.HatEltern() ? bezüge.PLinie(satz.ElternLinie()) : -1;
        return eltern < 0 ? std::nullopt : Erste(d, Partner(d, bezüge, eltern));
    }
    if (richtung == Richtung::Runter) {
        std::vector<int> kinder;
        for (const int linie : bezüge.Partnerschaften(satz.Nr())) KinderAnhängen(d, bezüge, linie, kinder);
        return Erste(d, kinder);
    }
    const auto reihe = Umfeld(d, bezüge, person);
    const auto hier = std::find(reihe.begin(), reihe.end(), person);
    if (richtung == Richtung::Links) return hier == reihe.begin() ? std::nullopt : Person(*std::prev(hier));
    return std::next(hier) == reihe.end() ? std::nullopt : Person(*std::next(hier));
}

std::optional<Element> VonPartnerschaft(const Dokument &d, int linie, Richtung richtung) {
    const Bezüge bezüge(d);
    if (richtung == Richtung::Rechts) return Letzte(d, Partner(d, bezüge, linie));
    if (richtung != Richtung::Runter) return Erste(d, Partner(d, bezüge, linie));
    std::vector<int> kinder;
    KinderAnhängen(d, bezüge, linie, kinder);
    return Erste(d, kinder);
}

std::optional<Element> VonBeziehung(const Dokument &d, int linie, Richtung richtung) {
    const BeziehungSatz satz(d.cboBeziehungsLinien.Satz(linie), Lücken::Leer);
    const std::vector<int> beide{PersonMitNr(d, satz.PersNr1()), PersonMitNr(d, satz.PersNr2())};
    return richtung == Richtung::Links ? Erste(d, beide) : Letzte(d, beide);
}

std::optional<Element> VonKindlinie(const Dokument &d, int linie, Richtung richtung) {
    const KindSatz satz(d.cboKindlinien.Satz(linie), Lücken::Leer);
    if (richtung == Richtung::Runter) return Person(PersonMitNr(d, satz.KindNr()));
    const int balken = PLinieMitNr(d, satz.PLinie());
    return balken < 0 ? std::nullopt : std::optional(Element{Elementart::Partnerschaft, balken});
}

} // namespace

std::optional<Element> Nächstes(const Dokument &d, std::optional<Element> von, bool rückwärts,
                                const Elementfilter &kennt) {
    auto alle = AlleElemente(d);
    if (rückwärts) std::reverse(alle.begin(), alle.end());
    auto ab = von ? std::find(alle.begin(), alle.end(), *von) : alle.end();
    ab = ab == alle.end() ? alle.begin() : std::next(ab);
    const auto gefunden = std::find_if(ab, alle.end(), kennt);
    return gefunden == alle.end() ? std::nullopt : std::optional(*gefunden);
}

std::optional<Element> Äußerstes(const Dokument &d, bool letztes, const Elementfilter &kennt) {
    return Nächstes(d, std::nullopt, letztes, kennt);
}

bool HatVerwandte(Elementart art, Richtung richtung) {
    const bool quer = richtung == Richtung::Links || richtung == Richtung::Rechts;
    switch (art) {
    case Elementart::Person:
    case Elementart::Partnerschaft: return true;
    case Elementart::Beziehung: return quer;
    case Elementart::Kind: return !quer;
    default: return false;
    }
}

std::optional<Element> Verwandtes(const Dokument &d, Element von, Richtung richtung) {
    if (!GibtEs(d, von)) return std::nullopt;
    const auto weg = [&]() -> std::optional<Element> {
        switch (von.Art) {
        case Elementart::Person: return VonPerson(d, von.Position, richtung);
        case Elementart::Partnerschaft: return VonPartnerschaft(d, von.Position, richtung);
        case Elementart::Beziehung: return VonBeziehung(d, von.Position, richtung);
        case Elementart::Kind: return VonKindlinie(d, von.Position, richtung);
        default: return std::nullopt;
        }
    }();
    return weg && GibtEs(d, *weg) ? weg : std::nullopt;
}

std::optional<Element> Benachbartes(const Dokument &d, const Legendenblatt &legende, const Umgebung &rahmen,
                                    Richtung richtung, const Elementfilter &kennt) {
    const bool waagrecht = richtung == Richtung::Links || richtung == Richtung::Rechts;
    const double sinn = richtung == Richtung::Rechts || richtung == Richtung::Runter ? 1 : -1;
    std::optional<Element> bestes;
    std::tuple<bool, double> bestesMaß;
    for (const Element &e : AlleElemente(d)) {
        if (!kennt(e)) continue;
        const Umgebung u = Elementrahmen(d, legende, e);
        const double dx = u.MitteX() - rahmen.MitteX();
        const double dy = u.MitteY() - rahmen.MitteY();
        const double voran = sinn * (waagrecht ? dx : dy);
        if (!Kleiner(0, voran)) continue;
        const bool daneben = waagrecht ? !(Kleiner(u.Oben, rahmen.Unten) && Kleiner(rahmen.Oben, u.Unten))
                                       : !(Kleiner(u.Links, rahmen.Rechts) && Kleiner(rahmen.Links, u.Rechts));
        const std::tuple maß(daneben, daneben ? std::hypot(dx, dy) : voran);
        if (bestes && bestesMaß <= maß) continue;
        bestes = e;
        bestesMaß = maß;
    }
    return bestes;
}

bool HatEinenPlatz(Element e) {
    return e.Art != Elementart::Partnerschaft && e.Art != Elementart::Kind && e.Art != Elementart::Beziehung;
}

std::optional<Element> PersonNamens(const Dokument &d, std::string_view text, std::optional<Element> von) {
    const std::string gesucht = Kleingeschrieben(Getrimmt(text));
    const int anzahl = d.cboPersonen.Anzahl();
    if (gesucht.empty()) return std::nullopt;
    const int ab = von && von->Art == Elementart::Person ? von->Position + 1 : 0;
    for (const bool amAnfang : {true, false})
        for (int schritt = 0; schritt < anzahl; ++schritt) {
            const Element e{Elementart::Person, (ab + schritt) % anzahl};
            if (!GibtEs(d, e)) continue;
            const PersonSatz p(d.cboPersonen.Satz(e.Position));
            const std::string vor = Kleingeschrieben(p.Vorname());
            const std::string nach = Kleingeschrieben(p.Nachname());
            for (const std::string &name : {vor, nach, vor + " " + nach, nach + " " + vor, nach + ", " + vor})
                if (amAnfang ? name.starts_with(gesucht) : name.find(gesucht) != std::string::npos) return e;
        }
    return std::nullopt;
}

} // namespace kw
