#pragma once

#include "document/Dokument.h"
#include "editing/Geometrie.h"

// What lies under a point of the page (cm). Every test is strict: a point exactly on an edge misses. The first
// record in store order wins; damaged records are passed over. Positions count from 0, -1 is none.
namespace kw {

/// Persons: the square round the centre, for round symbols too.
int PersonBei(const Dokument &dokument, double x, double y);

} // namespace kw
