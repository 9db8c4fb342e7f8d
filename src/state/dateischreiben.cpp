#include "dateischreiben.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <random>
#include <string>
#include <utility>

#include "fehler.h"

namespace kalimbo {

namespace {

namespace fs = std::filesystem;

// Links followed at most, as the kernel does, before a chain counts as a loop.
constexpr int MaxVerknuepfungen = 40;

[[noreturn]] void scheitern(const fs::path& ziel, const std::string& grund) {
    throw Dateifehler("Die Datei „" + ziel.string() + "“ konnte nicht gespeichert werden: " + grund);
}

// German reason for an error number of the operating system while saving.
std::string grund(int fehler) {
    switch (fehler) {
        case ENOENT:
        case ENOTDIR:
            return "Der Ordner existiert nicht.";
        case EACCES:
        case EPERM:
            return "Im Ordner darf nicht geschrieben werden.";
        default:
            return systemgrund(fehler);
    }
}

// The path a save writes to: `pfad` itself, or for a symbolic link the path its chain of links
// finally names, whether that exists yet or not. Saving through a link replaces (or creates) the
// file it points to and keeps the link.
fs::path zielHinterVerknuepfungen(const fs::path& pfad) {
    fs::path ziel = pfad;
    for (int i = 0; i < MaxVerknuepfungen; ++i) {
        struct stat info {};
        if (::lstat(ziel.c_str(), &info) != 0 || !S_ISLNK(info.st_mode)) return ziel;
        std::error_code ec;
        const fs::path verweis = fs::read_symlink(ziel, ec);
        if (ec) scheitern(pfad, grund(ec.value()));
        ziel = verweis.is_absolute() ? verweis : ziel.parent_path() / verweis;
    }
    scheitern(pfad, grund(ELOOP));
}

// Temporary files of one target are named "." + a hash of the target's name + "-" + the saving
// process's number + "-" + six random letters or digits + ".tmp": short whatever the target's
// name, hidden, and recognisable, so that a later save can remove what an interrupted one left
// behind. The saving process holds a lock on its file from creating it until it has been renamed.
std::string kennung(const fs::path& ziel) {
    std::uint64_t hash = 14695981039346656037u;  // FNV-1a
    for (const char c : ziel.filename().string())
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211u;
    char text[20];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(hash));
    return std::string(".") + text + "-";
}

constexpr std::string_view Endung = ".tmp";
constexpr std::size_t Zufallszeichen = 6;

// The number of the process that made the temporary file `name` of this target; none for any
// other name.
std::optional<pid_t> besitzer(std::string_view name, const std::string& kennung) {
    if (!name.starts_with(kennung) || !name.ends_with(Endung)) return std::nullopt;
    name.remove_prefix(kennung.size());
    name.remove_suffix(Endung.size());
    if (name.size() < Zufallszeichen + 2 || name[name.size() - Zufallszeichen - 1] != '-')
        return std::nullopt;
    name.remove_suffix(Zufallszeichen + 1);
    pid_t pid = 0;
    const auto [ende, fehler] = std::from_chars(name.data(), name.data() + name.size(), pid);
    if (fehler != std::errc() || ende != name.data() + name.size() || pid <= 0) return std::nullopt;
    return pid;
}

// A new temporary file beside the target, locked while it exists under its name, and removed
// again unless it has been renamed.
class TemporaereDatei {
  public:
    TemporaereDatei(const fs::path& ordner, const std::string& kennung, mode_t modus, const fs::path& ziel)
        : m_ziel(ziel) {
        static constexpr char Zeichen[] = "abcdefghijklmnopqrstuvwxyz0123456789";
        std::random_device zufall;
        for (int versuch = 0; versuch < 100; ++versuch) {
            std::string name = kennung + std::to_string(::getpid()) + "-";
            for (std::size_t i = 0; i < Zufallszeichen; ++i)
                name += Zeichen[zufall() % (sizeof Zeichen - 1)];
            name += Endung;
            m_pfad = ordner / name;
            m_fd = ::open(m_pfad.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, modus);
            if (m_fd >= 0) {
                // Waits only while another save looks at it, to see that it is not a leftover.
                while (::flock(m_fd, LOCK_EX) != 0 && errno == EINTR) {
                }
                return;
            }
            if (errno != EEXIST) scheitern(m_ziel, grund(errno));
        }
        scheitern(m_ziel, grund(EEXIST));
    }
    TemporaereDatei(const TemporaereDatei&) = delete;
    TemporaereDatei& operator=(const TemporaereDatei&) = delete;
    ~TemporaereDatei() {
        if (!m_umbenannt) ::unlink(m_pfad.c_str());
        if (m_fd >= 0) ::close(m_fd);
    }

    void schreibe(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t n = ::write(m_fd, bytes.data(), bytes.size());
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) scheitern(m_ziel, "Schreibfehler: " + grund(n < 0 ? errno : ENOSPC));
            bytes.remove_prefix(static_cast<std::size_t>(n));
        }
    }

    // Gives the file the owner, group and permissions of the file it replaces. Only root may hand
    // a file to another owner; anyone else keeps at least the group where allowed.
    void uebernimmRechte(const struct stat& alt) {
        const bool fremd = alt.st_uid != ::geteuid() || alt.st_gid != ::getegid();
        if (fremd && ::fchown(m_fd, alt.st_uid, alt.st_gid) != 0 &&
            ::fchown(m_fd, static_cast<uid_t>(-1), alt.st_gid) != 0) {
            // Neither is allowed: the copy stays ours, with the old file's permissions below.
        }
        if (::fchmod(m_fd, alt.st_mode & 07777) != 0)
            scheitern(m_ziel, "Die Rechte der alten Datei lassen sich nicht übertragen: " + grund(errno));
    }

    // Writes the data through to the disk.
    void synchronisiere() {
        if (::fsync(m_fd) != 0) scheitern(m_ziel, "Schreibfehler: " + grund(errno));
    }

    // Renames the file over `ziel`, then closes it, which ends the lock. The data are on the
    // disk already, so closing cannot lose any.
    void benenneUm(const fs::path& ziel) {
        if (::rename(m_pfad.c_str(), ziel.c_str()) != 0)
            scheitern(m_ziel, "Die vorhandene Datei kann nicht ersetzt werden: " + grund(errno));
        m_umbenannt = true;
        ::close(std::exchange(m_fd, -1));
    }

  private:
    fs::path m_ziel;  // as the user named it, for messages
    fs::path m_pfad;
    int m_fd = -1;
    bool m_umbenannt = false;
};

// Whether the temporary file `name`, made by process `pid`, was left behind by a save that cannot
// go on: nobody holds its lock, and its process is gone. A save that has just created its file
// but not locked it yet is still running; one running on another computer holds its lock.
bool istVerlassen(int ordnerFd, const char* name, pid_t pid) {
    const int fd = ::openat(ordnerFd, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return false;
    const bool frei = ::flock(fd, LOCK_EX | LOCK_NB) == 0;
    ::close(fd);
    return frei && ::kill(pid, 0) != 0 && errno == ESRCH;
}

// Removes the temporary files that interrupted saves of the same target left in the folder.
void entferneReste(const fs::path& ordner, const std::string& kennung) {
    DIR* verzeichnis = ::opendir(ordner.c_str());
    if (!verzeichnis) return;
    while (const dirent* eintrag = ::readdir(verzeichnis)) {
        const auto pid = besitzer(eintrag->d_name, kennung);
        if (pid && istVerlassen(::dirfd(verzeichnis), eintrag->d_name, *pid))
            ::unlinkat(::dirfd(verzeichnis), eintrag->d_name, 0);
    }
    ::closedir(verzeichnis);
}

// Makes the new name in the folder durable. The file has been replaced already; if the folder
// cannot be synchronised (some file systems refuse), there is nothing better to do than go on.
void synchronisiereOrdner(const fs::path& ordner) {
    const int fd = ::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

}  // namespace

void schreibeDateiAtomar(const fs::path& zielAngabe, std::string_view bytes) {
    if (!zielAngabe.has_filename()) scheitern(zielAngabe, "Es fehlt der Name der Datei.");
    const fs::path ziel = zielHinterVerknuepfungen(zielAngabe);
    struct stat alt {};
    const bool vorhanden = ::stat(ziel.c_str(), &alt) == 0;
    if (!vorhanden && errno != ENOENT) scheitern(zielAngabe, grund(errno));
    if (vorhanden) {
        if (S_ISDIR(alt.st_mode)) scheitern(zielAngabe, "Unter diesem Namen gibt es einen Ordner.");
        if (!S_ISREG(alt.st_mode))
            scheitern(zielAngabe, "Unter diesem Namen gibt es etwas anderes als eine Datei.");
        // Refused exactly when writing into the file in place would be refused.
        if (::faccessat(AT_FDCWD, ziel.c_str(), W_OK, AT_EACCESS) != 0)
            scheitern(zielAngabe, errno == EACCES ? "Die Datei ist schreibgeschützt." : grund(errno));
    }

    const fs::path ordner = ziel.has_parent_path() ? ziel.parent_path() : fs::path(".");
    const std::string k = kennung(ziel);
    // A new file gets the permissions the umask gives any new file; a replacement is created with
    // those of the old file, so the copy is never readable by more people than the original.
    TemporaereDatei temp(ordner, k, vorhanden ? alt.st_mode & 0777 : 0666, zielAngabe);
    temp.schreibe(bytes);
    if (vorhanden) temp.uebernimmRechte(alt);
    temp.synchronisiere();
    temp.benenneUm(ziel);
    entferneReste(ordner, k);
    synchronisiereOrdner(ordner);
}

}  // namespace kalimbo
