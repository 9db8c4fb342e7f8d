// Saves of one file by several processes at once: each succeeds, the file is always one of the
// whole files, and a save removes only the temporary files of saves that provably cannot go on
// (their process is gone), never that of a save still running.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

#include "state/dateischreiben.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> namenIn(const fs::path& ordner) {
    std::vector<std::string> namen;
    for (const auto& eintrag : fs::directory_iterator(ordner))
        namen.push_back(eintrag.path().filename().string());
    return namen;
}

// A child process that saves `bytes` over `ziel` once `start` can be read, with files limited to
// `grenze` bytes (beyond, SIGXFSZ ends it), and exits 0 on success.
pid_t speichereImKind(const fs::path& ziel, const std::string& bytes, int start = -1,
                      rlim_t grenze = RLIM_INFINITY) {
    const pid_t kind = fork();
    if (kind != 0) return kind;
    std::signal(SIGXFSZ, SIG_DFL);
    const rlimit r{grenze, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &r);
    char c = 0;
    if (start >= 0 && read(start, &c, 1) != 1) _exit(2);
    try {
        schreibeDateiAtomar(ziel, bytes);
    } catch (...) {
        _exit(1);
    }
    _exit(0);
}

int ende(pid_t kind) {
    int status = 0;
    waitpid(kind, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 100 + WTERMSIG(status);
}

TEST(GleichzeitigSpeichern, HundertPaareGelingen) {
    test::TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    const std::string a(20000, 'a'), b(30000, 'b');
    for (int runde = 0; runde < 100; ++runde) {
        int start[2];
        ASSERT_EQ(pipe(start), 0);
        const pid_t kinder[] = {speichereImKind(ziel, a, start[0]), speichereImKind(ziel, b, start[0])};
        close(start[0]);
        ASSERT_EQ(write(start[1], "lo", 2), 2);  // both at once
        close(start[1]);
        for (const pid_t kind : kinder)
            EXPECT_EQ(ende(kind), 0) << "Runde " << runde;
        const std::string inhalt = test::leseBytes(ziel);
        EXPECT_TRUE(inhalt == a || inhalt == b) << "Runde " << runde;
    }
    EXPECT_EQ(namenIn(ordner.pfad()), std::vector<std::string>{"spiel.tip"});
}

// A temporary file is left behind for good only when nobody holds its lock and the process named
// in it is gone. One whose process lives, or whose lock is held (by a save on another computer, say),
// stays; a stopped save finishes afterwards.
TEST(GleichzeitigSpeichern, NurVerwaisteResteWerdenEntfernt) {
    test::TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    ASSERT_EQ(ende(speichereImKind(ziel, std::string(1000, 'x'), -1, 10)), 100 + SIGXFSZ);
    const std::vector<std::string> reste = namenIn(ordner.pfad());
    ASSERT_EQ(reste.size(), 1u);  // ".HASH-PID-RANDOM.tmp" of the killed save
    const std::string vorne = reste[0].substr(0, reste[0].find('-') + 1);
    const std::string lebend = vorne + std::to_string(getpid()) + "-lebend.tmp";
    const std::string gesperrt =
        vorne + reste[0].substr(vorne.size(), reste[0].rfind('-') - vorne.size()) + "-sperre.tmp";
    test::schreibeBytes(ordner / lebend, "");
    test::schreibeBytes(ordner / gesperrt, "");
    const int sperre = open((ordner / gesperrt).c_str(), O_RDONLY);
    ASSERT_EQ(flock(sperre, LOCK_EX), 0);

    const std::string gross(64 << 20, 'g');
    const pid_t kind = speichereImKind(ziel, gross);
    while (namenIn(ordner.pfad()).size() < 4)
        ;
    kill(kind, SIGSTOP);
    schreibeDateiAtomar(ziel, "dazwischen");
    auto namen = namenIn(ordner.pfad());
    std::sort(namen.begin(), namen.end());
    EXPECT_EQ(namen.size(), 4u);  // the game and the three others; the killed save's file is gone
    EXPECT_TRUE(std::binary_search(namen.begin(), namen.end(), lebend));
    EXPECT_TRUE(std::binary_search(namen.begin(), namen.end(), gesperrt));
    EXPECT_FALSE(std::binary_search(namen.begin(), namen.end(), reste[0]));
    kill(kind, SIGCONT);
    EXPECT_EQ(ende(kind), 0);
    EXPECT_EQ(test::leseBytes(ziel), gross);
    close(sperre);
}

}  // namespace
}  // namespace kalimbo
