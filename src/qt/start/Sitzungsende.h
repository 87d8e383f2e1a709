#pragma once

#include <QObject>

#include <functional>

class QSessionManager;

namespace kw {

/// The roads on which the system ends the program. The session manager asks first, and is answered by a question; it
/// keeps the session when that is cancelled. Its final word and the signals SIGTERM, SIGINT and SIGHUP ask nobody: all
/// event loops end, whatever form, box or menu is open. One at a time, beside a running application.
class Sitzungsende : public QObject {
  public:
    struct Folgen {
        std::function<bool()> Fragen;  ///< false keeps the session
        std::function<void()> Beenden; ///< called once, before the event loops end
    };
    explicit Sitzungsende(Folgen folgen);
    /// Signals do again what they did before.
    ~Sitzungsende() override;
    Sitzungsende(const Sitzungsende &) = delete;
    Sitzungsende &operator=(const Sitzungsende &) = delete;

  protected:
    bool eventFilter(QObject *empfänger, QEvent *ereignis) override;

  private:
    void Antworten(QSessionManager &sitzung) const;
    void Beenden();

    Folgen folgen_;
    int leseende_ = -1; ///< of the line on which signals come; -1 without one
    bool endet_ = false;
};

} // namespace kw
