#include "arrangement/Begleitung.h"

#include "arrangement/Umzug.h"
#include "document/Zahlen.h"
#include "document/saetze/Person.h"
#include "editing/Elemente.h"
#include "editing/Texte.h"
#include "rendering/Beschriftung.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kw {

namespace {

constexpr double Umkreis = 5;       ///< so far away a text is still read with its person, cm
constexpr double Schritt = 0.1;     ///< at least, from one place that is tried to the next, cm
constexpr double Linienumweg = 1.5; ///< rather that much farther away than on a line, cm

Umgebung Versetzt(const Umgebung &u, Ort weg) {
    Umgebung dort;
    dort.Aufnehmen(u.Links + weg.X, u.Oben + weg.Y, u.Rechts - u.Links, u.Unten - u.Oben);
    return dort;
}

double Überdeckung(const Umgebung &a, const Umgebung &b) {
    return std::max(0.0, std::min(a.Rechts, b.Rechts) - std::max(a.Links, b.Links)) *
           std::max(0.0, std::min(a.Unten, b.Unten) - std::max(a.Oben, b.Oben));
}

} // namespace

Begleitung::Begleitung(Werkbank &w) : w_(w) {
    for (const std::string &satz : w_.dokument.cboPersonen) {
        const PersonSatz person(satz, Lücken::Leer);
        orte_.push_back({person.PosX(), person.PosY()});
    }
    for (const Umgebung &u : Personenkästen()) personen_.push_back({u, u});
    const Zugehörigkeit zugehörigkeit(w_.dokument, w_.ansicht);
    for (int i = 0; i < w_.dokument.cboTextboxen.Anzahl(); ++i) { // a damaged one stays as it is
        const Umgebung u = Elementrahmen(w_.dokument, w_.legende, {Elementart::Text, i});
        if (!u.Leer) texte_.push_back({i, zugehörigkeit.PersonZuText(u), u, u});
    }
}

void Begleitung::Nachholen() {
    const std::vector<Umgebung> neue = Personenkästen();
    for (size_t i = 0; i < neue.size(); ++i) personen_[i].Neu = neue[i];
    for (const Seitenlinie &linie : LinienDerSeite(w_.dokument, w_.ansicht))
        linien_.insert(linien_.end(), linie.Kästen.begin(), linie.Kästen.end());
    for (Text &text : texte_) {
        text.Liegt = !text.Person;
        if (text.Liegt) continue;
        const PersonSatz person(w_.dokument.cboPersonen.Satz(*text.Person), Lücken::Leer);
        const Ort alt = orte_[static_cast<size_t>(*text.Person)];
        text.Neu = Versetzt(text.Alt, {person.PosX() - alt.X, person.PosY() - alt.Y});
    }
    const auto bringen = [this](bool stehende) {
        for (Text &text : texte_) {
            const bool steht = text.Neu.Links == text.Alt.Links && text.Neu.Oben == text.Alt.Oben;
            if (text.Liegt || steht != stehende) continue;
            if (!Frei(text)) Suchen(text);
            text.Liegt = true;
        }
    };
    bringen(true); // whoever needn't go comes first
    bringen(false);
    for (const Text &text : texte_) {
        const Ort weg{text.Neu.Links - text.Alt.Links, text.Neu.Oben - text.Alt.Oben};
        Satzliste &speicher = w_.dokument.cboTextboxen;
        if (weg.X != 0 || weg.Y != 0)
            speicher.Ersetzen(text.Position, TexteInGruppen.Verschoben(speicher.Satz(text.Position),
                                                                       OhneRauschen(weg.X), OhneRauschen(weg.Y)));
    }
}

/// Two of each person, one of them perhaps empty: the symbol and, narrower or wider, the names below it.
std::vector<Umgebung> Begleitung::Personenkästen() const {
    std::vector<Umgebung> kästen;
    for (const std::string &satz : w_.dokument.cboPersonen) {
        const PersonSatz p(satz, Lücken::Leer);
        Umgebung symbol;
        Umgebung namen;
        if (p.HatOrt()) {
            const double halb = p.Groesse() / 2;
            const double breite = Namensbreite(w_.picVorschau, p);
            const bool zweizeilig = !p.Vorname().empty() && !p.Nachname().empty();
            symbol.Aufnehmen(p.PosX() - halb, p.PosY() - halb, 2 * halb, 2 * halb);
            if (breite > 0)
                namen.Aufnehmen(p.PosX() - breite / 2, p.PosY() + halb, breite, Namenshöhe / (zweizeilig ? 1 : 2));
        }
        kästen.insert(kästen.end(), {symbol, namen});
    }
    return kästen;
}

/// What the text mustn't lie on. Texts that will still move look out for themselves.
std::vector<Begleitung::Ding> Begleitung::Dinge(const Text &text) const {
    std::vector<Ding> dinge = personen_;
    const Umgebung legende = Elementrahmen(w_.dokument, w_.legende, {Elementart::Legende});
    if (!legende.Leer) dinge.push_back({legende, legende});
    for (const Text &anderer : texte_)
        if (&anderer != &text && anderer.Liegt) dinge.push_back({anderer.Alt, anderer.Neu});
    std::erase_if(dinge, [](const Ding &ding) { return ding.Neu.Leer; });
    return dinge;
}

/// Whether it can stay where going along brought it: on nothing new, and not off the page.
bool Begleitung::Frei(const Text &text) const {
    const auto dinge = Dinge(text);
    return (AufDerSeite(text.Neu) || !AufDerSeite(text.Alt)) &&
           std::all_of(dinge.begin(), dinge.end(), [&](const Ding &ding) {
               return !LiegenAufeinander(text.Neu, ding.Neu) || LiegenAufeinander(text.Alt, ding.Alt);
           });
}

void Begleitung::Suchen(Text &text) const {
    const auto dinge = Dinge(text);
    const double schritt = std::max(Schritt, w_.ansicht.Rasterweite);
    const int schritte = static_cast<int>(Umkreis / schritt);
    const auto aufDieSeite = [](double von, double bis, double seite) { // how far it has to go
        return von < 0 || bis - von > seite ? -von : std::min(0.0, seite - bis);
    };
    const Umgebung soll = Versetzt(text.Neu, {aufDieSeite(text.Neu.Links, text.Neu.Rechts, w_.ansicht.SeitenBreite),
                                              aufDieSeite(text.Neu.Oben, text.Neu.Unten, w_.ansicht.SeitenHöhe)});
    std::pair<double, double> bester{HUGE_VAL, HUGE_VAL}; // what it lies on, square cm; how far it went
    for (int i = -schritte; i <= schritte; ++i)
        for (int k = -schritte; k <= schritte; ++k) {
            const Ort weg{i * schritt, k * schritt};
            const Umgebung hier = Versetzt(soll, weg);
            const auto trifft = [&](const Umgebung &u) { return LiegenAufeinander(hier, u); };
            double ferne = std::hypot(weg.X, weg.Y);
            if ((!AufDerSeite(hier) && (i != 0 || k != 0)) || ferne > Umkreis) continue;
            double fläche = 0;
            for (const Ding &ding : dinge) fläche += trifft(ding.Neu) ? Überdeckung(hier, ding.Neu) : 0;
            if (std::pair(fläche, ferne) >= bester) continue;
            if (std::any_of(linien_.begin(), linien_.end(), trifft)) ferne += Linienumweg;
            const std::pair wert{Gerundet(fläche, 4), Gerundet(ferne, 4)}; // equally far is so on every machine
            if (wert >= bester) continue;
            bester = wert;
            text.Neu = hier;
        }
}

bool Begleitung::AufDerSeite(const Umgebung &u) const {
    return !(u.Links < 0 || u.Oben < 0 || u.Rechts > w_.ansicht.SeitenBreite || u.Unten > w_.ansicht.SeitenHöhe);
}

} // namespace kw
