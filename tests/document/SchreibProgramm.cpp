#include "document/Dateien.h"

#include <cstdlib>
#include <iostream>

// SchreibProgramm PATH SIZE LETTER: writes SIZE times LETTER to PATH in the program's own way, prints "ok"
// or why it could not, and exits 0 or 1. The fault tests run it with failing system calls.
int main(int anzahl, char **werte) {
    if (anzahl != 4) return 2;
    const std::string inhalt(std::strtoul(werte[2], nullptr, 10), werte[3][0]);
    const auto befund = kw::DateiSchreiben(werte[1], inhalt);
    std::cout << (befund.Gelungen() ? "ok" : befund.Meldung) << std::endl;
    return befund.Gelungen() ? 0 : 1;
}
