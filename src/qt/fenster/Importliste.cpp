#include "qt/fenster/Importliste.h"

#include "app/Anblick.h"
#include "document/Importdaten.h"
#include "platform/Bedienelemente.h"
#include "platform/Befehlsnamen.h"
#include "qt/grund/Tastatur.h"
#include "qt/grund/Text.h"
#include "qt/grund/Vorlesename.h"
#include "qt/malen/Zeilenbild.h"
#include "rendering/Sinnbilder.h"

#include <QAbstractListModel>
#include <QDrag>
#include <QIcon>
#include <QKeyEvent>
#include <QListView>
#include <QMimeData>

#include <map>
#include <tuple>
#include <utility>

namespace kw {

namespace {

constexpr int Bildkante = 20; ///< logical pixels
constexpr int Ziehkante = 40;

/// Of a dragged row; nothing else that is dragged has it.
QString Zeilenart() { return QStringLiteral("application/x-kinwright-importzeile"); }

QIcon Leerbild() {
    QPixmap bild(Bildkante, Bildkante);
    bild.fill(Qt::transparent);
    return bild;
}

} // namespace

/// The rows as the import has read them. There can be tens of thousands, so nothing is kept but a picture of each kind.
class Importmodell : public QAbstractListModel {
  public:
    Importmodell(const Anblick &anblick, QObject *eltern) : QAbstractListModel(eltern), anblick_(anblick) {}

    void Auffrischen() {
        const auto &zeilen = anblick_.Importzeilen;
        if (zeilen.data() == erste_ && zeilen.size() == anzahl_) return;
        beginResetModel();
        erste_ = zeilen.data();
        anzahl_ = zeilen.size();
        endResetModel();
    }

    int rowCount(const QModelIndex &eltern = {}) const override {
        return eltern.isValid() ? 0 : static_cast<int>(anzahl_);
    }
    QVariant data(const QModelIndex &index, int rolle) const override {
        const Importperson &person = Person(index.row());
        if (rolle == Qt::DisplayRole || rolle == Qt::ToolTipRole) return Text(person.Vorname + " " + person.Nachname);
        if (rolle == Qt::DecorationRole) return Bild(person);
        return {};
    }
    Qt::ItemFlags flags(const QModelIndex &index) const override {
        return QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled;
    }
    QStringList mimeTypes() const override { return {Zeilenart()}; }
    QMimeData *mimeData(const QModelIndexList &indizes) const override {
        auto *inhalt = new QMimeData;
        inhalt->setData(Zeilenart(), QByteArray::number(indizes.first().row()));
        return inhalt;
    }

    /// What the pointer carries: the symbol that the page will get.
    QPixmap Ziehbild(int zeile, double pixelverhältnis) const {
        const Importperson &person = Person(zeile);
        Sinnbild bild = ImportSinnbild(person);
        if (bild.dokument.cboPersonen.Leer()) bild = WerkzeugSinnbild(person.Symboltyp);
        return Symbolbild(bild, anblick_.uhr, Ziehkante, pixelverhältnis);
    }

  private:
    const Importperson &Person(int zeile) const { return anblick_.Importzeilen[static_cast<size_t>(zeile)]; }
    QIcon Bild(const Importperson &person) const {
        auto [i, neu] = bilder_.try_emplace({person.Geschlecht, person.IndexPerson, person.Verstorben});
        if (!neu) return i->second;
        Sinnbild bild = ImportSinnbild(person);
        if (bild.dokument.cboPersonen.Leer()) i->second = Leerbild(); // the names stay below each other
        else i->second = Sinnbildicon(std::move(bild), anblick_.uhr);
        return i->second;
    }

    const Anblick &anblick_;
    const Importperson *erste_ = nullptr; ///< the list that the view knows
    size_t anzahl_ = 0;
    mutable std::map<std::tuple<std::string, bool, bool>, QIcon> bilder_;
};

namespace {

class Listenfeld : public QListView {
  public:
    Listenfeld(Importmodell &modell, std::function<void(int)> einsetzen, QWidget *eltern)
        : QListView(eltern), modell_(modell), einsetzen_(std::move(einsetzen)) {
        setModel(&modell);
        setUniformItemSizes(true);
        setIconSize({Bildkante, Bildkante});
        setEditTriggers(NoEditTriggers);
        setDragDropMode(DragOnly);
    }

  protected:
    /// Copying and the like are commands of the page.
    void keyPressEvent(QKeyEvent *ereignis) override {
        if (ereignis->matches(QKeySequence::Copy)) ereignis->ignore();
        else if (IstEnter(ereignis->key()) && currentIndex().isValid()) einsetzen_(currentIndex().row());
        else QListView::keyPressEvent(ereignis);
    }
    void startDrag(Qt::DropActions) override {
        const QModelIndex index = currentIndex();
        if (!index.isValid()) return;
        auto *zug = new QDrag(this); // the toolkit deletes it
        zug->setMimeData(modell_.mimeData({index}));
        zug->setPixmap(modell_.Ziehbild(index.row(), devicePixelRatioF()));
        zug->setHotSpot({Ziehkante / 2, Ziehkante / 2}); // a person is dropped by its centre
        zug->exec(Qt::CopyAction);
    }

  private:
    Importmodell &modell_;
    std::function<void(int)> einsetzen_;
};

} // namespace

Importliste::Importliste(const Anblick &anblick, std::function<void(int)> einsetzen)
    : anblick_(anblick), modell_(new Importmodell(anblick, this)) {
    constexpr int KleinsteBreite = 160;
    setObjectName(QStringLiteral("imgVariable"));
    setFeatures(NoDockWidgetFeatures);
    setTitleBarWidget(new QWidget(this)); // none
    setMinimumWidth(KleinsteBreite);
    setWidget(new Listenfeld(*modell_, std::move(einsetzen), this));
    Auffrischen();
}

bool Importliste::IstVerlangt(const Anblick &anblick) { return anblick.bedienung[Name::imgVariable].Visible; }

void Importliste::Auffrischen() {
    modell_->Auffrischen();
    VorlesenAls(*widget(), Text(anblick_.bedienung[Name::btnImport].Caption));
    setVisible(IstVerlangt(anblick_));
}

std::optional<int> GezogeneZeile(const QMimeData &inhalt) {
    bool zahl = false;
    const int zeile = inhalt.data(Zeilenart()).toInt(&zahl);
    return zahl ? std::optional(zeile) : std::nullopt;
}

} // namespace kw
