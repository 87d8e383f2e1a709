#include "qt/start/Einzelinstanz.h"
#include "qt/start/Anruf.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <future>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace kw {
namespace {

using namespace std::chrono_literals;
using Stand = Einzelinstanz::Stand;

class Starts : public testing::Test {
  protected:
    Starts() { qputenv("XDG_RUNTIME_DIR", ordner.path().toUtf8()); }
    ~Starts() override { qunsetenv("XDG_RUNTIME_DIR"); }

    QString Ort(const char *endung) const {
        const auto namen =
            QDir(ordner.path()).entryList({QLatin1Char('*') + QLatin1String(endung)}, QDir::System | QDir::AllEntries);
        return ordner.filePath(namen.value(0));
    }
    /// One start beside the event loop of the first.
    std::future<Stand> Start(const std::string &datei) {
        return std::async(std::launch::async, [datei] { return Einzelinstanz().Starten(datei); });
    }
    /// How the starts ended, when all have.
    std::vector<Stand> Ergebnisse(std::vector<std::future<Stand>> starts) {
        std::vector<Stand> stände;
        for (auto &start : starts) {
            while (start.wait_for(1ms) != std::future_status::ready) QCoreApplication::processEvents();
            stände.push_back(start.get());
        }
        QCoreApplication::processEvents();
        return stände;
    }
    void Horchen() {
        ASSERT_EQ(erste.Starten(""), Stand::Erste);
        erste.BeiWeiteremStart([this](const std::string &datei) { übergeben.insert(datei); });
    }

    const QTemporaryDir ordner;
    Einzelinstanz erste;
    std::multiset<std::string> übergeben;
};

TEST_F(Starts, GebenIhreDateiDemErsten) {
    Horchen();
    const std::string seltsam = "/ein Ordner/\xff\n\x01 Müller.kwp";
    const std::string längste = "/" + std::string(4094, 'x');
    std::vector<std::future<Stand>> starts;
    for (const std::string &datei : {seltsam, längste, std::string(), std::string("/b"), std::string("/b")})
        starts.push_back(Start(datei));
    EXPECT_EQ(Ergebnisse(std::move(starts)), std::vector(5, Stand::Übergeben));
    EXPECT_EQ(übergeben, (std::multiset<std::string>{seltsam, längste, "", "/b", "/b"}));
}

/// What it was told while it was stopped isn't carried out twice when it goes on.
TEST_F(Starts, WartenNichtAufEinenAngehaltenenErsten) {
    Horchen();
    Einzelinstanz zweite;
    QElapsedTimer uhr;
    uhr.start();
    EXPECT_EQ(zweite.Starten("/a.kwp"), Stand::Allein);
    EXPECT_NEAR(static_cast<double>(uhr.elapsed()), 2000, 500);
    EXPECT_NE(zweite.Grund().find("doesn't answer"), std::string::npos) << zweite.Grund();
    QCoreApplication::processEvents();
    EXPECT_TRUE(übergeben.empty());
}

TEST_F(Starts, StehenAlleinWoSichNichtsSperrenLässt) {
    {
        Einzelinstanz vorher; // what a crash leaves: a lock that nobody holds, and a socket
        ASSERT_EQ(vorher.Starten(""), Stand::Erste);
    }
    const QString sperre = Ort(".lock");
    const int fremd = ::open(sperre.toUtf8().constData(), O_RDWR | O_CLOEXEC); // the home is on the network
    ASSERT_EQ(::flock(fremd, LOCK_EX) + ::ftruncate(fremd, 0), 0);
    ASSERT_EQ(::pwrite(fremd, "anderswo", 8, 0), 8);
    EXPECT_EQ(erste.Starten("/a"), Stand::Allein);
    EXPECT_NE(erste.Grund().find("anderswo"), std::string::npos) << erste.Grund();
    ::close(fremd);
    QFile::remove(sperre);
    ASSERT_TRUE(QDir().mkdir(sperre));
    EXPECT_EQ(erste.Starten("/a"), Stand::Allein);
    EXPECT_NE(erste.Grund().find("Is a directory"), std::string::npos) << erste.Grund();
    ASSERT_TRUE(QDir().rmdir(sperre));
    Horchen();
    // A folder in the socket's place: the first start works all the same, but can't be called.
    Einzelinstanz zweite;
    const QString dose = Ort(".socket");
    ASSERT_TRUE(QFile::remove(dose) && QDir().mkdir(dose));
    EXPECT_EQ(zweite.Starten("/a"), Stand::Allein);
    EXPECT_TRUE(übergeben.empty());
}

TEST_F(Starts, KommenDurchWasAuchSonstAnruft) {
    Horchen();
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    const QByteArray dose = Ort(".socket").toUtf8();
    std::copy(dose.begin(), dose.end(), adresse.sun_path);
    std::vector<int> anrufe;
    const std::string anrede = "kinwright 1\n";
    // Nothing, somebody else's words, no full path, an end mark within, more than a path can be.
    for (const std::string &wort : {std::string(), std::string("GET /"), anrede + "a.kwp", anrede + "/a" + '\0' + "b",
                                    anrede + '/' + std::string(5000, 'x'), std::string(150000, 'x')})
        for (int i = 0; i < 4; ++i) {
            anrufe.push_back(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
            ASSERT_EQ(::connect(anrufe.back(), reinterpret_cast<const sockaddr *>(&adresse), sizeof adresse), 0);
            if (!wort.empty()) ::send(anrufe.back(), wort.data(), wort.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        }
    std::vector<std::future<Stand>> starts;
    starts.push_back(Start("/a.kwp"));
    EXPECT_EQ(Ergebnisse(std::move(starts)), std::vector{Stand::Übergeben});
    EXPECT_EQ(übergeben, std::multiset<std::string>{"/a.kwp"});
    for (const int anruf : anrufe) ::close(anruf);
}

} // namespace
} // namespace kw
