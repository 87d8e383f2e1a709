// Writes docs/performance.md: "bench_report FOLDER SAMPLES OUT". FOLDER is where the built programs stand, SAMPLES that
// of the sample projects. Whole programs are started in turn; what happens within the program is measured by
// kinwright_bench.

#include "Prozesse.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <thread>

#include <sys/utsname.h>

namespace kw {

namespace {

constexpr int Runden = 15;
constexpr int Gastrunden = 5;
constexpr std::array Größen{10, 100, 200, 400, 900};

struct Orte {
    std::string Programme, Beispiele;
    std::string Bench() const { return Programme + "/benchmarks/kinwright_bench"; }
    std::string Kinwright() const { return Programme + "/kinwright"; }
};

/// The value behind `name` in a file of "name : value" or "name=value" lines; "unknown" without one.
std::string Angabe(const char *datei, const std::string &name) {
    std::ifstream quelle(datei);
    for (std::string zeile; std::getline(quelle, zeile);) {
        if (!zeile.starts_with(name)) continue;
        std::string wert = zeile.substr(zeile.find_first_of(":=") + 1);
        std::erase(wert, '"');
        return wert.substr(std::min(wert.find_first_not_of(' '), wert.size()));
    }
    return "unknown";
}

std::string Zahl(double wert, int stellen) {
    if (!std::isfinite(wert)) return "-";
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", stellen, wert);
    return text;
}

/// Two digits that say something.
std::string Millisekunden(double ms) { return Zahl(ms, ms < 1 ? 3 : ms < 10 ? 2 : ms < 100 ? 1 : 0); }

std::string Zeile(const std::vector<std::string> &felder) {
    std::string text = "|";
    for (const std::string &feld : felder) text += " " + feld + " |";
    return text + "\n";
}

std::string Kopf(const std::vector<std::string> &felder) {
    std::string strich = "|---|";
    for (size_t i = 1; i < felder.size(); ++i) strich += "---:|";
    return "\n" + Zeile(felder) + strich + "\n";
}

std::string Maschine() {
    utsname system{};
    uname(&system);
    const double gib = std::stod("0" + Angabe("/proc/meminfo", "MemTotal")) / 1024 / 1024;
    return Angabe("/proc/cpuinfo", "model name") + ", " + std::to_string(std::thread::hardware_concurrency()) +
           " processors, " + Zahl(gib, 0) + " GiB; " + Angabe("/etc/os-release", "PRETTY_NAME") + ", Linux " +
           system.release + "; Qt " KW_QT_VERSION ", " KW_COMPILER ".";
}

/// Milliseconds by name and size: the fastest of all repetitions.
using Messwerte = std::map<std::string, std::map<int, double>>;

Messwerte InnenMessen(const Orte &orte) {
    std::vector<Prozess> lauf{
        {"within",
         {orte.Bench(), "--benchmark_min_time=0.15", "--benchmark_repetitions=5",
          "--benchmark_enable_random_interleaving=true", "--benchmark_out=bench.csv", "--benchmark_out_format=csv"}}};
    Messen(lauf, 0);
    if (lauf[0].Gescheitert) throw std::runtime_error("kinwright_bench failed");
    Messwerte werte;
    std::ifstream csv("bench.csv");
    for (std::string zeile; std::getline(csv, zeile);) {
        std::istringstream felder(zeile); // "Redraw/100",12,345.6,...; what is summed up has no size at its end
        std::string name;
        std::string wert;
        std::getline(felder, name, ',');
        std::getline(felder, wert, ',');
        std::getline(felder, wert, ',');
        std::erase(name, '"');
        const size_t schräg = name.find('/');
        if (schräg == std::string::npos || name.find_first_not_of("0123456789", schräg + 1) != std::string::npos)
            continue;
        double &zeit = werte[name.substr(0, schräg)][std::stoi(name.substr(schräg + 1))];
        if (wert.empty()) throw std::runtime_error(name + " could not be measured");
        const double ms = std::stod(wert) / 1000;
        zeit = zeit == 0 ? ms : std::min(zeit, ms);
    }
    return werte;
}

struct Innenzeile {
    const char *Was;
    const char *Name; ///< of the benchmark
};
constexpr Innenzeile Innenzeilen[] = {
    {"Load a project", "Load"},
    {"Redraw the page at 100 %", "Redraw"},
    {"the same primitives in a bare painter loop", "RedrawBareLoop"},
    {"One step of dragging a person, painted", "DragStep"},
    {"Marquee over half of all", "Marquee"},
    {"Move that half, with its lines", "MoveHalf"},
    {"Undo and redo of a move", "UndoAndRedo"},
    {"Delete half of all", "DeleteHalf"},
    {"Find what lies under the pointer", "HitTest"},
    {"Save to the disk", "Save"},
    {"Save, with the safety net", "SaveWithNet"},
    {"Keep a change in the safety net", "KeepInNet"},
};

std::string Innen(Messwerte &werte) {
    std::vector<std::string> kopf{"Persons"};
    for (const int n : Größen) kopf.push_back(std::to_string(n));
    kopf.emplace_back("100 to 900");
    std::string text = "\n## Within the program\n\nMilliseconds, the fastest of five. The last column is by how much "
                       "nine times as many persons cost more.\n" +
                       Kopf(kopf);
    for (const auto &[was, name] : Innenzeilen) {
        std::vector<std::string> felder{was};
        for (const int n : Größen) felder.push_back(Millisekunden(werte[name][n]));
        felder.push_back(Zahl(werte[name][900] / werte[name][100], 1));
        text += Zeile(felder);
    }
    std::vector<std::string> felder{"Redraw by bare loop"};
    for (const int n : Größen) felder.push_back(Zahl(werte["Redraw"][n] / werte["RedrawBareLoop"][n], 2));
    felder.emplace_back();
    return text + Zeile(felder);
}

/// Families laid out as genograms.
std::string Auslegungen(const Orte &orte) {
    std::vector<Prozess> lauf{{"layouts", {orte.Bench(), "--layouts", "layouts.md"}}};
    Messen(lauf, 0);
    std::ifstream tabelle("layouts.md");
    if (lauf[0].Gescheitert || !tabelle) throw std::runtime_error("laying out families failed");
    std::ostringstream zeilen;
    zeilen << tabelle.rdbuf();
    return "\n## Family trees laid out as pages\n\nTwenty invented families a size, in four to eight generations, a "
           "tenth of "
           "the marriages within the family. Milliseconds of the processor, the fastest of three; crossings, couples "
           "apart and length by family.\n" +
           Kopf({"Persons", "ms", "ms at most", "Crossings", "Siblings in the wrong order, %", "Couples apart",
                 "Length cm"}) +
           zeilen.str();
}

std::string MiB(long kib) { return Zahl(static_cast<double>(kib) / 1024, 0); }

std::string Kilobyte(const std::string &datei) {
    std::error_code fehlt;
    const auto groß = std::filesystem::file_size(datei, fehlt);
    return fehlt ? "-" : Zahl(static_cast<double>(groß) / 1000, 0);
}

std::string Start(const Orte &orte) {
    std::vector<Prozess> p{{"A bare window of the toolkit", {orte.Programme + "/benchmarks/bare_window"}},
                           {"the same with the program's menus", {orte.Programme + "/benchmarks/bare_window", "menus"}},
                           {"The program's window, painted", {orte.Programme + "/benchmarks/painted_window"}}};
    Messen(p, 2 * Runden);
    std::string text = "\n## Start\n\nFrom the call to the first painted window, the median of " +
                       std::to_string(2 * Runden) + ".\n" + Kopf({"", "ms", "by bare", "by the same menus", "MiB"});
    for (const Prozess &lauf : p)
        text += Zeile({lauf.Was, Millisekunden(lauf.Median()), Zahl(lauf.Median() / p[0].Median(), 2),
                       Zahl(lauf.Median() / p[1].Median(), 2), MiB(lauf.Spitze)});
    return text;
}

/// Each size in each format, and the bare program.
std::string Ausgaben(const Orte &orte) {
    std::vector<Prozess> p{{"projects", {orte.Bench(), "--projects", "bench"}}};
    Messen(p, 0);
    p = {{"", {orte.Programme + "/benchmarks/bare_pdf", "bare.pdf"}}};
    for (const char *art : {"pdf", "svg", "png"})
        for (const int n : Größen) {
            const std::string name = "bench" + std::to_string(n);
            p.push_back({name + "." + art, {orte.Kinwright(), "--export", name + "." + art, name + ".kwp"}});
        }
    Messen(p, Runden);
    std::string text =
        "\n## Exports as whole programs\n\nMedian of " + std::to_string(Runden) +
        "; pictures with 300 dots an inch. A "
        "bare program of the toolkit that writes a PDF of 200 symbols with names takes " +
        Millisekunden(p[0].Median()) + " ms and " + MiB(p[0].Spitze) + " MiB.\n" +
        Kopf({"Persons", "PDF ms", "by bare", "MiB", "kB", "SVG ms", "MiB", "kB", "PNG ms", "MiB", "kB"});
    for (size_t i = 0; i < Größen.size(); ++i) {
        std::vector<std::string> felder{std::to_string(Größen[i])};
        for (size_t art = 0; art < 3; ++art) {
            const Prozess &lauf = p[1 + art * Größen.size() + i];
            felder.push_back(Millisekunden(lauf.Median()));
            if (art == 0) felder.push_back(Zahl(lauf.Median() / p[0].Median(), 2));
            felder.push_back(MiB(lauf.Spitze));
            felder.push_back(Kilobyte(lauf.Was));
        }
        text += Zeile(felder);
    }
    return text;
}

/// What else turns the page's drawing into a file on the command line; those that are installed.
std::string Andere(const Orte &orte) {
    const std::string projekt = orte.Beispiele + "/grossfamilie.kwp";
    std::vector<Prozess> p{{"svg", {orte.Kinwright(), "--export", "peer.svg", projekt}}};
    Messen(p, 0); // what the others begin with
    struct Weg {
        const char *Art;
        const char *Programm;
        const char *Ergebnis;
        std::vector<std::string> Aufruf;
    };
    const std::vector<Weg> wege{
        {"PDF", "Kinwright", "kinwright.pdf", {orte.Kinwright(), "--export", "kinwright.pdf", projekt}},
        {"PDF",
         "rsvg-convert",
         "rsvg-convert.pdf",
         {"rsvg-convert", "-f", "pdf", "-o", "rsvg-convert.pdf", "peer.svg"}},
        {"PDF", "Inkscape", "Inkscape.pdf", {"inkscape", "--export-filename=Inkscape.pdf", "peer.svg"}},
        {"PDF", "LibreOffice", "peer.pdf", {"soffice", "--headless", "--convert-to", "pdf", "peer.svg"}},
        {"PNG", "Kinwright", "kinwright.png", {orte.Kinwright(), "--export", "kinwright.png", projekt}},
        {"PNG",
         "rsvg-convert",
         "rsvg-convert.png",
         {"rsvg-convert", "-d", "300", "-p", "300", "-b", "white", "-o", "rsvg-convert.png", "peer.svg"}},
        {"PNG",
         "Inkscape",
         "Inkscape.png",
         {"inkscape", "--export-dpi=300", "--export-background=white", "--export-filename=Inkscape.png", "peer.svg"}}};
    std::vector<const Weg *> gegangen;
    p.clear();
    for (const Weg &weg : wege) {
        if (!Vorhanden(weg.Aufruf.front())) continue;
        gegangen.push_back(&weg);
        p.push_back({weg.Programm, weg.Aufruf});
    }
    Messen(p, Gastrunden);
    std::string text =
        "\n## Beside others\n\nA family of 200 persons as a page of A4, and what else turns its SVG into "
        "such a file on the command line: whole programs, the median of " +
        std::to_string(Gastrunden) + "; PNG with 300 dots an inch.\n" + Kopf({"", "ms", "by Kinwright", "MiB", "kB"});
    double unseres = 0;
    for (size_t i = 0; i < p.size(); ++i) {
        if (p[i].Was == "Kinwright") unseres = p[i].Median();
        const std::string art = gegangen[i]->Art;
        const std::string datei = gegangen[i]->Ergebnis;
        text += Zeile({art + " by " + p[i].Was, Millisekunden(p[i].Median()), Zahl(p[i].Median() / unseres, 1),
                       MiB(p[i].Spitze), Kilobyte(datei)});
    }
    return text + "\nA PDF takes what a bare program of the toolkit takes too: starting, looking for fonts, embedding "
                  "them. What is left of it is a few milliseconds.\n";
}

} // namespace

std::string Bericht(const Orte &orte) {
    std::string text = "# Speed and memory\n\nWritten by `./bench`, all in one run, each program in turn with the "
                       "others.\nMachine: " +
                       Maschine() + "\n";
    text += Start(orte);
    text += Ausgaben(orte);
    text += Andere(orte);
    Messwerte werte = InnenMessen(orte);
    return text + Innen(werte) + Auslegungen(orte);
}

} // namespace kw

int main(int argc, char **argv) {
    if (argc != 4) {
        std::cerr << "usage: bench_report FOLDER SAMPLES OUT\n";
        return 2;
    }
    try {
        const std::string bericht = kw::Bericht({argv[1], argv[2]});
        std::cout << bericht;
        std::ofstream datei(argv[3]);
        datei << bericht;
        return datei.flush() ? 0 : 1;
    } catch (const std::exception &fehler) {
        std::cerr << "bench_report: " << fehler.what() << "\n";
        return 1;
    }
}
