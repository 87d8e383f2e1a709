// A random user who lets the editor run from one seed to the next, and a script for whatever goes wrong.
#include "Zufallsnutzer.h"

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Skript = std::vector<std::string>;

struct Lauf {
    Skript Zeilen;
    std::string Fehler; ///< empty when all went well
    std::map<std::string, int> Gezählt;

    /// Runs of the same kind show the same fault.
    std::string Art() const { return Fehler.substr(0, Fehler.find(':')); }
};

/// Runs `arbeit` in a process of its own, which may crash or hang. It says through `melden` which line comes next
/// (">"), what it excused ("~") and what it found ("!").
using Melden = std::function<void(char, std::string)>;
Lauf ImKind(const std::function<void(const Melden &)> &arbeit) {
    int rohr[2];
    if (::pipe(rohr) != 0) std::abort();
    const pid_t kind = ::fork();
    if (kind == 0) {
        const Melden melden = [&](char art, std::string text) {
            text = art + text + '\0';
            if (::write(rohr[1], text.data(), text.size()) < 0) ::_exit(2);
        };
        try {
            arbeit(melden);
        } catch (const std::exception &ausnahme) {
            melden('!', std::string("exception: ") + ausnahme.what());
        }
        ::_exit(0);
    }
    ::close(rohr[1]);
    std::string alles;
    constexpr int Geduld = 20'000; // ms for a single line
    pollfd warte{rohr[0], POLLIN, 0};
    char puffer[65536];
    bool hängt = false;
    for (;;) {
        hängt = ::poll(&warte, 1, Geduld) == 0;
        const ssize_t n = hängt ? 0 : ::read(rohr[0], puffer, sizeof puffer);
        if (n <= 0) break;
        alles.append(puffer, static_cast<size_t>(n));
    }
    ::close(rohr[0]);
    if (hängt) ::kill(kind, SIGKILL);
    int ende = 0;
    ::waitpid(kind, &ende, 0);
    Lauf lauf;
    for (size_t von = 0; von < alles.size();) {
        const std::string text(alles.c_str() + von);
        von += text.size() + 1;
        if (text[0] == '>') lauf.Zeilen.push_back(text.substr(1));
        else if (text[0] == '~') ++lauf.Gezählt[text.substr(1)];
        else lauf.Fehler = text.substr(1);
    }
    if (hängt) lauf.Fehler = "hangs";
    else if (WIFSIGNALED(ende)) lauf.Fehler = "signal " + std::to_string(WTERMSIG(ende));
    else if (WEXITSTATUS(ende) != 0) lauf.Fehler = "stopped by the sanitizer";
    return lauf;
}

/// Runs what `weiter` gives until it gives nothing.
Lauf Probe(const std::function<Skript(kw::Prüfung &)> &weiter, int höchstens) {
    return ImKind([&](const Melden &melden) {
        std::filesystem::remove("zufall.kwp"); // no run sees what another one saved
        kw::Prüfung prüfung;
        std::string fehler;
        int getan = 0;
        for (Skript s = weiter(prüfung); getan < höchstens && fehler.empty(); s = weiter(prüfung))
            for (size_t i = 0; i < s.size() && fehler.empty(); ++i, ++getan) {
                melden('>', s[i]);
                fehler = prüfung.Zeile(s[i]);
            }
        for (const auto &[name, zahl] : prüfung.Gezählt())
            for (int i = 0; i < zahl; ++i) melden('~', name);
        if (!fehler.empty()) melden('!', fehler);
    });
}

Lauf Nachgespielt(const Skript &skript) {
    return Probe([&](kw::Prüfung &) { return skript; }, static_cast<int>(skript.size()));
}

/// Drops from a script what its fault doesn't need: halves, quarters, at last single lines.
Lauf Gekürzt(Lauf lauf) {
    for (size_t stück = lauf.Zeilen.size() / 2; stück > 0;) {
        bool kürzer = false;
        for (size_t von = 0; von < lauf.Zeilen.size();) {
            Skript ohne = lauf.Zeilen;
            const auto anfang = ohne.begin() + static_cast<std::ptrdiff_t>(von);
            ohne.erase(anfang, anfang + static_cast<std::ptrdiff_t>(std::min(stück, ohne.size() - von)));
            Lauf neu = Nachgespielt(ohne);
            if (neu.Art() == lauf.Art()) {
                lauf = std::move(neu);
                kürzer = true;
            } else von += stück;
        }
        if (!kürzer || stück > 1) stück = stück == 1 ? 0 : std::max<size_t>(stück / 2, 1);
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

    std::map<std::string, int> fehler, macken;
    size_t schritte = 0;
    for (int i = 0; i < angaben["--scripts"]; ++i) {
        const int saat = angaben["--seed"] + i;
        kw::Zufallsnutzer nutzer(static_cast<unsigned long>(saat));
        bool erstes = true;
        const Lauf lauf = Probe(
            [&](kw::Prüfung &p) {
                return std::exchange(erstes, false) ? nutzer.Anfang() : nutzer.Nächstes(p.Jetzt(), p.AntwortOffen());
            },
            angaben["--steps"]);
        schritte += lauf.Zeilen.size();
        for (const auto &[name, zahl] : lauf.Gezählt) macken[name] += zahl;
        if (lauf.Fehler.empty() || ++fehler[lauf.Art()] > 1) continue;
        const Lauf kurz = Gekürzt(lauf);
        std::cout << "# seed " << saat << ", " << kurz.Fehler << "\n";
        for (const auto &zeile : kurz.Zeilen) std::cout << zeile << "\n";
        std::cout << std::endl;
    }
    std::filesystem::current_path("/");
    std::filesystem::remove_all(ordner);
    std::cout << schritte << " steps\n";
    for (const auto &[name, zahl] : macken) std::cout << "  excused " << zahl << " times: " << name << "\n";
    for (const auto &[art, zahl] : fehler) std::cout << "  FAULT in " << zahl << " scripts: " << art << "\n";
    return fehler.empty() ? 0 : 1;
}
