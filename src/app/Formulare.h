#pragma once

#include "dialogs/Formular.h"

#include <memory>
#include <string_view>

namespace kw {

struct Dialogumgebung;

/// A fresh form of that name; an unknown name is a fault of the program and throws std::out_of_range.
std::unique_ptr<Formular> FormularErzeugen(std::string_view name, Dialogumgebung &umgebung);

} // namespace kw
