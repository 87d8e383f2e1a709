#pragma once

namespace kw {

struct Befehlsumgebung;
struct Tastendruck;

/// A key that means the window rather than the page: zooming, scrolling, the manual, the next part of the window. It
/// has no menu entry, or means the same as one.
struct Fenstertaste {
    void (*Ausführen)(Befehlsumgebung &);
};

/// None for other keys.
const Fenstertaste *FenstertasteFinden(const Tastendruck &taste);

} // namespace kw
