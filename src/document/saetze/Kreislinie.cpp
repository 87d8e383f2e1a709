#include "document/saetze/Kreislinie.h"

namespace kw {

std::optional<Kreispunkt> KreisSatz::Nächster() {
    while (!rest_.empty()) {
        auto punkt = Abgetrennt(rest_, '_');
        if (punkt.find('^') != std::string_view::npos) {
            const double x = ZahlLesen(Abgetrennt(punkt, '^'));
            return Kreispunkt{x, ZahlLesen(Abgetrennt(punkt, '^'))};
        }
        if (lücken_ == Lücken::Fehler) throw FeldFehlt();
    }
    return std::nullopt;
}

std::vector<Kreispunkt> KreisPunkte(std::string_view satz) {
    std::vector<Kreispunkt> punkte;
    KreisSatz kreis(satz);
    while (const auto punkt = kreis.Nächster()) punkte.push_back(*punkt);
    return punkte;
}

void KreisPunktAnhängen(std::string &punktListe, Kreispunkt punkt) {
    punktListe += ZahlSchreiben(punkt.X) + "^" + ZahlSchreiben(punkt.Y) + "_";
}

std::string KreisText(const std::vector<Kreispunkt> &punkte) {
    std::string satz;
    for (const Kreispunkt &punkt : punkte) KreisPunktAnhängen(satz, punkt);
    if (!satz.empty()) satz.pop_back();
    return satz;
}

std::string KreisVerschoben(std::string_view satz, double dx, double dy) {
    auto punkte = KreisPunkte(satz);
    for (Kreispunkt &punkt : punkte) punkt = {OhneRauschen(punkt.X + dx), OhneRauschen(punkt.Y + dy)};
    return KreisText(punkte);
}

} // namespace kw
