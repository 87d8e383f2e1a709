#include "document/Dateien.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <grp.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utime.h>
#include <vector>

namespace kw {

namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

constexpr const char *Liste = "system.posix_acl_access";
constexpr uid_t Alice = 54321;
constexpr uid_t Bob = 54322;
constexpr gid_t Team = 54330;

/// Remembers what it is given; refuses on demand, and does something meanwhile.
class Merker : public Versionswahrer {
  public:
    std::vector<std::string> Beiseite; ///< "name: content"
    std::string VorOrt;                ///< "old>new" while it lasts, then "old>new."
    bool Weigert = false;
    std::function<void()> Dabei;

    bool Beiseitelegen(const std::string &pfad, std::string_view inhalt) override {
        if (Weigert) return false;
        Beiseite.push_back(DateiName(pfad) + ": " + std::string(inhalt));
        if (Dabei) std::exchange(Dabei, nullptr)();
        return true;
    }
    bool VorOrtBeginnt(const std::string & /*pfad*/, std::string_view alt, std::string_view neu) override {
        if (Weigert) return false;
        VorOrt = std::string(alt) + ">" + std::string(neu);
        if (Dabei) std::exchange(Dabei, nullptr)();
        return true;
    }
    void VorOrtEndet() override { VorOrt += "."; }
};

class GeschriebeneDateien : public testing::Test {
  protected:
    GeschriebeneDateien() {
        ordner_ = (fs::temp_directory_path() / "kw-dateien-XXXXXX").string();
        EXPECT_NE(::mkdtemp(ordner_.data()), nullptr);
        ::chmod(ordner_.c_str(), 0777);
    }
    ~GeschriebeneDateien() override {
        ::umask(umask_);
        fs::remove_all(ordner_);
    }

    std::string Ort(const std::string &name = "datei") const { return ordner_ + "/" + name; }
    void Legen(const std::string &inhalt, mode_t modus = 0644, const std::string &name = "datei") const {
        fs::remove_all(Ort(name));
        const int fd = ::open(Ort(name).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        EXPECT_EQ(::write(fd, inhalt.data(), inhalt.size()), static_cast<ssize_t>(inhalt.size()));
        EXPECT_EQ(::fchmod(fd, modus), 0);
        ::close(fd);
    }
    std::string Steht(const std::string &name = "datei") const {
        std::string inhalt;
        return DateiLesen(Ort(name), inhalt).Gelungen() ? inhalt : "-";
    }
    /// "mode uid gid"
    std::string Rechte(const std::string &name = "datei") const {
        struct stat angaben {};
        EXPECT_EQ(::stat(Ort(name).c_str(), &angaben), 0);
        std::array<char, 64> text{};
        std::snprintf(text.data(), text.size(), "%o %u %u", angaben.st_mode & 07777U, angaben.st_uid, angaben.st_gid);
        return text.data();
    }
    /// Every name in the folder, in order, with a blank behind each.
    std::string Namen() const {
        std::vector<std::string> namen;
        for (const auto &eintrag : fs::directory_iterator(ordner_)) namen.push_back(eintrag.path().filename());
        std::sort(namen.begin(), namen.end());
        std::string alle;
        for (const auto &name : namen) alle += name + " ";
        return alle;
    }
    Dateibefund Schreiben(const std::string &inhalt, Merker *merker = nullptr, const char *erwartet = nullptr) const {
        Schreibweise wie;
        wie.Wahrer = merker;
        if (erwartet != nullptr) wie.Erwartet = FingerabdruckVon(erwartet);
        return DateiSchreiben(Ort(), inhalt, wie);
    }
    /// Runs it as somebody else, in a process of its own; whether it said yes there.
    static bool Als(uid_t wer, const std::vector<gid_t> &gruppen, const std::function<bool()> &was) {
        const pid_t kind = ::fork();
        if (kind == 0) {
            const bool dort = ::setgroups(gruppen.size(), gruppen.data()) == 0 && ::setresgid(wer, wer, wer) == 0 &&
                              ::setresuid(wer, wer, wer) == 0;
            ::_exit(dort && was() ? 0 : 1);
        }
        int ende = 1;
        return ::waitpid(kind, &ende, 0) == kind && ende == 0;
    }

  private:
    std::string ordner_;
    mode_t umask_ = ::umask(022);
};

/// An access list as the system keeps it: owner, user Bob, group, mask, others.
std::string ListeMit(char bob, char maske) {
    std::string liste = "\2\0\0\0"s;
    const auto eintrag = [&](char art, char rechte, std::uint32_t wer) {
        liste += {art, 0, rechte, 0};
        for (int i = 0; i < 4; ++i) liste += static_cast<char>(wer >> (8 * i) & 255U);
    };
    constexpr auto Niemand = static_cast<std::uint32_t>(-1);
    eintrag(1, 6, Niemand);
    eintrag(2, bob, Bob);
    eintrag(4, 0, Niemand);
    eintrag(16, maske, Niemand);
    eintrag(32, 0, Niemand);
    return liste;
}

} // namespace

TEST(Fingerabdruck, HatEinenTextDerIhnWiedergibt) {
    const auto abdruck = FingerabdruckVon("Genogramm");
    EXPECT_EQ(AlsText(FingerabdruckVon("")), "99aa06d3014798d86001c324468d497f"); // the algorithm's own test value
    EXPECT_EQ(FingerabdruckAus(AlsText(abdruck)), abdruck);
    EXPECT_NE(FingerabdruckVon("Genogramm "), abdruck);
    for (const auto *text : {"", "99aa06d3014798d86001c324468d497", "99AA06D3014798D86001C324468D497F",
                             "99aa06d3014798d8 001c324468d497f"})
        EXPECT_FALSE(FingerabdruckAus(text)) << text;
}

TEST_F(GeschriebeneDateien, NeueGehenNiemandSonstAnUndAlteBehaltenIhreRechte) {
    const auto eigene = " " + std::to_string(::geteuid()) + " " + std::to_string(::getegid());
    for (const auto &[maske, modus] : {std::pair{0, "660"}, {022, "640"}, {077, "600"}}) {
        ::umask(static_cast<mode_t>(maske));
        EXPECT_TRUE(Schreiben("neu").Gelungen());
        EXPECT_EQ(Rechte(), modus + eigene);
        Legen("alt", 01604);
        EXPECT_TRUE(Schreiben("neu").Gelungen());
        EXPECT_EQ(Rechte(), "1604" + eigene);
        fs::remove(Ort());
    }
    Schreibweise wie;
    wie.NeuerModus = 0606;
    wie.Flüchtig = true;
    EXPECT_TRUE(DateiSchreiben(Ort(), "neu", wie).Gelungen() && AufDiePlatte(Ort()).Gelungen());
    EXPECT_EQ(Rechte() + " " + Steht(), "600" + eigene + " neu");
}

TEST_F(GeschriebeneDateien, ListeUndMerkmaleBleibenUndKeineKommtHinzu) {
    const auto eigene = ListeMit(4, 4);
    const auto geerbte = ListeMit(6, 6);
    Legen("alt");
    if (::setxattr(Ort().c_str(), Liste, eigene.data(), eigene.size(), 0) != 0) GTEST_SKIP() << "no access lists here";
    const bool merkmale = ::setxattr(Ort().c_str(), "user.kw", "x", 1, 0) == 0;
    // New files of this folder let Bob in.
    ASSERT_EQ(::setxattr(Ort("").c_str(), "system.posix_acl_default", geerbte.data(), geerbte.size(), 0), 0);
    EXPECT_TRUE(Schreiben("neu").Gelungen());
    std::array<char, 100> liste{};
    const auto länge = ::getxattr(Ort().c_str(), Liste, liste.data(), liste.size());
    EXPECT_EQ(std::string(liste.data(), static_cast<std::size_t>(std::max<ssize_t>(länge, 0))), eigene);
    EXPECT_EQ(::getxattr(Ort().c_str(), "user.kw", liste.data(), liste.size()), merkmale ? 1 : -1);
    ASSERT_EQ(::removexattr(Ort().c_str(), Liste), 0);
    ::chmod(Ort().c_str(), 0660);
    EXPECT_TRUE(Schreiben("neuer").Gelungen());
    EXPECT_EQ(::getxattr(Ort().c_str(), Liste, liste.data(), liste.size()), -1) << "Bob was let in";
}

TEST_F(GeschriebeneDateien, WasNichtErwartetWirdKommtErstBeiseite) {
    Merker merker;
    Legen("alt");
    EXPECT_TRUE(Schreiben("1", &merker, "alt").Gelungen());
    EXPECT_TRUE(merker.Beiseite.empty());
    EXPECT_TRUE(Schreiben("2", &merker, "alt").Gelungen());
    EXPECT_EQ(merker.Beiseite, std::vector{"datei: 1"s});
    EXPECT_TRUE(Schreiben("2", &merker, "alt").Gelungen()); // nothing goes that doesn't come
    Schreibweise wie;
    wie.ImmerBeiseite = true;
    wie.Wahrer = &merker;
    wie.Erwartet = FingerabdruckVon("2");
    EXPECT_TRUE(DateiSchreiben(Ort(), "3", wie).Gelungen());
    EXPECT_TRUE(Schreiben("4", &merker).Gelungen()); // nobody expects anything
    EXPECT_EQ(merker.Beiseite, (std::vector{"datei: 1"s, "datei: 2"s}));
    merker.Weigert = true;
    EXPECT_EQ(Schreiben("5", &merker, "x").Grund, Ursache::NichtGesichert);
    EXPECT_EQ(Steht() + "|" + Namen(), "4|datei ");
    merker.Weigert = false;
    fs::remove(Ort());
    EXPECT_TRUE(Schreiben("6", &merker, "x").Gelungen()); // gone is no version
    EXPECT_EQ(merker.Beiseite.size(), 2U);
    EXPECT_EQ(Steht() + "|" + Namen(), "6|datei ");
}

TEST_F(GeschriebeneDateien, WasDazwischenKamGehtNichtVerloren) {
    Merker merker;
    const auto mit = [&](const std::function<void()> &dabei) {
        Legen("alt");
        merker.Beiseite.clear();
        merker.Weigert = false;
        merker.Dabei = dabei;
        return Schreiben("neu", &merker, "x");
    };
    EXPECT_TRUE(mit([&] { Legen("fremd"); }).Gelungen());
    EXPECT_EQ(merker.Beiseite, (std::vector{"datei: alt"s, "datei: fremd"s}));
    EXPECT_EQ(Steht() + "|" + Namen(), "neu|datei ");
    EXPECT_TRUE(mit([&] { fs::remove(Ort()); }).Gelungen());
    EXPECT_EQ(Steht() + "|" + Namen(), "neu|datei ");
    // What can't be kept is put back.
    const auto befund = mit([&] {
        Legen("fremd");
        merker.Weigert = true;
    });
    EXPECT_EQ(befund.Grund, Ursache::NichtGesichert);
    EXPECT_EQ(Steht() + "|" + Namen(), "fremd|datei ");
    EXPECT_EQ(mit([&] {
                  fs::remove(Ort());
                  fs::create_directory(Ort());
              }).Grund,
              Ursache::NichtGesichert);
    EXPECT_TRUE(fs::is_directory(Ort()));
}

TEST_F(GeschriebeneDateien, MitMehrerenNamenWirdVorOrtGeschrieben) {
    Merker merker;
    Legen("alter Inhalt");
    ASSERT_EQ(::link(Ort().c_str(), Ort("zweiter").c_str()), 0);
    EXPECT_TRUE(Schreiben("neu", &merker, "alter Inhalt").Gelungen());
    EXPECT_EQ(Steht("zweiter") + " " + merker.VorOrt, "neu alter Inhalt>neu.");
    EXPECT_TRUE(merker.Beiseite.empty());
    merker.Dabei = [&] { ::truncate(Ort().c_str(), 1); };
    EXPECT_TRUE(Schreiben("länger als zuvor", &merker, "neu").Gelungen());
    EXPECT_EQ(Steht("zweiter") + " " + merker.VorOrt, "länger als zuvor neu>länger als zuvor.");
    EXPECT_EQ(merker.Beiseite, std::vector{"datei: n"s});
    // While the keeper was at work, another file came in its place: to write into the old one would be no save.
    merker.Dabei = [&] { Legen("fremd"); };
    EXPECT_FALSE(Schreiben("neuer", &merker, "länger als zuvor").Gelungen());
    EXPECT_EQ(Steht() + " " + Steht("zweiter") + " " + merker.VorOrt, "fremd länger als zuvor länger als zuvor>neuer.");
    merker.Weigert = true;
    ASSERT_EQ(::link(Ort().c_str(), Ort("dritter").c_str()), 0);
    EXPECT_EQ(Schreiben("neuer", &merker, "fremd").Grund, Ursache::NichtGesichert);
    EXPECT_EQ(Steht("dritter"), "fremd");
}

TEST_F(GeschriebeneDateien, EignerUndGruppeBleibenSoWeitEsGeht) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can be several users";
    const auto gehört = [&](uid_t wer, gid_t gruppe, mode_t modus) {
        Legen("alt");
        EXPECT_EQ(::chown(Ort().c_str(), wer, gruppe) + ::chmod(Ort().c_str(), modus), 0);
    };
    gehört(Alice, Team, 0664);
    EXPECT_TRUE(Schreiben("neu").Gelungen());
    EXPECT_EQ(Rechte(), "664 54321 54330");
    EXPECT_TRUE(Als(Alice, {Team}, [&] { return Schreiben("neu").Gelungen(); }));
    EXPECT_EQ(Rechte(), "664 54321 54330");
    // Without a keeper it becomes Bob's, and the group stays.
    EXPECT_TRUE(Als(Bob, {Team}, [&] { return Schreiben("von Bob").Gelungen(); }));
    EXPECT_EQ(Rechte() + " " + Steht(), "664 54322 54330 von Bob");
    // Who isn't of the group can't give it: its rights go, and nobody of it may more than it might.
    gehört(Alice, Team, 0604);
    EXPECT_TRUE(Als(Alice, {}, [&] { return Schreiben("neu").Gelungen(); }));
    EXPECT_EQ(Rechte(), "600 54321 54321");
    // With one it is written in place, and remains what it was.
    gehört(Alice, Team, 0660);
    EXPECT_TRUE(Als(Bob, {Team}, [&] {
        Merker merker;
        return Schreiben("von Bob", &merker, "alt").Gelungen() && merker.VorOrt == "alt>von Bob.";
    }));
    EXPECT_EQ(Rechte() + " " + Steht() + " " + Namen(), "660 54321 54330 von Bob datei ");
    // In a folder that only others can write: the same, and refused without one.
    ::chmod(Ort("").c_str(), 0755);
    gehört(Alice, Team, 0600);
    EXPECT_TRUE(Als(Alice, {}, [&] {
        Merker merker;
        return Schreiben("x").Grund == Ursache::Schreibgeschützt && Schreiben("neu", &merker, "x").Gelungen() &&
               merker.Beiseite == std::vector{"datei: alt"s} && merker.VorOrt == "alt>neu.";
    }));
    EXPECT_EQ(Rechte() + " " + Steht(), "600 54321 54330 neu");
    // What may not be read can't be kept.
    gehört(Alice, Team, 0200);
    EXPECT_TRUE(Als(Alice, {}, [&] {
        Merker merker;
        return Schreiben("x", &merker, "x").Grund == Ursache::NichtGesichert;
    }));
}

TEST_F(GeschriebeneDateien, WasToteLäufeLiegenLießenWirdGefegt) {
    const auto zu = AlsText(FingerabdruckVon("datei")).substr(0, 8);
    const auto zuAnderer = AlsText(FingerabdruckVon("andere")).substr(0, 8);
    const auto rest = [](const std::string &herkunft, const std::string &ende) {
        return ".kw-" + herkunft + "0123456789abcdef." + ende;
    };
    Legen("da");
    Legen("dort", 0644, "andere");
    Legen("halb", 0600, rest(zu, "neu"));
    Legen("verdrängt", 0600, rest(zu, "alt"));
    Legen("dort", 0600, rest(zuAnderer, "alt")); // stands in its file
    Legen("ohne Datei", 0600, rest("00000000", "alt"));
    Legen("früher", 0600, ".kw-123-4");
    Legen("eben", 0600, ".kw-123-5");
    const utimbuf gestern{::time(nullptr) - 100000, ::time(nullptr) - 100000};
    ASSERT_EQ(::utime(Ort(".kw-123-4").c_str(), &gestern), 0);
    // Not ours, or not dead: names of others, a held lock, what is no file.
    Legen("fremd", 0600, ".kw-notiz.neu");
    Legen("lebt", 0600, rest("11111111", "neu"));
    const int sperre = ::open(Ort(rest("11111111", "neu")).c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(sperre, LOCK_EX), 0);
    ASSERT_EQ(::mkfifo(Ort(rest("22222222", "neu")).c_str(), 0600), 0);
    fs::create_symlink("andere", Ort(rest("33333333", "neu")));
    fs::create_directory(Ort(rest("44444444", "neu")));

    EXPECT_TRUE(Schreiben("1").Gelungen());
    EXPECT_EQ(Steht(rest(zu, "neu")) + Steht(".kw-123-4") + Steht(rest(zu, "alt")), "--verdrängt");
    Merker merker;
    merker.Weigert = true;
    EXPECT_TRUE(Schreiben("2", &merker).Gelungen());
    EXPECT_EQ(Steht(rest(zu, "alt")), "verdrängt");
    merker.Weigert = false;
    EXPECT_TRUE(Schreiben("3", &merker).Gelungen());
    std::sort(merker.Beiseite.begin(), merker.Beiseite.end());
    EXPECT_EQ(merker.Beiseite, (std::vector{rest("00000000", "alt") + ": ohne Datei", "datei: verdrängt"s}));
    EXPECT_EQ(Namen(), ".kw-111111110123456789abcdef.neu .kw-123-5 .kw-222222220123456789abcdef.neu "
                       ".kw-333333330123456789abcdef.neu .kw-444444440123456789abcdef.neu .kw-notiz.neu andere datei ");
    ::close(sperre);
}

TEST_F(GeschriebeneDateien, SagenWarumEsNichtGing) {
    std::string inhalt;
    EXPECT_EQ(DateiLesen(Ort("fehlt"), inhalt).Grund, Ursache::FehltDatei);
    EXPECT_EQ(DateiSchreiben(Ort("fehlt/datei"), "").Grund, Ursache::OrdnerFehlt);
    EXPECT_EQ(DateiSchreiben("/dev/full", "x").Grund, Ursache::KeinPlatz);
    Legen("alt", 0444);
    EXPECT_EQ(Schreiben("neu").Grund, Ursache::Schreibgeschützt);
    EXPECT_EQ(DateiSchreiben(Ort("datei/x"), "").Grund, Ursache::OrdnerFehlt);
    EXPECT_EQ(DateiSchreiben(Ort(""), "").Grund, Ursache::KeineDatei);
    EXPECT_EQ(Schreiben("neu").Grund, Ursache::Schreibgeschützt);
    ASSERT_EQ(::mkfifo(Ort("rohr").c_str(), 0600), 0);
    EXPECT_EQ(DateiSchreiben(Ort("rohr"), "x").Grund, Ursache::KeineDatei) << "nobody reads it";
    const int leser = ::open(Ort("rohr").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(DateiSchreiben(Ort("rohr"), "x").Grund, Ursache::Keine);
    ::close(leser);
    fs::remove(Ort());
    EXPECT_EQ(Schreiben("neu").Grund, Ursache::Keine);
}

} // namespace kw
