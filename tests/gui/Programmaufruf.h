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

/// Whether each font of a PDF, at least one, is in the file itself.
inline void SchriftenEnthalten(const QString &pdf) {
    const QStringList schriften = Ausgegeben("pdffonts", {pdf}).split(u'\n', Qt::SkipEmptyParts).mid(2);
    EXPECT_FALSE(schriften.empty());
    for (const QString &schrift : schriften)
        EXPECT_EQ(schrift.simplified().section(u' ', -5, -5), QStringLiteral("yes")) << schrift.toStdString();
}
