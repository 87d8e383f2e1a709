#pragma once

#include "document/Nachschlagen.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "familytree/Datumsschrift.h"
#include "familytree/Uebergabe.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kw {

/// By a symbol's kind, as far as it tells.
inline bool IstMann(int typ) {
    return typ == TypMännlich || typ == TypWeiblichZuMännlich || typ == TypTotgeburtMännlich;
}
inline bool IstFrau(int typ) {
    return typ == TypWeiblich || typ == TypMännlichZuWeiblich || typ == TypTotgeburtWeiblich;
}

/// An export while it is made: first who goes along and what joins them, then the file.
class Übergeber {
  public:
    Übergeber(const Dokument &dokument, const Uhr &uhr, const Übergabewünsche &wünsche)
        : dokument_(dokument), bezüge_(dokument), uhr_(uhr), wünsche_(wünsche), datei_(wünsche.Fassung) {}

    Übergabe Tun();

  private:
    struct Person {
        int Position = 0;    ///< in the store
        std::string Kennung; ///< in the file
        std::string Eltern;  ///< the family that it comes from; empty for none
        std::string_view Kindart;
        std::vector<std::string_view> AlsPartner; ///< the families in which it is a partner
    };
    struct Familie {
        std::string Kennung;
        int Position = 0;
        std::vector<std::size_t> Partner, Kinder; ///< places among the persons
    };
    static constexpr auto Niemand = static_cast<std::size_t>(-1);

    PersonSatz Satz(int position) const;
    PersonSatz Satz(const Person &person) const { return Satz(person.Position); }
    std::size_t Mitgehender(std::string_view nr) const;
    void PersonenSammeln();
    void FamilienSammeln();
    void PartnerSammeln(const PartnerschaftSatz &linie, Familie &familie) const;
    void KinderSammeln(std::string_view linie, Familie &familie);
    bool SindEineiige(std::string_view nr, std::string_view andere) const;
    bool GehtMit(const BeziehungSatz &beziehung) const;
    void RestZählen();

    void KopfSchreiben();
    void PersonSchreiben(const Person &person);
    void NameSchreiben(const PersonSatz &satz);
    void GeschlechtSchreiben(int typ);
    void GeburtSchreiben(const PersonSatz &satz, bool totgeboren);
    void TodSchreiben(const PersonSatz &satz, bool totgeboren);
    void GesundheitSchreiben(const PersonSatz &satz);
    void HerkunftSchreiben(const Person &person);
    void BeziehungenSchreiben(const PersonSatz &satz);
    void FamilieSchreiben(const Familie &familie);
    void StandSchreiben(const PartnerschaftSatz &linie);
    void DatumSchreiben(int ebene, const Datumsangabe &datum);
    void VerbindungSchreiben(std::size_t zu, std::string_view worte);

    void Zählen(Übergabeverlust art, std::size_t anzahl = 1) { ergebnis_.Bericht.Hinzu(art, anzahl); }

    const Dokument &dokument_;
    const Bezüge bezüge_;
    const Uhr &uhr_;
    const Übergabewünsche &wünsche_;
    Zeilenschreiber datei_;
    Übergabe ergebnis_;
    std::vector<Person> personen_;
    std::unordered_map<int, std::size_t> stellen_; ///< among them, from places in the store
    std::vector<Familie> familien_;
};

} // namespace kw
