#pragma once

#include "dialogs/Formular.h"
#include "familytree/Uebergabe.h"

namespace kw {

struct Dialogumgebung;

/// The page's family for genealogy programs: the version of the format, what goes along, and what can't, counted anew
/// with every choice. OK asks for the file; the form stays open until something was written. Marks of health never go
/// along unasked.
class frmStammbaumExport : public Formular {
  public:
    explicit frmStammbaumExport(Dialogumgebung &umgebung);

    void Laden() override;

  protected:
    void Geklickt(std::string_view name) override;

  private:
    Übergabewünsche Wünsche() const;
    void Zeigen();

    Dialogumgebung &umgebung_;
    Übergabe stammbaum_; ///< of what is chosen now
};

} // namespace kw
