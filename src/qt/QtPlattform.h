#pragma once

#include "platform/Drucker.h"
#include "platform/Uhr.h"

#include <QString>

#include <ctime>
#include <string>

class QPrinterInfo;

namespace kw {

/// Today, and the order in which the user's locale writes dates. A redraw asks for every person, so the
/// calendar is asked once a second only.
class QtUhr : public Uhr {
  public:
    QtUhr();
    Datum Heute() const override;
    Datumsfolge Folge() const override { return folge_; }

  private:
    Datumsfolge folge_;
    mutable std::time_t stand_ = 0; ///< second in which `heute_` was asked for
    mutable Datum heute_;
};

/// The printers of the system.
class QtDrucker : public Drucker {
  public:
    std::optional<std::string> DeviceName() const override;
    Druckränder Ränder() const override;
    int Orientation() const override;
    std::vector<std::string> DeviceNames() const override;
    bool Wählen(std::string_view deviceName) override;
    void OrientationSetzen(int lage) override { lage_ = lage; }
    void Drucken(const Druckauftrag &auftrag) override;

  private:
    QPrinterInfo Aktueller() const;

    QString gewählt_;         ///< empty until one is chosen
    std::optional<int> lage_; ///< as the program has turned it
};

/// The order of day, month and year in a short date format of Qt's ("dd.MM.yy").
Datumsfolge FolgeAus(const std::string &datumsformat);

/// The settings file of this user on this machine.
std::string EinstellungsDateiDesBenutzers();

/// Where the manual stands: beside the program, or where an installation puts it. Without a closing "/".
std::string Hilfeordner();

} // namespace kw
