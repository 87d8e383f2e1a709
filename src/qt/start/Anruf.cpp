#include "qt/start/Anruf.h"

#include <QTimer>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <string_view>
#include <utility>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace kw {

namespace {

constexpr std::string_view Anrede = "kinwright 1\n"; ///< a path follows, without an end mark
constexpr std::string_view Bestätigung = "ok";
constexpr int MeisteWartende = 64;
constexpr int Frist = 500; ///< ms, for a caller to say something

/// Messages come whole or not at all.
int Steckdose() { return ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0); }

/// False when the path is too long for an address.
bool Adresse(const std::string &pfad, sockaddr_un &adresse) {
    adresse = {};
    adresse.sun_family = AF_UNIX;
    if (pfad.size() >= sizeof adresse.sun_path) return false;
    std::copy(pfad.begin(), pfad.end(), adresse.sun_path);
    return true;
}

bool IstDerselbeNutzer(int fd) {
    ucred wer{};
    socklen_t größe = sizeof wer;
    return ::getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &wer, &größe) == 0 && wer.uid == ::geteuid();
}

bool Gesagt(int fd, std::string_view was) {
    return ::send(fd, was.data(), was.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(was.size());
}

void AufAntwortWarten(int fd, std::chrono::steady_clock::time_point ende) {
    pollfd warten{fd, POLLIN, 0};
    while (true) {
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(ende - std::chrono::steady_clock::now()).count();
        if (::poll(&warten, 1, static_cast<int>(std::max<long>(rest, 0))) >= 0 || errno != EINTR) return;
    }
}

Anrufende Sprechen(int fd, const std::string &datei, std::chrono::steady_clock::time_point ende) {
    if (!IstDerselbeNutzer(fd)) return Anrufende::Fremder;
    if (!Gesagt(fd, std::string(Anrede) + datei)) return Anrufende::Niemand;
    AufAntwortWarten(fd, ende);
    // From here on nothing can be acknowledged any more: both sides know the same.
    ::shutdown(fd, SHUT_RDWR);
    std::array<char, Bestätigung.size() + 1> antwort{};
    const ssize_t länge = ::recv(fd, antwort.data(), antwort.size(), MSG_DONTWAIT);
    if (länge > 0 && std::string_view(antwort.data(), static_cast<size_t>(länge)) == Bestätigung)
        return Anrufende::Angenommen;
    return std::chrono::steady_clock::now() >= ende ? Anrufende::Stumm : Anrufende::Niemand;
}

} // namespace

Anrufende Anrufen(const std::string &dose, const std::string &datei, std::chrono::steady_clock::time_point ende) {
    sockaddr_un adresse;
    const int fd = Steckdose();
    if (fd < 0) return Anrufende::Niemand;
    auto was = Anrufende::Niemand;
    if (Adresse(dose, adresse) && ::connect(fd, reinterpret_cast<const sockaddr *>(&adresse), sizeof adresse) == 0)
        was = Sprechen(fd, datei, ende);
    ::close(fd);
    return was;
}

int Horcher(const std::string &dose) {
    sockaddr_un adresse;
    if (!Adresse(dose, adresse)) return -1;
    const int fd = Steckdose();
    if (fd < 0) return -1;
    if (::bind(fd, reinterpret_cast<const sockaddr *>(&adresse), sizeof adresse) == 0 &&
        ::listen(fd, MeisteWartende) == 0)
        return fd;
    ::close(fd);
    return -1;
}

Anruf::Anruf(int fd, std::function<void(const std::string &datei)> übernehmen, QObject *eltern)
    : QObject(eltern), fd_(fd), übernehmen_(std::move(übernehmen)), wächter_(fd, QSocketNotifier::Read) {
    connect(&wächter_, &QSocketNotifier::activated, this, &Anruf::Hören);
    QTimer::singleShot(Frist, this, &QObject::deleteLater);
}

Anruf::~Anruf() {
    wächter_.setEnabled(false);
    ::close(fd_);
}

void Anruf::Hören() {
    wächter_.setEnabled(false);
    deleteLater();
    std::array<char, Anrede.size() + PATH_MAX> puffer{};
    const ssize_t länge = ::recv(fd_, puffer.data(), puffer.size(), MSG_TRUNC); // the length that it really had
    if (länge <= 0 || static_cast<size_t>(länge) >= puffer.size() || !IstDerselbeNutzer(fd_)) return;
    std::string_view datei(puffer.data(), static_cast<size_t>(länge));
    if (!datei.starts_with(Anrede)) return;
    datei.remove_prefix(Anrede.size());
    const bool istPfad = datei.empty() || (datei.starts_with('/') && datei.find('\0') == std::string_view::npos);
    if (istPfad && Gesagt(fd_, Bestätigung)) übernehmen_(std::string(datei));
}

} // namespace kw
