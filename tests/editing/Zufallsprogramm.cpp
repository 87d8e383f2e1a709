// Runs random users from one seed to the next. For each kind of fault it prints the shortest script that shows it.
#include "Zufallsnutzer.h"

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using Skript = std::vector<std::string>;

struct Lauf {
    Skript Zeilen;
    std::string Fehler; ///< empty when all went well
    std::map<std::string, int> Entschuldigt;

    std::string Art() const { return Fehler.substr(0, Fehler.find(':')); }
};

/// Runs what `weiter` gives, `höchstens` that many lines, in a process of its own: it may crash or hang. Each line is
/// told before it runs, so that the script is known whatever comes.
Lauf Laufen(const std::function<Skript(kw::Prüfung &)> &weiter, size_t höchstens) {
    constexpr unsigned Geduld = 3; // s for a line
    int rohr[2];
    if (::pipe(rohr) != 0) std::abort();
    const pid_t kind = ::fork();
    FILE *strom = ::fdopen(rohr[kind == 0 ? 1 : 0], kind == 0 ? "w" : "r");
    ::close(rohr[kind == 0 ? 0 : 1]);
    if (kind == 0) {
        const auto melden = [&](const char *art, const std::string &text) {
            std::fprintf(strom, "%s%s\n", art, text.c_str());
            std::fflush(strom);
        };
        std::string fehler;
        std::filesystem::remove("zufall.kwp"); // no run sees what another one saved
        try {
            kw::Prüfung prüfung;
            for (size_t getan = 0; getan < höchstens && fehler.empty();)
                for (const auto &zeile : weiter(prüfung)) {
                    melden(">", zeile);
                    ::alarm(Geduld);
                    ++getan;
                    if (!(fehler = prüfung.Zeile(zeile)).empty()) break;
                }
            for (const auto &[name, zahl] : prüfung.Entschuldigt)
                for (int i = 0; i < zahl; ++i) melden("~", name);
        } catch (const std::exception &ausnahme) {
            fehler = std::string("exception: ") + ausnahme.what();
        }
        if (!fehler.empty()) melden("!", fehler);
        ::_exit(0);
    }
    Lauf lauf;
    char *puffer = nullptr;
    size_t größe = 0;
    while (::getline(&puffer, &größe, strom) > 0) {
        std::string text = puffer + 1;
        text.pop_back();
        if (*puffer == '>') lauf.Zeilen.push_back(text);
        else if (*puffer == '~') ++lauf.Entschuldigt[text];
        else lauf.Fehler = text;
    }
    std::free(puffer);
    std::fclose(strom);
    int ende = 0;
    ::waitpid(kind, &ende, 0);
    if (WIFSIGNALED(ende)) lauf.Fehler = WTERMSIG(ende) == SIGALRM ? "hangs" : "crashes";
    else if (WEXITSTATUS(ende) != 0) lauf.Fehler = "stopped by a sanitizer";
    return lauf;
}

/// Drops from a script what its fault doesn't need: halves, then ever smaller pieces, single lines until none can go.
Lauf Gekürzt(Lauf lauf) {
    for (size_t stück = lauf.Zeilen.size() / 2; stück > 0;) {
        const size_t vorher = lauf.Zeilen.size();
        for (size_t von = 0; von < lauf.Zeilen.size();) {
            Skript ohne(lauf.Zeilen.begin(), lauf.Zeilen.begin() + static_cast<std::ptrdiff_t>(von));
            for (size_t i = von + stück; i < lauf.Zeilen.size(); ++i) ohne.push_back(lauf.Zeilen[i]);
            Lauf neu = ohne.empty() ? Lauf() : Laufen([&](auto &) { return ohne; }, ohne.size());
            if (neu.Art() == lauf.Art()) lauf = std::move(neu);
            else von += stück;
        }
        if (stück > 1 || lauf.Zeilen.size() == vorher) stück /= 2;
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
        const Lauf lauf = Laufen([&](kw::Prüfung &p) { return nutzer.Nächstes(p.Jetzt, p.AntwortOffen()); },
                                 static_cast<size_t>(angaben["--steps"]));
        schritte += lauf.Zeilen.size();
        for (const auto &[name, zahl] : lauf.Entschuldigt) entschuldigt[name] += zahl;
        if (lauf.Fehler.empty() || ++fehler[lauf.Art()] > 1) continue;
        const Lauf kurz = Gekürzt(lauf);
        std::cout << "# seed " << saat << ", " << kurz.Fehler << "\n";
        for (const auto &zeile : kurz.Zeilen) std::cout << zeile << "\n";
        std::cout << std::endl;
    }
    std::filesystem::current_path("/");
    std::filesystem::remove_all(ordner);
    std::cout << schritte << " lines run\n";
    for (const auto &[name, zahl] : entschuldigt) std::cout << "  excused " << zahl << " times: " << name << "\n";
    for (const auto &[art, zahl] : fehler) std::cout << "  FAULT in " << zahl << " scripts: " << art << "\n";
    return fehler.empty() ? 0 : 1;
}
