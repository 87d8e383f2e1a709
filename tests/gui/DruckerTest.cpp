// Printers: the built-in one from the question to the finished file, and a print system that is silent.
#include "app/Einzelbild.h"
#include "document/Dateien.h"
#include "gui/Programmaufruf.h"
#include "qt/drucken/QtDrucker.h"
#include "qt/grund/QtPlattform.h"
#include "rendering/Ebenen.h"
#include "rendering/Seite.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace kw;

namespace {

class EingebauterDrucker : public testing::Test {
  protected:
    EingebauterDrucker() { bild.dokument.cboPersonen = {"001_1_5_5_1.2_0__0_0_Jörg_Größmann_1950__"}; }

    void Drucken(int papier, int lage, bool farbig) {
        bild.dokument.Papiercode = papier;
        bild.dokument.Seitenlage = lage;
        SeiteBestimmen(bild.dokument, bild.ansicht);
        befund = drucker.Drucken({"Mein Täst", farbig, bild.ansicht.SeitenBreite, bild.ansicht.SeitenHöhe,
                                  [this](Zeichenfläche &f) { bild.AufPapier(f); },
                                  [this] { return ++gefragt, ziel.empty() ? std::nullopt : std::optional(ziel); }});
    }
    QString Ort(const char *name) const { return ordner.filePath(QString::fromUtf8(name)); }

    QTemporaryDir ordner;
    std::string ziel; ///< what the user answers
    int gefragt = 0;
    Druckbefund befund;
    QtDrucker drucker;
    QtUhr uhr;
    Einzelbild bild{uhr, ""};
};

} // namespace

TEST_F(EingebauterDrucker, IstNieDieVorgabeUndSchreibtNurGanzeDateien) {
    qputenv("CUPS_SERVER", "localhost:1"); // nobody is there
    EXPECT_EQ(drucker.DeviceNames(), std::vector<std::string>{std::string(PdfDruckerName)});
    EXPECT_FALSE(drucker.DeviceName());
    Drucken(9, 1, true);
    EXPECT_EQ(gefragt, 0) << "nobody chose it";
    EXPECT_EQ(befund.Ende, Druckbefund::Art::NichtErreicht);
    EXPECT_FALSE(drucker.Wählen("Laser"));
    EXPECT_TRUE(drucker.Wählen(PdfDruckerName));
    EXPECT_EQ(drucker.DeviceName(), PdfDruckerName);
    Drucken(9, 1, true);
    EXPECT_EQ(befund.Ende, Druckbefund::Art::Aufgegeben);
    ziel = Ort("gibt/es/nicht.pdf").toStdString();
    Drucken(9, 1, true);
    EXPECT_EQ(befund.Ende, Druckbefund::Art::NichtGeschrieben);
    EXPECT_EQ(befund.Grund, Ursache::OrdnerFehlt);
    EXPECT_EQ(gefragt, 2);
    EXPECT_TRUE(QDir(ordner.path()).isEmpty());
    qunsetenv("CUPS_SERVER");
}

TEST_F(EingebauterDrucker, SeinBlattIstDieSeiteInWahrerGröße) {
    drucker.Wählen(PdfDruckerName);
    ziel = Ort("a.pdf").toStdString();
    const std::tuple<int, int, bool, const char *> seiten[] = {{11, 1, false, "420 x 595 pts"},
                                                               {9, 2, true, "842 x 595 pts"}};
    for (const auto &[papier, lage, farbig, größe] : seiten) {
        Drucken(papier, lage, farbig);
        const QString angaben = Ausgegeben("pdfinfo", {Ort("a.pdf")});
        EXPECT_TRUE(angaben.contains(QLatin1String(größe)) && angaben.contains(QStringLiteral("Mein Täst")));
        Ausgegeben("pdftoppm", QStringLiteral("-r 300 -singlefile").split(u' ') + QStringList{Ort("a.pdf"), Ort("a")});
        const QImage gemalt(Ort("a.ppm"));
        constexpr double PixelJeMm = 300 / 25.4;
        const int y = static_cast<int>(45 * PixelJeMm); // meets the person's left side first
        int x = 0;
        while (x < gemalt.width() && qGray(gemalt.pixel(x, y)) > 128) ++x;
        EXPECT_NEAR(x / PixelJeMm, 44 - 3.0 / 23.6, 0.1) << größe;
        EXPECT_EQ(gemalt.allGray(), !farbig);
    }
    SchriftenEnthalten(Ort("a.pdf"));
}

/// What scripts/print-proof runs; it looks at the sheet itself.
TEST_F(EingebauterDrucker, DISABLED_AufEinerWarteschlange) {
    EXPECT_TRUE(drucker.Wählen(qgetenv("KW_QUEUE").toStdString()));
    const int lage = qEnvironmentVariableIntValue("KW_LIE");
    drucker.OrientationSetzen(lage);
    Drucken(9, lage, qEnvironmentVariableIntValue("KW_COLOUR") != 0);
    using enum Druckbefund::Art;
    EXPECT_EQ(befund.Ende, qEnvironmentVariableIsSet("KW_REFUSED") ? NichtAngenommen : Erledigt);
}

TEST(Druckerauskunft, EinStummerServerHältDasFensterNicht) {
    const int stumm = ::socket(AF_INET, SOCK_STREAM, 0); // takes connections and says nothing
    sockaddr_in ort{};
    socklen_t länge = sizeof ort;
    auto *adresse = reinterpret_cast<sockaddr *>(&ort);
    ort.sin_family = AF_INET;
    ort.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ASSERT_EQ(::bind(stumm, adresse, länge) + ::listen(stumm, 9) + ::getsockname(stumm, adresse, &länge), 0);
    qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(ntohs(ort.sin_port)));
    const Druckerauskunft auskunft;
    for (int i = 0; i < 3; ++i) {
        const Druckerstand stand = auskunft.Erfragen();
        ASSERT_FALSE(stand.Beantwortet);
        EXPECT_TRUE(stand.Namen.isEmpty());
    }
    const int anruf = ::accept(stumm, nullptr, nullptr);
    char frage[512];
    ssize_t gelesen = 1;
    while (gelesen > 0) gelesen = ::recv(anruf, frage, sizeof frage, MSG_DONTWAIT);
    EXPECT_EQ(gelesen, -1) << "the one who asked still waits, and the window went on";
    ::close(anruf);
    ::close(stumm);
    qunsetenv("CUPS_SERVER");
}
