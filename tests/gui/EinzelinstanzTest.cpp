#include "qt/start/Einzelinstanz.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kw {
namespace {

TEST(Einzelinstanz, EinWeitererStartRuftDenErsten) {
    const QTemporaryDir ordner;
    qputenv("XDG_RUNTIME_DIR", ordner.path().toUtf8());
    int rufe = 0;
    {
        Einzelinstanz erste;
        ASSERT_TRUE(erste.IstErste());
        erste.BeiWeiteremStart([&] { ++rufe; });
        Einzelinstanz zweite;
        EXPECT_FALSE(zweite.IstErste());
        EXPECT_TRUE(zweite.HatGeantwortet());
        QCoreApplication::processEvents();
        EXPECT_EQ(rufe, 1);
    }
    // A folder in the socket's place: the first start works all the same, but can't be called.
    const QString dose =
        QDir(ordner.path()).entryList({QStringLiteral("*.socket")}, QDir::System | QDir::Files).value(0);
    ASSERT_FALSE(dose.isEmpty());
    QFile::remove(ordner.filePath(dose));
    QDir(ordner.path()).mkpath(dose);
    Einzelinstanz erste;
    ASSERT_TRUE(erste.IstErste());
    erste.BeiWeiteremStart([&] { ++rufe; });
    Einzelinstanz zweite;
    EXPECT_FALSE(zweite.IstErste());
    EXPECT_FALSE(zweite.HatGeantwortet());
}

} // namespace
} // namespace kw
