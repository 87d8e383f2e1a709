#include "qt/fenster/Tasten.h"

#include "commands/Menuetafel.h"
#include "qt/grund/Text.h"

#include <QKeyEvent>
#include <QKeySequence>

#include <algorithm>
#include <iterator>

namespace kw {

namespace {

struct Zeile {
    int Qt_;
    kw::Taste Taste;
};
constexpr Zeile Tabelle[] = {
    {Qt::Key_Up, Taste::Hoch},
    {Qt::Key_Down, Taste::Runter},
    {Qt::Key_Left, Taste::Links},
    {Qt::Key_Right, Taste::Rechts},
    {Qt::Key_Home, Taste::Anfang},
    {Qt::Key_End, Taste::Ende},
    {Qt::Key_PageUp, Taste::BildHoch},
    {Qt::Key_PageDown, Taste::BildRunter},
    {Qt::Key_Space, Taste::Leer},
    {Qt::Key_Return, Taste::Eingabe},
    {Qt::Key_Enter, Taste::Eingabe},
    {Qt::Key_Escape, Taste::Escape},
    {Qt::Key_Menu, Taste::Menü},
    {Qt::Key_F1, Taste::F1},
    {Qt::Key_F2, Taste::F2},
    {Qt::Key_F6, Taste::F6},
    {Qt::Key_F10, Taste::F10},
    {Qt::Key_A, Taste::A},
    {Qt::Key_F, Taste::F},
    {Qt::Key_J, Taste::J},
    {Qt::Key_Plus, Taste::Plus},
    {Qt::Key_Equal, Taste::Gleich},
    {Qt::Key_Minus, Taste::Minus},
    {Qt::Key_0, Taste::Null},
};

/// Signs that some keyboards have above others: there Shift belongs to the sign.
bool IstZeichen(Taste taste) { return taste == Taste::Plus || taste == Taste::Gleich || taste == Taste::Minus; }

} // namespace

std::optional<Tastendruck> TasteVon(const QKeyEvent &ereignis) {
    const auto *zeile =
        std::find_if(std::begin(Tabelle), std::end(Tabelle), [&](const Zeile &z) { return z.Qt_ == ereignis.key(); });
    if (zeile == std::end(Tabelle) || ereignis.modifiers().testFlag(Qt::MetaModifier)) return std::nullopt;
    const auto mit = [&](Qt::KeyboardModifier m) { return ereignis.modifiers().testFlag(m); };
    return Tastendruck{zeile->Taste, mit(Qt::ControlModifier), mit(Qt::AltModifier),
                       mit(Qt::ShiftModifier) && !IstZeichen(zeile->Taste), ereignis.isAutoRepeat()};
}

std::string_view BefehlMitKürzel(const QKeyEvent &ereignis) {
    const QKeySequence taste(ereignis.keyCombination());
    const auto tafel = Menütafel();
    const auto zeile = std::find_if(tafel.begin(), tafel.end(), [&](const Menüzeile &z) {
        return !z.Kürzel.empty() && QKeySequence(Text(z.Kürzel)) == taste;
    });
    return zeile == tafel.end() ? std::string_view() : zeile->Name;
}

} // namespace kw
