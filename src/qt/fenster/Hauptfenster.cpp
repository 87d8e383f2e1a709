#include "qt/fenster/Hauptfenster.h"

#include "app/Fenstertasten.h"
#include "document/Dateien.h"
#include "document/Fensterplatz.h"
#include "platform/Befehlsnamen.h"
#include "qt/fenster/Dateidialog.h"
#include "qt/fenster/Importliste.h"
#include "qt/fenster/Statuszeile.h"
#include "qt/fenster/Symbolleiste.h"
#include "qt/fenster/Tasten.h"
#include "qt/fenster/Werkzeugpalette.h"
#include "qt/formulare/Formularfenster.h"
#include "qt/grund/Text.h"
#include "qt/malen/Svgsinnbild.h"
#include "qt/zugang/Seitenzugang.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <utility>

namespace kw {

namespace {

Startangaben Angaben(const std::string &kommandozeile) {
    const QSize bildschirm = QGuiApplication::primaryScreen()->size();
    const std::string einstellungen = EinstellungsDateiDesBenutzers();
    std::error_code fehler; // without its folder the file waits for the program's end, which tries again
    std::filesystem::create_directories(std::filesystem::path(einstellungen).parent_path(), fehler);
    return {kommandozeile,
            einstellungen,
            QCoreApplication::applicationDirPath().toStdString(),
            Hilfeordner(),
            bildschirm.width() * TwipsJePixel,
            bildschirm.height() * TwipsJePixel,
            NetzordnerDesBenutzers(),
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString()};
}

struct Knopfreihe {
    Knöpfe Auswahl;
    QMessageBox::StandardButtons Knöpfe_;
    QMessageBox::StandardButton Vorgabe;
};
constexpr Knopfreihe Knopfreihen[] = {
    {Knöpfe::Ok, QMessageBox::Ok, QMessageBox::Ok},
    {Knöpfe::JaNein, QMessageBox::Yes | QMessageBox::No, QMessageBox::No},
    {Knöpfe::JaNeinAbbrechen, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes},
};

QMessageBox::Icon Bild(Zeichen zeichen) {
    switch (zeichen) {
    case Zeichen::Frage: return QMessageBox::Question;
    case Zeichen::Warnung: return QMessageBox::Warning;
    case Zeichen::Information: return QMessageBox::Information;
    case Zeichen::Halt: return QMessageBox::Critical;
    default: return QMessageBox::NoIcon;
    }
}

/// The path that the address of a local file means, in the bytes of its name; empty for any other.
std::string LokalerPfad(const QByteArray &adresse) {
    for (const char *anfang : {"file://localhost/", "file:///", "file:/"})
        if (adresse.startsWith(anfang)) {
            const QByteArray rest = adresse.mid(static_cast<qsizetype>(std::strlen(anfang)));
            return rest.startsWith('/') ? "" : '/' + QByteArray::fromPercentEncoding(rest).toStdString();
        }
    return {};
}

/// The first project or family tree of a list of dragged files; empty without one.
std::string GezogenesProjekt(const QMimeData &inhalt) {
    for (const QByteArray &zeile : inhalt.data(QStringLiteral("text/uri-list")).split('\n')) {
        std::string datei = LokalerPfad(zeile.trimmed());
        const bool istName = !datei.empty() && datei.find('\0') == std::string::npos;
        if (istName && (IstProjektname(datei) || Stammbaumimport::IstStammbaum(datei))) return datei;
    }
    return {};
}

/// What of a part of the window takes the keyboard by Tab; nothing when it is hidden or has nothing to press.
QWidget *ErsterStopp(QWidget *teil) {
    const auto nimmt = [](const QWidget *w) {
        return w->isVisible() && w->isEnabled() && w->focusPolicy() & Qt::TabFocus;
    };
    if (!teil || !teil->isVisible() || nimmt(teil)) return teil && teil->isVisible() ? teil : nullptr;
    for (QWidget *kind : teil->findChildren<QWidget *>())
        if (nimmt(kind)) return kind;
    return nullptr;
}

void PopupsSchließen() {
    while (QWidget *popup = QApplication::activePopupWidget())
        if (!popup->close()) break;
}

} // namespace

Hauptfenster::Hauptfenster(const std::string &kommandozeile)
    : leinwand_(devicePixelRatioF()), haupt_({*this, drucker_, bilder_, uhr_}, leinwand_, Angaben(kommandozeile)),
      fläche_(new Arbeitsflaeche(leinwand_)), menüs_(haupt_, [this](std::string_view name) { Ausführen(name); }) {
    OhneDateiverlauf();
    leinwand_.BildschirmSetzen(QGuiApplication::primaryScreen()->size());
    SeitenzugangEinrichten();
    setCentralWidget(fläche_);
    setAnimated(false);
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::NoContextMenu); // it would offer to hide toolbar and panels
    // Until these come, so that the page doesn't jump.
    setContentsMargins(0, Menüs::Höhe() + Symbolleiste::Höhe(), 0, Statuszeile::Höhe());
    fläche_->Verbinden(haupt_, [this] {
        // Not before: the first word on the window costs the loading of the system's fonts.
        LeistenBauen();
        QApplication::setWindowIcon(Programmsinnbild()); // of boxes and forms too, installed or not
        palette_ = new Werkzeugpalette(fläche_, haupt_, [this](std::string_view name) { Ausführen(name); });
        Anzeigen();
        for (const auto &arbeit : std::exchange(nachErstemBild_, {})) arbeit();
    });
    haupt_.Laden();
    Aufstellen();
    Anzeigen();
}

void Hauptfenster::Aufstellen() {
    const auto &zuletzt = haupt_.DerAnblick().Fenster;
    const QScreen *üblich = QGuiApplication::primaryScreen();
    if (!zuletzt) return resize(üblich->availableSize() * 0.9);
    std::vector<Schirmfläche> schirme;
    for (const QScreen *schirm : üblich->virtualSiblings()) {
        const QRect r = schirm->availableGeometry();
        schirme.insert(schirm == üblich ? schirme.begin() : schirme.end(), {r.x(), r.y(), r.width(), r.height()});
    }
    const auto [f, maximiert] = AufSchirmen(*zuletzt, schirme);
    setGeometry(f.Left, f.Top, f.Width, f.Height);
    if (maximiert) setWindowState(Qt::WindowMaximized);
}

std::optional<Fensterlage> Hauptfenster::Fensterstand() const {
    const QRect r = normalGeometry();
    if (!r.isValid()) return std::nullopt;
    return Fensterlage{{r.x(), r.y(), r.width(), r.height()}, isMaximized()};
}

/// While the model still lives: the page loses the keyboard as the window goes, and looks at it.
Hauptfenster::~Hauptfenster() { hide(); }

void Hauptfenster::LeistenBauen() {
    layout()->setEnabled(false); // else the page is laid out anew for each of the following
    setContentsMargins(0, 0, 0, 0);
    menüs_.Bauen(*menuBar());
    menuBar()->show();
    band_ = new Symbolleiste(haupt_.DerAnblick(), *fläche_, [this](std::string_view name) { Ausführen(name); });
    addToolBar(band_);
    band_->show();
    status_ = new Statuszeile([this](std::string_view name) { Ausführen(name); });
    setStatusBar(status_);
    status_->show();
    layout()->setEnabled(true);
    layout()->activate();
}

void Hauptfenster::Ausführen(std::string_view befehl) {
    haupt_.BefehlAusführen(befehl);
    AnzeigeAuffrischen();
}

/// Many routines ask for a refresh within one event; it is done once, behind them.
void Hauptfenster::AnzeigeAuffrischen() {
    if (std::exchange(auffrischungSteht_, true)) return;
    QTimer::singleShot(0, this, [this] { Anzeigen(); });
}

void Hauptfenster::Anzeigen() {
    auffrischungSteht_ = false;
    // The toolkit's place for its sign of changes, where a long path can't push it out; elsewhere it is none.
    const QLatin1String zeichen("[*]");
    setWindowTitle(zeichen + Text(haupt_.DerAnblick().Titel).replace(zeichen, QLatin1String("[*][*]")));
    setWindowModified(haupt_.DerAnblick().Geändert);
    menüs_.Auffrischen();
    if (band_) band_->Auffrischen();
    fläche_->Auffrischen();
    if (palette_) palette_->Auffrischen();
    if (status_) status_->Auffrischen(haupt_.DerAnblick());
    if (!importliste_ && Importliste::IstVerlangt(haupt_.DerAnblick()))
        addDockWidget(Qt::RightDockWidgetArea, importliste_ = new Importliste(haupt_.DerAnblick(), [this](int zeile) {
                                                   haupt_.ImportzeileEinsetzen(zeile);
                                               }));
    if (importliste_) importliste_->Auffrischen();
}

void Hauptfenster::closeEvent(QCloseEvent *ereignis) {
    ereignis->setAccepted(haupt_.Schließen());
    if (ereignis->isAccepted()) PopupsSchließen(); // their loops would keep the program alive
}

bool Hauptfenster::SitzungBeenden() {
    PopupsSchließen(); // they would keep the pointer from the question
    NachVorn();
    return haupt_.SitzungBeenden();
}

/// Nothing is opened when the session has ended.
void Hauptfenster::Beenden() {
    übergeben_.clear();
    haupt_.Beenden();
}

void Hauptfenster::NachVorn() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void Hauptfenster::Übernehmen(const std::string &datei) {
    NachVorn();
    if (datei.empty()) return;
    übergeben_.push_back(datei);
    if (übergeben_.size() == 1) QTimer::singleShot(0, this, [this] { ÜbernahmeFolgen(); });
}

/// One after the other; each can ask.
void Hauptfenster::ÜbernahmeFolgen() {
    constexpr int Später = 200; // ms
    if (übergeben_.empty()) return;
    if (IstBeschäftigt()) return QTimer::singleShot(Später, this, [this] { ÜbernahmeFolgen(); });
    const std::string datei = std::move(übergeben_.front());
    übergeben_.pop_front(); // before the question, in which more can come, and the session's end
    haupt_.DateiÜbernehmen(datei);
    if (!übergeben_.empty()) QTimer::singleShot(0, this, [this] { ÜbernahmeFolgen(); });
}

bool Hauptfenster::IstBeschäftigt() const {
    // Before these have run out the window doesn't show what it was started with.
    constexpr std::string_view Startzeitgeber[] = {"tmrFassungen", "Timer2", "Timer5"};
    const auto läuft = [this](std::string_view name) {
        const auto zeitgeber = zeitgeber_.find(name);
        return zeitgeber != zeitgeber_.end() && zeitgeber->second->isActive();
    };
    return QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
           std::any_of(std::begin(Startzeitgeber), std::end(Startzeitgeber), läuft);
}

void Hauptfenster::dragEnterEvent(QDragEnterEvent *ereignis) {
    if (!GezogenesProjekt(*ereignis->mimeData()).empty()) ereignis->acceptProposedAction();
}

/// Whoever dragged it waits for the end of this event, and mustn't wait for a question.
void Hauptfenster::dropEvent(QDropEvent *ereignis) {
    const std::string datei = GezogenesProjekt(*ereignis->mimeData());
    if (datei.empty()) return;
    ereignis->acceptProposedAction();
    Übernehmen(datei);
}

QWidget *Hauptfenster::Vordergrund() {
    QWidget *offen = QApplication::activeModalWidget();
    return offen ? offen : this;
}

Antwort Hauptfenster::Fragen(const Nachfrage &nachfrage) {
    const auto &reihe = Knopfreihen[static_cast<int>(nachfrage.Auswahl)];
    QMessageBox kasten(Bild(nachfrage.Bild), Text(nachfrage.Titel), Text(nachfrage.Text), reihe.Knöpfe_, Vordergrund());
    kasten.setTextFormat(Qt::PlainText);
    kasten.setDefaultButton(reihe.Vorgabe);
    switch (kasten.exec()) {
    case QMessageBox::Yes: return Antwort::Ja;
    case QMessageBox::No: return Antwort::Nein;
    case QMessageBox::Ok: return Antwort::Ok;
    default: return Antwort::Abbrechen;
    }
}

std::optional<std::string> Hauptfenster::DateiÖffnen(const Dateiwahl &wahl) {
    return DateiErfragen(Vordergrund(), wahl, QFileDialog::AcceptOpen);
}

std::optional<std::string> Hauptfenster::DateiSpeichern(const Dateiwahl &wahl) {
    return DateiErfragen(Vordergrund(), wahl, QFileDialog::AcceptSave);
}

std::optional<std::string> Hauptfenster::PopupZeigen(std::string_view menü) {
    auto ort = palette_ ? palette_->Popuport() : std::nullopt;
    if (!ort) ort = fläche_->Cursorort();
    return menüs_.Popup(menü, ort.value_or(QCursor::pos()), *this);
}

void Hauptfenster::FormZeigen(Formular &form) { Formularfenster(form, Vordergrund()).Ausführen(); }

std::optional<int> Hauptfenster::FarbeWählen(int farbe) {
    const auto anteil = [&](int bits) { return farbe >> bits & 0xFF; };
    const QColor gewählt = QColorDialog::getColor(QColor(anteil(0), anteil(8), anteil(16)), Vordergrund());
    if (!gewählt.isValid()) return std::nullopt;
    return gewählt.red() | gewählt.green() << 8 | gewählt.blue() << 16;
}

void Hauptfenster::ZeitgeberStarten(std::string_view name, int ms) {
    QTimer *&zeitgeber = zeitgeber_[std::string(name)];
    if (!zeitgeber) {
        zeitgeber = new QTimer(this);
        zeitgeber->setSingleShot(true);
        connect(zeitgeber, &QTimer::timeout, this, [this, zeitgeber, eigenerName = std::string(name)] {
            constexpr int Später = 200; // ms
            // What it opens would cover the box that is read, or come between a form and its page.
            if (QApplication::activeModalWidget()) zeitgeber->start(Später);
            else haupt_.ZeitgeberAbgelaufen(eigenerName);
        });
    }
    zeitgeber->start(ms);
}

void Hauptfenster::NachErstemBild(std::function<void()> arbeit) { nachErstemBild_.push_back(std::move(arbeit)); }

/// A file's name may hold what an address would be cut at ("#", "?").
bool Hauptfenster::AdresseÖffnen(const std::string &adresse) {
    const QString ziel = Text(adresse);
    const QString datei = QStringLiteral("file://");
    return QDesktopServices::openUrl(ziel.startsWith(datei) ? QUrl::fromLocalFile(ziel.mid(datei.size())) : QUrl(ziel));
}

/// Run as the system's keeper, it must be one that nobody else can have put there.
bool Hauptfenster::ProgrammStarten(const std::string &name) {
    const QString programm = QCoreApplication::applicationDirPath() + u'/' + Text(name);
    const QString eigentlich = QFileInfo(programm).canonicalFilePath();
    return QFileInfo(eigentlich).isExecutable() && GehörtDemSystem(eigentlich.toStdString()) &&
           QProcess::startDetached(QStringLiteral("pkexec"), {eigentlich});
}

void Hauptfenster::Ansagen(std::string_view text) { fläche_->Baum().Ansagen(Text(text)); }

void Hauptfenster::FokusAufLeinwand() { fläche_->setFocus(Qt::OtherFocusReason); }

void Hauptfenster::FokusWeitergeben(bool zurück) {
    const std::array<QWidget *, 5> teile{fläche_, palette_, importliste_, band_, status_};
    const auto anzahl = static_cast<int>(teile.size());
    const QWidget *jetzt = QApplication::focusWidget();
    const auto hier = std::find_if(teile.begin(), teile.end(), [&](const QWidget *teil) {
        return teil && jetzt && (teil == jetzt || teil->isAncestorOf(jetzt)) && (teil != fläche_ || jetzt == fläche_);
    });
    int i = hier == teile.end() ? (zurück ? 0 : anzahl - 1) : static_cast<int>(hier - teile.begin());
    for (int versuche = 0; versuche < anzahl; ++versuche) {
        i = (i + (zurück ? anzahl - 1 : 1)) % anzahl;
        if (QWidget *stopp = ErsterStopp(teile.at(static_cast<size_t>(i)))) return stopp->setFocus(Qt::TabFocusReason);
    }
}

/// What no part of the window wants: zooming and the rest work wherever the keyboard is. A paste comes here only where
/// it can't be, else it is the menu's; the model knows why.
void Hauptfenster::keyPressEvent(QKeyEvent *ereignis) {
    if (ereignis->matches(QKeySequence::Paste)) return Ausführen(std::string_view(Name::mnuEinfügen));
    const auto taste = TasteVon(*ereignis);
    if (taste && taste->Ist(Taste::F, true)) return fläche_->SucheÖffnen();
    if (taste && FenstertasteFinden(*taste)) haupt_.TasteDrücken(*taste);
    else QMainWindow::keyPressEvent(ereignis);
}

bool Hauptfenster::AblageBelegt() const {
    const QMimeData *inhalt = QGuiApplication::clipboard()->mimeData();
    return inhalt && !inhalt->formats().isEmpty();
}

std::string Hauptfenster::Desktopordner() const {
    const QString ordner = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    return (QDir(ordner).exists() ? ordner : QDir::homePath()).toStdString();
}

std::vector<std::string> Hauptfenster::Schriftarten() const {
    std::vector<std::string> namen;
    for (const QString &name : QFontDatabase::families()) namen.push_back(name.toStdString());
    return namen;
}

} // namespace kw
