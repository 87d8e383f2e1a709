#include "document/Einstellungsablage.h"

#include "document/Dateien.h"
#include "document/Ganztexte.h"

#include <filesystem>
#include <span>
#include <utility>

namespace kw {

namespace {

std::string WertVon(const Profil &profil, std::string_view schlüssel) {
    return GanzLesen(profil, Einstellungsabschnitt, schlüssel);
}

bool Hat(const Profil &profil, std::string_view schlüssel) {
    return profil.LesenUngekürzt(Einstellungsabschnitt, schlüssel).has_value();
}

/// All that is written at once.
std::vector<std::string> Verfolgte(const Einstellungen &e) {
    std::vector<std::string> werte;
    for (const auto &zeile : Einstellungstafel)
        if (zeile.Sofort) werte.push_back(zeile.Text(e));
    for (int platz = 1; platz <= Chronik::Plätze; ++platz) werte.push_back(e.Zuletzt[platz]);
    return werte;
}

} // namespace

Einstellungen Einstellungsablage::Lesen() {
    std::string inhalt;
    const Dateibefund befund = DateiLesen(datei_, inhalt);
    if (befund.Grund == Ursache::FehltDatei) return {};
    gesperrt_ = !befund.Gelungen();
    const Profil profil(std::move(inhalt));
    for (const auto &zeile : Einstellungstafel) bekannt_[zeile.Name].Datei = WertVon(profil, zeile.Name);
    return EinstellungenLesen(profil);
}

void Einstellungsablage::Ausgangslage(const Einstellungen &e) {
    for (const auto &zeile : Einstellungstafel) bekannt_[zeile.Name].Hier = zeile.Text(e);
    chronik_ = e.Zuletzt;
    verfolgte_ = Verfolgte(e);
}

void Einstellungsablage::Nachführen(const Einstellungen &e) {
    // Looked at once, so that a full disk isn't asked again after every event; the end tries once more.
    if (auto werte = Verfolgte(e); werte == std::exchange(verfolgte_, werte)) return;
    Eintragen(e, [this](const auto &zeile, const auto &wert, const auto & /*profil*/) {
        return zeile.Sofort && wert != bekannt_[zeile.Name].Hier && !wert.empty();
    });
}

void Einstellungsablage::Abschließen(const Einstellungen &e) {
    OrdnerAnlegen();
    Eintragen(e, [this](const auto &zeile, const auto &wert, const auto &profil) {
        const auto &bekannt = bekannt_[zeile.Name];
        return wert != bekannt.Hier || WertVon(profil, zeile.Name) == bekannt.Datei;
    });
}

void Einstellungsablage::Festhalten(std::string_view schlüssel, const std::string &wert) {
    OrdnerAnlegen();
    Ändern([&](Profil &profil) { GanzSchreiben(profil, Einstellungsabschnitt, schlüssel, wert); });
}

void Einstellungsablage::Eintragen(const Einstellungen &e, const Frage &fällig) {
    auto bekannt = bekannt_;
    const bool geschrieben = Ändern([&](Profil &profil) {
        const auto eintragen = [&](const Einstellungsschlüssel &zeile) {
            const auto wert = zeile.Text(e);
            if (Hat(profil, zeile.Name) && !fällig(zeile, wert, profil)) return;
            GanzSchreiben(profil, Einstellungsabschnitt, zeile.Name, wert);
            bekannt[zeile.Name] = {wert, wert};
        };
        const std::span tafel(Einstellungstafel);
        for (const auto &zeile : tafel.first(VorDenLetzten)) eintragen(zeile);
        auto chronik = ChronikLesen(profil);
        chronik.Nachvollziehen(chronik_, e.Zuletzt);
        for (int platz = 1; platz <= Chronik::Plätze; ++platz)
            GanzSchreiben(profil, Einstellungsabschnitt, LetzterPfadSchlüssel(platz), chronik[platz]);
        for (const auto &zeile : tafel.subspan(VorDenLetzten))
            if (!zeile.Text(e).empty()) eintragen(zeile);
    });
    if (!geschrieben) return;
    bekannt_ = std::move(bekannt);
    chronik_ = e.Zuletzt;
}

/// True when the file holds the change.
bool Einstellungsablage::Ändern(const std::function<void(Profil &)> &schreiben) const {
    std::string inhalt;
    // Only one that isn't there is an empty one: what else can't be read would lose its other keys.
    const Dateibefund befund = DateiLesen(datei_, inhalt);
    if (gesperrt_ || (!befund.Gelungen() && befund.Grund != Ursache::FehltDatei)) return false;
    Profil profil(inhalt);
    schreiben(profil);
    const auto neu = profil.Inhalt();
    return neu == inhalt || DateiSchreiben(datei_, neu).Gelungen();
}

/// A folder that can't be made loses the settings, as one without permission does.
void Einstellungsablage::OrdnerAnlegen() const {
    std::error_code fehler;
    if (!gesperrt_) std::filesystem::create_directories(std::filesystem::path(datei_).parent_path(), fehler);
}

} // namespace kw
