// Saving through a temporary file. This file gives the test program its own fsync, rename, fchmod
// and unlinkat (the program's definitions take precedence over the C library's): each call is
// recorded, and a test can make it fail or end the process just before it happens.
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
#include <cerrno>
#include <csignal>
#include <cstdio>
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

// Sets the hook for one scope.
struct Eingriff {
    explicit Eingriff(std::function<int(const std::string&)> f) { eingriff = std::move(f); }
    ~Eingriff() { eingriff = nullptr; }
};

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

std::string fehlerBeimSpeichern(const fs::path& ziel, std::string_view bytes = "neu") {
    try {
        schreibeDateiAtomar(ziel, bytes);
    } catch (const Dateifehler& e) {
        return e.what();
    }
    return "(gespeichert)";
}

std::string abgelehnt(const fs::path& ziel, const std::string& grund) {
    return "Die Datei „" + ziel.string() + "“ konnte nicht gespeichert werden: " + grund;
}

// Runs `f` as an ordinary user: as root, which may write anywhere, under the user "nobody".
template <class F>
void ohneRootrechte(const fs::path& ordner, F f) {
    fs::permissions(ordner, fs::perms::all);
    const bool root = geteuid() == 0;
    if (root) {
        ASSERT_EQ(seteuid(65534), 0);
    }
    f();
    if (root) {
        ASSERT_EQ(seteuid(0), 0);
    }
}

class Umask {
  public:
    explicit Umask(mode_t maske) : m_alt(umask(maske)) {}
    ~Umask() { umask(m_alt); }

  private:
    mode_t m_alt;
};

// Ends a child process that saves over `ziel` at a chosen point and reports how it ended:
// `bytes` limits the size of files it may write (SIGXFSZ ends it once a write goes past), and
// `aufruf` n > 0 kills it just before its n-th intercepted call.
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
        try {
            schreibeDateiAtomar(ziel, bytes);
        } catch (...) {
            _exit(3);
        }
        _exit(0);
    }
    int status = 0;
    waitpid(kind, &status, 0);
    return status;
}

class Rechte : public testing::TestWithParam<mode_t> {};

TEST_P(Rechte, DieKopieHatNieMehrRechteAlsDasOriginal) {
    const Umask maske(022);
    TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    test::schreibeBytes(ziel, "alt");
    fs::permissions(ziel, static_cast<fs::perms>(GetParam()));
    // A save killed while writing leaves its copy behind, as it was created.
    ASSERT_TRUE(WIFSIGNALED(speichereImKind(ziel, std::string(1000, 'x'), 10, 0)));
    auto namen = dateienIn(ordner.pfad());
    std::erase(namen, "spiel.tip");
    ASSERT_EQ(namen.size(), 1u);
    const mode_t kopie = modus(ordner / namen[0]);
    EXPECT_EQ(kopie & ~GetParam(), 0u) << std::oct << kopie;

    schreibeDateiAtomar(ziel, "neu");
    EXPECT_EQ(modus(ziel), GetParam());
    EXPECT_EQ(leseBytes(ziel), "neu");
}

INSTANTIATE_TEST_SUITE_P(Modi, Rechte, testing::Values(0600, 0640, 0604, 0660, 0666));

TEST(Speichern, EineNeueDateiErhaeltDieRechteNachDerUmask) {
    const Umask maske(027);
    TempOrdner ordner;
    schreibeDateiAtomar(ordner / "neu.tip", "neu");
    EXPECT_EQ(modus(ordner / "neu.tip"), 0640u);
}

TEST(Speichern, DateiUndOrdnerWerdenAufDenDatentraegerGeschrieben) {
    TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    test::schreibeBytes(ziel, "alt");
    std::vector<std::string> protokoll;
    {
        const Eingriff e([&](const std::string& aufruf) {
            protokoll.push_back(aufruf);
            return 0;
        });
        schreibeDateiAtomar(ziel, "neu");
    }
    ASSERT_EQ(protokoll.size(), 4u) << testing::PrintToString(protokoll);
    const std::string temp = protokoll[0].substr(std::string("fchmod ").size());
    EXPECT_EQ(fs::path(temp).parent_path(), ordner.pfad());
    EXPECT_EQ(protokoll[0], "fchmod " + temp);
    EXPECT_EQ(protokoll[1], "fsync " + temp);
    EXPECT_EQ(protokoll[2], "rename " + temp + " " + ziel.string());
    EXPECT_EQ(protokoll[3], "fsync " + ordner.pfad().string());
}

TEST(Speichern, SchreibgeschuetzteDateiWirdNichtErsetzt) {
    TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    test::schreibeBytes(ziel, "alt");
    fs::permissions(ziel, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    std::string meldung;
    ohneRootrechte(ordner.pfad(), [&] { meldung = fehlerBeimSpeichern(ziel); });
    EXPECT_EQ(meldung, abgelehnt(ziel, "Die Datei ist schreibgeschützt."));
    EXPECT_EQ(leseBytes(ziel), "alt");
    EXPECT_EQ(dateienIn(ordner.pfad()), std::vector<std::string>{"spiel.tip"});
}

TEST(Speichern, RootBehaeltEigentuemerUndGruppeEinerFremdenDatei) {
    if (geteuid() != 0) GTEST_SKIP() << "only root can save a file of someone else";
    TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    test::schreibeBytes(ziel, "alt");
    ASSERT_EQ(chown(ziel.c_str(), 65534, 65534), 0);
    fs::permissions(ziel, static_cast<fs::perms>(0640));
    schreibeDateiAtomar(ziel, "neu");
    struct stat info {};
    ASSERT_EQ(stat(ziel.c_str(), &info), 0);
    EXPECT_EQ(info.st_uid, 65534u);
    EXPECT_EQ(info.st_gid, 65534u);
    EXPECT_EQ(info.st_mode & 07777, 0640u);
    EXPECT_EQ(leseBytes(ziel), "neu");
}

TEST(Speichern, DurchSymbolischeVerknuepfungen) {
    struct Fall {
        std::vector<std::pair<std::string, std::string>> verknuepfungen;  // name -> where it points
        std::string ergebnis;  // the file that holds the new bytes, or the reason for refusing
    };
    const std::vector<Fall> faelle{
        {{{"spiel.tip", "echt.tip"}}, "echt.tip"},
        {{{"spiel.tip", "unter/echt.tip"}}, "unter/echt.tip"},
        {{{"spiel.tip", "@unter/echt.tip"}}, "unter/echt.tip"},  // @: absolute, in the test folder
        {{{"spiel.tip", "zwei.tip"}, {"zwei.tip", "unter/drei.tip"}, {"unter/drei.tip", "../echt.tip"}},
         "echt.tip"},
        {{{"spiel.tip", "fehlt/echt.tip"}}, "Der Ordner existiert nicht."},
        {{{"spiel.tip", "spiel.tip"}}, "Zu viele symbolische Verknüpfungen hintereinander (eine Schleife?)."},
    };
    for (const Fall& f : faelle) {
        TempOrdner ordner;
        fs::create_directory(ordner / "unter");
        for (const auto& [name, ziel] : f.verknuepfungen)
            fs::create_symlink(ziel[0] == '@' ? ordner / ziel.substr(1) : fs::path(ziel), ordner / name);
        const auto spiel = ordner / "spiel.tip";
        const std::string meldung = fehlerBeimSpeichern(spiel, "neu");
        EXPECT_TRUE(fs::is_symlink(spiel));
        if (f.ergebnis.ends_with(".tip")) {
            EXPECT_EQ(meldung, "(gespeichert)");
            EXPECT_EQ(leseBytes(ordner / f.ergebnis), "neu") << f.ergebnis;
            EXPECT_EQ(leseBytes(spiel), "neu");
        } else {
            EXPECT_EQ(meldung, abgelehnt(spiel, f.ergebnis));
        }
        for (const auto& datei : fs::recursive_directory_iterator(ordner.pfad()))
            EXPECT_FALSE(datei.path().string().ends_with(".tmp")) << datei.path();
    }
}

TEST(Speichern, NamenBisZurGrenzeDesDateisystems) {
    TempOrdner ordner;
    for (std::size_t laenge = 250; laenge <= 255; ++laenge) {
        const auto ziel = ordner / std::string(laenge, 'n');
        schreibeDateiAtomar(ziel, "neu");
        schreibeDateiAtomar(ziel, "noch einmal");
        EXPECT_EQ(leseBytes(ziel), "noch einmal");
        fs::remove(ziel);
    }
    EXPECT_EQ(dateienIn(ordner.pfad()), std::vector<std::string>{});
    EXPECT_EQ(fehlerBeimSpeichern(ordner / std::string(256, 'n')),
              abgelehnt(ordner / std::string(256, 'n'), "Der Name ist zu lang."));
}

TEST(Speichern, JederFehlerNenntSeinenGrund) {
    TempOrdner ordner;
    fs::create_directory(ordner / "ordner.tip");
    EXPECT_EQ(fehlerBeimSpeichern(ordner / "fehlt" / "spiel.tip"),
              abgelehnt(ordner / "fehlt" / "spiel.tip", "Der Ordner existiert nicht."));
    EXPECT_EQ(fehlerBeimSpeichern(ordner.pfad() / ""),
              abgelehnt(ordner.pfad() / "", "Es fehlt der Name der Datei."));
    EXPECT_EQ(fehlerBeimSpeichern(ordner / "ordner.tip"),
              abgelehnt(ordner / "ordner.tip", "Unter diesem Namen gibt es einen Ordner."));
    // A pipe in the test folder, not a real device, which a faulty save would replace.
    ASSERT_EQ(mkfifo((ordner / "fifo.tip").c_str(), 0600), 0);
    EXPECT_EQ(fehlerBeimSpeichern(ordner / "fifo.tip"),
              abgelehnt(ordner / "fifo.tip", "Unter diesem Namen gibt es etwas anderes als eine Datei."));

    fs::create_directory(ordner / "gesperrt");
    fs::permissions(ordner / "gesperrt", fs::perms::owner_read | fs::perms::owner_exec);
    std::string meldung;
    ohneRootrechte(ordner.pfad(), [&] { meldung = fehlerBeimSpeichern(ordner / "gesperrt" / "spiel.tip"); });
    EXPECT_EQ(meldung,
              abgelehnt(ordner / "gesperrt" / "spiel.tip", "Im Ordner darf nicht geschrieben werden."));
}

TEST(Speichern, NachJedemFehlschlagBleibtNurDieAlteDatei) {
    struct Fall {
        std::string aufruf;  // the call that fails
        int fehler;          // with this error number
        std::string grund;
    };
    const std::vector<Fall> faelle{
        {"fchmod", EOPNOTSUPP,
         "Die Rechte der alten Datei lassen sich nicht übertragen: Das Betriebssystem meldet Fehler Nr. 95."},
        {"fsync", EIO, "Schreibfehler: Ein-/Ausgabefehler des Datenträgers."},
        {"rename", ENOSPC, "Die vorhandene Datei kann nicht ersetzt werden: Der Datenträger ist voll."},
    };
    for (const Fall& f : faelle) {
        TempOrdner ordner;
        const auto ziel = ordner / "spiel.tip";
        test::schreibeBytes(ziel, "alt");
        std::string meldung;
        {
            const Eingriff e([&](const std::string& a) { return a.starts_with(f.aufruf) ? f.fehler : 0; });
            meldung = fehlerBeimSpeichern(ziel);
        }
        EXPECT_EQ(meldung, abgelehnt(ziel, f.grund));
        EXPECT_EQ(leseBytes(ziel), "alt");
        EXPECT_EQ(dateienIn(ordner.pfad()), std::vector<std::string>{"spiel.tip"}) << f.aufruf;
    }
}

TEST(Speichern, AbgebrocheneSpeicherungenHinterlassenDieAlteOderDieNeueDatei) {
    TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    const std::array<std::string, 2> fassungen{kodiereSpieldatei(test::saison(test::Saison18)),
                                               kodiereSpieldatei(test::saison(test::Saison20))};
    schreibeDateiAtomar(ziel, fassungen[0]);

    int getoetet = 0, fertig = 0, versuch = 0;
    auto speichere = [&](rlim_t grenze, int aufruf) {
        const std::string vorher = leseBytes(ziel);
        const std::string& neu = fassungen[++versuch % 2];
        const int status = speichereImKind(ziel, neu, grenze, aufruf);
        const bool ganz = leseBytes(ziel) == vorher || leseBytes(ziel) == neu;
        EXPECT_TRUE(ganz) << "limit " << grenze << ", call " << aufruf;
        if (WIFSIGNALED(status)) {
            ++getoetet;
            return true;
        }
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
        ++fertig;
        return false;
    };
    // Killed while writing, at every 150th byte of the temporary file,
    for (rlim_t grenze = 0; grenze < fassungen[1].size(); grenze += 150)
        speichere(grenze, 0);
    EXPECT_GT(dateienIn(ordner.pfad()).size(), 100u);  // their temporary files are left behind
    // then before each call that completes a save (permissions, sync, rename, removing each
    // leftover, syncing the folder) until a save runs through,
    for (int aufruf = 1; speichere(RLIM_INFINITY, aufruf); ++aufruf) {
    }
    EXPECT_GT(getoetet, 120);
    EXPECT_EQ(fertig, 1);
    // and that save removed every leftover.
    EXPECT_EQ(dateienIn(ordner.pfad()), std::vector<std::string>{"spiel.tip"});
}

}  // namespace
}  // namespace kalimbo
