// The settings file: read and written, and a start of the program with it.
#include "Buehne.h"
#include "Ziel.h"

#include "document/Einstellungen.h"
#include "document/Ganztexte.h"

#include <string>

namespace kw {

namespace {

/// What stands around it in quotation marks or blanks goes with each reading.
bool Gleich(const std::string &vorher, const std::string &nachher) { return vorher == nachher || !Überlebt(vorher); }

Einstellungen Umlauf(const Einstellungen &e, Profil profil) {
    const auto schreiben = [&](std::string_view schlüssel, const std::string &wert) {
        GanzSchreiben(profil, Einstellungsabschnitt, schlüssel, wert);
    };
    for (const auto &zeile : Einstellungstafel) schreiben(zeile.Name, zeile.Text(e));
    for (int platz = 1; platz <= Chronik::Plätze; ++platz) schreiben(LetzterPfadSchlüssel(platz), e.Zuletzt[platz]);
    return EinstellungenLesen(Profil(profil.Inhalt()));
}

} // namespace

} // namespace kw

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl) {
    using namespace kw;
    const auto text = AlsText(bytes, anzahl);
    const Profil profil{std::string(text)};
    const auto e = EinstellungenLesen(profil);
    for (const auto &wieder : {Umlauf(e, Profil()), Umlauf(e, profil)}) {
        Halten(wieder.Orientation == e.Orientation && wieder.Papiercode == e.Papiercode, "the page stays");
        Halten(wieder.Farbschema == e.Farbschema && wieder.Raster == e.Raster, "scheme and grid stay");
        Halten(wieder.Werkzeugleiste == e.Werkzeugleiste, "the toolbar stays");
        Halten(Gleich(e.LetzterPfad, wieder.LetzterPfad) && Gleich(e.stdfontname, wieder.stdfontname), "texts stay");
        for (int i = 1; i <= Chronik::Plätze; ++i) Halten(Gleich(e.Zuletzt[i], wieder.Zuletzt[i]), "files stay");
    }

    static const Bühne Bühne;
    Bühne.Datei("prog.ini", text);
    Bühne.Spielen("start ini=prog.ini\nwait 400\ntool 1\nclick 5 5\ntool 10\nclick 9 9\ndraw\n"
                  "menu mnuSchriftart\nmenu mnuAltersangabe\nmenu mnuEinstellungen\nmenu mnuSeiteEinrichten\n"
                  "menu mnuRecent(1)\nmenu mnuFarbig\npick cboRaster 1\ndraw printing\nanswer no\nclose\n");
    const auto danach = EinstellungenLesen(Profil(Bühne.Gelesen("prog.ini")));
    Halten(danach.Raster == 1 && danach.Altersanzeige == e.Altersanzeige, "the program writes what it has");
    Bühne.Spielen("start ini=prog.ini\ndraw\nclose\n");
    return 0;
}
