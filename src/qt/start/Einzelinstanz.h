#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <string>

namespace kw {

/// One program a user and display. The first start holds a lock as long as it lives, and listens; a later one hands it
/// its file and ends. Where that can't be had, a start stands alone and says why: nothing keeps a window from opening.
/// (A plain socket: the toolkit's network library would cost a tenth of the start.)
class Einzelinstanz {
  public:
    enum class Stand {
        Erste,     ///< listens when `BeiWeiteremStart` is called; its callers wait until then
        Übergeben, ///< the first instance has acknowledged the file
        Allein     ///< beside another one, which wasn't reached; `Grund` says why
    };

    Einzelinstanz() = default;
    ~Einzelinstanz();
    Einzelinstanz(const Einzelinstanz &) = delete;
    Einzelinstanz &operator=(const Einzelinstanz &) = delete;

    /// Becomes the first instance or hands `datei` to it: a full path in whatever bytes, or nothing, which only asks
    /// the window to the front. Takes two seconds at most. Needs no application object.
    Stand Starten(const std::string &datei);
    const std::string &Grund() const { return grund_; } ///< one plain line

    /// What the first instance does with each file that it is handed. Only callers of the same user are heard, and none
    /// can hold it up.
    void BeiWeiteremStart(std::function<void(const std::string &datei)> übernehmen);

  private:
    enum class Sperre { Unsere, Fremd, Unmöglich };
    Sperre Sperren(const std::string &pfad);
    void Horchen(const std::string &pfad);
    void Annehmen(const std::function<void(const std::string &)> &übernehmen);
    Stand AlleinWeil(std::string grund);

    std::unique_ptr<QSocketNotifier> wächter_;
    int sperre_ = -1;
    int horcher_ = -1;
    std::string fremderRechner_; ///< that holds the lock; empty for this one
    std::string grund_;
};

} // namespace kw
