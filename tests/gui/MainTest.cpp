// The program that runs all tests of this folder.
#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir zustand; // the user's own is no place for tests
    qputenv("XDG_STATE_HOME", zustand.path().toLocal8Bit());
    const QApplication anwendung(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
