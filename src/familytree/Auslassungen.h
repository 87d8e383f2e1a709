#pragma once

#include "familytree/Satzleser.h"
#include "familytree/Uebernahmebericht.h"

#include <string_view>

namespace kw {

/// Tells of the lines of a person's or family's record that a genogram has no place for, each with all that lies in it.
void AuslassungenMelden(const Satz &satz, std::string_view wer, Übernahmebericht &bericht);

} // namespace kw
