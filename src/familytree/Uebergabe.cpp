#include "familytree/Uebergabe.h"

#include "document/saetze/Kind.h"
#include "familytree/Uebergeber.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kw {

namespace {

struct Artverlust {
    int Typ;
    Übergabeverlust Verlust;
};
constexpr std::array Bleibende{Artverlust{TypSchwangerschaft, Übergabeverlust::Schwangerschaften},
                               Artverlust{TypFehlgeburt, Übergabeverlust::Fehlgeburten},
                               Artverlust{TypAbtreibung, Übergabeverlust::Abtreibungen},
                               Artverlust{TypInstitution, Übergabeverlust::Institutionen}};

const Artverlust *Bleibend(std::string_view symboltyp) {
    const int typ = SymbolKennzahl(symboltyp);
    const auto *const art =
        std::find_if(Bleibende.begin(), Bleibende.end(), [&](const Artverlust &a) { return a.Typ == typ; });
    return art == Bleibende.end() ? nullptr : art;
}

template <class Liste> bool Hat(const Liste &liste, std::size_t wen) {
    return std::find(liste.begin(), liste.end(), wen) != liste.end();
}

} // namespace

bool HatStammbaum(const Dokument &dokument) {
    const auto &personen = dokument.cboPersonen;
    return std::any_of(personen.begin(), personen.end(), [](const std::string &satz) {
        return Bleibend(PersonSatz(satz, Lücken::Leer).Symboltyp()) == nullptr;
    });
}

Übergabe Übergeben(const Dokument &dokument, const Uhr &uhr, const Übergabewünsche &wünsche) {
    return Übergeber(dokument, uhr, wünsche).Tun();
}

Übergabe Übergeber::Tun() {
    PersonenSammeln();
    FamilienSammeln();
    RestZählen();
    KopfSchreiben();
    for (const auto &person : personen_) PersonSchreiben(person);
    for (const auto &familie : familien_) FamilieSchreiben(familie);
    datei_.Satz({}, "TRLR");
    ergebnis_.Personen = personen_.size();
    ergebnis_.Text = datei_.Text();
    return std::move(ergebnis_);
}

PersonSatz Übergeber::Satz(int position) const {
    return PersonSatz(dokument_.cboPersonen.Satz(position), Lücken::Leer);
}

void Übergeber::PersonenSammeln() {
    for (int i = 0; i < dokument_.cboPersonen.Anzahl(); ++i) {
        const auto *const bleibend = Bleibend(Satz(i).Symboltyp());
        if (bleibend) Zählen(bleibend->Verlust);
        else personen_.push_back({i, {}, {}, {}, {}});
    }
    // Readers propose the first one as the person whose tree it is.
    const auto index =
        std::find_if(personen_.begin(), personen_.end(), [&](const Person &p) { return Satz(p).IndexPerson() == "1"; });
    if (index != personen_.end()) std::rotate(personen_.begin(), index, index + 1);
    for (std::size_t i = 0; i < personen_.size(); ++i) {
        personen_[i].Kennung = "I" + std::to_string(i + 1);
        stellen_.emplace(personen_[i].Position, i);
    }
}

/// The place of the person with that number, `Niemand` when nobody goes along who has it.
std::size_t Übergeber::Mitgehender(std::string_view nr) const {
    const auto stelle = stellen_.find(bezüge_.Person(nr));
    return stelle == stellen_.end() ? Niemand : stelle->second;
}

void Übergeber::FamilienSammeln() {
    for (int i = 0; i < dokument_.cboPartnerschaftsLinien.Anzahl(); ++i) {
        const PartnerschaftSatz linie(dokument_.cboPartnerschaftsLinien.Satz(i), Lücken::Leer);
        Familie familie{{}, i, {}, {}};
        PartnerSammeln(linie, familie);
        if (bezüge_.PLinie(linie.Nr()) == i) KinderSammeln(linie.Nr(), familie);
        if (linie.Distanziert()) Zählen(Übergabeverlust::Distanzierte);
        if (familie.Partner.size() < 2) Zählen(Übergabeverlust::Partnerlinien);
        if (familie.Partner.size() + familie.Kinder.size() < 2) continue;
        familie.Kennung = "F" + std::to_string(familien_.size() + 1);
        familien_.push_back(std::move(familie));
    }
    for (const auto &familie : familien_) {
        for (const auto partner : familie.Partner) personen_[partner].AlsPartner.push_back(familie.Kennung);
        for (const auto kind : familie.Kinder) personen_[kind].Eltern = familie.Kennung;
    }
}

/// Both partners, the man first where there is one beside somebody who is none.
void Übergeber::PartnerSammeln(const PartnerschaftSatz &linie, Familie &familie) const {
    for (const auto nr : {linie.PersNr1(), linie.PersNr2()}) {
        const auto partner = Mitgehender(nr);
        if (partner != Niemand && !Hat(familie.Partner, partner)) familie.Partner.push_back(partner);
    }
    const auto rang = [&](std::size_t partner) {
        const int typ = SymbolKennzahl(Satz(personen_[partner]).Symboltyp());
        return IstMann(typ) ? 0 : IstFrau(typ) ? 2 : 1;
    };
    std::stable_sort(familie.Partner.begin(), familie.Partner.end(), [&](auto a, auto b) { return rang(a) < rang(b); });
}

/// From left to right, as their order shows on the page.
void Übergeber::KinderSammeln(std::string_view linie, Familie &familie) {
    for (const int i : bezüge_.KinderVon(linie)) {
        const KindSatz satz(dokument_.cboKindlinien.Satz(i), Lücken::Leer);
        const auto kind = Mitgehender(satz.KindNr());
        // Of several lines of a child the first one counts.
        if (kind == Niemand || bezüge_.Kindlinie(satz.KindNr()) != i || Hat(familie.Partner, kind)) continue;
        familie.Kinder.push_back(kind);
        personen_[kind].Kindart = satz.Kindart();
    }
    const auto x = [&](std::size_t kind) { return Satz(personen_[kind]).PosX(); };
    std::stable_sort(familie.Kinder.begin(), familie.Kinder.end(), [&](auto a, auto b) { return x(a) < x(b); });
}

/// Identical twins are joined by a relationship line, which belongs to their mark.
bool Übergeber::SindEineiige(std::string_view nr, std::string_view andere) const {
    const auto eine = Mitgehender(nr);
    if (eine == Niemand) return false;
    const auto satz = Satz(personen_[eine]);
    return satz.Eineiig() && satz.ZwillingNr() == andere;
}

/// Whether a relationship line leads from one to another of those who go along, and isn't told otherwise.
bool Übergeber::GehtMit(const BeziehungSatz &beziehung) const {
    const auto von = Mitgehender(beziehung.PersNr1()), zu = Mitgehender(beziehung.PersNr2());
    return von != Niemand && zu != Niemand && von != zu;
}

void Übergeber::RestZählen() {
    for (const auto &text : dokument_.cboBeziehungsLinien) {
        const BeziehungSatz beziehung(text, Lücken::Leer);
        if (SindEineiige(beziehung.PersNr1(), beziehung.PersNr2())) continue;
        if (!wünsche_.Beziehungslinien || !GehtMit(beziehung)) Zählen(Übergabeverlust::Beziehungslinien);
    }
    const auto anzahl = [](const Satzliste &liste) { return static_cast<std::size_t>(liste.Anzahl()); };
    Zählen(Übergabeverlust::Textboxen, anzahl(dokument_.cboTextboxen));
    Zählen(Übergabeverlust::Pfeile, anzahl(dokument_.cboPfeile));
    Zählen(Übergabeverlust::Kreislinien, anzahl(dokument_.cboFreehandlines));
    Zählen(Übergabeverlust::Legende, dokument_.LegendeSichtbar ? 1 : 0);
}

} // namespace kw
