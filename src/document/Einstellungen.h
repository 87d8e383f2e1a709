#pragma once

#include "document/Chronik.h"
#include "document/Profil.h"
#include "platform/Fensterlage.h"
#include "platform/Sprache.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kw {

/// The user's settings as the file `prog.ini` holds them in its section DEFAULT.
struct Einstellungen {
    int Orientation = 2;
    int Papiercode = 9;
    std::string LetzterPfad; ///< folder of the last project, with its closing "/"
    std::string stdfontname = "Arial";
    std::string stdfont_s = "8"; ///< points
    std::string stdfont_m = "11";
    std::string stdfont_l = "14";
    int Farbschema = 0;
    int Altersanzeige = 0;
    int Raster = 0; ///< list position of `cboRaster`; a third entry comes back as the first. Meant.
    bool Werkzeugleiste = true;
    int Zoom = 2; ///< list position, written only
    kw::Sprache Sprache = kw::Sprache::Englisch;
    bool OhneSprache = true; ///< none has been chosen yet
    Chronik Zuletzt;
    std::optional<Fensterlage> Fenster; ///< nothing until a window has told
};

/// Missing keys give the defaults, damaged values what can be read of them; nothing fails.
Einstellungen EinstellungenLesen(const Profil &profil);

/// A key that the program writes of itself, beside those of the recent files. `agedisplay` and `language` are none:
/// their forms write them.
struct Einstellungsschlüssel {
    std::string_view Name;
    bool Sofort; ///< written when the user changes it, else at the program's end only
    std::string (*Text)(const Einstellungen &);
};
/// In the order of the file. The recent files come behind the first `VorDenLetzten`; what stands behind them is written
/// only once there is a value.
extern const std::array<Einstellungsschlüssel, 12> Einstellungstafel;
constexpr std::size_t VorDenLetzten = 11;
constexpr std::string_view Einstellungsabschnitt = "DEFAULT";
std::string LetzterPfadSchlüssel(int platz);
Chronik ChronikLesen(const Profil &profil);

/// The settings of that file. A file that isn't there gives the defaults of the very first start, one that
/// can't be read those of an empty file.
Einstellungen EinstellungenAus(const std::string &datei);

/// The folder of the last project, as the file says now.
std::string LetzterOrdner(const std::string &datei);

/// Where the settings file lives: in the program's folder when it is there already or that folder is
/// writable and no system folder, else in `konfigordner`. Both without a closing "/".
std::string EinstellungsDatei(const std::string &programmordner, const std::string &konfigordner);

} // namespace kw
