#include "app/Einzelbild.h"
#include "qt/Aufruf.h"
#include "qt/Ausgabe.h"
#include "qt/Einzelinstanz.h"
#include "qt/Hauptfenster.h"
#include "qt/QtPlattform.h"

#include <QApplication>

#include <cstdio>
#include <filesystem>

namespace {

using namespace kw;

int Melden(const std::string &zeile, int ergebnis) {
    std::fprintf(stderr, "kinwright: %s\n", zeile.c_str());
    return ergebnis;
}

int Exportieren(const Aufruf &aufruf, int &argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // an export needs no display and asks none
    // What the toolkit has to say of the surroundings is no word about the export, which has one line to say.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QGuiApplication anwendung(argc, argv);
    const QtUhr uhr;
    Einzelbild bild(uhr, EinstellungsDateiDesBenutzers());
    const std::string schaden = bild.Laden(aufruf.Datei);
    if (!bild.IstGelesen()) return Melden(aufruf.Datei + ": " + schaden, 1);
    Zeichnung zeichnung = bild.DasBild();
    const std::string titel = NameOhneKennung(DateiName(aufruf.Datei));
    const std::string fehler = kw::Exportieren(zeichnung, aufruf.Ziel, aufruf.Dpi, titel);
    if (!fehler.empty()) return Melden(aufruf.Ziel + ": " + fehler, 1);
    return schaden.empty() ? 0 : Melden(aufruf.Datei + ": " + schaden, 1);
}

int FensterZeigen(const Aufruf &aufruf, int &argc, char **argv) {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return Melden("no display to open a window on; see kinwright --help for exports without one", 1);
    const QApplication anwendung(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kinwright"));
    Einzelinstanz instanz;
    if (!instanz.IstErste()) return 0;
    std::error_code fehler;
    const std::string datei =
        aufruf.Datei.empty() ? "" : '"' + std::filesystem::absolute(aufruf.Datei, fehler).string() + '"';
    Hauptfenster fenster(datei);
    instanz.BeiWeiteremStart([&fenster] { fenster.NachVorn(); });
    fenster.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv) {
    const Aufruf aufruf = AufrufLesen({argv + 1, argv + argc});
    switch (aufruf.Was) {
    case Aufruf::Art::Hilfe: return std::fputs(Hilfetext(), stdout) < 0;
    case Aufruf::Art::Version: return std::printf("kinwright %s\n", frmMain::Programmversion.data()) < 0;
    case Aufruf::Art::Falsch: return Melden(aufruf.Fehler + "; see kinwright --help", 2);
    case Aufruf::Art::Export: return Exportieren(aufruf, argc, argv);
    case Aufruf::Art::Fenster: break;
    }
    return FensterZeigen(aufruf, argc, argv);
}
