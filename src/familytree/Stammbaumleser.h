#pragma once

#include "familytree/Stammbaum.h"

#include <string>
#include <string_view>

namespace kw {

/// Collects the facts, record by record.
class Stammbaumleser {
  public:
    Stammbaum Lesen(std::string bytes);

  private:
    void Aufnehmen(const Satz &satz);
    void KopfLesen(const Satz &satz);
    void PersonLesen(const Satz &satz);
    void NamenLesen(const Satz &satz, Stammperson &person);
    void ElternLesen(const Satz &satz, Stammperson &person);
    static void KindschaftenSammeln(Stammperson &person);
    void BeziehungenLesen(const Satz &satz);
    void FamilieLesen(const Satz &satz);
    void KinderLesen(const Satz &satz, Stammfamilie &familie);
    /// Of the events of these tags the first that has a date, since the first is the preferred one.
    Ereignisangabe EreignisLesen(const Satz &satz, std::string_view marke, std::string_view andere = {});
    void Verknüpfen();
    void GleichaltrigeSuchen(Stammfamilie &familie);
    void EinseitigeSuchen();

    /// The text for good: where it is if that stays, else a copy.
    std::string_view Behalten(std::string_view text);
    std::string_view Glatt(std::string_view text);
    std::string_view Klein(std::string_view text);
    void DoppelteMelden(const Satz &satz);

    Stammbaum baum_;
    Warnungen befunde_; ///< of what records say
    bool kopfGelesen_ = false;
};

} // namespace kw
