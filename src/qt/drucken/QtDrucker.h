#pragma once

#include "platform/Drucker.h"
#include "qt/drucken/Druckerauskunft.h"

#include <QString>

namespace kw {

/// The printers of the system, and behind them the built-in one, which is never the default.
class QtDrucker : public Drucker {
  public:
    std::optional<std::string> DeviceName() const override;
    Druckervorgabe Vorgabe() const override;
    int Orientation() const override { return lage_; }
    std::vector<std::string> DeviceNames() const override;
    bool Wählen(std::string_view deviceName) override;
    void OrientationSetzen(int lage) override { lage_ = lage; }
    Druckbefund Drucken(const Druckauftrag &auftrag) override;

  private:
    QString Aktueller(const Druckerstand &stand) const;
    static Druckbefund AlsPdfDrucken(const Druckauftrag &auftrag);

    Druckerauskunft auskunft_;
    QString gewählt_; ///< empty until one is chosen
    int lage_ = 1;    ///< that of every printer until the program turns it
};

} // namespace kw
