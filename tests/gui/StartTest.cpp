// How the program starts and ends: its command line, a signal.
#include "document/Dateien.h"
#include "qt/grund/QtPlattform.h"
#include "qt/start/Aufruf.h"
#include "qt/start/Sitzungsende.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>

namespace kw {
namespace {

TEST(Aufruf, SagtWasVerlangtIst) {
    using Art = Aufruf::Art;
    const std::string projekt = KW_TESTDATEN "/CMakeLists.txt"; // any file that is there
    // clang-format off
    const std::pair<std::vector<std::string>, Art> fälle[] = {
        {{}, Art::Fenster}, {{"a.kwp"}, Art::Fenster}, {{"--", "--help"}, Art::Fenster},
        {{"a.kwp", "--version"}, Art::Version}, {{"a.kwp", "b.kwp"}, Art::Falsch}, {{""}, Art::Falsch},
        {{"/dataimport", "fall", "--export"}, Art::Fenster}, // behind the switch all is the model's
        {{"--nonsense"}, Art::Falsch}, {{"--dpi", "72", "a.kwp"}, Art::Falsch},
        {{"--export", "o.PDF", "--dpi", "72", "a.kwp"}, Art::Export}, {{"a.kwp", "--export", "o.jpeg"}, Art::Export},
        {{"--export", "o.pdf"}, Art::Falsch}, {{"--export", "o.txt", "a.kwp"}, Art::Falsch},
        {{"--export", "o.pdf", "--export", "o.png", "a.kwp"}, Art::Falsch},
        {{"--export", "o.png", "--dpi", "9", "a.kwp"}, Art::Falsch},
        {{"--export", "o.png", "--dpi", "72x", "a.kwp"}, Art::Falsch}, {{"--export", projekt, projekt}, Art::Falsch},
        {{"--describe", "a.kwp"}, Art::Beschreibung}, {{"a.kwp", "--language", "de", "--describe"}, Art::Beschreibung},
        {{"--describe"}, Art::Falsch}, {{"--describe", "--language", "fr", "a.kwp"}, Art::Falsch},
        {{"--language", "de", "a.kwp"}, Art::Falsch}, {{"--describe", "--export", "o.png", "a.kwp"}, Art::Falsch},
        {{"--export", "o.png", "--describe", "a.kwp"}, Art::Falsch},
        {{"--export", "o.kwp", "--anonymous", "a.kwp"}, Art::Export}, {{"--export", "o.kwp", "a.kwp"}, Art::Falsch},
        {{"--anonymous=years", "a.kwp", "--export", "o.svg"}, Art::Export}, {{"--anonymous", "a.kwp"}, Art::Falsch},
        {{"--export", "o.pdf", "--anonymous=", "a.kwp"}, Art::Falsch}, {{"--describe", "--anonymous", "a"}, Art::Falsch},
        {{"--export", "o.pdf", "--anonymous", "--anonymous=ages", "a.kwp"}, Art::Falsch},
        {{"--export", "o.pdf", "--anonymously", "a.kwp"}, Art::Falsch},
        {{"--thumbnail", "128", "-a b.kwp", "--o"}, Art::Vorschaubild}, {{"--thumbnail", "128", "a.kwp"}, Art::Falsch},
        {{"--thumbnail", "15", "a.kwp", "o"}, Art::Falsch}, {{"--thumbnail", "128", projekt, projekt}, Art::Falsch},
        {{"--thumbnail", "128", "a.kwp", ""}, Art::Falsch}, {{"a.kwp", "--thumbnail", "128", "o"}, Art::Falsch}};
    // clang-format on
    for (const auto &[worte, art] : fälle) {
        const Aufruf a = AufrufLesen(worte);
        EXPECT_EQ(a.Was, art) << testing::PrintToString(worte) << " " << a.Fehler;
        EXPECT_EQ(a.Fehler.empty(), art != Art::Falsch);
    }
    const auto zeit = [](const char *wort) { return AufrufLesen({"--export", "o.pdf", wort, "a.kwp"}).OhneNamen; };
    EXPECT_EQ(zeit("--"), std::nullopt);
    EXPECT_EQ(zeit("--anonymous"), Lebenszeit::Alter);
    EXPECT_EQ(zeit("--anonymous=ages"), Lebenszeit::Alter);
    EXPECT_EQ(zeit("--anonymous=years"), Lebenszeit::Geburtsjahr);
    EXPECT_EQ(AufrufLesen({"\\dataimport", "Fall", "Müller"}).Import, "\\dataimport Fall Müller");
}

TEST(Datumsfolge, FolgtDemKurzenFormatDesLandes) {
    EXPECT_EQ(FolgeAus("dd.MM.yy"), Datumsfolge::TagMonatJahr);
    EXPECT_EQ(FolgeAus("M/d/yyyy"), Datumsfolge::MonatTagJahr);
    EXPECT_EQ(FolgeAus("yyyy-MM-dd"), Datumsfolge::JahrMonatTag);
}

/// The update runs with root's rights: what anybody else can put there, in a folder on the way too, isn't started.
TEST(GehörtDemSystem, NurWasNiemandSonstÄndernKann) {
    const QTemporaryDir ordner; // in a folder that all can write
    const std::string datei = ordner.filePath(QStringLiteral("kw_update")).toStdString();
    ASSERT_TRUE(DateiSchreiben(datei, "#!/bin/sh\n").Gelungen());
    for (const std::string &pfad : {datei, std::string("/nirgends/env"), std::string("usr/bin/env"), std::string()})
        EXPECT_FALSE(GehörtDemSystem(pfad)) << pfad;
    EXPECT_TRUE(GehörtDemSystem("/usr/bin/env"));
}

/// Opens something modal in the event loop, has the system end the program meanwhile, and tells how often it did.
int Beendet(const std::function<void()> &modal, const std::function<void()> &ende) {
    int mal = 0;
    const Sitzungsende sitzung({[] { return false; }, [&] { ++mal; }});
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(50, ende);
        modal();
        modal(); // a loop that begins while all end doesn't keep the program
    });
    QTimer zuLange;
    QObject::connect(&zuLange, &QTimer::timeout, &zuLange, [] { QCoreApplication::exit(1); });
    zuLange.start(5000);
    EXPECT_EQ(QCoreApplication::exec(), 0);
    return mal;
}

TEST(Sitzungsende, BeendetAuchWennEtwasOffenIst) {
    const auto kasten = [] { QMessageBox(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No).exec(); };
    const auto menü = [] {
        QMenu popup;
        popup.addAction(QStringLiteral("x"));
        popup.exec(QPoint());
    };
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        EXPECT_EQ(Beendet(kasten, [&] { ::raise(signal); }), 1) << signal;
    EXPECT_EQ(Beendet(menü, [] { ::raise(SIGTERM), ::raise(SIGHUP); }), 1);
    EXPECT_EQ(Beendet(kasten, [] { QCoreApplication::quit(); }), 1) << "the session manager's final word";
    ::alarm(0);

    struct sigaction jetzt {};
    ::sigaction(SIGTERM, nullptr, &jetzt);
    EXPECT_EQ(jetzt.sa_handler, SIG_DFL);
    ::signal(SIGHUP, SIG_IGN);
    const Sitzungsende sitzung({[] { return false; }, [] { ADD_FAILURE(); }});
    ::raise(SIGHUP); // as under nohup
    QCoreApplication::processEvents();
    ::signal(SIGHUP, SIG_DFL);
}

} // namespace
} // namespace kw
