#pragma once
// Runs the built morve-calc as a user would, for the end-to-end tests of the cli.
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>

struct CalcResult {
    int status;
    std::string out;  // stdout and stderr together
};

inline CalcResult runCalc(const std::string& args) {
    std::string command = std::string(MORVE_CALC) + " " + args + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    std::string out;
    std::array<char, 4096> buf{};
    while (std::size_t n = fread(buf.data(), 1, buf.size(), pipe)) out.append(buf.data(), n);
    int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, out};
}

inline std::string writeCase(const std::string& name, const std::string& body) {
    std::filesystem::path p = std::filesystem::temp_directory_path() / ("morve-calc-test-" + name + ".json");
    std::ofstream(p) << body;
    return p.string();
}
