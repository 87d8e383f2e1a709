#pragma once

#include <string_view>
#include <vector>

namespace kw {

class frmMain;

/// What a user asks of the main window: one row a command, under the name of its menu entry. The face, the
/// shortcuts and the replay run the same rows; caption and state stand in `Bedienelemente`.
struct Befehl {
    std::string_view Name;
    std::string_view Menü;   ///< the menu that shows it; empty for none
    std::string_view Kürzel; ///< "Ctrl+O"
    void (*Ausführen)(frmMain &);
};

const std::vector<Befehl> &BefehlsTabelle();

/// The row of that name, or nothing.
const Befehl *BefehlFinden(std::string_view name);

} // namespace kw
