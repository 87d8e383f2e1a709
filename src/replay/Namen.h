#pragma once

#include "app/Einblick.h"
#include "app/frmMain.h"
#include "replay/Variable.h"

#include <functional>
#include <map>
#include <string>

namespace kw {

/// Everything of a main window that scripts can name. What `h` looks into must outlive it.
struct Namen {
    std::map<std::string, Variable> Variablen;
    std::map<std::string, Satzliste *> Listen;
    std::map<std::string, std::function<std::string()>> Formen; ///< where a shape stands: its four numbers
    std::map<std::string, std::function<bool()>> Sichtbar;      ///< every shape; and what else only shows or not

    explicit Namen(const Einblick &h);

  private:
    void Programmnamen(const Einblick &h);
    void Dokumentnamen(const Einblick &h);
    void Ansichtsnamen(const Einblick &h);
    void Auswahllisten(const Einblick &h);
    void Arbeitsflächen(Arbeitsbereich &b);
    void Leinwandnamen(Leinwandlage &l);
    void Auflagennamen(Auflagen &a);
};

} // namespace kw
