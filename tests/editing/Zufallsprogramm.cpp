// Runs random users from one seed to the next. For each kind of fault it prints the shortest script that shows it.
#include "Zufallsnutzer.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using Skript = std::vector<std::string>;

struct Lauf {
    Skript Schritte;
    std::string Fehler; ///< empty when all went well
    std::map<std::string, int> Entschuldigt;

    std::string Art() const { return Fehler.substr(0, Fehler.find(':')); }
};

/// Runs what `weiter` gives, `höchstens` that many steps, in a process of its own: it may crash or hang. Each step is
/// written down before it runs, so that the script is known whatever comes.
Lauf Laufen(const std::function<Skript(kw::Prüfung &)> &weiter, size_t höchstens) {
    constexpr unsigned Geduld = 3; // s for a step
    constexpr auto Protokoll = "zufall.log";
    const pid_t kind = ::fork();
    if (kind == 0) {
        std::ofstream strom(Protokoll);
        const auto melden = [&](char art, const std::string &text) { strom << art << text << '\0' << std::flush; };
        std::string fehler;
        std::filesystem::remove("zufall.kwp"); // no run sees what another one saved
        try {
            kw::Prüfung prüfung;
            for (size_t getan = 0; getan < höchstens && fehler.empty();)
                for (const auto &schritt : weiter(prüfung)) {
                    melden('>', schritt);
                    ::alarm(Geduld);
                    ++getan;
                    if (!(fehler = prüfung.Zeile(schritt)).empty()) break;
                }
            for (const auto &[name, zahl] : prüfung.Entschuldigt)
                for (int i = 0; i < zahl; ++i) melden('~', name);
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
        if (text[0] == '>') lauf.Schritte.push_back(text.substr(1));
        else if (text[0] == '~') ++lauf.Entschuldigt[text.substr(1)];
        else lauf.Fehler = text.substr(1);
    }
    if (WIFSIGNALED(ende)) lauf.Fehler = WTERMSIG(ende) == SIGALRM ? "hangs" : "crashes";
    else if (WEXITSTATUS(ende) != 0) lauf.Fehler = "stopped by a sanitizer";
    return lauf;
}

/// Takes the script without something if that still fails in the same way.
bool Genügt(Lauf &lauf, const Skript &ohne) {
    Lauf neu = ohne.empty() ? Lauf() : Laufen([&](auto &) { return ohne; }, ohne.size());
    if (neu.Art() != lauf.Art()) return false;
    lauf = std::move(neu);
    return true;
}

/// Drops from a script what its fault doesn't need: halves, then ever smaller pieces, single steps until none can go,
/// then forms and lines within steps.
Lauf Gekürzt(Lauf lauf) {
    for (size_t stück = lauf.Schritte.size() / 2; stück > 0;) {
        const size_t vorher = lauf.Schritte.size();
        for (size_t von = 0; von < lauf.Schritte.size();) {
            Skript ohne = lauf.Schritte;
            const auto anfang = ohne.begin() + static_cast<std::ptrdiff_t>(von);
            ohne.erase(anfang, anfang + static_cast<std::ptrdiff_t>(std::min(stück, ohne.size() - von)));
            if (!Genügt(lauf, ohne)) von += stück;
        }
        if (stück > 1 || lauf.Schritte.size() == vorher) stück /= 2;
    }
    for (size_t i = 0; i < lauf.Schritte.size(); ++i)
        for (size_t von = 0, bis = 0; bis != std::string::npos;) {
            Skript ohne = lauf.Schritte;
            const bool form = ohne[i].compare(von, 5, "form ") == 0;
            const size_t zeile = ohne[i].find('\n', von);
            bis = form ? ohne[i].find('\n', ohne[i].find("\nend\n", von) + 1) : zeile;
            if (bis == std::string::npos) continue; // what the step does in the end stays
            ohne[i].erase(von, bis + 1 - von);
            if (!Genügt(lauf, ohne)) von = zeile + 1;
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

    std::map<std::string, int> fehler, entschuldigt;
    size_t schritte = 0;
    for (int saat = angaben["--seed"]; saat < angaben["--seed"] + angaben["--scripts"]; ++saat) {
        kw::Zufallsnutzer nutzer(static_cast<unsigned>(saat));
        const Lauf lauf =
            Laufen([&](kw::Prüfung &p) { return nutzer.Nächstes(p.Jetzt); }, static_cast<size_t>(angaben["--steps"]));
        schritte += lauf.Schritte.size();
        for (const auto &[name, zahl] : lauf.Entschuldigt) entschuldigt[name] += zahl;
        if (lauf.Fehler.empty() || ++fehler[lauf.Art()] > 1) continue;
        const Lauf kurz = Gekürzt(lauf);
        std::cout << "# seed " << saat << ", " << kurz.Fehler << "\n";
        for (const auto &zeile : kurz.Schritte) std::cout << zeile << "\n";
        std::cout << std::endl;
    }
    std::filesystem::current_path("/");
    std::filesystem::remove_all(ordner);
    std::cout << schritte << " steps run\n";
    for (const auto &[name, zahl] : entschuldigt) std::cout << "  excused " << zahl << " times: " << name << "\n";
    for (const auto &[art, zahl] : fehler) std::cout << "  FAULT in " << zahl << " scripts: " << art << "\n";
    return fehler.empty() ? 0 : 1;
}
