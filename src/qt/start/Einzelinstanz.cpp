#include "qt/start/Einzelinstanz.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace kw {

namespace {

/// The same for every start of this user on this display, and no other.
QString Kennname() {
    const QByteArray anzeige = qgetenv("WAYLAND_DISPLAY") + '|' + qgetenv("DISPLAY");
    const QByteArray kurz = QCryptographicHash::hash(anzeige, QCryptographicHash::Sha1).toHex().left(8);
    return QStringLiteral("kinwright-%1-%2").arg(::getuid()).arg(QString::fromLatin1(kurz));
}

QString Laufordner() {
    QString ordner = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!ordner.isEmpty()) return ordner;
    ordner = QDir::homePath() + QStringLiteral("/.cache/kinwright"); // no folder that others can write to
    QDir().mkpath(ordner);
    return ordner;
}

/// The address of the first instance's socket; false when the path is too long for one.
bool Adresse(const QString &pfad, sockaddr_un &adresse) {
    const QByteArray name = QFile::encodeName(pfad);
    adresse = {};
    adresse.sun_family = AF_UNIX;
    if (name.size() >= static_cast<qsizetype>(sizeof adresse.sun_path)) return false;
    std::copy(name.begin(), name.end(), adresse.sun_path);
    return true;
}

int Steckdose() { return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0); }

} // namespace

Einzelinstanz::~Einzelinstanz() {
    if (horcher_ >= 0) ::close(horcher_);
}

bool Einzelinstanz::IstErste() {
    const QString pfad = Laufordner() + QLatin1Char('/') + Kennname();
    sperre_ = std::make_unique<QLockFile>(pfad + QStringLiteral(".lock"));
    sperre_->setStaleLockTime(0); // a lock is held as long as its process lives
    sockaddr_un adresse;
    const bool erreichbar = Adresse(pfad + QStringLiteral(".socket"), adresse);
    const auto *ziel = reinterpret_cast<const sockaddr *>(&adresse);
    if (sperre_->tryLock()) {
        if (!erreichbar) return true;
        ::unlink(adresse.sun_path); // left by a crash
        const int dose = Steckdose();
        const bool horcht = ::bind(dose, ziel, sizeof adresse) == 0 && ::listen(dose, 4) == 0;
        if (horcht) horcher_ = dose;
        else ::close(dose); // a folder that can't hold sockets: this instance can't be called, that is all
        return true;
    }
    // A folder that can't hold the lock must not keep the program from starting.
    if (sperre_->error() != QLockFile::LockFailedError) return true;
    // To be called is all that the first instance waits for.
    const int anruf = Steckdose();
    geantwortet_ = erreichbar && ::connect(anruf, ziel, sizeof adresse) == 0;
    ::close(anruf);
    return false;
}

void Einzelinstanz::BeiWeiteremStart(const std::function<void()> &nachVorn) {
    if (horcher_ < 0) return;
    wächter_ = std::make_unique<QSocketNotifier>(horcher_, QSocketNotifier::Read);
    QObject::connect(wächter_.get(), &QSocketNotifier::activated, wächter_.get(), [this, nachVorn] {
        const int anruf = ::accept(horcher_, nullptr, nullptr);
        if (anruf < 0) return;
        ::close(anruf);
        nachVorn();
    });
}

} // namespace kw
