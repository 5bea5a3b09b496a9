#include "reports/recovery_file.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace morve {

namespace {

std::filesystem::path stateFolder() {
    // A relative XDG path is to be ignored, as the base directory rules say.
    const char* xdg = std::getenv("XDG_STATE_HOME");
    if (xdg && *xdg == '/') return std::filesystem::path(xdg) / "morve";
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home && *home ? home : "/tmp") / ".local" / "state" / "morve";
}

}  // namespace

std::string recoveryFilePath() { return (stateFolder() / "recuperacao.mor").string(); }

bool recoveryFileExists() {
    std::error_code error;
    return std::filesystem::is_regular_file(recoveryFilePath(), error);
}

ProjectResult writeRecoveryFile(const std::string& text) {
    std::error_code error;
    std::filesystem::create_directories(stateFolder(), error);
    return saveProjectText(text, recoveryFilePath());
}

void removeRecoveryFile() {
    std::error_code error;
    std::filesystem::remove(recoveryFilePath(), error);
}

}  // namespace morve
