#pragma once

#include <QCursor>

namespace kw {

enum class Mauszeiger;

/// The pointer over the page. Those of the tools are drawn; both are hot at the crossing of their hairs: where a
/// person's centre and a text box's top left corner will be.
QCursor Zeigerbild(Mauszeiger zeiger, double pixelverhältnis);

} // namespace kw
