#pragma once

#include <QLocalServer>
#include <QLockFile>

#include <functional>
#include <memory>

namespace kw {

/// One program a user and display. The first start listens; a later one brings the first to the front
/// and ends. A file named at a later start isn't passed on.
class Einzelinstanz {
  public:
    /// True when this is the first instance. Otherwise the first was asked to come to the front.
    bool IstErste();
    /// What the first instance does when another was started.
    void BeiWeiteremStart(std::function<void()> nachVorn);

  private:
    std::unique_ptr<QLockFile> sperre_;
    QLocalServer server_;
};

} // namespace kw
