#pragma once

namespace kw {

/// A part of the desktop, in its own units; its screens stand side by side in it.
struct Schirmfläche {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool operator==(const Schirmfläche &) const = default;
};

/// Where a window stands, without its frame; a maximised one as it stands again when it no longer is.
struct Fensterlage {
    Schirmfläche Fläche;
    bool Maximiert = false;
    bool operator==(const Fensterlage &) const = default;
};

} // namespace kw
