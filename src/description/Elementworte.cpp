#include "description/Elementworte.h"

#include "description/Worte.h"
#include "document/Dokument.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "document/saetze/Pfeil.h"
#include "document/saetze/Textbox.h"
#include "editing/Kreisumriss.h"
#include "rendering/Legende.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kw {

namespace {

/// A box's text as one line.
std::string Einzeiler(std::string_view inhalt) {
    std::string text = OhneAbsatzzeichen(inhalt);
    std::replace(text.begin(), text.end(), '#', ' ');
    return std::string(Getrimmt(text));
}

constexpr Zweisprachig Partnerschaftswort{"Partnerschaft", "partnership"};
constexpr Zweisprachig Kindlinienwort{"Kindlinie", "child line"};
constexpr Zweisprachig Textfeld{"Text: %", "text: %"};
constexpr Zweisprachig KreislinieUm{"Kreislinie um %", "circle line round %"};
constexpr Zweisprachig KreisAllein{"Kreislinie", "circle line"};
constexpr size_t Genannte = 3; ///< of more persons within a circle line the description tells
constexpr Zweisprachig Legendenwort{"Legende", "legend"};

} // namespace

Elementworte::Elementworte(const Dokument &dokument, const Legendenblatt &legende, int glättungsgrad, Sprache sprache,
                           const Uhr &uhr)
    : personen(dokument, sprache, uhr), dokument_(dokument), legende_(legende), glättungsgrad_(glättungsgrad) {}

const Elementworte::Art &Elementworte::ArtVon(Element element) {
    using W = Elementworte;
    static constexpr std::array<Art, 8> Arten{{
        {&W::Person, &W::ZurPerson},
        {&W::Partnerschaft, &W::ZurPartnerschaft},
        {&W::Kind, &W::Nichts},
        {&W::Beziehung, &W::Nichts},
        {&W::Text, &W::Nichts},
        {&W::Pfeil, &W::Nichts},
        {&W::Kreis, &W::ZumKreis},
        {&W::Legende, &W::ZurLegende},
    }};
    return Arten.at(static_cast<size_t>(element.Art));
}

std::string Elementworte::Name(Element element) const {
    if (!GibtEs(dokument_, element)) return {};
    std::string name = (this->*ArtVon(element).Name)(element.Position);
    return element.Art == Elementart::Person ? name : GroßBegonnen(std::move(name));
}

std::vector<std::string> Elementworte::Einzelheiten(Element element) const {
    if (!GibtEs(dokument_, element)) return {};
    std::vector<std::string> texte = (this->*ArtVon(element).Einzelheiten)(element.Position);
    std::erase(texte, std::string());
    return texte;
}

std::string Elementworte::Ruf(Element element) const {
    if (element.Art == Elementart::Person) return personen.Ruf(element.Position);
    if (element.Art != Elementart::Partnerschaft) return Name(element);
    const PartnerschaftSatz linie(dokument_.cboPartnerschaftsLinien.Satz(element.Position), Lücken::Leer);
    return personen.RufVon(linie.PersNr1(), linie.PersNr2());
}

std::string Elementworte::Partnerschaft(int position) const {
    const std::string &satz = dokument_.cboPartnerschaftsLinien.Satz(position);
    const PartnerschaftSatz linie(satz, Lücken::Leer);
    const std::string wer = personen.RufVon(linie.PersNr1(), linie.PersNr2());
    return Verbunden({Verbunden({Im(Partnerschaftswort), wer}, ": "), Partnerstand(satz, personen.sprache)}, ", ");
}

std::vector<std::string> Elementworte::ZurPartnerschaft(int position) const {
    const std::string &satz = dokument_.cboPartnerschaftsLinien.Satz(position);
    std::vector<std::string> texte = Partnerdaten(satz, personen.sprache);
    std::vector<std::string> namen;
    for (const int linie : personen.bezüge.KinderVon(Nummer(satz)))
        namen.push_back(personen.RufVon(KindSatz(dokument_.cboKindlinien.Satz(linie), Lücken::Leer).KindNr()));
    std::erase(namen, std::string());
    if (!namen.empty()) texte.push_back(Kinderliste(namen, personen.sprache));
    return texte;
}

std::string Elementworte::Kind(int position) const {
    const KindSatz linie(dokument_.cboKindlinien.Satz(position), Lücken::Leer);
    const int kind = personen.bezüge.Person(linie.KindNr());
    const int plinie = personen.bezüge.PLinie(linie.PLinie());
    std::string eltern;
    if (plinie >= 0) {
        const PartnerschaftSatz paar(dokument_.cboPartnerschaftsLinien.Satz(plinie), Lücken::Leer);
        eltern = personen.RufVon(paar.PersNr1(), paar.PersNr2());
    }
    const bool mensch = kind >= 0 && Personenworte::IstMensch(SymbolKennzahl(
                                         PersonSatz(dokument_.cboPersonen.Satz(kind), Lücken::Leer).Symboltyp()));
    const std::string von = eltern.empty() ? eltern : Kindschaft(linie.Kindart(), mensch, eltern, personen.sprache);
    return Verbunden({Im(Kindlinienwort), Verbunden({personen.Ruf(kind), von}, ", ")}, ": ");
}

std::string Elementworte::Beziehung(int position) const {
    const BeziehungSatz linie(dokument_.cboBeziehungsLinien.Satz(position), Lücken::Leer);
    return Verbunden(
        {Beziehungswort(linie.Beziehungsart(), personen.sprache), personen.RufVon(linie.PersNr1(), linie.PersNr2())},
        ": ");
}

std::string Elementworte::Text(int position) const {
    const TextSatz box(dokument_.cboTextboxen.Satz(position), Lücken::Leer);
    return Eingesetzt(Textfeld, personen.sprache, {Einzeiler(box.Inhalt())});
}

/// A person or a text at an arrow's end, so near that it must be meant.
std::string Elementworte::WasLiegtBei(double x, double y) const {
    constexpr double Nähe = 0.6; // cm
    for (const auto &[art, speicher] :
         {std::pair(Elementart::Person, &dokument_.cboPersonen), std::pair(Elementart::Text, &dokument_.cboTextboxen)})
        for (int i = 0; i < speicher->Anzahl(); ++i) {
            const Umgebung u = Elementrahmen(dokument_, legende_, {art, i});
            if (!u.Leer && x > u.Links - Nähe && x < u.Rechts + Nähe && y > u.Oben - Nähe && y < u.Unten + Nähe)
                return Ruf({art, i});
        }
    return {};
}

std::string Elementworte::Pfeil(int position) const {
    static constexpr Zweisprachig Arten[] = {{"Pfeil", "arrow"}, {"Doppelpfeil", "double arrow"}};
    static constexpr Zweisprachig Bei{"% bei %", "% at %"};
    static constexpr Zweisprachig Von{"% von %", "% from %"};
    static constexpr Zweisprachig Zu{"% zu %", "% to %"};
    const PfeilSatz pfeil(dokument_.cboPfeile.Satz(position), Lücken::Leer);
    const std::string anfang = WasLiegtBei(pfeil.X1(), pfeil.Y1());
    const std::string ende = WasLiegtBei(pfeil.X2(), pfeil.Y2());
    std::string text = Im(Arten[pfeil.Pfeilart() == "2" ? 1 : 0]);
    const auto ergänzen = [&](const Zweisprachig &wie, const std::string &wen) {
        if (!wen.empty()) text = Eingesetzt(wie, personen.sprache, {text, wen});
    };
    if (anfang == ende) {
        ergänzen(Bei, anfang);
    } else {
        ergänzen(Von, anfang);
        ergänzen(Zu, ende);
    }
    return text;
}

/// Persons whose centre lies within the line.
std::vector<std::string> Elementworte::Umkreiste(int position) const {
    const Kreisinneres kreis(dokument_.cboFreehandlines.Satz(position), glättungsgrad_);
    std::vector<std::string> namen;
    for (int i = 0; i < dokument_.cboPersonen.Anzahl(); ++i) {
        const PersonSatz person(dokument_.cboPersonen.Satz(i), Lücken::Leer);
        if (person.HatOrt() && kreis.Hält(person.PosX(), person.PosY())) namen.push_back(personen.Ruf(i));
    }
    return namen;
}

std::string Elementworte::Kreis(int position) const {
    static constexpr Zählwort Personen{{"Person", "person"}, {"Personen", "persons"}};
    const auto namen = Umkreiste(position);
    if (namen.empty()) return Im(KreisAllein);
    const std::string wen = namen.size() <= Genannte
                                ? Aufgezählt(namen, personen.sprache)
                                : Gezählt(static_cast<int>(namen.size()), Personen, personen.sprache);
    return Eingesetzt(KreislinieUm, personen.sprache, {wen});
}

std::vector<std::string> Elementworte::ZumKreis(int position) const {
    const auto namen = Umkreiste(position);
    return {namen.size() > Genannte ? Aufgezählt(namen, personen.sprache) : std::string()};
}

std::string Elementworte::Legende(int) const { return Im(Legendenwort); }

std::vector<std::string> Elementworte::ZurLegende(int) const {
    std::vector<std::string> texte;
    for (const auto &code : legende_.lstLegende) texte.emplace_back(Legendeneintrag(code, personen.sprache));
    return {Verbunden(texte, ", ")};
}

} // namespace kw
