#include "reports/atomic_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace morve {

namespace {

std::string reasonOf(int error) {
    switch (error) {
        case EACCES:
        case EPERM: return "sem permissão de escrita";
        case ENOENT:
        case ENOTDIR: return "a pasta não existe";
        case ENOSPC: return "o disco está cheio";
        case EROFS: return "o disco é somente de leitura";
        case 0: return "o arquivo não pôde ser escrito";
        default: return std::strerror(error);
    }
}

bool writeAll(int fd, const std::string& text) {
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        done += static_cast<std::size_t>(n);
    }
    return true;
}

// A new file gets the permissions any program of the user would give it; a file
// saved over keeps its own.
mode_t modeFor(const std::string& path) {
    struct stat st {};
    if (::stat(path.c_str(), &st) == 0) return st.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

}  // namespace

std::string replaceFileBy(const std::string& path, const std::function<bool(const std::string&)>& write) {
    const std::filesystem::path target(path);
    const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
    std::string temporary = (folder / ("." + target.filename().string() + ".XXXXXX")).string();
    const int made = ::mkstemp(temporary.data());
    if (made < 0) return reasonOf(errno);
    ::close(made);
    const auto failed = [&](int error) {
        ::unlink(temporary.c_str());
        return reasonOf(error);
    };
    errno = 0;
    if (!write(temporary)) return failed(errno);
    const int fd = ::open(temporary.c_str(), O_RDWR);
    if (fd < 0) return failed(errno);
    const bool synced = ::fchmod(fd, modeFor(path)) == 0 && ::fsync(fd) == 0;
    const int syncError = errno;
    if (::close(fd) != 0 || !synced) return failed(synced ? errno : syncError);
    if (std::rename(temporary.c_str(), path.c_str()) != 0) return failed(errno);
    return "";
}

std::string replaceFileWithText(const std::string& path, const std::string& text) {
    return replaceFileBy(path, [&](const std::string& temporary) {
        const int fd = ::open(temporary.c_str(), O_WRONLY | O_TRUNC);
        if (fd < 0) return false;
        const bool written = writeAll(fd, text);
        const int error = errno;
        if (::close(fd) != 0 || !written) {
            if (!written) errno = error;
            return false;
        }
        return true;
    });
}

}  // namespace morve
