#include "qt/fenster/Werkzeugpalette.h"

#include "app/frmMain.h"
#include "editing/Werkzeuge.h"
#include "platform/Befehlsnamen.h"
#include "qt/fenster/Palettenknopf.h"
#include "qt/grund/Text.h"
#include "qt/grund/Vorlesename.h"
#include "qt/malen/Zeilenbild.h"
#include "rendering/Sinnbilder.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kw {

namespace {

constexpr int Spalten = 2;
constexpr int Gruppenlücke = 4; ///< logical pixels, as all below
constexpr int Lücke = 2;
constexpr int GrößteKante = 28;
constexpr int KleinsteKante = 16; ///< smaller ones would be cut off rather than read
constexpr int Merkmalkante = 24;

constexpr int Löschen = 0; ///< stands for the delete button among the tools' codes

// Two of them make a row. Persons:
constexpr std::array Werkzeuge{1, 2, 20, 17, 18, 19,
                               // the unborn, and twins
                               3, 7, 5, 6, 4, +WerkzeugZwillinge,
                               // what joins persons
                               +WerkzeugEltern, +WerkzeugKind, +WerkzeugPartnerschaft, +WerkzeugBeziehung,
                               // text, and what is drawn
                               +WerkzeugText, +WerkzeugKreislinie, +WerkzeugPfeil, +WerkzeugDoppelpfeil, Löschen};
constexpr std::array Gruppenanfänge{6, 12, 16, 20};
constexpr int Anzahl = static_cast<int>(Werkzeuge.size());

bool BeginntGruppe(int stelle) {
    return std::find(Gruppenanfänge.begin(), Gruppenanfänge.end(), stelle) != Gruppenanfänge.end();
}

struct Merkmalname {
    Zweisprachig Name;
    bool Personeninfo::*Gilt;
};
constexpr std::array<Merkmalname, MerkmalAnzahl> Merkmalnamen{{
    {{"Indexperson", "Index Person"}, &Personeninfo::IndexPerson},
    {{"Verstorben", "Deceased"}, &Personeninfo::Verstorben},
    {{"Sucht", "Addiction"}, &Personeninfo::Sucht},
    {{"Erkrankung", "Illness"}, &Personeninfo::Erkrankung},
}};

constexpr Zweisprachig Ja{": ja", ": yes"};
constexpr Zweisprachig Nein{": nein", ": no"};

/// The row of the table that has the button's state and caption.
std::string Elementname(int werkzeug) {
    return werkzeug == Löschen ? std::string(Name::cmdDelete.Text) : WerkzeugName(werkzeug);
}

std::string BefehlVon(int werkzeug) {
    return werkzeug == WerkzeugZwillinge ? std::string(Name::cmdZwillinge.Text) : Elementname(werkzeug);
}

Bildmacher BildVon(Sinnbild sinnbild, const Uhr &uhr) {
    return [sinnbild = std::move(sinnbild), &uhr](int kante, double verhältnis) {
        return Symbolbild(sinnbild, uhr, kante, verhältnis);
    };
}

} // namespace

Werkzeugpalette::Werkzeugpalette(QWidget *fläche, frmMain &haupt, std::function<void(std::string_view)> ausführen)
    : QWidget(fläche), haupt_(haupt), anblick_(haupt.DerAnblick()), ausführen_(std::move(ausführen)) {
    setAttribute(Qt::WA_NoMousePropagation); // what is pressed here is no press on the canvas
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    KnöpfeAnlegen();
    for (int i = 0; i < MerkmalAnzahl; ++i)
        merkmale_.push_back(new Merkmalfeld(BildVon(MerkmalSinnbild(static_cast<Merkmal>(i)), anblick_.uhr), this));
    Auffrischen();
}

void Werkzeugpalette::KnöpfeAnlegen() {
    for (int i = 0; i < Anzahl; ++i) {
        const int werkzeug = Werkzeuge[static_cast<size_t>(i)];
        const Bildmacher bild =
            werkzeug == Löschen ? Bildmacher(Papierkorb) : BildVon(WerkzeugSinnbild(werkzeug), anblick_.uhr);
        auto *knopf = new Palettenknopf(bild, this);
        knopf->TasteWeitergeben = [this, i](int taste) { return Gehen(i, taste); };
        if (werkzeug != Löschen) knopf->Berührt = [this, i](bool darauf) { Berühren(i, darauf); };
        connect(knopf, &QAbstractButton::clicked, this, [this, name = BefehlVon(werkzeug)] { ausführen_(name); });
        knöpfe_.push_back(knopf);
        fokus_.Aufnehmen(*knopf);
    }
}

void Werkzeugpalette::Auffrischen() {
    const int breite = anblick_.bereich.picBack.Left / TwipsJePixel;
    setGeometry(0, 0, std::max(breite, 1), parentWidget()->height());
    setVisible(breite > 0);
    VorlesenAls(*this, Text(Zweisprachig{"Werkzeuge", "Tools"}.In(anblick_.ansicht.Sprache)));
    for (int i = 0; i < Anzahl; ++i) {
        const Bedienelement *element = anblick_.bedienung.Finden(Elementname(Werkzeuge[static_cast<size_t>(i)]));
        if (!element) continue;
        const QString name = Text(element->Caption).trimmed();
        Palettenknopf &knopf = *knöpfe_[static_cast<size_t>(i)];
        VorlesenAls(knopf, name);
        if (!knopf.Berührt) knopf.setToolTip(name); // no other place shows it
        knopf.setEnabled(element->Enabled);
        knopf.setChecked(element->Checked);
    }
    for (size_t i = 0; i < merkmale_.size(); ++i) {
        const Merkmalname &m = Merkmalnamen[i];
        const QString name = Text(m.Name.In(anblick_.ansicht.Sprache));
        const bool gilt = anblick_.lage.Info.*m.Gilt;
        merkmale_[i]->Zeigen(name, gilt);
        VorlesenAls(*merkmale_[i], name + Text((gilt ? Ja : Nein).In(anblick_.ansicht.Sprache)));
        merkmale_[i]->setVisible(anblick_.lage.Info.Visible);
    }
    fokus_.StoppSetzen();
    HinweisZeigen();
}

void Werkzeugpalette::Berühren(int stelle, bool darauf) {
    if (darauf) berührt_ = stelle;
    haupt_.PaletteBerührt(darauf ? Werkzeuge[static_cast<size_t>(stelle)] : 0);
}

/// Beside the button, over the page.
void Werkzeugpalette::HinweisZeigen() {
    const Bedienelement &element = anblick_.bedienung[Name::picToolTipp];
    if (!hinweis_ && element.Visible) hinweis_ = new Palettenhinweis(parentWidget());
    if (!hinweis_) return;
    hinweis_->setVisible(element.Visible && isVisible());
    const int werkzeug = Werkzeuge[static_cast<size_t>(berührt_)];
    if (element.Visible)
        hinweis_->Zeigen(Text(element.Caption).trimmed(), Text(element.Tipp),
                         BildVon(WerkzeugSinnbild(werkzeug), anblick_.uhr));
    hinweis_->adjustSize();
    const QRect knopf = knöpfe_[static_cast<size_t>(berührt_)]->geometry();
    hinweis_->move(width() + Lücke, knopf.center().y() - hinweis_->height() / 2);
}

/// Two columns from the top; in a low window the buttons become smaller, so that all stay within reach.
void Werkzeugpalette::Anordnen() {
    const int reihen = (Anzahl + Spalten - 1) / Spalten;
    const int gruppen = static_cast<int>(Gruppenanfänge.size());
    const int fest = (gruppen + 2) * Gruppenlücke + 2 * (Merkmalkante + Lücke);
    const int kante = std::clamp((height() - fest) / reihen - Lücke, KleinsteKante, GrößteKante);
    const int breite = (width() - 3 * Lücke) / Spalten;
    int y = Gruppenlücke;
    for (int i = 0; i < Anzahl; ++i) {
        if (BeginntGruppe(i)) y += Gruppenlücke;
        const bool letzte = i + 1 == Anzahl;
        const int x = Lücke + i % Spalten * (breite + Lücke);
        knöpfe_[static_cast<size_t>(i)]->setGeometry(x, y, letzte ? width() - 2 * Lücke : breite, kante);
        if (i % Spalten == Spalten - 1 || letzte) y += kante + Lücke;
    }
    y += Gruppenlücke;
    for (int i = 0; i < static_cast<int>(merkmale_.size()); ++i)
        merkmale_[static_cast<size_t>(i)]->setGeometry(Lücke + i % Spalten * (breite + Lücke),
                                                       y + i / Spalten * (Merkmalkante + Lücke), breite, Merkmalkante);
}

/// Left and right go through all buttons in order, up and down through a column; disabled ones are passed over.
bool Werkzeugpalette::Gehen(int von, int taste) {
    constexpr std::pair<int, int> Schritte[] = {
        {Qt::Key_Left, -1}, {Qt::Key_Right, 1}, {Qt::Key_Up, -Spalten}, {Qt::Key_Down, Spalten}};
    const auto *schritt =
        std::find_if(std::begin(Schritte), std::end(Schritte), [&](const auto &s) { return s.first == taste; });
    if (schritt == std::end(Schritte)) return false;
    // From the right column down to the last row, which is one wide button.
    const bool zurLetzten = taste == Qt::Key_Down && von + Spalten == Anzahl;
    fokus_.Gehen(*knöpfe_[static_cast<size_t>(von)], zurLetzten ? 1 : schritt->second);
    return true;
}

std::optional<QPoint> Werkzeugpalette::Popuport() const {
    for (const Palettenknopf *knopf : knöpfe_)
        if (knopf->hasFocus()) return knopf->mapToGlobal(QPoint(knopf->width(), 0));
    return std::nullopt;
}

} // namespace kw
