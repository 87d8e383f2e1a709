#include "document/saetze/Partnerschaft.h"

namespace kw {

PartnerschaftBau &PartnerschaftBau::BalkenVerschieben(double dx, double dy) {
    for (const int x : {S::FeldBalkenX1, S::FeldBalkenX2}) Erhöhen(x, dx);
    for (const int y : {S::FeldBalkenY1, S::FeldBalkenY2}) Erhöhen(y, dy);
    return *this;
}

PartnerschaftBau &PartnerschaftBau::Verschieben(double dx, double dy) {
    for (const int x : {S::FeldAnschlussX1, S::FeldAnschlussX2}) Erhöhen(x, dx);
    for (const int y : {S::FeldAnschlussY1, S::FeldAnschlussY2}) Erhöhen(y, dy);
    return BalkenVerschieben(dx, dy);
}

} // namespace kw
