#include "editing/Elemente.h"

#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "editing/Kreislinien.h"
#include "editing/Leinwandlage.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"
#include "rendering/Legende.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

void PartnerschaftUmgeben(const Dokument &, std::string_view satz, Umgebung &u) {
    const PartnerschaftSatz linie(satz, Lücken::Leer);
    u.Aufnehmen(linie.BalkenX1(), linie.BalkenY1());
    u.Aufnehmen(linie.BalkenX2(), linie.BalkenY2());
    u.Aufnehmen(linie.AnschlussX1(), linie.AnschlussY1());
    u.Aufnehmen(linie.AnschlussX2(), linie.AnschlussY2());
}

/// From the bar to the top of the child's symbol.
void KindUmgeben(const Dokument &d, std::string_view satz, Umgebung &u) {
    const KindSatz linie(satz, Lücken::Leer);
    const int kind = PersonMitNr(d, linie.KindNr());
    const double größe = kind < 0 ? 0 : PersonSatz(d.cboPersonen.Satz(kind), Lücken::Leer).Groesse();
    u.Aufnehmen(linie.LinieX(), linie.LinieY());
    u.Aufnehmen(linie.KindX(), linie.KindY() - größe / 2);
}

void BeziehungUmgeben(const Dokument &, std::string_view satz, Umgebung &u) {
    const BeziehungSatz linie(satz, Lücken::Leer);
    u.Aufnehmen(linie.LinieX1(), linie.LinieY1());
    u.Aufnehmen(linie.LinieX2(), linie.LinieY2());
}

template <const Gruppenart &Art> void GruppenartUmgeben(const Dokument &, std::string_view satz, Umgebung &u) {
    Art.Umgeben(satz, u);
}

std::string NummerVon(std::string_view satz) { return std::string(Nummer(satz)); }

bool Enthält(const Satzliste &liste, std::string_view eintrag) {
    return std::find(liste.begin(), liste.end(), eintrag) != liste.end();
}

/// A kind: how it is called, where its records stand, what names one (none for its position from 1), its box.
struct Art {
    std::string_view Name;
    Satzliste Dokument::*Speicher;
    std::string (*Schlüssel)(std::string_view satz);
    void (*Umgeben)(const Dokument &, std::string_view satz, Umgebung &);
};
constexpr std::array<Art, 7> Arten{{
    {"person", &Dokument::cboPersonen, NummerVon,
     [](const Dokument &, std::string_view satz, Umgebung &u) { PersonUmgeben(satz, u); }},
    {"partnership", &Dokument::cboPartnerschaftsLinien, NummerVon, PartnerschaftUmgeben},
    {"child", &Dokument::cboKindlinien, NummerVon, KindUmgeben},
    {"relation", &Dokument::cboBeziehungsLinien, nullptr, BeziehungUmgeben},
    {"text", &Dokument::cboTextboxen, nullptr, GruppenartUmgeben<TexteInGruppen>},
    {"arrow", &Dokument::cboPfeile, nullptr, GruppenartUmgeben<PfeileInGruppen>},
    {"circle", &Dokument::cboFreehandlines, nullptr, GruppenartUmgeben<KreislinienInGruppen>},
}};

const Art &ArtVon(Element element) { return Arten.at(static_cast<size_t>(element.Art)); }

const std::string &Satz(const Dokument &d, Element element) {
    return (d.*ArtVon(element).Speicher).Satz(element.Position);
}

/// Whether the record is whole, as far as it is looked at: no gesture hits another one.
bool IstGanz(Satzliste Dokument::*speicher, const std::string &satz) {
    const auto zeile = std::find_if(SpeicherTabelle.begin(), SpeicherTabelle.end(),
                                    [&](const SpeicherZeile &z) { return z.Liste == speicher; });
    if (speicher == &Dokument::cboFreehandlines) return KreisSatz(satz).Nächster().has_value();
    return std::count(satz.begin(), satz.end(), '_') >= zeile->Pflichtfelder - 1;
}

/// A position that an `Aktion` selects.
bool EinzelnGewählt(const Leinwandlage &lage, Element e) {
    const auto bei = [&](std::initializer_list<Aktion> aktionen, int position) {
        return position == e.Position && std::find(aktionen.begin(), aktionen.end(), lage.Aktion) != aktionen.end();
    };
    switch (e.Art) {
    case Elementart::Person:
        return (IstLink(lage.Aktion) || lage.Aktion == Aktion::PersonGewählt) && lage.PersAuswahl - 1 == e.Position;
    case Elementart::Partnerschaft: return bei({Aktion::PLinieGewählt}, lage.PLinieAuswahl);
    case Elementart::Kind: return bei({Aktion::KindlinieGewählt}, lage.KindAuswahl);
    case Elementart::Beziehung: return bei({Aktion::BeziehungGewählt}, lage.BezAuswahl);
    case Elementart::Text: return bei({Aktion::TextGewählt, Aktion::TextGefasst, Aktion::TextDialog}, lage.TextAuswahl);
    case Elementart::Pfeil:
        return bei({Aktion::PfeilGewählt, Aktion::PfeilGefasst, Aktion::PfeilEnde1, Aktion::PfeilEnde2},
                   lage.PfeilAuswahl);
    case Elementart::Kreis: return bei({Aktion::KreisGewählt}, lage.KreisAuswahl - 1);
    case Elementart::Legende: return lage.Aktion == Aktion::LegendeGefasst;
    }
    return false;
}

} // namespace

std::string_view Artname(Elementart art) { return art == Elementart::Legende ? "legend" : ArtVon({art}).Name; }

std::string Elementschlüssel(const Dokument &d, Element element) {
    if (element.Art == Elementart::Legende || !GibtEs(d, element)) return {};
    const auto schlüssel = ArtVon(element).Schlüssel;
    return schlüssel ? schlüssel(Satz(d, element)) : std::to_string(element.Position + 1);
}

std::vector<Element> AlleElemente(const Dokument &d) {
    std::vector<Element> alle;
    for (size_t art = 0; art < Arten.size(); ++art)
        for (int i = 0; i < (d.*Arten[art].Speicher).Anzahl(); ++i)
            if (const Element e{static_cast<Elementart>(art), i}; GibtEs(d, e)) alle.push_back(e);
    if (d.LegendeSichtbar) alle.push_back({Elementart::Legende});
    return alle;
}

bool GibtEs(const Dokument &d, Element element) {
    if (element.Art == Elementart::Legende) return d.LegendeSichtbar && element.Position == 0;
    const auto speicher = ArtVon(element).Speicher;
    return Gültig(d.*speicher, element.Position) && IstGanz(speicher, Satz(d, element));
}

Umgebung Elementrahmen(const Dokument &d, const Legendenblatt &legende, Element element) {
    Umgebung u;
    if (!GibtEs(d, element)) return u;
    if (element.Art == Elementart::Legende)
        u.Aufnehmen(d.LegendeX, d.LegendeY, legende.LegendeBreite, legende.LegendeHoehe);
    else ArtVon(element).Umgeben(d, Satz(d, element), u);
    return u;
}

bool IstGewählt(const Dokument &d, const Auswahl &auswahl, const Leinwandlage &lage, Element element) {
    if (!GibtEs(d, element)) return false;
    if (lage.Aktion != Aktion::GruppeGewählt) return EinzelnGewählt(lage, element);
    switch (element.Art) {
    case Elementart::Person: return Enthält(auswahl.lstMovedPers, Nummer(Satz(d, element)));
    case Elementart::Partnerschaft: return Enthält(auswahl.lstMovedPLines, Nummer(Satz(d, element)));
    case Elementart::Text: return Enthält(auswahl.lstMovedText, std::to_string(element.Position));
    case Elementart::Pfeil: return Enthält(auswahl.lstMovedPfeile, std::to_string(element.Position));
    case Elementart::Kreis: return Enthält(auswahl.lstMovedKreisLinien, std::to_string(element.Position + 1));
    default: return false;
    }
}

} // namespace kw
