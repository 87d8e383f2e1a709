#include "qt/grund/QtPlattform.h"

#include "document/Einstellungen.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>

#include <sys/stat.h>

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

std::string EinstellungsDateiDesBenutzers() {
    const QString konfig = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return EinstellungsDatei(QCoreApplication::applicationDirPath().toStdString(), konfig.toStdString() + "/kinwright");
}

std::string NetzordnerDesBenutzers() {
    const QString zustand = qEnvironmentVariable("XDG_STATE_HOME"); // the toolkit knows no such place yet
    const bool gilt = QDir::isAbsolutePath(zustand);                // as its rules say
    return (gilt ? zustand : QDir::homePath() + QStringLiteral("/.local/state")).toStdString() + "/kinwright";
}

bool GehörtDemSystem(const std::string &pfad) {
    constexpr mode_t Andere = S_IWGRP | S_IWOTH; // the group's bit also covers what an access list allows
    if (!pfad.starts_with('/')) return false;
    for (std::string teil = pfad;; teil.resize(teil.rfind('/'))) {
        struct stat angaben {};
        if (::lstat(teil.empty() ? "/" : teil.c_str(), &angaben) != 0) return false;
        if (angaben.st_uid != 0 || S_ISLNK(angaben.st_mode) || (angaben.st_mode & Andere) != 0) return false;
        if (teil.empty()) return true;
    }
}

std::string Hilfeordner() {
    const QDir programm(QCoreApplication::applicationDirPath());
    const QString daneben = programm.filePath(QStringLiteral("help"));
    if (QDir(daneben).exists()) return daneben.toStdString();
    return QDir::cleanPath(programm.filePath(QStringLiteral("../share/kinwright/help"))).toStdString();
}

} // namespace kw
