#pragma once

#include <QProcess>
#include <QString>

#include <gtest/gtest.h>

/// What a program of the system prints; fails the test when it can't be run.
inline QString Ausgegeben(const char *programm, const QStringList &worte) {
    QProcess prozess;
    prozess.start(QString::fromLatin1(programm), worte);
    EXPECT_TRUE(prozess.waitForFinished() && prozess.exitCode() == 0) << programm;
    return QString::fromUtf8(prozess.readAllStandardOutput());
}
