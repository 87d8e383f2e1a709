#include "app/Stammbaumdatei.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <minizip/zip.h>
#include <unistd.h>

namespace kw {

namespace {

class Stammbaumdatei : public testing::Test {
  protected:
    void TearDown() override { std::filesystem::remove(pfad_); }

    /// An archive that holds one file, behind a password or not.
    void Packen(const char *name, const std::string &inhalt, const char *kennwort = nullptr) {
        const zipFile archiv = zipOpen64(pfad_.c_str(), APPEND_STATUS_CREATE);
        ASSERT_NE(archiv, nullptr);
        const auto groß = static_cast<unsigned>(inhalt.size());
        ASSERT_EQ(zipOpenNewFileInZip3_64(archiv, name, nullptr, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED,
                                          Z_DEFAULT_COMPRESSION, 0, -MAX_WBITS, DEF_MEM_LEVEL, Z_DEFAULT_STRATEGY,
                                          kennwort, 0, 0),
                  ZIP_OK);
        ASSERT_EQ(zipWriteInFileInZip(archiv, inhalt.data(), groß), ZIP_OK);
        ASSERT_EQ(zipCloseFileInZip(archiv), ZIP_OK);
        ASSERT_EQ(zipClose(archiv, nullptr), ZIP_OK);
    }
    void Kürzen(std::uintmax_t um) { std::filesystem::resize_file(pfad_, std::filesystem::file_size(pfad_) - um); }
    Stammbaumfehler Lesen(std::size_t höchstens = GrößteDatei) {
        const auto befund = StammbaumdateiLesen(pfad_, bytes_, höchstens);
        EXPECT_EQ(befund.Gelungen(), befund.Text(Sprache::Deutsch).empty());
        return befund.Fehler;
    }

    std::string pfad_ = testing::TempDir() + "stammbaum-" + std::to_string(::getpid()) + ".gdz";
    std::string bytes_ = "as it was";
};

} // namespace

TEST_F(Stammbaumdatei, AusEinemArchivKommtDerStammbaumInGrenzen) {
    const std::string baum(100000, '0');
    Packen("Ordner/Baum.GED", baum);
    EXPECT_EQ(Lesen(), Stammbaumfehler::Keiner);
    EXPECT_EQ(bytes_, baum);
    bytes_ = "as it was";
    EXPECT_LT(std::filesystem::file_size(pfad_), 1000U);
    EXPECT_EQ(Lesen(baum.size() - 1), Stammbaumfehler::ZuGroß);
    EXPECT_EQ(bytes_, "as it was");
}

TEST_F(Stammbaumdatei, WasKeinenHatSagtWarum) {
    EXPECT_EQ(Lesen(), Stammbaumfehler::NichtLesbar);
    Packen("Bild.jpg", "0 HEAD");
    EXPECT_EQ(Lesen(), Stammbaumfehler::OhneStammbaum);
    Packen("Baum.ged", "0 HEAD", "geheim");
    EXPECT_EQ(Lesen(), Stammbaumfehler::Verschlüsselt);
    Packen("Baum.ged", "0 HEAD");
    Kürzen(30);
    EXPECT_EQ(Lesen(), Stammbaumfehler::KeinArchiv);
    std::ofstream(pfad_) << "PK\n";
    EXPECT_EQ(Lesen(), Stammbaumfehler::KeinArchiv);
    EXPECT_EQ(bytes_, "as it was");
}

} // namespace kw
