#pragma once

#include "familytree/Stammbaum.h"

#include <ostream>

namespace kw {

/// The facts of a family tree as they stand in its file, one a line, their fields parted by tabs: P a person, F a
/// family and C its children, c a child that only names its family, A what a person is to another one, T children of
/// one family with the same date of birth.
void StammbaumZeigen(std::ostream &aus, const Stammbaum &baum);

} // namespace kw
