#include "document/Nachfluss.h"

#include "document/Dateien.h"

#include <system_error>
#include <utility>

namespace kw {

Nachfluss::~Nachfluss() {
    {
        const std::lock_guard wache(riegel_);
        ende_ = true;
    }
    wecker_.notify_one();
    if (faden_.joinable()) faden_.join();
}

void Nachfluss::Wünschen(std::string pfad) {
    {
        const std::lock_guard wache(riegel_);
        wunsch_ = std::move(pfad);
    }
    try {
        if (!faden_.joinable()) faden_ = std::thread([this] { Arbeiten(); });
    } catch (const std::system_error &) {
        return; // no room for a thread: the next event tries again
    }
    wecker_.notify_one();
}

void Nachfluss::Arbeiten() {
    std::unique_lock wache(riegel_);
    while (true) {
        wecker_.wait(wache, [this] { return ende_ || !wunsch_.empty(); });
        if (wunsch_.empty()) return;
        const std::string pfad = std::exchange(wunsch_, {});
        wache.unlock();
        AufDiePlatte(pfad); // what fails here is lost at worst by a power cut, and the next event writes it anew
        wache.lock();
    }
}

} // namespace kw
