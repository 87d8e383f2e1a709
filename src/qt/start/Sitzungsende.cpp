#include "qt/start/Sitzungsende.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <iterator>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace kw {

namespace {

constexpr int Signale[] = {SIGTERM, SIGINT, SIGHUP};
constexpr unsigned Frist = 10; ///< seconds; a program that hangs, or a loop that isn't the toolkit's, must end too

/// Into the event loop, for the handler, which is told nothing but the signal.
std::atomic<int> schreibende = -1;

/// Only what a handler may do.
extern "C" void Melden(int) {
    const int fehler = errno;
    ::alarm(Frist);
    [[maybe_unused]] const ssize_t geschrieben = ::write(schreibende, "", 1);
    errno = fehler;
}

/// One that is ignored, as under nohup, stays so.
void Fangen(int signal) {
    struct sigaction bisher {};
    struct sigaction unsere {};
    unsere.sa_handler = Melden;
    unsere.sa_flags = SA_RESTART;
    if (::sigaction(signal, nullptr, &bisher) == 0 && bisher.sa_handler != SIG_IGN)
        ::sigaction(signal, &unsere, nullptr);
}

void Loslassen(int signal) {
    struct sigaction bisher {};
    if (::sigaction(signal, nullptr, &bisher) == 0 && bisher.sa_handler == Melden) ::signal(signal, SIG_DFL);
}

} // namespace

Sitzungsende::Sitzungsende(Folgen folgen) : folgen_(std::move(folgen)) {
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::commitDataRequest, this, &Sitzungsende::Antworten, Qt::DirectConnection);
    int leitung[2];
    if (::pipe2(leitung, O_CLOEXEC | O_NONBLOCK) != 0) return; // signals end the program as they always do
    leseende_ = leitung[0];
    schreibende = leitung[1];
    auto *wächter = new QSocketNotifier(leseende_, QSocketNotifier::Read, this);
    connect(wächter, &QSocketNotifier::activated, this, [this, wächter] {
        wächter->setEnabled(false);
        Beenden();
    });
    for (const int signal : Signale) Fangen(signal);
}

Sitzungsende::~Sitzungsende() {
    for (const int signal : Signale) Loslassen(signal);
    for (const int ende : {leseende_, schreibende.exchange(-1)})
        if (ende >= 0) ::close(ende);
}

/// Where nobody may be asked there is nothing to answer: the final word follows. The program comes back with no
/// session, since it couldn't show again what it showed.
void Sitzungsende::Antworten(QSessionManager &sitzung) const {
    sitzung.setRestartHint(QSessionManager::RestartNever);
    if (!sitzung.allowsInteraction()) return;
    if (folgen_.Fragen()) sitzung.release();
    else sitzung.cancel();
}

void Sitzungsende::Beenden() {
    if (std::exchange(endet_, true)) return;
    folgen_.Beenden();
    QCoreApplication::exit(0);
}

/// The session's final word. The toolkit would close the windows, and be kept by the question that has been answered
/// already, or by an open form. That the last window has closed is posted by the toolkit itself and no such word.
bool Sitzungsende::eventFilter(QObject *empfänger, QEvent *ereignis) {
    if (ereignis->type() != QEvent::Quit || !ereignis->spontaneous() || empfänger != qApp) return false;
    Beenden();
    return true;
}

} // namespace kw
