#pragma once

#include <string>
#include <vector>

// Removing records with all that names them: no record may name one that is gone. Nothing here redraws, selects or
// takes a snapshot.
namespace kw {

struct Dokument;

/// Removes the persons with those numbers and every line that names one, in one pass; their twins lose the mark, their
/// numbers become free in the order given. Numbers of lines' ends are compared by value. False, and nothing done, when
/// there are no such persons.
bool PersonenEntfernen(Dokument &dokument, const std::vector<std::string> &nummern);

/// Removes the partnership line at that position with its children's lines; the children stay where they are, without
/// parents and twins. Its number becomes free.
void PartnerschaftEntfernen(Dokument &dokument, int position);

/// Removes the child line at that position: the child loses parents and twin, the twin only its mark.
void KindlinieEntfernen(Dokument &dokument, int position);

/// Records of all stores: fewer of them tell that something was removed.
int Satzzahl(const Dokument &dokument);

} // namespace kw
