#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace kw {

/// Brings files that were written without waiting to the disk, on a thread of its own: an event needn't wait for the
/// disk. Only the newest wish counts, since each is for the same file's next version. The thread begins with the first
/// one.
class Nachfluss {
  public:
    Nachfluss() = default;
    /// Waits until the last wish is done.
    ~Nachfluss();
    Nachfluss(const Nachfluss &) = delete;
    Nachfluss &operator=(const Nachfluss &) = delete;

    /// The file of that path, and the folder that names it. A file that has gone by then is nothing to do.
    void Wünschen(std::string pfad);

  private:
    void Arbeiten();

    std::mutex riegel_;
    std::condition_variable wecker_;
    std::string wunsch_;
    bool ende_ = false;
    std::thread faden_;
};

} // namespace kw
