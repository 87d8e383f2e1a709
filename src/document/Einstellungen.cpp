#include "document/Einstellungen.h"

#include "document/Dateien.h"
#include "document/Fensterplatz.h"
#include "document/Ganztexte.h"
#include "document/Papier.h"
#include "document/Zahlen.h"

namespace kw {

namespace {

std::string OderSonst(const std::string &wert, const std::string &sonst) { return wert.empty() ? sonst : wert; }

} // namespace

const std::array<Einstellungsschlüssel, 12> Einstellungstafel{{
    {"orientation", false, [](const Einstellungen &e) { return std::to_string(e.Orientation); }},
    {"lastpath", true, [](const Einstellungen &e) { return e.LetzterPfad; }},
    {"psize", false, [](const Einstellungen &e) { return std::to_string(e.Zoom); }},
    {"stdfontname", true, [](const Einstellungen &e) { return e.stdfontname; }},
    {"stdfont_s", true, [](const Einstellungen &e) { return e.stdfont_s; }},
    {"stdfont_m", true, [](const Einstellungen &e) { return e.stdfont_m; }},
    {"stdfont_l", true, [](const Einstellungen &e) { return e.stdfont_l; }},
    {"clscheme", true, [](const Einstellungen &e) { return std::to_string(e.Farbschema); }},
    {"papersize", false, [](const Einstellungen &e) { return std::to_string(e.Papiercode); }},
    {"gridsize", true, [](const Einstellungen &e) { return std::to_string(e.Raster); }},
    {"toolbar", true, [](const Einstellungen &e) { return std::string(e.Werkzeugleiste ? "1" : "0"); }},
    {"window", false, [](const Einstellungen &e) { return e.Fenster ? FensterlageText(*e.Fenster) : ""; }},
}};

std::string LetzterPfadSchlüssel(int platz) { return "lastpath_" + std::to_string(platz); }

Chronik ChronikLesen(const Profil &profil) {
    Chronik chronik;
    for (int platz = 1; platz <= Chronik::Plätze; ++platz)
        chronik.Setzen(platz, GanzLesen(profil, Einstellungsabschnitt, LetzterPfadSchlüssel(platz)));
    return chronik;
}

Einstellungen EinstellungenLesen(const Profil &profil) {
    const auto text = [&](std::string_view schlüssel) { return GanzLesen(profil, Einstellungsabschnitt, schlüssel); };
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
    e.Zuletzt = ChronikLesen(profil);
    e.Fenster = FensterlageAus(text("window"));
    return e;
}

Einstellungen EinstellungenAus(const std::string &datei) {
    std::string inhalt;
    if (!DateiVorhanden(datei)) return {};
    DateiLesen(datei, inhalt);
    return EinstellungenLesen(Profil(std::move(inhalt)));
}

std::string LetzterOrdner(const std::string &datei) {
    std::string inhalt;
    DateiLesen(datei, inhalt); // a file that can't be read names none
    return GanzLesen(Profil(std::move(inhalt)), Einstellungsabschnitt, "lastpath");
}

std::string EinstellungsDatei(const std::string &programmordner, const std::string &konfigordner) {
    const std::string daneben = programmordner + "/prog.ini";
    if (DateiVorhanden(daneben)) return daneben;
    if (IstFürDateien(programmordner)) return daneben;
    return konfigordner + "/prog.ini";
}

} // namespace kw
