#pragma once

#include <string_view>

namespace kw {

class frmMain;

/// What a row of the commands' table does.
struct Befehl {
    void (*Ausführen)(frmMain &, int nummer) = nullptr;
    int Nummer = 0; ///< of a row that has one in its name: 7 of "cmdSymb(7)"

    explicit operator bool() const { return Ausführen != nullptr; }
};

/// The command under that name; an empty one when there is none.
Befehl BefehlFinden(std::string_view name);

} // namespace kw
