#pragma once

#include <QIcon>
#include <QPixmap>

#include <string_view>

namespace kw {

class Uhr;
struct Sinnbild;

/// A tiny diagram in a square of `kante` logical pixels, for a screen of that resolution.
QPixmap Symbolbild(const Sinnbild &sinnbild, const Uhr &uhr, int kante, double pixelverhältnis);

/// The same on a plate of the page's white, which it is drawn for, at every size. `uhr` must outlive it.
QIcon Sinnbildicon(Sinnbild sinnbild, const Uhr &uhr);

/// What row `zeile` of the commands' table has before it in a menu; an icon without anything on it for rows that have
/// no picture. `uhr` must outlive it.
QIcon Menübild(std::string_view zeile, const Uhr &uhr);

} // namespace kw
