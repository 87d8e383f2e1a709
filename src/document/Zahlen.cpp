#include "document/Zahlen.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace kw {

namespace {

constexpr int Stellen = 7; ///< significant digits of a single that records show

bool IstZiffer(char c) { return c >= '0' && c <= '9'; }

/// The part of `text` that is a plain decimal number, its sign included.
std::string_view Zahlanfang(std::string_view text) {
    size_t ende = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    bool punkt = false;
    bool ziffer = false;
    for (; ende < text.size(); ++ende) {
        if (text[ende] == '.' && !punkt) {
            punkt = true;
        } else if (IstZiffer(text[ende])) {
            ziffer = true;
        } else {
            break;
        }
    }
    return ziffer ? text.substr(0, ende) : std::string_view{};
}

} // namespace

double ZahlLesen(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    auto zahl = Zahlanfang(text);
    if (zahl.empty()) return 0;
    if (zahl[0] == '+') zahl.remove_prefix(1); // from_chars knows no plus sign
    double wert = 0;
    const auto ergebnis = std::from_chars(zahl.data(), zahl.data() + zahl.size(), wert, std::chars_format::fixed);
    if (ergebnis.ec == std::errc::result_out_of_range) {
        // Too large or too close to 0: only a number with digits before the point is large.
        const bool groß = zahl.substr(0, zahl.find('.')).find_first_of("123456789") != std::string_view::npos;
        wert = !groß ? 0 : zahl[0] == '-' ? -double{FLT_MAX} : double{FLT_MAX};
    }
    // A damaged record must not bring an infinity into the layout.
    return std::clamp(wert, -double{FLT_MAX}, double{FLT_MAX});
}

std::string ZahlSchreiben(double wert) {
    if (!std::isfinite(wert)) return "0";
    const auto einfach = static_cast<float>(std::clamp(wert, -double{FLT_MAX}, double{FLT_MAX}));
    if (einfach == 0.0F) return "0";

    char puffer[32];
    const auto ende = std::to_chars(std::begin(puffer), std::end(puffer), double{std::fabs(einfach)},
                                    std::chars_format::scientific, Stellen - 1)
                          .ptr;
    // "d.dddddde+xx": the digits are laid out anew, since records know no exponent.
    std::string ziffern(1, puffer[0]);
    ziffern.append(puffer + 2, Stellen - 1);
    const int exponent = std::atoi(std::string(puffer + 2 + Stellen, ende).c_str());

    if (exponent < 0) ziffern.insert(0, static_cast<size_t>(-exponent), '0');
    const auto vorPunkt = static_cast<size_t>(std::max(exponent, 0)) + 1;
    if (ziffern.size() < vorPunkt) ziffern.append(vorPunkt - ziffern.size(), '0');
    std::string text = ziffern.substr(0, vorPunkt) + "." + ziffern.substr(vorPunkt);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return einfach < 0 ? "-" + text : text;
}

double OhneRauschen(double wert) {
    constexpr double Genauigkeit = 1e6;
    const double groß = wert * Genauigkeit;
    if (!(std::fabs(groß) < 0x1p52)) return wert; // nothing behind the point is left to clean
    return std::nearbyint(groß) / Genauigkeit;
}

double Gerundet(double wert, int stellen) {
    static constexpr double Potenzen[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
    const double faktor = Potenzen[std::clamp(stellen, 0, 9)];
    const double groß = wert * faktor;
    if (!(std::fabs(groß) < 0x1p52)) return wert; // nothing behind the point is left to round
    return std::nearbyint(OhneRauschen(groß)) / faktor;
}

double Gerastert(double wert, double raster) {
    if (!(raster > 0)) return wert;
    return OhneRauschen(Gerundet(wert / raster, 0) * raster); // 36 * 0.3 is 10.8 like the same place read from a record
}

double RasterZwischen(double wert, double raster, double von, double bis) {
    if (raster <= 0) return std::clamp(wert, von, std::max(von, bis));
    const double erstes = std::ceil(Gerundet(von / raster, 6)) * raster;
    const double letztes = std::floor(Gerundet(bis / raster, 6)) * raster;
    const double nächstes = Gerastert(wert, raster);
    return letztes < erstes ? nächstes : std::clamp(nächstes, erstes, letztes);
}

int Ganzzahl16(double wert) {
    if (std::isnan(wert)) return 0;
    return static_cast<int>(std::clamp(std::nearbyint(wert), -32768.0, 32767.0));
}

std::string Dreistellig(int nummer) {
    auto ziffern = std::to_string(std::abs(nummer));
    if (ziffern.size() < 3) ziffern.insert(0, 3 - ziffern.size(), '0');
    return nummer < 0 ? "-" + ziffern : ziffern;
}

} // namespace kw
