#include "qt/start/Aufruf.h"
#include "document/Dateien.h"
#include "qt/grund/QtPlattform.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kw {
namespace {

TEST(Aufruf, SagtWasVerlangtIst) {
    using Art = Aufruf::Art;
    const std::string projekt = KW_TESTDATEN "/CMakeLists.txt"; // any file that is there
    // clang-format off
    const std::pair<std::vector<std::string>, Art> fälle[] = {
        {{}, Art::Fenster}, {{"a.kwp"}, Art::Fenster}, {{"--", "--help"}, Art::Fenster},
        {{"a.kwp", "--version"}, Art::Version}, {{"a.kwp", "b.kwp"}, Art::Falsch}, {{""}, Art::Falsch},
        {{"/dataimport", "fall", "--export"}, Art::Fenster}, // behind the switch all is the model's
        {{"--nonsense"}, Art::Falsch}, {{"--dpi", "72", "a.kwp"}, Art::Falsch},
        {{"--export", "o.PDF", "--dpi", "72", "a.kwp"}, Art::Export}, {{"a.kwp", "--export", "o.jpeg"}, Art::Export},
        {{"--export", "o.pdf"}, Art::Falsch}, {{"--export", "o.txt", "a.kwp"}, Art::Falsch},
        {{"--export", "o.pdf", "--export", "o.png", "a.kwp"}, Art::Falsch},
        {{"--export", "o.png", "--dpi", "9", "a.kwp"}, Art::Falsch},
        {{"--export", "o.png", "--dpi", "72x", "a.kwp"}, Art::Falsch}, {{"--export", projekt, projekt}, Art::Falsch}};
    // clang-format on
    for (const auto &[worte, art] : fälle) {
        const Aufruf a = AufrufLesen(worte);
        EXPECT_EQ(a.Was, art) << testing::PrintToString(worte) << " " << a.Fehler;
        EXPECT_EQ(a.Fehler.empty(), art != Art::Falsch);
    }
    EXPECT_EQ(AufrufLesen({"\\dataimport", "Fall", "Müller"}).Import, "\\dataimport Fall Müller");
}

/// The update runs with root's rights: what anybody else can put there, in a folder on the way too, isn't started.
TEST(GehörtDemSystem, NurWasNiemandSonstÄndernKann) {
    const QTemporaryDir ordner; // in a folder that all can write
    const std::string datei = ordner.filePath(QStringLiteral("kw_update")).toStdString();
    ASSERT_TRUE(DateiSchreiben(datei, "#!/bin/sh\n").Gelungen());
    for (const std::string &pfad : {datei, std::string("/nirgends/env"), std::string("usr/bin/env"), std::string()})
        EXPECT_FALSE(GehörtDemSystem(pfad)) << pfad;
    EXPECT_TRUE(GehörtDemSystem("/usr/bin/env"));
}

TEST(Datumsfolge, FolgtDemKurzenFormatDesLandes) {
    EXPECT_EQ(FolgeAus("dd.MM.yy"), Datumsfolge::TagMonatJahr);
    EXPECT_EQ(FolgeAus("M/d/yyyy"), Datumsfolge::MonatTagJahr);
    EXPECT_EQ(FolgeAus("yyyy-MM-dd"), Datumsfolge::JahrMonatTag);
}

} // namespace
} // namespace kw
