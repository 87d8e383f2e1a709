#include "qt/start/Sitzungsende.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>

namespace kw {
namespace {

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
