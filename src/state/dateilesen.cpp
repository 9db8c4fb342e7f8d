#include "dateilesen.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "fehler.h"

namespace kalimbo {

namespace {

// A descriptor closed when it goes out of scope.
class Deskriptor {
  public:
    explicit Deskriptor(int fd) : m_fd(fd) {}
    Deskriptor(const Deskriptor&) = delete;
    Deskriptor& operator=(const Deskriptor&) = delete;
    ~Deskriptor() {
        if (m_fd >= 0) ::close(m_fd);
    }
    int fd() const { return m_fd; }

  private:
    int m_fd;
};

[[noreturn]] void nichtLesbar(const std::filesystem::path& pfad, const std::string& grund) {
    throw Dateifehler("Die Datei „" + pfad.string() + "“ konnte nicht geöffnet werden: " + grund);
}

// German reason for an error number of the operating system while reading.
std::string grund(int fehler) {
    switch (fehler) {
        case ENOENT:
        case ENOTDIR:
            return "Sie existiert nicht.";
        case EACCES:
        case EPERM:
            return "Sie darf nicht gelesen werden.";
        default:
            return systemgrund(fehler);
    }
}

}  // namespace

// Opened without blocking, so that a named pipe without a writer does not hang the program, and
// checked on the open descriptor, so that nothing can be swapped in between.
Dateianfang leseDateianfang(const std::filesystem::path& pfad, std::size_t hoechstens) {
    const Deskriptor datei(::open(pfad.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (datei.fd() < 0) nichtLesbar(pfad, grund(errno));
    struct stat info {};
    if (::fstat(datei.fd(), &info) != 0) nichtLesbar(pfad, grund(errno));
    if (S_ISDIR(info.st_mode)) nichtLesbar(pfad, "Das ist ein Ordner.");
    if (!S_ISREG(info.st_mode))
        nichtLesbar(pfad, "Das ist keine gewöhnliche Datei, sondern ein Gerät, eine Pipe oder ein Socket.");

    // In pieces, so that a short file costs no more memory than its size; one byte beyond the
    // limit tells whether there is more.
    constexpr std::size_t Stueck = 64 * 1024;
    Dateianfang anfang;
    for (;;) {
        const std::size_t alt = anfang.bytes.size();
        anfang.bytes.resize(alt + std::min(Stueck, hoechstens + 1 - alt));
        const ssize_t n = ::read(datei.fd(), anfang.bytes.data() + alt, anfang.bytes.size() - alt);
        anfang.bytes.resize(alt + static_cast<std::size_t>(std::max<ssize_t>(n, 0)));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0)
            throw Dateifehler("Die Datei „" + pfad.string() +
                              "“ konnte nicht gelesen werden: " + grund(errno));
        if (n == 0 || anfang.bytes.size() > hoechstens) break;
    }
    if (anfang.bytes.size() > hoechstens) {
        anfang.bytes.resize(hoechstens);
        anfang.mehr = true;
    }
    return anfang;
}

Dateianfang leseDateianfang(std::istream& ein, std::size_t hoechstens, const std::string& name) {
    // In pieces, so that a short stream costs no more memory than its size.
    constexpr std::size_t Stueck = 64 * 1024;
    Dateianfang anfang;
    while (anfang.bytes.size() < hoechstens && ein) {
        const std::size_t alt = anfang.bytes.size();
        anfang.bytes.resize(alt + std::min(Stueck, hoechstens - alt));
        ein.read(anfang.bytes.data() + alt, static_cast<std::streamsize>(anfang.bytes.size() - alt));
        anfang.bytes.resize(alt + static_cast<std::size_t>(ein.gcount()));
    }
    if (ein.bad()) throw Dateifehler("Die Datei „" + name + "“ konnte nicht gelesen werden.");
    anfang.mehr = ein && ein.peek() != std::char_traits<char>::eof();
    if (ein.bad()) throw Dateifehler("Die Datei „" + name + "“ konnte nicht gelesen werden.");
    return anfang;
}

}  // namespace kalimbo
