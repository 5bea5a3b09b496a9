#include "cli/renderer.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

namespace morve {

namespace {

constexpr const char* kLibrary = "morve-render.so";
#ifdef MORVE_RENDER_DIR
// Where an installation keeps it, from the installation's prefix.
constexpr const char* kInstalledFolder = MORVE_RENDER_DIR;
#else
constexpr const char* kInstalledFolder = "lib/morve";
#endif

struct Loaded {
    const RenderEntryPoints* entries = nullptr;
    std::string why;
};

Loaded open() {
    std::error_code error;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) return {nullptr, "não foi possível localizar o próprio programa para abrir " + std::string(kLibrary)};
    const std::filesystem::path folder = self.parent_path();
    for (const std::filesystem::path& candidate : {folder / kLibrary, folder / ".." / kInstalledFolder / kLibrary}) {
        if (!std::filesystem::exists(candidate, error)) continue;
        // RTLD_LOCAL: Qt's symbols stay the library's own.
        void* handle = dlopen(candidate.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (!handle) {
            const char* message = dlerror();
            return {nullptr, "não foi possível abrir " + candidate.string() + ": " + (message ? message : "")};
        }
        using Entry = const RenderEntryPoints* (*)();
        auto entry = reinterpret_cast<Entry>(dlsym(handle, kRenderEntrySymbol));
        const RenderEntryPoints* entries = entry ? entry() : nullptr;
        if (!entries || entries->interface != kRenderInterface || entries->layout != kRenderLayout)
            return {nullptr, candidate.string() + " é de outra versão do morve-calc"};
        return {entries, ""};
    }
    return {nullptr, "esta instalação do morve-calc não tem " + std::string(kLibrary) +
                         ", com que grava PDF e desenhos"};
}

}  // namespace

const RenderEntryPoints* loadRenderer(std::string& why) {
    static const Loaded loaded = open();
    why = loaded.why;
    return loaded.entries;
}

}  // namespace morve
