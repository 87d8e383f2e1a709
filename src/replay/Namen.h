#pragma once

#include "app/frmMain.h"

#include <functional>
#include <map>
#include <string>

namespace kw {

/// One variable under its own name: its text, and how to set it from one (none for what is derived).
struct Variable {
    std::function<std::string()> Lesen;
    std::function<void(const std::string &)> Setzen;
};

/// A number as a whole one, held within the range of an int.
int Ganzzahl(double wert);

/// Everything of a main window that scripts can name.
struct Namen {
    std::map<std::string, Variable> Variablen;
    std::map<std::string, Satzliste *> Listen;
    std::map<std::string, std::function<Steuerfläche()>> Flächen;

    explicit Namen(frmMain &haupt);
};

} // namespace kw
