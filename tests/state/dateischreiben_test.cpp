// Saving through a temporary file. This program has its own fsync, rename, fchmod and unlinkat (the program's
// definitions take precedence over the C library's): each call is recorded, and a test can make it fail or
// end the process just before it happens.
#include "state/dateischreiben.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <functional>

#include "state/spieldatei.h"
#include "testdaten.h"

namespace {

// Before each intercepted call: its name and path(s); returns an error number to fail with, or 0.
std::function<int(const std::string&)> eingriff;

std::string pfadVon(int fd) {
    char pfad[4096];
    const ssize_t n = readlink(("/proc/self/fd/" + std::to_string(fd)).c_str(), pfad, sizeof pfad);
    return n > 0 ? std::string(pfad, static_cast<std::size_t>(n)) : "?";
}

// Runs the system call unless the test's hook says otherwise.
template <class F>
int abfangen(const std::string& aufruf, F systemaufruf) {
    if (eingriff) {
        const auto hook = std::exchange(eingriff, nullptr);  // the hook may save files itself
        const int fehler = hook(aufruf);
        eingriff = hook;
        if (fehler != 0) {
            errno = fehler;
            return -1;
        }
    }
    return static_cast<int>(systemaufruf());
}

}  // namespace

extern "C" int fsync(int fd) {
    return abfangen("fsync " + pfadVon(fd), [&] { return syscall(SYS_fsync, fd); });
}
extern "C" int rename(const char* von, const char* nach) noexcept {
    return abfangen(std::string("rename ") + von + " " + nach,
                    [&] { return syscall(SYS_renameat, AT_FDCWD, von, AT_FDCWD, nach); });
}
extern "C" int fchmod(int fd, mode_t modus) noexcept {
    return abfangen("fchmod " + pfadVon(fd), [&] { return syscall(SYS_fchmod, fd, modus); });
}
extern "C" int unlinkat(int ordner, const char* name, int flags) noexcept {
    return abfangen(std::string("unlinkat ") + name,
                    [&] { return syscall(SYS_unlinkat, ordner, name, flags); });
}

namespace kalimbo {
namespace {

namespace fs = std::filesystem;
using test::leseBytes;
using test::TempOrdner;

std::vector<std::string> dateienIn(const fs::path& ordner) {
    std::vector<std::string> namen;
    for (const auto& e : fs::directory_iterator(ordner))
        namen.push_back(e.path().filename().string());
    std::sort(namen.begin(), namen.end());
    return namen;
}

mode_t modus(const fs::path& pfad) {
    struct stat info {};
    EXPECT_EQ(lstat(pfad.c_str(), &info), 0) << pfad;
    return info.st_mode & 07777;
}

// Saves "neu" over `ziel` with the hook `f`, as an ordinary user if `ohneRoot` (as root, which may write
// anywhere, under the user "nobody"); the message, or "(gespeichert)".
std::string speichere(const fs::path& ziel, std::function<int(const std::string&)> f = {},
                      bool ohneRoot = false) {
    const bool nobody = ohneRoot && geteuid() == 0;
    if (nobody) {
        EXPECT_EQ(seteuid(65534), 0);
    }
    eingriff = std::move(f);
    const std::string meldung = test::fehler([&] { schreibeDateiAtomar(ziel, "neu"); });
    eingriff = nullptr;
    if (nobody) {
        EXPECT_EQ(seteuid(0), 0);
    }
    return meldung.empty() ? "(gespeichert)" : meldung;
}

std::string abgelehnt(const fs::path& ziel, const std::string& grund) {
    return "Die Datei „" + ziel.string() + "“ konnte nicht gespeichert werden: " + grund;
}

// Ends a child process that saves `bytes` over `ziel` at a chosen point and reports how it ended: `grenze`
// limits the size of files it may write (SIGXFSZ ends it once a write goes past), and `aufruf` n > 0 kills it
// just before its n-th intercepted call.
int speichereImKind(const fs::path& ziel, const std::string& bytes, rlim_t grenze, int aufruf) {
    const pid_t kind = fork();
    if (kind == 0) {
        std::signal(SIGXFSZ, SIG_DFL);
        rlimit r{grenze, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &r);
        int gezaehlt = 0;
        eingriff = [&](const std::string&) {
            if (++gezaehlt == aufruf) raise(SIGKILL);
            return 0;
        };
        _exit(test::fehler([&] { schreibeDateiAtomar(ziel, bytes); }).empty() ? 0 : 3);
    }
    int status = 0;
    waitpid(kind, &status, 0);
    return status;
}

class Rechte : public testing::TestWithParam<mode_t> {};

// The copy is written, given the permissions of the file it replaces (never more than those before),
// written through to the disk, renamed over the file in the same folder, and the folder written
// through too. Root keeps the owner and group of someone else's file. A new file gets the permissions
// the umask leaves.
TEST_P(Rechte, DieKopieHatNieMehrRechteAlsDasOriginalUndAllesKommtAufDenDatentraeger) {
    const mode_t maske = umask(027);
    TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    test::schreibeBytes(ziel, "alt");
    const bool root = geteuid() == 0;
    ASSERT_TRUE(!root || chown(ziel.c_str(), 65534, 65534) == 0);
    fs::permissions(ziel, static_cast<fs::perms>(GetParam()));
    std::vector<std::string> protokoll;
    mode_t kopie = 0;
    EXPECT_EQ(speichere(ziel,
                        [&](const std::string& aufruf) {
                            if (protokoll.empty()) kopie = modus(aufruf.substr(aufruf.find(' ') + 1));
                            protokoll.push_back(aufruf);
                            return 0;
                        }),
              "(gespeichert)");
    EXPECT_EQ(kopie & ~GetParam(), 0u) << std::oct << kopie;
    struct stat info {};
    ASSERT_EQ(stat(ziel.c_str(), &info), 0);
    EXPECT_EQ((std::array{info.st_uid, info.st_gid, info.st_mode & 07777}),
              (std::array{root ? 65534u : geteuid(), root ? 65534u : getegid(), GetParam()}));
    EXPECT_EQ(leseBytes(ziel), "neu");
    ASSERT_EQ(protokoll.size(), 4u) << testing::PrintToString(protokoll);
    const std::string temp = protokoll[0].substr(std::string("fchmod ").size());
    EXPECT_EQ(fs::path(temp).parent_path(), ordner.pfad());
    EXPECT_EQ(protokoll, (std::vector<std::string>{"fchmod " + temp, "fsync " + temp,
                                                   "rename " + temp + " " + ziel.string(),
                                                   "fsync " + ordner.pfad().string()}));
    EXPECT_EQ(speichere(ordner / "neu.tip"), "(gespeichert)");
    EXPECT_EQ(modus(ordner / "neu.tip"), 0640u);
    umask(maske);
}

INSTANTIATE_TEST_SUITE_P(Modi, Rechte, testing::Values(0600, 0640, 0604, 0660, 0666));

TEST(Speichern, DurchSymbolischeVerknuepfungen) {
    // Links (name -> where it points; "@": absolute, in the test folder) and the file that then holds the new
    // bytes, or the reason for refusing.
    const std::vector<std::pair<std::vector<std::pair<std::string, std::string>>, std::string>> faelle{
        {{{"spiel.tip", "echt.tip"}}, "echt.tip"},
        {{{"spiel.tip", "@unter/echt.tip"}}, "unter/echt.tip"},
        {{{"spiel.tip", "zwei.tip"}, {"zwei.tip", "unter/drei.tip"}, {"unter/drei.tip", "../echt.tip"}},
         "echt.tip"},
        {{{"spiel.tip", "fehlt/echt.tip"}}, "Der Ordner existiert nicht."},
        {{{"spiel.tip", "spiel.tip"}}, "Zu viele symbolische Verknüpfungen hintereinander (eine Schleife?)."},
    };
    for (const auto& [verknuepfungen, ergebnis] : faelle) {
        TempOrdner ordner;
        fs::create_directory(ordner / "unter");
        for (const auto& [name, ziel] : verknuepfungen)
            fs::create_symlink(ziel[0] == '@' ? ordner / ziel.substr(1) : fs::path(ziel), ordner / name);
        const auto spiel = ordner / "spiel.tip";
        const bool gespeichert = ergebnis.ends_with(".tip");
        EXPECT_EQ(speichere(spiel), gespeichert ? "(gespeichert)" : abgelehnt(spiel, ergebnis));
        EXPECT_TRUE(fs::is_symlink(spiel));
        if (gespeichert) {
            EXPECT_EQ(leseBytes(ordner / ergebnis), "neu") << ergebnis;
        }
        for (const auto& datei : fs::recursive_directory_iterator(ordner.pfad()))
            EXPECT_FALSE(datei.path().string().ends_with(".tmp")) << datei.path();
    }
}

TEST(Speichern, JederFehlerNenntSeinenGrundUndNurDieAlteDateiBleibt) {
    TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    for (std::size_t laenge = 250; laenge <= 255; ++laenge) {  // names up to the file system's limit
        EXPECT_EQ(speichere(ordner / std::string(laenge, 'n')), "(gespeichert)");
        EXPECT_EQ(speichere(ordner / std::string(laenge, 'n')), "(gespeichert)");
        fs::remove(ordner / std::string(laenge, 'n'));
    }
    fs::create_directory(ordner / "ordner.tip");
    fs::create_directory(ordner / "gesperrt");
    fs::permissions(ordner / "gesperrt", fs::perms::owner_read | fs::perms::owner_exec);
    // A pipe in the test folder, not a real device, which a faulty save would replace.
    ASSERT_EQ(mkfifo((ordner / "fifo.tip").c_str(), 0600), 0);
    test::schreibeBytes(ordner / "geschuetzt.tip", "alt");
    fs::permissions(ordner / "geschuetzt.tip", fs::perms::owner_read | fs::perms::others_read);
    fs::permissions(ordner.pfad(), fs::perms::all);
    const auto nie = [](const std::string&) { return 0; };
    const auto scheitert = [](const char* aufruf, int fehler) {
        return [=](const std::string& a) { return a.starts_with(aufruf) ? fehler : 0; };
    };
    // The target, the hook that makes a call fail (none: saved as an ordinary user) and the reason.
    const std::vector<std::tuple<std::string, std::function<int(const std::string&)>, std::string>> faelle{
        {std::string(256, 'n'), nie, "Der Name ist zu lang."},
        {"fehlt/spiel.tip", nie, "Der Ordner existiert nicht."},
        {"", nie, "Es fehlt der Name der Datei."},
        {"ordner.tip", nie, "Unter diesem Namen gibt es einen Ordner."},
        {"fifo.tip", nie, "Unter diesem Namen gibt es etwas anderes als eine Datei."},
        {"gesperrt/spiel.tip", nullptr, "Im Ordner darf nicht geschrieben werden."},
        {"geschuetzt.tip", nullptr, "Die Datei ist schreibgeschützt."},
        {"spiel.tip", scheitert("fchmod", EOPNOTSUPP),
         "Die Rechte der alten Datei lassen sich nicht übertragen: Das Betriebssystem meldet Fehler Nr. 95."},
        {"spiel.tip", scheitert("fsync", EIO), "Schreibfehler: Ein-/Ausgabefehler des Datenträgers."},
        {"spiel.tip", scheitert("rename", ENOSPC),
         "Die vorhandene Datei kann nicht ersetzt werden: Der Datenträger ist voll."},
    };
    test::schreibeBytes(ziel, "alt");
    const auto vorher = dateienIn(ordner.pfad());
    for (const auto& [name, f, grund] : faelle) {
        EXPECT_EQ(speichere(ordner / name, f, !f), abgelehnt(ordner / name, grund));
        EXPECT_EQ(dateienIn(ordner.pfad()), vorher) << name;
    }
    EXPECT_EQ(leseBytes(ziel), "alt");
    EXPECT_EQ(leseBytes(ordner / "geschuetzt.tip"), "alt");
}

TEST(Speichern, AbgebrocheneSpeicherungenHinterlassenDieAlteOderDieNeueDatei) {
    TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    const std::array<std::string, 2> fassungen{kodiereSpieldatei(test::saison(test::Saison18)),
                                               kodiereSpieldatei(test::saison(test::Saison20))};
    schreibeDateiAtomar(ziel, fassungen[0]);
    int getoetet = 0, fertig = 0, versuch = 0;
    auto versuche = [&](rlim_t grenze, int aufruf) {
        const std::string vorher = leseBytes(ziel);
        const std::string& neu = fassungen[++versuch % 2];
        const int status = speichereImKind(ziel, neu, grenze, aufruf);
        EXPECT_TRUE(leseBytes(ziel) == vorher || leseBytes(ziel) == neu)
            << "limit " << grenze << ", call " << aufruf;
        EXPECT_TRUE(WIFSIGNALED(status) || (WIFEXITED(status) && WEXITSTATUS(status) == 0)) << status;
        ++(WIFSIGNALED(status) ? getoetet : fertig);
        return WIFSIGNALED(status);
    };
    // Killed while writing, at every 150th byte of the temporary file,
    for (rlim_t grenze = 0; grenze < fassungen[1].size(); grenze += 150)
        versuche(grenze, 0);
    EXPECT_GT(dateienIn(ordner.pfad()).size(),
              100u);  // their temporary files are left behind
    // then before each call that completes a save (permissions, sync, rename, removing each leftover, syncing
    // the folder) until a save runs through,
    for (int aufruf = 1; versuche(RLIM_INFINITY, aufruf); ++aufruf) {
    }
    EXPECT_GT(getoetet, 120);
    EXPECT_EQ(fertig, 1);
    // and that save removed every leftover.
    EXPECT_EQ(dateienIn(ordner.pfad()), std::vector<std::string>{"spiel.tip"});
}

}  // namespace
}  // namespace kalimbo
