#include "app/Programmversion.h"
#include "replay/Skript.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iostream>
#include <string_view>

namespace {

/// The commands' names, wrapped to the width of the text around them.
std::string Befehlsliste() {
    constexpr size_t Breite = 100;
    std::string text;
    size_t zeile = Breite;
    for (const std::string &name : kw::Befehlsnamen()) {
        const bool neu = zeile + 1 + name.size() > Breite;
        text += neu ? "\n  " : " ";
        zeile = (neu ? 1 : zeile + 1) + name.size();
        text += name;
    }
    return text + "\n";
}

void HilfeZeigen() {
    std::cout
        << "Usage: kinwright-replay [SCRIPT...]\n"
           "\n"
           "Runs the genogram editor without a window from each SCRIPT, or from the standard input, and prints what\n"
           "the script asks for. Each line is a command and its words:\n"
        << Befehlsliste()
        << "\n"
           "  --help        show this text\n"
           "  --version     show the version\n"
           "\n"
           "Exit status: 0 when all went well; 1 when something wasn't as a script expects; 2 when a script or a line\n"
           "of it can't be read.\n";
}

} // namespace

int main(int argc, char **argv) {
    std::signal(SIGXFSZ, SIG_IGN); // as the program itself
    const std::string_view erstes = argc > 1 ? argv[1] : "";
    if (erstes == "--help") return HilfeZeigen(), std::cout.flush().good() ? 0 : 1;
    if (erstes == "--version") {
        std::cout << "kinwright-replay " << kw::Programmversion << "\n";
        return std::cout.flush().good() ? 0 : 1;
    }
    if (argc < 2) {
        kw::Wiedergabe wiedergabe(std::cout);
        return wiedergabe.Ausführen(std::cin);
    }
    int ergebnis = 0;
    for (int i = 1; i < argc; ++i) {
        std::ifstream skript(argv[i]);
        if (!skript) {
            std::cerr << "kinwright-replay: cannot read " << argv[i] << "\n";
            return 2;
        }
        kw::Wiedergabe wiedergabe(std::cout);
        ergebnis = std::max(ergebnis, wiedergabe.Ausführen(skript));
        if (skript.bad()) ergebnis = 2; // a folder, for one
    }
    return ergebnis;
}
