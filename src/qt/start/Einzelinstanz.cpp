#include "qt/start/Einzelinstanz.h"

#include "qt/start/Anruf.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kw {

namespace {

using namespace std::chrono_literals;

constexpr auto Geduld = 2s;      ///< with a first instance that hangs or is stopped
constexpr auto Pause = 20ms;     ///< before one that is just starting, or ending, is called again
constexpr int MeisteAnrufe = 16; ///< at a time; more wait in the queue of the socket

/// The same for every start of this user on this display, and no other.
QString Kennname() {
    const QByteArray anzeige = qgetenv("WAYLAND_DISPLAY") + '|' + qgetenv("DISPLAY");
    const QByteArray kurz = QCryptographicHash::hash(anzeige, QCryptographicHash::Sha1).toHex().left(8);
    return QStringLiteral("kinwright-%1-%2").arg(::geteuid()).arg(QString::fromLatin1(kurz));
}

/// A folder of the user's own, that others can't write to.
QString Laufordner() {
    QString ordner = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (QFileInfo(ordner).isDir() && QFileInfo(ordner).ownerId() == ::geteuid()) return ordner;
    ordner = QDir::homePath() + QStringLiteral("/.cache/kinwright");
    QDir().mkpath(ordner);
    return ordner;
}

/// This machine, as locks in a home on the network name it.
std::string Rechner() {
    std::array<char, 256> name{};
    return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

} // namespace

Einzelinstanz::~Einzelinstanz() {
    for (const int fd : {horcher_, sperre_})
        if (fd >= 0) ::close(fd);
}

Einzelinstanz::Stand Einzelinstanz::Starten(const std::string &datei) {
    const QByteArray pfad = QFile::encodeName(Laufordner() + u'/' + Kennname());
    const std::string sperrdatei = pfad.toStdString() + ".lock";
    const std::string dose = pfad.toStdString() + ".socket";
    const auto ende = std::chrono::steady_clock::now() + Geduld;
    // Calling comes first: a lock can get lost with its file while the one that held it goes on.
    for (Anrufende anruf = Anrufen(dose, datei, ende); anruf != Anrufende::Angenommen;
         anruf = Anrufen(dose, datei, ende)) {
        switch (Sperren(sperrdatei)) {
        case Sperre::Unsere: Horchen(dose); return Stand::Erste;
        case Sperre::Unmöglich: return AlleinWeil("cannot lock " + sperrdatei + ": " + strerrordesc_np(errno));
        case Sperre::Fremd: break;
        }
        if (anruf == Anrufende::Fremder) return AlleinWeil("the Kinwright that is running is another user's");
        if (anruf == Anrufende::Niemand && !fremderRechner_.empty())
            return AlleinWeil("Kinwright is running on " + fremderRechner_ + " with the same home folder");
        if (std::chrono::steady_clock::now() >= ende) return AlleinWeil("the Kinwright that is running doesn't answer");
        std::this_thread::sleep_for(Pause);
    }
    return Stand::Übergeben;
}

Einzelinstanz::Stand Einzelinstanz::AlleinWeil(std::string grund) {
    grund_ = std::move(grund);
    return Stand::Allein;
}

/// The lock is the system's, on an open file: it goes with its process, however that ends. The file stays.
Einzelinstanz::Sperre Einzelinstanz::Sperren(const std::string &pfad) {
    const int fd = ::open(pfad.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (fd < 0) return Sperre::Unmöglich;
    if (::flock(fd, LOCK_EX | LOCK_NB) == 0) {
        const std::string rechner = Rechner();
        // Only for those who ask where the holder is.
        if (::ftruncate(fd, 0) != 0 || ::pwrite(fd, rechner.data(), rechner.size(), 0) < 0) fremderRechner_.clear();
        sperre_ = fd;
        return Sperre::Unsere;
    }
    const int fehler = errno;
    std::array<char, 256> name{};
    if (::pread(fd, name.data(), name.size() - 1, 0) < 0) name[0] = '\0';
    fremderRechner_ = Rechner() == name.data() ? "" : name.data();
    ::close(fd);
    errno = fehler;
    return fehler == EWOULDBLOCK ? Sperre::Fremd : Sperre::Unmöglich;
}

/// A folder that can't hold sockets: this instance can't be called, that is all.
void Einzelinstanz::Horchen(const std::string &pfad) {
    ::unlink(pfad.c_str()); // left by a crash
    horcher_ = Horcher(pfad);
}

void Einzelinstanz::BeiWeiteremStart(std::function<void(const std::string &datei)> übernehmen) {
    if (horcher_ < 0) return;
    wächter_ = std::make_unique<QSocketNotifier>(horcher_, QSocketNotifier::Read);
    QObject::connect(wächter_.get(), &QSocketNotifier::activated, wächter_.get(),
                     [this, übernehmen = std::move(übernehmen)] { Annehmen(übernehmen); });
}

/// One at a time, as the event loop tells of them.
void Einzelinstanz::Annehmen(const std::function<void(const std::string &)> &übernehmen) {
    constexpr int Atempause = 200; // ms; without room for another call the queue would be told of again at once
    if (wächter_->children().size() < MeisteAnrufe) {
        const int fd = ::accept4(horcher_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (fd >= 0) return static_cast<void>(new Anruf(fd, übernehmen, wächter_.get()));
    }
    wächter_->setEnabled(false);
    QTimer::singleShot(Atempause, wächter_.get(), [this] { wächter_->setEnabled(true); });
}

} // namespace kw
