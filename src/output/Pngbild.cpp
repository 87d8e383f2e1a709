#include "output/Pngbild.h"

#include <libdeflate.h>
#include <limits>
#include <memory>
#include <new>
#include <string_view>

namespace kw {

namespace {

/// Pages are white with a few shapes. The second level already makes them smaller than the toolkit does, in an eighth
/// of its time; rows as differences of their neighbours would make them larger. Where the row above is out of the
/// compression's reach it has to look harder for what repeats.
int Stufe(std::size_t zeilenlänge) {
    constexpr std::size_t Reichweite = 32768;
    return zeilenlänge <= Reichweite ? 2 : 5;
}

void Anhängen(std::string &ziel, std::uint32_t zahl) {
    for (const unsigned bit : {24U, 16U, 8U, 0U}) ziel += static_cast<char>(zahl >> bit & 0xFFU);
}

/// `name` has four letters.
void Abschnitt(std::string &datei, std::string_view name, std::string_view inhalt) {
    Anhängen(datei, static_cast<std::uint32_t>(inhalt.size()));
    const std::size_t geprüft = datei.size();
    datei += name;
    datei += inhalt;
    Anhängen(datei, libdeflate_crc32(0, datei.data() + geprüft, datei.size() - geprüft));
}

std::string Kopf(std::uint32_t breite, std::uint32_t höhe) {
    std::string kopf;
    Anhängen(kopf, breite);
    Anhängen(kopf, höhe);
    // Eight bits of red, green and blue; deflate, the standard filters, rows in their order.
    kopf.append({8, 2, 0, 0, 0});
    return kopf;
}

std::string Auflösung(std::uint32_t jeMeter) {
    std::string auflösung;
    Anhängen(auflösung, jeMeter);
    Anhängen(auflösung, jeMeter);
    return auflösung += '\1'; // the unit is the metre
}

/// The rows as the file has them, each behind the number of its filter: none. Three bytes a pixel and one a row never
/// get ahead of the four that are read.
std::string_view ZeilenAn(std::span<std::uint32_t> pixel, std::uint32_t breite) {
    auto *const anfang = reinterpret_cast<unsigned char *>(pixel.data());
    unsigned char *ort = anfang;
    for (std::size_t i = 0; i < pixel.size();) {
        const std::size_t ende = i + breite;
        std::uint32_t p = pixel[i]; // before the filter's number, which can stand where it stood
        *ort++ = 0;
        for (;;) {
            *ort++ = static_cast<unsigned char>(p >> 16U);
            *ort++ = static_cast<unsigned char>(p >> 8U);
            *ort++ = static_cast<unsigned char>(p);
            if (++i == ende) break;
            p = pixel[i];
        }
    }
    return {reinterpret_cast<const char *>(anfang), static_cast<std::size_t>(ort - anfang)};
}

/// In `platz`, which it allocates.
std::string_view Gepackt(std::string_view roh, int stufe, std::unique_ptr<char[]> &platz) {
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> packer(
        libdeflate_alloc_compressor(stufe), &libdeflate_free_compressor);
    if (!packer) throw std::bad_alloc();
    // More than is needed, but only what is needed is touched.
    const std::size_t größe = libdeflate_zlib_compress_bound(packer.get(), roh.size());
    platz = std::make_unique_for_overwrite<char[]>(größe);
    return {platz.get(), libdeflate_zlib_compress(packer.get(), roh.data(), roh.size(), platz.get(), größe)};
}

} // namespace

std::string PngAus(std::span<std::uint32_t> pixel, std::uint32_t breite, std::uint32_t jeMeter) {
    const auto höhe = static_cast<std::uint32_t>(pixel.size() / breite);
    std::unique_ptr<char[]> platz;
    const std::string_view roh = ZeilenAn(pixel, breite);
    const std::string_view inhalt = Gepackt(roh, Stufe(roh.size() / höhe), platz);
    if (inhalt.size() > std::numeric_limits<std::int32_t>::max()) throw std::bad_alloc();
    std::string datei = "\x89PNG\r\n\x1a\n";
    datei.reserve(inhalt.size() + 100);
    Abschnitt(datei, "IHDR", Kopf(breite, höhe));
    Abschnitt(datei, "pHYs", Auflösung(jeMeter));
    Abschnitt(datei, "IDAT", inhalt);
    Abschnitt(datei, "IEND", {});
    return datei;
}

} // namespace kw
