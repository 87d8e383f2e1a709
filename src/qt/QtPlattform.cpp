#include "qt/QtPlattform.h"

#include "document/Einstellungen.h"
#include "qt/QtFlaeche.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QLocale>
#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include <cmath>

namespace kw {

Datumsfolge FolgeAus(const std::string &format) {
    const auto tag = format.find('d');
    const auto monat = format.find('M');
    const auto jahr = format.find('y');
    if (jahr < monat && jahr < tag) return Datumsfolge::JahrMonatTag;
    return monat < tag ? Datumsfolge::MonatTagJahr : Datumsfolge::TagMonatJahr;
}

QtUhr::QtUhr() : folge_(FolgeAus(QLocale::system().dateFormat(QLocale::ShortFormat).toStdString())) {}

Datum QtUhr::Heute() const {
    if (const std::time_t jetzt = std::time(nullptr); jetzt != stand_) {
        const QDate heute = QDate::currentDate();
        heute_ = {heute.year(), heute.month(), heute.day()};
        stand_ = jetzt;
    }
    return heute_;
}

namespace {

/// The default printer; without one, the first of the list.
QPrinterInfo Vorgabe() {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (!info.isNull()) return info;
    const QStringList alle = QPrinterInfo::availablePrinterNames();
    return alle.isEmpty() ? info : QPrinterInfo::printerInfo(alle.first());
}

} // namespace

/// A chosen printer that has gone meanwhile leaves the default one.
QPrinterInfo QtDrucker::Aktueller() const {
    const QPrinterInfo info = gewählt_.isEmpty() ? QPrinterInfo() : QPrinterInfo::printerInfo(gewählt_);
    return info.isNull() ? Vorgabe() : info;
}

std::optional<std::string> QtDrucker::DeviceName() const {
    const QPrinterInfo info = Aktueller();
    return info.isNull() ? std::nullopt : std::optional(info.printerName().toStdString());
}

Druckränder QtDrucker::Ränder() const {
    const QPrinter drucker(Vorgabe());
    constexpr double CmJePunkt = 2.54 / 72;
    const QMarginsF rand = drucker.pageLayout().minimumMargins() * CmJePunkt;
    return {rand.left(), rand.right(), rand.top(), rand.bottom()};
}

int QtDrucker::Orientation() const {
    if (lage_) return *lage_;
    const QPrinter drucker(Aktueller());
    return drucker.pageLayout().orientation() == QPageLayout::Portrait ? 1 : 2;
}

std::vector<std::string> QtDrucker::DeviceNames() const {
    std::vector<std::string> namen;
    for (const QString &name : QPrinterInfo::availablePrinterNames()) namen.push_back(name.toStdString());
    return namen;
}

bool QtDrucker::Wählen(std::string_view deviceName) {
    const QString name = QString::fromUtf8(deviceName.data(), static_cast<qsizetype>(deviceName.size()));
    if (QPrinterInfo::printerInfo(name).isNull()) return false;
    gewählt_ = name;
    lage_.reset();
    return true;
}

/// The origin is the corner of the printable area, as of every job; the paper is what the printer is set to.
void QtDrucker::Drucken(const Druckauftrag &auftrag) {
    constexpr int Dpi = 600;
    const QPrinterInfo info = Aktueller();
    if (info.isNull()) return;
    QPrinter drucker(info, QPrinter::HighResolution);
    drucker.setResolution(Dpi);
    drucker.setFullPage(false);
    drucker.setPageMargins(QMarginsF(), QPageLayout::Millimeter); // no narrower than the printer can
    drucker.setPageOrientation(Orientation() == 1 ? QPageLayout::Portrait : QPageLayout::Landscape);
    drucker.setColorMode(auftrag.Farbig ? QPrinter::Color : QPrinter::GrayScale);
    drucker.setDocName(QString::fromStdString(auftrag.Titel));
    const auto twips = [](double cm) { return static_cast<int>(std::lround(cm * TwipsJeCm)); };
    QtFläche papier;
    papier.GrößeSetzen(twips(auftrag.SeitenBreite), twips(auftrag.SeitenHöhe));
    papier.Scale(auftrag.SeitenBreite, auftrag.SeitenHöhe, 1);
    if (!papier.Beginnen(drucker, Dpi / 2.54, DruckPixelJeCm)) return;
    auftrag.Zeichnen(papier);
    if (!papier.Beenden()) drucker.abort();
}

std::string EinstellungsDateiDesBenutzers() {
    const QString konfig = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return EinstellungsDatei(QCoreApplication::applicationDirPath().toStdString(), konfig.toStdString() + "/kinwright");
}

std::string Hilfeordner() {
    const QDir programm(QCoreApplication::applicationDirPath());
    const QString daneben = programm.filePath(QStringLiteral("help"));
    if (QDir(daneben).exists()) return daneben.toStdString();
    return QDir::cleanPath(programm.filePath(QStringLiteral("../share/kinwright/help"))).toStdString();
}

} // namespace kw
