// Runs random users from one seed to the next. For each kind of fault it prints the shortest script that shows it, or
// with "--whole 1" the script as it was.
#include "Zufallsnutzer.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>

#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Skript = std::vector<std::string>;

struct Lauf {
    Skript Zeilen;      ///< one with a line break at its end belongs to the step of the next
    std::string Fehler; ///< empty when all went well

    std::string Art() const { return Fehler.substr(0, Fehler.find(':')); }
};

/// Runs what `weiter` gives, `höchstens` that many steps, in a process of its own: it may crash or hang. Each step is
/// written down before it runs, so that the script is known whatever comes.
Lauf Laufen(const std::function<Skript(kw::Prüfung &)> &weiter, size_t höchstens) {
    constexpr auto Protokoll = "zufall.log";
    const pid_t kind = ::fork();
    if (kind == 0) {
        std::ofstream strom(Protokoll);
        const auto melden = [&](char art, const std::string &text) { strom << art << text << '\0' << std::flush; };
        std::string fehler, schritt;
        std::filesystem::remove_all("lauf"); // no run sees what another one saved
        std::filesystem::create_directory("lauf");
        std::filesystem::current_path("lauf");
        try {
            kw::Prüfung prüfung;
            for (size_t getan = 0; getan < höchstens && fehler.empty();)
                for (const auto &zeile : weiter(prüfung)) {
                    ++getan;
                    if ((schritt += zeile).ends_with('\n')) continue;
                    melden('>', schritt);
                    // Of its own time, however busy the machine is; a step that takes more hangs.
                    constexpr itimerval Höchstdauer{{}, {3, 0}}; // s
                    ::setitimer(ITIMER_PROF, &Höchstdauer, nullptr);
                    if (!(fehler = prüfung.Zeile(std::exchange(schritt, ""))).empty()) break;
                }
        } catch (const std::exception &ausnahme) {
            fehler = std::string("exception ") + ausnahme.what();
        }
        if (!fehler.empty()) melden('!', fehler);
        ::_exit(0);
    }
    int ende = 0;
    ::waitpid(kind, &ende, 0);
    Lauf lauf;
    std::ifstream strom(Protokoll);
    for (std::string text; std::getline(strom, text, '\0');) {
        if (text[0] == '>')
            for (size_t bis = 0, von = 1; von < text.size(); von = bis)
                lauf.Zeilen.push_back(
                    text.substr(von, (bis = std::min(text.find('\n', von), text.size() - 1) + 1) - von));
        else lauf.Fehler = text.substr(1);
    }
    if (WIFSIGNALED(ende)) lauf.Fehler = WTERMSIG(ende) == SIGPROF ? "hangs" : "crashes";
    else if (WEXITSTATUS(ende) != 0) lauf.Fehler = "stopped by a sanitizer";
    return lauf;
}

/// Drops from a script what its fault doesn't need, in smaller and smaller pieces until no line can go.
Lauf Gekürzt(Lauf lauf) {
    for (size_t vorher = 0; vorher != lauf.Zeilen.size();) {
        vorher = lauf.Zeilen.size();
        for (size_t stück = vorher / 2; stück > 0; stück /= 2)
            for (size_t von = 0; von + stück <= lauf.Zeilen.size();) {
                Skript ohne = lauf.Zeilen;
                const auto anfang = ohne.begin() + static_cast<std::ptrdiff_t>(von);
                ohne.erase(anfang, anfang + static_cast<std::ptrdiff_t>(stück));
                Lauf neu = ohne.empty() ? Lauf() : Laufen([&](auto &) { return ohne; }, 1);
                if (neu.Art() == lauf.Art()) lauf = std::move(neu);
                else von += (stück + 1) / 2;
            }
    }
    return lauf;
}

} // namespace

int main(int argc, char **argv) {
    std::map<std::string, int> angaben{{"--seed", 1}, {"--steps", 300}, {"--scripts", 60}};
    for (int i = 1; i + 1 < argc; i += 2) angaben[argv[i]] = std::atoi(argv[i + 1]);
    std::string ordner = (std::filesystem::temp_directory_path() / "zufallsnutzer-XXXXXX").string();
    if (!::mkdtemp(ordner.data())) return 2;
    std::filesystem::current_path(ordner);
    ::setenv("TMPDIR", ordner.c_str(), 1); // what a crashed run leaves goes with it

    std::map<std::string, int> fehler;
    size_t zeilen = 0;
    for (int saat = angaben["--seed"]; saat < angaben["--seed"] + angaben["--scripts"]; ++saat) {
        kw::Zufallsnutzer nutzer(static_cast<unsigned>(saat), "netz");
        const Lauf lauf =
            Laufen([&](kw::Prüfung &p) { return nutzer.Nächstes(p.Innen()); }, static_cast<size_t>(angaben["--steps"]));
        zeilen += lauf.Zeilen.size();
        if (lauf.Fehler.empty() || ++fehler[lauf.Art()] > 1) continue;
        const Lauf kurz = angaben["--whole"] ? lauf : Gekürzt(lauf);
        std::cout << "# seed " << saat << ", " << kurz.Fehler << "\n";
        for (const auto &zeile : kurz.Zeilen) std::cout << zeile << (zeile.ends_with('\n') ? "" : "\n");
        std::cout << std::endl;
    }
    std::filesystem::current_path("/");
    std::filesystem::remove_all(ordner);
    std::cout << zeilen << " lines run\n";
    for (const auto &[art, zahl] : fehler) std::cout << "  FAULT in " << zahl << " scripts: " << art << "\n";
    return fehler.empty() ? 0 : 1;
}
