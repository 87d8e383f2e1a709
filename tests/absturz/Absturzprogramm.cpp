// Kills sessions of the program at random moments, and looks whether what was on the page is still there:
// absturz --runs 1000 --seed 1. Half of them are sessions of the replay, half of the real window. One alone, which
// isn't killed: absturz --window SEED [FILE STEPS].
#include "absturz/Nachpruefung.h"
#include "absturz/Sitzungen.h"

#include "document/Dateien.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <random>
#include <thread>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr auto Netz = "zustand/kinwright";

/// Fonts' caches are the machine's: a program that is killed while it writes one would spoil it for all.
void UmgebungSetzen(const fs::path &ordner) {
    const fs::path schriften = ordner / "schriften.conf";
    std::ofstream(schriften) << "<?xml version=\"1.0\"?><fontconfig><cachedir>" << (ordner / "schriften").string()
                             << "</cachedir><include>/etc/fonts/fonts.conf</include></fontconfig>";
    const fs::path lauf = ordner / "lauf";
    const std::map<const char *, std::string> werte{{"FONTCONFIG_FILE", schriften},
                                                    {"HOME", lauf},
                                                    {"XDG_STATE_HOME", lauf / "zustand"},
                                                    {"XDG_CONFIG_HOME", lauf / "konfig"},
                                                    {"XDG_CACHE_HOME", lauf / "cache"},
                                                    {"XDG_RUNTIME_DIR", ordner / "laufzeit"},
                                                    {"TMPDIR", ordner},
                                                    {"QT_QPA_PLATFORM", "offscreen"}};
    for (const auto &[name, wert] : werte) ::setenv(name, wert.c_str(), 1);
    fs::create_directory(ordner / "laufzeit");
    fs::permissions(ordner / "laufzeit", fs::perms::owner_all);
}

pid_t Abzweigen(const std::function<int()> &was) {
    const pid_t kind = ::fork();
    if (kind == 0) ::_exit(was());
    return kind;
}

int Ende(pid_t kind) {
    int ende = 0;
    ::waitpid(kind, &ende, 0);
    return ende;
}

/// Runs it in a process of its own, and gives what it says.
std::string Gesagt(const std::function<std::string()> &was) {
    const int ende = Ende(Abzweigen([&] {
        std::ofstream("../gesagt") << was();
        return 0;
    }));
    std::string text;
    kw::DateiLesen("../gesagt", text);
    return ende == 0 ? text : "the check itself ended with " + std::to_string(ende);
}

class Fahrer {
  public:
    explicit Fahrer(fs::path ordner) : ordner_(std::move(ordner)), programm_((ordner_ / "absturz").string()) {
        fs::copy_file("/proc/self/exe", programm_); // its settings stand beside it
        UmgebungSetzen(ordner_);
    }

    /// The session of that seed and its kill at a moment of the other's; what is wrong, empty when nothing is.
    std::string Lauf(unsigned saat, unsigned zeit) {
        std::mt19937_64 zufall(zeit);
        const bool fenster = saat % 2 == 0;
        fs::current_path(ordner_);
        for (const char *rest : {"lauf", "protokoll", "gesagt", "prog.ini"}) fs::remove_all(rest);
        fs::create_directory("lauf");
        fs::current_path("lauf");
        std::ofstream(ordner_ / "prog.ini") << "[DEFAULT]\nlanguage=en\n";
        const pid_t kind = Abzweigen([&] { return fenster ? Rufen("--window", saat) : Skript(saat); });
        Töten(kind, std::chrono::microseconds(zufall() % (fenster ? FensterDauer : SkriptDauer)));
        const auto protokoll = kw::ProtokollLesen("../protokoll");
        if (!protokoll.empty() && protokoll.back().Was == kw::Eintrag::Art::Zuende) ++vollendet_;
        einträge_ += protokoll.size();
        const auto erwartung = kw::ErwartungAus(protokoll);
        const auto befund = kw::Nachsehen(erwartung, Netz);
        if (!befund.Fehler.empty()) return befund.Fehler;
        angeboten_ += befund.Platz >= 0 ? 1 : 0;
        if (fenster && befund.Platz >= 0)
            if (const auto fehler = Fensterangebot(befund); !fehler.empty()) return fehler;
        return Gesagt([&] { return kw::Neustarten(befund, Netz); });
    }
    void Berichten() const {
        std::cout << einträge_ << " moments written down, " << angeboten_ << " documents found in the net, "
                  << vollendet_ << " sessions ended before their kill\n";
    }

  private:
    static constexpr unsigned SkriptDauer = 250'000, FensterDauer = 700'000; // µs

    static int Skript(unsigned saat) {
        kw::Skriptsitzung(saat, Netz);
        return 0;
    }
    int Rufen(const char *art, unsigned saat) const {
        return ::execl(programm_.c_str(), programm_.c_str(), art, std::to_string(saat).c_str(), nullptr);
    }
    static void Töten(pid_t kind, std::chrono::microseconds nach) {
        while (!fs::exists("../protokoll") && ::waitpid(kind, nullptr, WNOHANG) == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        std::this_thread::sleep_for(nach);
        ::kill(kind, SIGKILL);
        ::waitpid(kind, nullptr, 0);
    }
    /// The entry stays, since the program that opened it ends at once.
    std::string Fensterangebot(const kw::Nachbefund &befund) const {
        fs::copy(Netz, "netz-vorher");
        const int ende = Ende(Abzweigen([&] { return Rufen("--offer", static_cast<unsigned>(befund.Platz)); }));
        std::string geöffnet;
        kw::DateiLesen("../gesagt", geöffnet);
        fs::remove_all(Netz);
        fs::rename("netz-vorher", Netz);
        if (ende != 0) return "the window's restart doesn't offer it: " + std::to_string(ende);
        return kw::Sätze(geöffnet) == kw::Sätze(kw::AlsGeladen(befund.Inhalt))
                   ? ""
                   : "what the window opens isn't what was kept";
    }

    fs::path ordner_;
    std::string programm_;
    int angeboten_ = 0, vollendet_ = 0;
    size_t einträge_ = 0;
};

} // namespace

int main(int argc, char **argv) {
    std::signal(SIGXFSZ, SIG_IGN);
    const std::string_view art = argc > 2 ? argv[1] : "";
    const auto saatAus = [&] { return static_cast<unsigned>(std::atoi(argv[2])); };
    if (art == "--window")
        return kw::Fenstersitzung(saatAus(), argc > 3 ? argv[3] : "", argc > 4 ? std::atoi(argv[4]) : 2000);
    if (art == "--offer") return kw::Fensterneustart(std::atoi(argv[2]), "../gesagt");

    std::map<std::string, int> angaben{{"--runs", 30}, {"--seed", 1}};
    for (int i = 1; i + 1 < argc; i += 2) angaben[argv[i]] = std::atoi(argv[i + 1]);
    // In memory where there is such a folder: thousands of flushes else.
    const bool imSpeicher = ::access("/dev/shm", W_OK) == 0;
    std::string ordner = ((imSpeicher ? "/dev/shm" : fs::temp_directory_path()) / fs::path("absturz-XXXXXX")).string();
    if (!::mkdtemp(ordner.data())) return 2;
    std::map<std::string, int> fehler;
    {
        Fahrer fahrer(ordner);
        for (int i = 0; i < angaben["--runs"]; ++i) {
            const int saat = angaben["--seed"] + i;
            const int sitzung = angaben["--session"] > 0 ? angaben["--session"] : saat;
            const std::string befund = fahrer.Lauf(static_cast<unsigned>(sitzung), static_cast<unsigned>(saat));
            if (!befund.empty() && ++fehler[befund] == 1) {
                std::cout << "seed " << saat << ": " << befund << std::endl;
                if (std::getenv("KW_KEEP")) return 1; // the folder stays
            }
        }
        fahrer.Berichten();
    }
    fs::current_path("/");
    fs::remove_all(ordner);
    int verloren = 0;
    for (const auto &[text, zahl] : fehler) verloren += zahl;
    std::cout << angaben["--runs"] << " sessions killed, " << verloren << " with a fault\n";
    return fehler.empty() ? 0 : 1;
}
