#pragma once

// A region of the picture, cut out for a file or the clipboard: a marquee of its own kind.
namespace kw {

struct Ereignis;
struct Werkbank;

/// Arms the tool that cuts a region out of the picture, for a file or for the clipboard. What was selected or armed
/// before ends, so that no marks get into the picture. The same button again puts the tool away.
void BildauswahlBeginnen(Werkbank &w, bool inDatei);

/// A press while the tool is armed: a region can begin anywhere, whatever lies there. Says whether the event ends with
/// it.
bool BildBeginnen(Werkbank &w, const Ereignis &e);
/// The release. A click, or a frame not much larger than one, is no region: it only puts the tool away.
void BildLoslassen(Werkbank &w);

} // namespace kw
