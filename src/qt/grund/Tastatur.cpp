#include "qt/grund/Tastatur.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include <algorithm>

namespace kw {

namespace {

class Enterfilter : public QObject {
  public:
    explicit Enterfilter(QAbstractButton &knopf) : QObject(&knopf), knopf_(knopf) {}

    bool eventFilter(QObject *, QEvent *ereignis) override {
        if (ereignis->type() != QEvent::KeyPress || !IstEnter(static_cast<QKeyEvent *>(ereignis)->key())) return false;
        knopf_.click();
        return true;
    }

  private:
    QAbstractButton &knopf_;
};

bool IstErreichbar(const QAbstractButton &knopf) {
    return knopf.isEnabled() && knopf.isVisibleTo(knopf.parentWidget());
}

} // namespace

bool IstEnter(int taste) { return taste == Qt::Key_Return || taste == Qt::Key_Enter; }

void EnterDrückt(QAbstractButton &knopf) { knopf.installEventFilter(new Enterfilter(knopf)); }

bool Wanderfokus::Erreichbar() const { return aktuell_ < Anzahl() && IstErreichbar(Knopf(aktuell_)); }

void Wanderfokus::StoppSetzen() {
    for (int i = 0; i < Anzahl(); ++i)
        if (Knopf(i).hasFocus()) aktuell_ = i;
    int stopp = aktuell_;
    for (int i = 0; i < Anzahl() && !IstErreichbar(Knopf(stopp)); ++i) stopp = (stopp + 1) % Anzahl();
    for (int i = 0; i < Anzahl(); ++i) Knopf(i).setFocusPolicy(i == stopp ? Qt::TabFocus : Qt::NoFocus);
}

void Wanderfokus::Gehen(const QAbstractButton &von, int schritt) {
    const auto ort = std::find(knöpfe_.begin(), knöpfe_.end(), &von);
    int ziel = static_cast<int>(ort - knöpfe_.begin()) + schritt;
    const auto drin = [this](int i) { return i >= 0 && i < Anzahl(); };
    while (drin(ziel) && !IstErreichbar(Knopf(ziel))) ziel += schritt;
    if (!drin(ziel)) return;
    aktuell_ = ziel;
    Knopf(ziel).setFocus(Qt::OtherFocusReason);
    StoppSetzen();
}

} // namespace kw
