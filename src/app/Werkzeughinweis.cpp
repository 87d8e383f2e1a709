#include "app/Werkzeughinweis.h"

#include "editing/Werkzeuge.h"
#include "platform/Bedienelemente.h"
#include "platform/Befehlsnamen.h"
#include "platform/Benutzer.h"

namespace kw {

void Werkzeughinweis::PaletteBerührt(int werkzeug) {
    constexpr int Verzögerung = 500; // ms
    if (werkzeug == berührt_) return;
    berührt_ = werkzeug;
    const std::string name = werkzeug > 0 ? bedienung_.Mit(WerkzeugName(werkzeug)).Caption : "";
    bedienung_[Name::lblTool].Caption = bedienung_[Name::picToolTipp].Caption = name;
    bedienung_[Name::picToolTipp].Visible = false;
    if (werkzeug > 0) benutzer_.ZeitgeberStarten("tmrToolTipp", Verzögerung);
    benutzer_.AnzeigeAuffrischen();
}

void Werkzeughinweis::Zeigen() { bedienung_[Name::picToolTipp].Visible = berührt_ > 0; }

} // namespace kw
