#include "replay/Skript.h"

#include <csignal>
#include <fstream>
#include <iostream>

int main(int argc, char **argv) {
    std::signal(SIGXFSZ, SIG_IGN); // as the program itself
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
