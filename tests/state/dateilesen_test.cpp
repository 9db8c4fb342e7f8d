// Reading files: only regular files, never more than asked for, and a pipe or a device refused at
// once rather than waited on. Every reader of outside files goes through it.
#include "state/dateilesen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <functional>

#include "cli/befehle.h"
#include "state/fehler.h"
#include "state/spieldatei.h"
#include "state/trainerdatei.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

using testing::HasSubstr;

std::string meldung(const std::function<void()>& lesen) {
    try {
        lesen();
    } catch (const Dateifehler& e) {
        return e.what();
    }
    return "angenommen";
}

TEST(Dateilesen, SonderdateienWerdenSofortAbgelehnt) {
    test::TempOrdner ordner;
    const auto fifo = ordner / "f.tip";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    const std::pair<std::string, std::string> faelle[] = {{fifo.string(), "keine gewöhnliche Datei"},
                                                          {"/dev/zero", "keine gewöhnliche Datei"},
                                                          {ordner.pfad().string(), "ein Ordner"},
                                                          {(ordner / "fehlt").string(), "existiert nicht"}};
    for (const auto& [pfad, grund] : faelle) {
        SCOPED_TRACE(pfad);
        EXPECT_THAT(meldung([&] { leseDateianfang(pfad, 100); }), HasSubstr(grund));
        EXPECT_THAT(meldung([&] { ladeSpieldatei(pfad); }), HasSubstr(grund));
        EXPECT_THAT(meldung([&] { ladeTrainerdatei(pfad); }), HasSubstr(grund));
        std::ostringstream aus, fehler;
        EXPECT_EQ(cli::fuehreAus({"neu", pfad, (ordner / "x.tip").string()}, aus, fehler), 1);
        EXPECT_THAT(fehler.str(), HasSubstr(grund));
    }
}

TEST(Dateilesen, HoechstensDieGrenze) {
    test::TempOrdner ordner;
    test::schreibeBytes(ordner / "d", "abcdef");
    for (const auto& [grenze, bytes, mehr] :
         {std::tuple{4u, "abcd", true}, std::tuple{6u, "abcdef", false}}) {
        const Dateianfang anfang = leseDateianfang(ordner / "d", grenze);
        EXPECT_EQ(anfang.bytes, bytes);
        EXPECT_EQ(anfang.mehr, mehr);
    }
}

}  // namespace
}  // namespace kalimbo
