#include "dialogs/Bildtext.h"

#include "dialogs/Formular.h"
#include "rendering/Zeichenflaeche.h"

#include <utility>

namespace kw {

double Bildtextbreite(Zeichenfläche &f, const Steuerelement &label) {
    const std::string name = std::exchange(f.FontName, label.FontName);
    const double größe = std::exchange(f.FontSize, label.FontSize * f.Faktor());
    const bool fett = std::exchange(f.FontBold, label.FontBold);
    const bool kursiv = std::exchange(f.FontItalic, label.FontItalic);
    const double breite = f.TextWidth(label.Caption);
    f.FontName = name;
    f.FontSize = größe;
    f.FontBold = fett;
    f.FontItalic = kursiv;
    return breite;
}

} // namespace kw
