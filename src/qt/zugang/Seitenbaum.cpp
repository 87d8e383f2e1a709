#include "qt/zugang/Seitenbaum.h"

#include "description/Zeilenvergleich.h"
#include "qt/grund/Text.h"
#include "qt/zugang/Seitenzugang.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace kw {

namespace {

void Melden(QAccessibleInterface *zugang, QAccessible::Event art) {
    if (!zugang || !QAccessible::isActive()) return;
    QAccessibleEvent ereignis(zugang, art);
    QAccessible::updateAccessibility(&ereignis);
}

} // namespace

Seitenbaum::Seitenbaum(QWidget &leinwand_, Seitenquelle quelle_) : leinwand(leinwand_), quelle(std::move(quelle_)) {
    QAccessible::installActivationObserver(this);
}

Seitenbaum::~Seitenbaum() {
    QAccessible::removeActivationObserver(this);
    for (Eintrag &eintrag : einträge_)
        if (eintrag.Zugang) QAccessible::deleteAccessibleInterface(eintrag.Zugang);
    for (const QAccessible::Id durchsage : durchsagen_) QAccessible::deleteAccessibleInterface(durchsage);
}

/// A reader that comes while the program runs has missed where the focus is. At once the bus isn't ready.
void Seitenbaum::accessibilityActiveChanged(bool aktiv) {
    constexpr int Verzögerung = 300; // ms
    if (aktiv) QTimer::singleShot(Verzögerung, &leinwand, [this] { FokusKam(); });
}

/// The question may come from within an event, whose outcome is told at its end.
void Seitenbaum::Wecken() {
    if (std::exchange(wach_, true)) return;
    for (const Elementzeile &zeile : quelle.Zeilen()) einträge_.push_back({++letzteNummer_, zeile});
    Nummerieren();
    FokusKam();
}

int Seitenbaum::Anzahl() {
    Wecken();
    return static_cast<int>(einträge_.size());
}

void Seitenbaum::Nummerieren() {
    stellen_.clear();
    for (size_t i = 0; i < einträge_.size(); ++i) stellen_.emplace(einträge_[i].Nummer, static_cast<int>(i));
}

int Seitenbaum::StelleVon(int nummer) const {
    const auto stelle = stellen_.find(nummer);
    return stelle == stellen_.end() ? -1 : stelle->second;
}

const Elementzeile *Seitenbaum::Zeile(int nummer) const {
    const int stelle = StelleVon(nummer);
    return stelle < 0 ? nullptr : &einträge_[static_cast<size_t>(stelle)].Zeile;
}

QAccessibleInterface *Seitenbaum::Zugang(int nummer) {
    const int stelle = StelleVon(nummer);
    if (stelle < 0) return nullptr;
    Eintrag &eintrag = einträge_[static_cast<size_t>(stelle)];
    if (!eintrag.Zugang) eintrag.Zugang = QAccessible::registerAccessibleInterface(new Elementzugang(*this, nummer));
    return QAccessible::accessibleInterface(eintrag.Zugang);
}

/// Persons come first, so that the boxes round lines don't hide them.
QAccessibleInterface *Seitenbaum::ZugangBei(QPoint ort) {
    Wecken();
    const auto eintrag =
        std::find_if(einträge_.begin(), einträge_.end(), [&](const Eintrag &e) { return Ort(e.Zeile).contains(ort); });
    return eintrag == einträge_.end() ? nullptr : Zugang(eintrag->Nummer);
}

/// A level or upright line has a box of no height or width, which nobody could point at.
QRect Seitenbaum::Ort(const Elementzeile &zeile) const {
    constexpr int Mindestmaß = 6; // pixels
    QRect ort = quelle.Ort(zeile.Rahmen);
    if (ort.width() < Mindestmaß) ort.adjust(-Mindestmaß / 2, 0, Mindestmaß / 2, 0);
    if (ort.height() < Mindestmaß) ort.adjust(0, -Mindestmaß / 2, 0, Mindestmaß / 2);
    return ort;
}

void Seitenbaum::Machen(int nummer, Elementtat tat) {
    if (const Elementzeile *zeile = Zeile(nummer)) quelle.Machen(zeile->Element, tat);
}

bool Seitenbaum::ElementHatFokus() const { return leinwand.hasFocus() && Fokusnummer() != 0; }

/// Number of the element at the cursor, 0 for none.
int Seitenbaum::Fokusnummer() const {
    const auto fokus = wach_ ? quelle.Fokus() : std::nullopt;
    if (!fokus) return 0;
    const auto eintrag =
        std::find_if(einträge_.begin(), einträge_.end(), [&](const Eintrag &e) { return e.Zeile.Element == *fokus; });
    return eintrag == einträge_.end() ? 0 : eintrag->Nummer;
}

QAccessibleInterface *Seitenbaum::Fokuszugang() { return Zugang(Fokusnummer()); }

void Seitenbaum::FokusKam() {
    erzählterFokus_ = 0;
    if (std::exchange(fokusSteht_, true)) return;
    QTimer::singleShot(0, &leinwand, [this] {
        fokusSteht_ = false;
        if (wach_ && leinwand.hasFocus() && !quelle.Fokus())
            Ansagen(Text(Überblick(quelle.Zeilen(), quelle.InSprache())));
        Auffrischen();
    });
}

void Seitenbaum::FokusErzählen() {
    const int fokus = leinwand.hasFocus() ? Fokusnummer() : 0;
    if (std::exchange(erzählterFokus_, fokus) != fokus) Melden(Zugang(fokus), QAccessible::Focus);
}

/// Clients keep a name and a description until the object goes, and what tells of new ones is misread by readers: what
/// says something else is another object. But of one that was selected while it has the focus, the selection is told,
/// and the rest when the focus has gone: else all of it would be read again.
bool Seitenbaum::MussNeu(Eintrag &alter, const Elementzeile &neu, std::vector<int> &gewählte) const {
    const bool gewählt = alter.Zeile.Gewählt != neu.Gewählt;
    if (gewählt) gewählte.push_back(alter.Nummer);
    if (alter.Zeile.Name != neu.Name || alter.Zeile.Beschreibung != neu.Beschreibung) return true;
    alter.Veraltet = alter.Veraltet || gewählt;
    return alter.Veraltet && quelle.Fokus() != neu.Element;
}

/// Told while it is still there: of what is gone nobody hears.
void Seitenbaum::Vergessen(Eintrag &eintrag) {
    if (!eintrag.Zugang) return;
    Melden(QAccessible::accessibleInterface(eintrag.Zugang), QAccessible::ObjectDestroyed);
}

/// The entries of those rows; numbers of what is told as selected or not go to `gewählte`. An entry without its old
/// number is a new object.
std::vector<Seitenbaum::Eintrag> Seitenbaum::Nachfolger(const std::vector<Elementzeile> &neue,
                                                        std::vector<int> &gewählte) {
    std::vector<Elementzeile> alte;
    for (const Eintrag &eintrag : einträge_) alte.push_back(eintrag.Zeile);
    const Zeilenvergleich vergleich = Verglichen(alte, neue);
    std::vector<Eintrag> nachfolger;
    for (size_t i = 0; i < neue.size(); ++i) {
        const int herkunft = vergleich.Herkunft[i];
        Eintrag *alter = herkunft < 0 ? nullptr : &einträge_[static_cast<size_t>(herkunft)];
        if (alter && !MussNeu(*alter, neue[i], gewählte)) {
            nachfolger.push_back({alter->Nummer, neue[i], alter->Zugang, alter->Veraltet});
            continue;
        }
        if (alter) Vergessen(*alter);
        nachfolger.push_back({++letzteNummer_, neue[i]});
    }
    for (const int alt : vergleich.Gegangen) Vergessen(einträge_[static_cast<size_t>(alt)]);
    return nachfolger;
}

void Seitenbaum::Auffrischen() {
    if (wach_) {
        const int ersteNeue = letzteNummer_ + 1;
        std::vector<int> gewählte;
        const std::vector<Eintrag> vorher = std::exchange(einträge_, Nachfolger(quelle.Zeilen(), gewählte));
        Nummerieren();
        for (const Eintrag &alter : vorher)
            if (alter.Zugang && StelleVon(alter.Nummer) < 0) QAccessible::deleteAccessibleInterface(alter.Zugang);
        if (QAccessible::isActive())
            for (const Eintrag &eintrag : einträge_)
                if (eintrag.Nummer >= ersteNeue) Melden(Zugang(eintrag.Nummer), QAccessible::ObjectCreated);
        for (const int nummer : gewählte) Melden(Zugang(nummer), QAccessible::Selection);
        FokusErzählen();
    }
    AnsagenLesen();
}

void Seitenbaum::Ansagen(const QString &text) {
    if (QAccessible::isActive()) ansagen_.push_back(text);
}

/// Each is an object of its own, for clients keep the words of the first.
void Seitenbaum::AnsagenLesen() {
    constexpr size_t Behalten = 8;
    for (const QString &text : std::exchange(ansagen_, {})) {
        auto *durchsage = new Durchsage(leinwand, text);
        durchsagen_.push_back(QAccessible::registerAccessibleInterface(durchsage));
        Melden(durchsage, QAccessible::ObjectShow);
    }
    while (durchsagen_.size() > Behalten) {
        QAccessible::deleteAccessibleInterface(durchsagen_.front());
        durchsagen_.pop_front();
    }
}

} // namespace kw
