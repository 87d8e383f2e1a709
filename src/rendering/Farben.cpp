#include "rendering/Farben.h"

namespace kw {

ElementFarben LinienfarbenFür(int schema) {
    switch (schema) {
    case SchemaFarbig: return {0x00C000, Hellgrau, 0x0000FF, 0x00C000};
    case SchemaGraustufen: return {SystemFenstertext, Hellgrau, Hellgrau, Hellgrau};
    default: return {SystemFenstertext, SystemFenstertext, SystemFenstertext, SystemFenstertext};
    }
}

Farbe PfeilfarbeFür(int schema) { return schema == SchemaGraustufen || schema == SchemaFarbig ? 0x404040 : Schwarz; }

Farbe SymbolFüllfarbe(int schema) {
    switch (schema) {
    case SchemaFarbig: return Rgb(192, 209, 226);
    case SchemaGraustufen: return SystemFläche;
    default: return Weiß;
    }
}

} // namespace kw
