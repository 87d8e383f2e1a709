#pragma once

#include "platform/Drucker.h"
#include "platform/Uhr.h"

#include <string>

namespace kw {

/// Today, and the order in which the user's locale writes dates.
class QtUhr : public Uhr {
  public:
    QtUhr();
    Datum Heute() const override;
    Datumsfolge Folge() const override { return folge_; }

  private:
    Datumsfolge folge_;
};

/// The printers of the system.
class QtDrucker : public Drucker {
  public:
    std::optional<std::string> DeviceName() const override;
    Druckränder Ränder() const override;
    int Orientation() const override;
};

/// The order of day, month and year in a short date format of Qt's ("dd.MM.yy").
Datumsfolge FolgeAus(const std::string &datumsformat);

/// The settings file of this user on this machine.
std::string EinstellungsDateiDesBenutzers();

} // namespace kw
