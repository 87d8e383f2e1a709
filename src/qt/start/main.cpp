#include "app/Einzelbild.h"
#include "app/Programmversion.h"
#include "app/Stammbaumdatei.h"
#include "document/Dateien.h"
#include "document/ProjektDatei.h"
#include "document/Texte.h"
#include "familytree/Uebergabe.h"
#include "output/Zieldatei.h"
#include "qt/drucken/Ausgabe.h"
#include "qt/drucken/Vorschaubild.h"
#include "qt/fenster/Hauptfenster.h"
#include "qt/grund/QtPlattform.h"
#include "qt/malen/QtFlaeche.h"
#include "qt/start/Aufruf.h"
#include "qt/start/Einzelinstanz.h"
#include "qt/start/Sitzungsende.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <new>

#include <spawn.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using namespace kw;

/// One plain line, whatever a file's name holds.
int Melden(const std::string &zeile, int ergebnis) {
    std::fprintf(stderr, "kinwright: %s\n", FürTerminal(zeile).c_str());
    return ergebnis;
}

/// What the toolkit has to say of its surroundings is no word to the user; what ends the program is.
void Meldung(QtMsgType art, const QMessageLogContext &, const QString &text) {
    if (art != QtFatalMsg) return;
    Melden("cannot open a window: " + text.section(QLatin1Char('\n'), 0, 0).toStdString(), 1);
    std::_Exit(1);
}

/// 0 when all of it came out.
int Ausgegeben(const std::string &text) {
    const bool ganz = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    return ganz ? 0 : Melden("cannot write to the standard output", 1);
}

/// The family of the page, without the page. What stays behind is told, which is no failure.
int StammbaumExportieren(const Aufruf &aufruf, int &argc, char **argv) {
    const QCoreApplication anwendung(argc, argv);
    const QtUhr uhr;
    Einzelbild bild(uhr, EinstellungsDateiDesBenutzers());
    const std::string schaden = bild.Laden(aufruf.Datei);
    if (!bild.IstGelesen()) return Melden(aufruf.Datei + ": " + schaden, 1);
    const Sprache sprache = bild.ansicht.Sprache = aufruf.InSprache.value_or(bild.ansicht.Sprache);
    if (aufruf.OhneNamen) bild.OhneNamen(*aufruf.OhneNamen);
    const Übergabe stammbaum = Übergeben(bild.dokument, uhr, aufruf.Wünsche);
    if (stammbaum.Personen == 0) return Melden(aufruf.Datei + ": shows no person that goes into a family tree", 1);
    const Dateibefund geschrieben = DateiSchreiben(aufruf.Ziel, stammbaum.Text);
    if (!geschrieben.Gelungen()) return Melden(aufruf.Ziel + ": " + geschrieben.Meldung, 1);
    for (const auto &zeile : Berichtszeilen(stammbaum.Bericht, sprache)) Melden(zeile, 0);
    return schaden.empty() ? 0 : Melden(aufruf.Datei + ": " + schaden, 1);
}

int Exportieren(const Aufruf &aufruf, int &argc, char **argv) {
    if (IstStammbaumname(aufruf.Ziel)) return StammbaumExportieren(aufruf, argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // an export needs no display and asks none
    const QGuiApplication anwendung(argc, argv);
    const QtUhr uhr;
    Einzelbild bild(uhr, EinstellungsDateiDesBenutzers());
    const std::string schaden = bild.Laden(aufruf.Datei);
    if (!bild.IstGelesen()) return Melden(aufruf.Datei + ": " + schaden, 1);
    if (aufruf.OhneNamen) bild.OhneNamen(*aufruf.OhneNamen);
    const std::string titel = aufruf.OhneNamen ? Drucktitel({}) : NameOhneKennung(DateiName(aufruf.Datei));
    const std::string fehler = IstProjektname(aufruf.Ziel)
                                   ? DateiSchreiben(aufruf.Ziel, ProjektInhalt(bild.dokument)).Meldung
                                   : kw::Exportieren(bild, aufruf.Ziel, aufruf.Dpi, titel);
    if (!fehler.empty()) return Melden(aufruf.Ziel + ": " + fehler, 1);
    return schaden.empty() ? 0 : Melden(aufruf.Datei + ": " + schaden, 1);
}

/// The page in words, as the window would tell it.
int Beschreiben(const Aufruf &aufruf, int &argc, char **argv) {
    const QCoreApplication anwendung(argc, argv);
    const QtUhr uhr;
    Einzelbild bild(uhr, EinstellungsDateiDesBenutzers());
    if (aufruf.InSprache) bild.ansicht.Sprache = *aufruf.InSprache;
    const std::string schaden = bild.Laden(aufruf.Datei);
    if (bild.IstGelesen())
        if (const int ergebnis = Ausgegeben(bild.InWorten())) return ergebnis;
    return schaden.empty() ? 0 : Melden(aufruf.Datei + ": " + schaden, 1);
}

/// Lines for people, whatever stands in a file.
void Berichten(const std::string &text) {
    for (size_t i = 0; i < text.size();) {
        const size_t ende = std::min(text.find('\n', i), text.size());
        std::fprintf(stderr, "%s\n", FürTerminal(text.substr(i, ende - i)).c_str());
        i = ende + 1;
    }
}

int StammbaumÜbernehmen(Aufruf aufruf, int &argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication anwendung(argc, argv);
    const QtUhr uhr;
    aufruf.Stammbaum.Sprache =
        aufruf.InSprache.value_or(Einzelbild(uhr, EinstellungsDateiDesBenutzers()).ansicht.Sprache);
    aufruf.Stammbaum.Jahr = uhr.Heute().Jahr;
    QtFläche maß;
    const Stammbaumausgang ausgang = StammbaumSchreiben(aufruf.Stammbaum, maß);
    if (!ausgang.Meldung.empty()) Berichten("kinwright: " + ausgang.Meldung);
    Berichten(ausgang.Bericht);
    return ausgang.Ergebnis;
}

/// A page that isn't whole gets no picture, so that nobody takes it for the whole.
int VorschaubildMachen(const Aufruf &aufruf, int &argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication anwendung(argc, argv);
    const QtUhr uhr;
    Einzelbild bild(uhr, EinstellungsDateiDesBenutzers());
    if (const std::string schaden = bild.Laden(aufruf.Datei); !schaden.empty())
        return Melden(aufruf.Datei + ": " + schaden, 1);
    const std::string fehler = VorschaubildSchreiben(bild, aufruf.Ziel, aufruf.Kante);
    return fehler.empty() ? 0 : Melden(aufruf.Ziel + ": " + fehler, 1);
}

/// The texts of the platform's own dialogs and buttons, which follow the platform's language and not the program's.
/// The program itself is written from left to right in all its languages.
void PlattformtexteLaden(QTranslator &texte) {
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    if (texte.load(QLocale::system(), QStringLiteral("qtbase"), QStringLiteral("_"),
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texte);
}

/// The project's full path, empty for none.
std::string Projektpfad(const Aufruf &aufruf) {
    if (!aufruf.Import.empty() || aufruf.Datei.empty()) return {};
    std::error_code fehler;
    const std::filesystem::path voll = std::filesystem::absolute(aufruf.Datei, fehler);
    return fehler ? aufruf.Datei : voll.string();
}

/// The command line as the model takes it.
std::string Kommandozeile(const Aufruf &aufruf) {
    const std::string pfad = Projektpfad(aufruf);
    return pfad.empty() ? aufruf.Import : '"' + pfad + '"';
}

/// A start of its own for each of these files, beside this one, which is ending: the first that comes behind its end
/// takes the others. In the bytes of their names, which the toolkit's own way of starting would change.
void NeuStarten(const std::deque<std::string> &dateien) {
    posix_spawnattr_t art;
    if (::posix_spawnattr_init(&art) != 0) return;
    ::posix_spawnattr_setflags(&art, POSIX_SPAWN_SETSID); // the terminal's end isn't theirs
    for (std::string datei : dateien) {
        std::string name = "kinwright";
        char *worte[] = {name.data(), datei.data(), nullptr};
        pid_t kind = 0;
        if (::posix_spawn(&kind, "/proc/self/exe", nullptr, &art, worte, environ) != 0)
            Melden("cannot open " + datei + ", which was handed over", 1);
    }
    ::posix_spawnattr_destroy(&art);
}

/// A released program leaves no dump of what it held: clients' data. A limit of one byte also keeps the system from
/// handing the dump to a program that collects them, which none of zero does.
void OhneSpeicherabbild() {
#ifdef KW_OHNE_SPEICHERABBILD
    rlimit grenze{};
    if (::getrlimit(RLIMIT_CORE, &grenze) != 0) return;
    grenze.rlim_cur = std::min<rlim_t>(grenze.rlim_max, 1);
    ::setrlimit(RLIMIT_CORE, &grenze);
#endif
}

int FensterZeigen(const Aufruf &aufruf, int &argc, char **argv) {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return Melden("no display to open a window on; see kinwright --help for exports without one", 1);
    Einzelinstanz instanz; // before the application object: a later start has no use for one
    switch (instanz.Starten(Projektpfad(aufruf))) {
    case Einzelinstanz::Stand::Übergeben: return 0;
    case Einzelinstanz::Stand::Allein: Melden(instanz.Grund() + "; this window stands alone", 0); break;
    case Einzelinstanz::Stand::Erste: break;
    }
    // Without it a screen reader that is started later is never heard of.
    if (!qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"))
        qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    const QApplication anwendung(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kinwright"));
    QApplication::setDesktopFileName(QStringLiteral("kinwright")); // by it desktops know whose window it is
    QTranslator plattformtexte;
    PlattformtexteLaden(plattformtexte);
    Hauptfenster fenster(Kommandozeile(aufruf));
    instanz.BeiWeiteremStart([&fenster](const std::string &datei) { fenster.Übernehmen(datei); });
    const Sitzungsende ende({[&fenster] { return fenster.SitzungBeenden(); }, [&fenster] { fenster.Beenden(); }});
    fenster.show();
    const int ergebnis = QApplication::exec();
    NeuStarten(fenster.Wartende());
    return ergebnis;
}

} // namespace

int main(int argc, char **argv) try {
    std::signal(SIGXFSZ, SIG_IGN); // a file that may not grow so large is told as any that can't be written
    qInstallMessageHandler(Meldung);
    OhneSpeicherabbild();
    const Aufruf aufruf = AufrufLesen({argv + std::min(argc, 1), argv + argc});
    switch (aufruf.Was) {
    case Aufruf::Art::Hilfe: return Ausgegeben(Hilfetext());
    case Aufruf::Art::Version: return Ausgegeben("kinwright " + std::string(Programmversion) + "\n");
    case Aufruf::Art::Falsch: return Melden(aufruf.Fehler + "; see kinwright --help", 2);
    case Aufruf::Art::Export: return Exportieren(aufruf, argc, argv);
    case Aufruf::Art::Beschreibung: return Beschreiben(aufruf, argc, argv);
    case Aufruf::Art::Vorschaubild: return VorschaubildMachen(aufruf, argc, argv);
    case Aufruf::Art::Stammbaum: return StammbaumÜbernehmen(aufruf, argc, argv);
    case Aufruf::Art::Fenster: break;
    }
    return FensterZeigen(aufruf, argc, argv);
} catch (const std::bad_alloc &) {
    return Melden("not enough memory", 1);
}
