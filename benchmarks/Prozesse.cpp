#include "Prozesse.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <thread>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kw {

namespace {

/// What a large program leaves behind when it ends isn't to be the next one's time.
constexpr std::chrono::milliseconds Ruhe{100};

[[noreturn]] void Werden(const std::vector<std::string> &aufruf) {
    const int nichts = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int kanal : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nichts, kanal);
    std::vector<char *> worte;
    worte.reserve(aufruf.size() + 1);
    for (const std::string &wort : aufruf) worte.push_back(const_cast<char *>(wort.c_str()));
    worte.push_back(nullptr);
    execvp(worte.front(), worte.data());
    _exit(127);
}

void Starten(Prozess &prozess, bool zählt) {
    std::this_thread::sleep_for(Ruhe);
    const auto beginn = std::chrono::steady_clock::now();
    const pid_t kind = fork();
    if (kind == 0) Werden(prozess.Aufruf);
    int ende = 0;
    rusage verbrauch{};
    prozess.Gescheitert |= kind < 0 || wait4(kind, &ende, 0, &verbrauch) != kind || ende != 0;
    const std::chrono::duration<double, std::milli> dauer = std::chrono::steady_clock::now() - beginn;
    if (!zählt) return;
    prozess.Zeiten.push_back(dauer.count());
    prozess.Spitze = std::max(prozess.Spitze, verbrauch.ru_maxrss);
}

} // namespace

double Prozess::Median() const {
    if (Zeiten.empty() || Gescheitert) return NAN;
    std::vector<double> sortiert = Zeiten;
    std::sort(sortiert.begin(), sortiert.end());
    const size_t mitte = sortiert.size() / 2;
    return sortiert.size() % 2 == 1 ? sortiert[mitte] : (sortiert[mitte - 1] + sortiert[mitte]) / 2;
}

void Messen(std::vector<Prozess> &prozesse, int runden) {
    for (int runde = 0; runde <= runden; ++runde)
        for (Prozess &prozess : prozesse) Starten(prozess, runde > 0);
}

bool Vorhanden(const std::string &programm) {
    return std::system(("command -v " + programm + " >/dev/null 2>&1").c_str()) == 0;
}

} // namespace kw
