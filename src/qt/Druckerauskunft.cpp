#include "qt/Druckerauskunft.h"

#include <QPrinterInfo>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace kw {

struct Druckerauskunft::Gespräch {
    std::mutex sperre;
    std::condition_variable geantwortet;
    bool läuft = false;
    Druckerstand stand;
};

Druckerauskunft::Druckerauskunft() : gespräch_(std::make_shared<Gespräch>()) {}

Druckerstand Druckerauskunft::Erfragen() const {
    constexpr std::chrono::seconds Geduld(1);
    std::unique_lock schloss(gespräch_->sperre);
    if (!gespräch_->läuft) { // else it has been waited for already
        gespräch_->läuft = true;
        std::thread(Führen, gespräch_).detach(); // nothing can end it before its answer
        gespräch_->geantwortet.wait_for(schloss, Geduld, [this] { return !gespräch_->läuft; });
    }
    return gespräch_->stand;
}

bool Druckerauskunft::StehtAus() const {
    const std::lock_guard schloss(gespräch_->sperre);
    return gespräch_->läuft;
}

void Druckerauskunft::Führen(const std::shared_ptr<Gespräch> &gespräch) {
    Druckerstand stand{QPrinterInfo::availablePrinterNames(), {}};
    if (!stand.Namen.isEmpty()) stand.Vorgabe = QPrinterInfo::defaultPrinterName();
    if (!stand.Namen.contains(stand.Vorgabe)) stand.Vorgabe = stand.Namen.value(0);
    const std::lock_guard schloss(gespräch->sperre);
    gespräch->stand = std::move(stand);
    gespräch->läuft = false;
    gespräch->geantwortet.notify_all();
}

} // namespace kw
