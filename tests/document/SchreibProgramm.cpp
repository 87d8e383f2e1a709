#include "document/Dateien.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <unistd.h>

using namespace kw;

namespace {

std::string Gleiche(const std::string &buchstabeUndAnzahl) {
    return std::string(std::strtoul(buchstabeUndAnzahl.c_str() + 1, nullptr, 10), buchstabeUndAnzahl[0]);
}

/// Keeps each version in its folder under its fingerprint; "vorort" stands there while a file is written in place.
class Ordnerwahrer : public Versionswahrer {
  public:
    std::string Ordner;
    std::string Dazwischen; ///< a file that takes the place of the one that is kept, once

    bool Beiseitelegen(const std::string &pfad, std::string_view inhalt) override {
        if (!Lege(AlsText(FingerabdruckVon(inhalt)), inhalt)) return false;
        if (!Dazwischen.empty()) std::rename(Dazwischen.c_str(), pfad.c_str());
        return true;
    }
    bool VorOrtBeginnt(const std::string &, std::string_view alt, std::string_view neu) override {
        return Lege(AlsText(FingerabdruckVon(alt)), alt) && Lege(AlsText(FingerabdruckVon(neu)), neu) &&
               Lege("vorort", "");
    }
    void VorOrtEndet() override { ::unlink((Ordner + "/vorort").c_str()); }

  private:
    bool Lege(const std::string &name, std::string_view inhalt) const {
        return DateiSchreiben(Ordner + "/" + name, inhalt).Gelungen();
    }
};

} // namespace

// SchreibProgramm PATH SIZE LETTER [KEEP EXPECTED [BETWEEN]]: writes SIZE times LETTER to PATH in the program's own
// way, prints "ok" or why it could not, and exits 0 or 1. Versions that are not EXPECTED ("a300") go to folder KEEP;
// when one has gone there, file BETWEEN is moved to PATH. The fault tests run it with failing system calls.
int main(int anzahl, char **werte) {
    if (anzahl != 4 && anzahl != 6 && anzahl != 7) return 2;
    Schreibweise wie;
    Ordnerwahrer wahrer;
    if (anzahl > 4) {
        wahrer.Ordner = werte[4];
        wie.Wahrer = &wahrer;
        wie.Erwartet = FingerabdruckVon(Gleiche(werte[5]));
    }
    if (anzahl > 6) wahrer.Dazwischen = werte[6];
    const auto befund = DateiSchreiben(werte[1], Gleiche(std::string(werte[3]) + werte[2]), wie);
    std::cout << (befund.Gelungen() ? "ok" : befund.Meldung) << std::endl;
    return befund.Gelungen() ? 0 : 1;
}
