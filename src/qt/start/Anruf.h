#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <chrono>
#include <functional>
#include <string>

// What two starts of the program say to each other: the later one sends a file's path in one message, the first one
// acknowledges it in one.
namespace kw {

enum class Anrufende {
    Angenommen, ///< acknowledged
    Niemand,    ///< nobody listens there, or not any more
    Stumm,      ///< no answer in time; what was said is taken back
    Fremder     ///< another user listens there
};

/// Calls at the socket `dose` and hands over `datei`. Waits for the answer until `ende`.
Anrufende Anrufen(const std::string &dose, const std::string &datei, std::chrono::steady_clock::time_point ende);

/// Begins to listen at `dose`, where nothing may be; -1 when that can't be.
int Horcher(const std::string &dose);

/// A call that has come in on `fd`, which it owns. Hands on what it was told, once, when that is well-formed and from
/// the same user, and deletes itself: when it is done, and when the caller keeps it waiting.
class Anruf : public QObject {
  public:
    Anruf(int fd, std::function<void(const std::string &datei)> übernehmen, QObject *eltern);
    ~Anruf() override;
    Anruf(const Anruf &) = delete;
    Anruf &operator=(const Anruf &) = delete;

  private:
    void Hören();

    int fd_;
    std::function<void(const std::string &)> übernehmen_;
    QSocketNotifier wächter_;
};

} // namespace kw
