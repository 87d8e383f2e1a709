#include "qt/drucken/Druckerauskunft.h"

#include "qt/drucken/Blattdrucker.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace kw {

namespace {

using Uhrzeit = std::chrono::steady_clock;

constexpr std::chrono::seconds KurzeGeduld(1);
constexpr std::chrono::seconds LangeGeduld(5);
constexpr std::chrono::seconds Haltbarkeit(3); ///< of an answer

} // namespace

struct Druckerauskunft::Gespräch {
    std::mutex sperre;
    std::condition_variable geantwortet;
    bool läuft = false;
    Uhrzeit::time_point wann; ///< of the last answer
    Druckerstand stand;
};

Druckerauskunft::Druckerauskunft() : gespräch_(std::make_shared<Gespräch>()) {}

Druckerstand Druckerauskunft::Erfragen(Geduld geduld) const {
    Gespräch &g = *gespräch_;
    std::unique_lock schloss(g.sperre);
    if (!g.läuft && g.stand.Beantwortet && Uhrzeit::now() - g.wann < Haltbarkeit) return g.stand;
    const bool neu = !std::exchange(g.läuft, true);
    try {
        if (neu) std::thread(Führen, gespräch_).detach(); // nothing can end it before its answer
    } catch (const std::system_error &) {
        g.läuft = false; // no room for a thread: asked again later
        return {};
    }
    if (neu || geduld == Geduld::Lang)
        g.geantwortet.wait_for(schloss, geduld == Geduld::Lang ? LangeGeduld : KurzeGeduld, [&g] { return !g.läuft; });
    Druckerstand stand = g.stand;
    stand.Beantwortet = !g.läuft;
    return stand;
}

void Druckerauskunft::Führen(const std::shared_ptr<Gespräch> &gespräch) {
    Druckerstand stand{true, QPrinterInfo::availablePrinterNames(), {}, {}};
    if (!stand.Namen.isEmpty()) stand.Vorgabe = QPrinterInfo::defaultPrinterName();
    if (!stand.Namen.contains(stand.Vorgabe)) stand.Vorgabe = stand.Namen.value(0);
    if (const auto info = QPrinterInfo::printerInfo(stand.Vorgabe); !info.isNull()) {
        constexpr double CmJePunkt = 2.54 / 72;
        const QMarginsF cm = Blattdrucker(info).Ränder() * CmJePunkt;
        stand.Ränder = {cm.left(), cm.right(), cm.top(), cm.bottom()};
    }
    const std::lock_guard schloss(gespräch->sperre);
    gespräch->stand = std::move(stand);
    gespräch->wann = Uhrzeit::now();
    gespräch->läuft = false;
    gespräch->geantwortet.notify_all();
}

} // namespace kw
