#include "qt/Einzelinstanz.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>

#include <unistd.h>

namespace kw {

namespace {

constexpr int Geduld = 2000; ///< ms for an answer of the first instance

/// The same for every start of this user on this display, and no other.
QString Kennname() {
    const QByteArray anzeige = qgetenv("WAYLAND_DISPLAY") + '|' + qgetenv("DISPLAY");
    const QByteArray kurz = QCryptographicHash::hash(anzeige, QCryptographicHash::Sha1).toHex().left(8);
    return QStringLiteral("kinwright-%1-%2").arg(::getuid()).arg(QString::fromLatin1(kurz));
}

QString Laufordner() {
    const QString ordner = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return ordner.isEmpty() ? QDir::tempPath() : ordner;
}

} // namespace

bool Einzelinstanz::IstErste() {
    const QString pfad = Laufordner() + QLatin1Char('/') + Kennname();
    sperre_ = std::make_unique<QLockFile>(pfad + QStringLiteral(".lock"));
    sperre_->setStaleLockTime(0); // a lock is held as long as its process lives
    if (sperre_->tryLock()) {
        QLocalServer::removeServer(pfad + QStringLiteral(".socket")); // left by a crash
        server_.setSocketOptions(QLocalServer::UserAccessOption);
        server_.listen(pfad + QStringLiteral(".socket"));
        return true;
    }
    // A folder that can't hold the lock must not keep the program from starting.
    if (sperre_->error() != QLockFile::LockFailedError) return true;
    QLocalSocket erste;
    erste.connectToServer(pfad + QStringLiteral(".socket"));
    if (erste.waitForConnected(Geduld)) {
        erste.write("vor\n");
        erste.waitForBytesWritten(Geduld);
        erste.waitForDisconnected(Geduld);
    }
    return false;
}

void Einzelinstanz::BeiWeiteremStart(std::function<void()> nachVorn) {
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this, nachVorn] {
        while (QLocalSocket *bote = server_.nextPendingConnection()) {
            QObject::connect(bote, &QLocalSocket::disconnected, bote, &QObject::deleteLater);
            nachVorn();
            bote->disconnectFromServer();
        }
    });
}

} // namespace kw
