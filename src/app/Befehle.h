#pragma once

#include <span>
#include <string_view>

namespace kw {

class frmMain;

/// What a row of the commands' table does, under the row's name.
struct Befehl {
    std::string_view Name;
    void (*Ausführen)(frmMain &);
};

std::span<const Befehl> BefehlsTabelle();

/// The command of that name, or nothing.
const Befehl *BefehlFinden(std::string_view name);

} // namespace kw
