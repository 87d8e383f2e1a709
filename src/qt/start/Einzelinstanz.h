#pragma once

#include <QLockFile>
#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace kw {

/// One program a user and display. The first start listens; a later one brings the first to the front
/// and ends. A file named at a later start isn't passed on. (A plain socket: the toolkit's network library
/// would cost a tenth of the start.)
class Einzelinstanz {
  public:
    Einzelinstanz() = default;
    ~Einzelinstanz();
    Einzelinstanz(const Einzelinstanz &) = delete;
    Einzelinstanz &operator=(const Einzelinstanz &) = delete;

    /// True when this is the first instance. Otherwise the first was asked to come to the front.
    bool IstErste();
    /// Whether that first instance could be reached.
    bool HatGeantwortet() const { return geantwortet_; }
    /// What the first instance does when another was started.
    void BeiWeiteremStart(const std::function<void()> &nachVorn);

  private:
    std::unique_ptr<QLockFile> sperre_;
    std::unique_ptr<QSocketNotifier> wächter_;
    int horcher_ = -1;
    bool geantwortet_ = false;
};

} // namespace kw
