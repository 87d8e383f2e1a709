#pragma once

#include <string_view>

// Removing records with all that names them: no record may name one that is gone. Nothing here redraws, selects or
// takes a snapshot.
namespace kw {

struct Dokument;

/// Removes person `nr` and every line that names it; its twin loses the mark, its number becomes free. Numbers of
/// lines' ends are compared by value. False, and nothing done, when there is no such person.
bool PersonEntfernen(Dokument &dokument, std::string_view nr);

/// Removes the partnership line at that position with its children's lines; the children stay where they are, without
/// parents and twins. Its number becomes free.
void PartnerschaftEntfernen(Dokument &dokument, int position);

/// Removes the child line at that position: the child loses parents and twin, the twin only its mark.
void KindlinieEntfernen(Dokument &dokument, int position);

/// Removes partnership line `nr` and its children's lines, and nothing else: the children go on naming it.
void PartnerschaftAlleinEntfernen(Dokument &dokument, std::string_view nr);

/// Records of all stores: fewer of them tell that something was removed.
int Satzzahl(const Dokument &dokument);

} // namespace kw
