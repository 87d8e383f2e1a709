#pragma once

#include "editing/Auflagen.h"

#include <QRegion>

class QPainter;

namespace kw {

/// Paints the overlay shapes. The painter's origin is the page's top left corner and its unit a logical pixel,
/// `pixelJeCm` of which are a centimetre. Strokes are equally wide at every zoom, and readable on the page as on
/// the dark ground around it. An arrow in hand has two heads when `pfeilArt` is 2.
void AuflagenMalen(QPainter &p, const Auflagen &auflagen, int pfeilArt, double pixelJeCm);

/// The same for where the keyboard is: a frame, or the cross of a tool.
void CursorMalen(QPainter &p, const Auflagen &auflagen, double pixelJeCm);

/// Where both of these leave marks, in the painter's units and with some air. Along their strokes: the inside of a
/// frame is none of it.
QRegion AuflagenSpur(const Auflagen &auflagen, int pfeilArt, double pixelJeCm);

} // namespace kw
