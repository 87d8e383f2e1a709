#include "document/Einstellungen.h"

#include "document/Dateien.h"
#include "document/Papier.h"
#include "document/Zahlen.h"

#include <filesystem>

namespace kw {

namespace {

constexpr std::string_view Abschnitt = "DEFAULT";

std::string OderSonst(const std::string &wert, const std::string &sonst) { return wert.empty() ? sonst : wert; }

std::string LetzterPfadSchlüssel(int platz) { return "lastpath_" + std::to_string(platz); }

/// A folder that can't be made loses the settings, as one without permission does.
void OrdnerAnlegen(const std::string &datei) {
    std::error_code fehler;
    std::filesystem::create_directories(std::filesystem::path(datei).parent_path(), fehler);
}

} // namespace

Einstellungen EinstellungenLesen(const Profil &profil) {
    const auto text = [&](std::string_view schlüssel) { return profil.Lesen(Abschnitt, schlüssel); };
    const auto zahl = [&](std::string_view schlüssel) { return Ganzzahl16(ZahlLesen(text(schlüssel))); };
    Einstellungen e;
    e.Orientation = zahl("orientation");
    e.Papiercode = PapiercodeAus(text("papersize")).value_or(DinA4);
    e.LetzterPfad = text("lastpath");
    e.stdfontname = OderSonst(text("stdfontname"), e.stdfontname);
    e.stdfont_s = OderSonst(text("stdfont_s"), e.stdfont_s);
    e.stdfont_m = OderSonst(text("stdfont_m"), e.stdfont_m);
    e.stdfont_l = OderSonst(text("stdfont_l"), e.stdfont_l);
    e.Farbschema = zahl("clscheme");
    e.Altersanzeige = zahl("agedisplay");
    e.Raster = text("gridsize") == "1" ? 1 : 0;
    const std::string leiste = text("toolbar");
    e.Werkzeugleiste = leiste.empty() || leiste == "1";
    e.OhneSprache = text("language").empty();
    e.Sprache = SpracheAus(text("language"));
    for (int platz = 1; platz <= Chronik::Plätze; ++platz) e.Zuletzt.Setzen(platz, text(LetzterPfadSchlüssel(platz)));
    return e;
}

void EinstellungenEintragen(const Einstellungen &e, Profil &profil) {
    const auto schreiben = [&](std::string_view schlüssel, const std::string &wert) {
        profil.Schreiben(Abschnitt, schlüssel, wert);
    };
    schreiben("orientation", std::to_string(e.Orientation));
    schreiben("lastpath", e.LetzterPfad);
    schreiben("psize", std::to_string(e.Zoom));
    schreiben("stdfontname", e.stdfontname);
    schreiben("stdfont_s", e.stdfont_s);
    schreiben("stdfont_m", e.stdfont_m);
    schreiben("stdfont_l", e.stdfont_l);
    schreiben("clscheme", std::to_string(e.Farbschema));
    schreiben("papersize", std::to_string(e.Papiercode));
    schreiben("gridsize", std::to_string(e.Raster));
    schreiben("toolbar", e.Werkzeugleiste ? "1" : "0");
    for (int platz = 1; platz <= Chronik::Plätze; ++platz) schreiben(LetzterPfadSchlüssel(platz), e.Zuletzt[platz]);
}

Einstellungen EinstellungenAus(const std::string &datei) {
    std::string inhalt;
    if (!DateiVorhanden(datei)) return {};
    DateiLesen(datei, inhalt);
    return EinstellungenLesen(Profil(std::move(inhalt)));
}

void EinstellungenSchreiben(const Einstellungen &e, const std::string &datei) {
    std::string inhalt;
    const Dateibefund befund = DateiLesen(datei, inhalt);
    if (!befund.Gelungen() && befund.Grund != Ursache::FehltDatei) return;
    OrdnerAnlegen(datei);
    Profil profil(std::move(inhalt));
    EinstellungenEintragen(e, profil);
    DateiSchreiben(datei, profil.Inhalt());
}

void EinstellungFesthalten(const std::string &datei, std::string_view schlüssel, const std::string &wert) {
    OrdnerAnlegen(datei);
    ProfilSchreiben(datei, Abschnitt, schlüssel, wert);
}

std::string EinstellungsDatei(const std::string &programmordner, const std::string &konfigordner) {
    const std::string daneben = programmordner + "/prog.ini";
    if (DateiVorhanden(daneben)) return daneben;
    if (IstFürDateien(programmordner)) return daneben;
    return konfigordner + "/prog.ini";
}

} // namespace kw
