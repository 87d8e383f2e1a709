#pragma once

#include "platform/Uhr.h"

#include <ctime>
#include <string>

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

/// The order of day, month and year in a short date format of Qt's ("dd.MM.yy").
Datumsfolge FolgeAus(const std::string &datumsformat);

/// The settings file of this user on this machine.
std::string EinstellungsDateiDesBenutzers();

/// The folder of this user's safety net. Without a closing "/".
std::string NetzordnerDesBenutzers();

/// Whether only root can change what stands under that full path: it and all folders on its way are root's, none is a
/// link, and nobody else may write them.
bool GehörtDemSystem(const std::string &pfad);

/// Where the manual stands: beside the program, or where an installation puts it. Without a closing "/".
std::string Hilfeordner();

} // namespace kw
