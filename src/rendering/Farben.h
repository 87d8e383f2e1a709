#pragma once

#include <array>
#include <cstdint>

namespace kw {

/// A colour as records and properties hold it: 0xBBGGRR, or a system colour with the highest bit set.
using Farbe = std::uint32_t;

constexpr Farbe Rgb(unsigned rot, unsigned grün, unsigned blau) { return rot | grün << 8U | blau << 16U; }

constexpr Farbe Schwarz = 0;
constexpr Farbe Weiß = 0xFFFFFF;
constexpr Farbe Rot = 255;
constexpr Farbe Hellgrau = 0xC0C0C0;
constexpr Farbe MarkenGrau = Rgb(145, 145, 145); ///< half marks of persons, institutions
constexpr Farbe ZielFarbe = Rgb(251, 59, 15);    ///< target of a link gesture
constexpr Farbe SystemFenstertext = 0x80000008;
constexpr Farbe SystemFläche = 0x80000016;

/// A system colour as it is seen: window text is black, the light control face is E3E3E3; nothing
/// names another.
constexpr Farbe Aufgelöst(Farbe farbe) {
    if (farbe == SystemFenstertext) return Schwarz;
    if (farbe == SystemFläche) return 0xE3E3E3;
    return farbe & 0xFFFFFFU;
}

/// Colour schemes. What is neither colour nor grey counts as black and white.
enum : int { SchemaSchwarzWeiß = 0, SchemaGraustufen = 1, SchemaFarbig = 2 };

/// The four element colours of a scheme; the third is the conflict colour, the fourth the close colour.
using ElementFarben = std::array<Farbe, 4>;
enum : std::size_t { KonfliktFarbe = 2, EngeFarbe = 3 };
ElementFarben LinienfarbenFür(int schema);

/// Colour of arrows and circle lines.
Farbe PfeilfarbeFür(int schema);

/// Fill colour of person symbols.
Farbe SymbolFüllfarbe(int schema);

} // namespace kw
