#include "qt/start/Aufruf.h"

#include "app/Datenimport.h"
#include "app/Stammbaumdatei.h"
#include "document/Dateinamen.h"
#include "qt/drucken/Ausgabe.h"
#include "qt/drucken/Vorschaubild.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <system_error>

namespace kw {

namespace {

constexpr std::string_view Anonym = "--anonymous";

Aufruf Falsch(const std::string &fehler) {
    Aufruf a;
    a.Was = Aufruf::Art::Falsch;
    a.Fehler = fehler;
    return a;
}

bool ZahlLesen(const std::string &text, int kleinste, int größte, int &zahl) {
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    return fehler == std::errc() && ende == text.data() + text.size() && zahl >= kleinste && zahl <= größte;
}

bool DpiLesen(const std::string &text, int &dpi) { return ZahlLesen(text, KleinsteDpi, GrößteDpi, dpi); }

/// A file manager gives names of any kind: no word behind the option is one itself.
Aufruf VorschaubildLesen(const std::vector<std::string> &worte) {
    if (worte.size() != 4) return Falsch("--thumbnail needs SIZE IN OUT, and nothing else");
    Aufruf a;
    a.Was = Aufruf::Art::Vorschaubild;
    a.Datei = worte[2];
    a.Ziel = worte[3];
    std::error_code fehler; // a file that isn't there yet is no other
    if (!ZahlLesen(worte[1], KleinsteKante, GrößteKante, a.Kante))
        return Falsch("the size of a thumbnail is a whole number from " + std::to_string(KleinsteKante) + " to " +
                      std::to_string(GrößteKante));
    if (a.Datei.empty() || a.Ziel.empty()) return Falsch("the name of a file is empty");
    if (std::filesystem::equivalent(a.Datei, a.Ziel, fehler)) return Falsch("the thumbnail would replace the project");
    return a;
}

bool SpracheLesen(const std::string &text, std::optional<Sprache> &sprache) {
    if (text == "de" || text == "en") sprache = SpracheAus(text);
    return sprache && Kürzel(*sprache) == text;
}

bool FassungLesen(const std::string &text, Stammbaumfassung &fassung) {
    for (const auto bekannte : {Stammbaumfassung::Gedcom551, Stammbaumfassung::Gedcom70})
        if (text == Fassungsname(bekannte)) fassung = bekannte;
    return text == Fassungsname(fassung);
}

/// What was said that goes with some exports only.
struct Gesagtes {
    bool Dpi = false, Stammbaum = false;
};

/// "--anonymous" alone asks for ages.
bool OhneNamenLesen(std::string_view wort, std::optional<Lebenszeit> &zeit) {
    const auto wert = wort.substr(wort.find('=') + 1);
    if (wort == Anonym || wert == "ages") zeit = Lebenszeit::Alter;
    else if (wert == "years") zeit = Lebenszeit::Geburtsjahr;
    else return false;
    return true;
}

/// What an export can write, beside pictures and documents of the page.
std::string Zielfehler(const Aufruf &a) {
    if (IstAusgabeformat(a.Ziel) || IstStammbaumname(a.Ziel)) return {};
    if (IstProjektname(a.Ziel)) return a.OhneNamen ? "" : "a project is exported with --anonymous only";
    return "cannot export to " + a.Ziel + ": its name must end in .pdf, .svg, .png, .jpg, .bmp or .ged" +
           (a.OhneNamen ? ", or .kwp" : "");
}

/// Every call that is understood is checked as a whole at its end.
Aufruf Geprüft(Aufruf a, const Gesagtes &gesagt) {
    std::error_code fehler; // a file that isn't there yet is no other
    const bool stammbaum = a.Was == Aufruf::Art::Export && IstStammbaumname(a.Ziel);
    if (gesagt.Stammbaum && !stammbaum)
        return Falsch("--gedcom, --health and --relationships go with --export OUT.ged");
    if (gesagt.Dpi && stammbaum) return Falsch("--dpi doesn't go with a family tree");
    if (a.Was == Aufruf::Art::Export) {
        if (std::filesystem::equivalent(a.Datei, a.Ziel, fehler)) return Falsch("the export would replace the project");
        if (a.Datei.empty()) return Falsch("--export needs a project file");
        if (const auto grund = Zielfehler(a); !grund.empty()) return Falsch(grund);
    } else if (a.OhneNamen) {
        return Falsch("--anonymous goes with --export");
    } else if (gesagt.Dpi) {
        return Falsch("--dpi goes with --export");
    }
    const bool beschreibt = a.Was == Aufruf::Art::Beschreibung;
    if (beschreibt && a.Datei.empty()) return Falsch("--describe needs a project file");
    if (a.InSprache && !beschreibt && !stammbaum)
        return Falsch("--language goes with --describe, --familytree and --export OUT.ged");
    return a;
}

} // namespace

Aufruf AufrufLesen(const std::vector<std::string> &worte) {
    Aufruf a;
    if (!worte.empty() && Datenimport::IstVerlangt(worte.front())) {
        for (const std::string &wort : worte) a.Import += (a.Import.empty() ? "" : " ") + wort;
        return a;
    }
    if (!worte.empty() && worte.front() == "--thumbnail") return VorschaubildLesen(worte);
    const auto optionenende = std::find(worte.begin(), worte.end(), "--");
    if (std::find(worte.begin(), optionenende, "--familytree") != optionenende) return StammbaumoptionenLesen(worte);
    bool optionen = true;
    Gesagtes gesagt;
    for (size_t i = 0; i < worte.size(); ++i) {
        const std::string &wort = worte[i];
        const bool hatWert = i + 1 < worte.size();
        if (!optionen || !wort.starts_with('-') || wort == "-") {
            if (!a.Datei.empty()) return Falsch("more than one project file: " + wort);
            if (wort.empty()) return Falsch("the name of the project file is empty");
            a.Datei = wort;
        } else if (wort == "--") {
            optionen = false;
        } else if (wort == "--help" || wort == "-h") {
            a.Was = Aufruf::Art::Hilfe;
            return a;
        } else if (wort == "--version") {
            a.Was = Aufruf::Art::Version;
            return a;
        } else if (wort == "--export") {
            if (a.Was == Aufruf::Art::Beschreibung) return Falsch("either --export or --describe");
            if (!hatWert || !a.Ziel.empty()) return Falsch("--export needs one file to write");
            a.Was = Aufruf::Art::Export;
            a.Ziel = worte[++i];
        } else if (wort == "--describe") {
            if (a.Was == Aufruf::Art::Export) return Falsch("either --export or --describe");
            a.Was = Aufruf::Art::Beschreibung;
        } else if (wort == "--language") {
            if (!hatWert || !SpracheLesen(worte[++i], a.InSprache)) return Falsch("--language is de or en");
        } else if (wort == "--dpi") {
            if (!hatWert || gesagt.Dpi || !DpiLesen(worte[++i], a.Dpi))
                return Falsch("--dpi needs one whole number from " + std::to_string(KleinsteDpi) + " to " +
                              std::to_string(GrößteDpi));
            gesagt.Dpi = true;
        } else if (wort == "--gedcom") {
            if (!hatWert || !FassungLesen(worte[++i], a.Wünsche.Fassung)) return Falsch("--gedcom is 5.5.1 or 7.0");
            gesagt.Stammbaum = true;
        } else if (wort == "--health" || wort == "--relationships") {
            (wort == "--health" ? a.Wünsche.Gesundheit : a.Wünsche.Beziehungslinien) = true;
            gesagt.Stammbaum = true;
        } else if (wort == Anonym || wort.starts_with(std::string(Anonym) + "=")) {
            if (a.OhneNamen || !OhneNamenLesen(wort, a.OhneNamen))
                return Falsch("--anonymous stands once, alone or with =ages or =years");
        } else if (wort == "--thumbnail") {
            return Falsch("--thumbnail goes with no other option");
        } else {
            return Falsch("unknown option " + wort);
        }
    }
    return Geprüft(a, gesagt);
}

const char *Hilfetext() {
    return "Usage: kinwright [FILE]\n"
           "       kinwright --export OUT [--dpi N] [--anonymous[=ages|years]] FILE\n"
           "       kinwright --export OUT.ged [--gedcom 5.5.1|7.0] [--health] [--relationships] [--language de|en] "
           "FILE\n"
           "       kinwright --describe [--language de|en] FILE\n"
           "       kinwright --familytree TREE [--person WHO] [--up N] [--down N] [--small] [--language de|en] OUT\n"
           "       kinwright --familytree TREE --all [--person WHO] [--small] [--language de|en] OUT\n"
           "       kinwright --thumbnail SIZE IN OUT\n"
           "       kinwright /dataimport NAME\n"
           "\n"
           "Opens the genogram editor, with the project FILE (.kwp) if one is given. A window that is open already\n"
           "takes it over.\n"
           "\n"
           "  --export OUT  write the page of FILE to OUT and end; the ending of OUT says as what:\n"
           "                .pdf, .svg, .png, .jpg or .bmp. Needs no display.\n"
           "  --dpi N       dots per inch of a picture, 300 if not given\n"
           "  --anonymous   leave out whose family it is: letters and numbers for names; ages, or years of birth with\n"
           "                =years, for dates; no texts, institutions, title. Then OUT can also be a project, .kwp.\n"
           "  OUT.ged       the persons, couples and children of FILE as a family tree for genealogy programs; what\n"
           "                can't go along is told, a line for each kind\n"
           "  --gedcom V    5.5.1 or 7.0, the version of the format; 7.0 if not given\n"
           "  --health      the marks of addiction and illness go along\n"
           "  --relationships\n"
           "                relationship lines go along, as relations between two persons\n"
           "  --describe    print what the page of FILE shows in plain sentences and end. Needs no display.\n"
           "  --language L  de or en, what it is described or reported in; if not given, as the program's settings "
           "say\n"
           "  --familytree  make the project OUT (.kwp) of the genealogy file TREE (GEDCOM: .ged, .gdz) and end: one\n"
           "                person's family on the smallest sheet that holds it. What was left out, taken for granted\n"
           "                or changed is reported on the standard error. Needs no display.\n"
           "  --person WHO  that person: as TREE calls them (I12), or words of the name and years; if not given, the\n"
           "                one that TREE proposes, or its first\n"
           "  --up N        so many generations of ancestors, 2 if not given\n"
           "  --down N      so many generations of descendants, 1 if not given\n"
           "  --small       with smaller symbols, where nothing else makes it fit\n"
           "  --all         everybody, also beyond the sheet; at most 999 persons and 999 couples\n"
           "  --thumbnail   write the page of IN into the file OUT and end, as a .png of at most SIZE x SIZE pixels:\n"
           "                what a file manager shows. Needs no display; writes nothing when IN is damaged.\n"
           "  /dataimport   lay out the case of the file NAME.xyz and list the persons of muster.txt, both in the\n"
           "                program's folder; \\dataimport is the same\n"
           "  --help        show this text\n"
           "  --version     show the version\n"
           "\n"
           "Exit status: 0 when all went well; 1 when FILE can't be read, or only in part (what was read is\n"
           "exported or described all the same), or OUT can't be written, or of TREE no sheet holds what was asked\n"
           "for; 2 when the call is wrong, or WHO is nobody or several persons, who are listed.\n";
}

} // namespace kw
