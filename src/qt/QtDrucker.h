#pragma once

#include "platform/Drucker.h"
#include "qt/Druckerauskunft.h"
#include "qt/PdfDrucker.h"

#include <QString>

namespace kw {

/// The printers of the system, and behind them the built-in one, which is never
/// the default.
class QtDrucker : public Drucker {
  public:
    explicit QtDrucker(PdfRückfragen rückfragen) : pdf_(std::move(rückfragen)) {}

    std::optional<std::string> DeviceName() const override;
    Druckränder Ränder() const override;
    int Orientation() const override { return lage_; }
    std::vector<std::string> DeviceNames() const override;
    bool Wählen(std::string_view deviceName) override;
    void OrientationSetzen(int lage) override { lage_ = lage; }
    void Drucken(const Druckauftrag &auftrag) override;

  private:
    QString Aktueller() const;

    Druckerauskunft auskunft_;
    PdfDrucker pdf_;
    QString gewählt_; ///< empty until one is chosen
    int lage_ = 1;    ///< that of every printer until the program turns it
};

} // namespace kw
