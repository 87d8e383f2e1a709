#include "qt/start/Einzelinstanz.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kw {
namespace {

/// Starts the program twice: whether the first answered the second.
bool ErsterAntwortet(int &rufe) {
    Einzelinstanz erste;
    EXPECT_TRUE(erste.IstErste());
    erste.BeiWeiteremStart([&] { ++rufe; });
    Einzelinstanz zweite;
    EXPECT_FALSE(zweite.IstErste());
    QCoreApplication::processEvents();
    return zweite.HatGeantwortet();
}

TEST(Einzelinstanz, EinWeitererStartRuftDenErsten) {
    const QTemporaryDir ordner;
    qputenv("XDG_RUNTIME_DIR", ordner.path().toUtf8());
    int rufe = 0;
    EXPECT_TRUE(ErsterAntwortet(rufe));
    EXPECT_EQ(rufe, 1);
    // A folder in the socket's place: the first start works all the same, but can't be called.
    const QString dose =
        QDir(ordner.path()).entryList({QStringLiteral("*.socket")}, QDir::System | QDir::Files).value(0);
    ASSERT_FALSE(dose.isEmpty());
    QFile::remove(ordner.filePath(dose));
    QDir(ordner.path()).mkpath(dose);
    EXPECT_FALSE(ErsterAntwortet(rufe));
}

} // namespace
} // namespace kw
