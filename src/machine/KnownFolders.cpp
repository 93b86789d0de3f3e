#include "machine/KnownFolders.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <pwd.h>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tessarolyne {

namespace {

namespace fs = std::filesystem;

// An environment variable that holds an absolute path; any other is to be ignored, says freedesktop.org.
std::optional<std::string> PathVariable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && value[0] == '/' ? std::optional<std::string>(value) : std::nullopt;
}

std::optional<std::string> ConfigurationPath() {
    if (auto path = PathVariable("XDG_CONFIG_HOME")) {
        return path;
    }
    const auto home = HomeFolder();
    return home ? std::optional(*home + "/.config") : std::nullopt;
}

std::optional<std::string> Canonical(const fs::path& folder) {
    std::error_code error;
    const auto path = fs::canonical(folder, error);
    return !error && fs::is_directory(path, error) ? std::optional(path.string()) : std::nullopt;
}

// Makes the folder and those above it, each for the user alone.
void MakeFolders(const fs::path& folder) {
    fs::path path;
    for (const auto& part : folder) {
        path /= part;
        ::mkdir(path.c_str(), 0700);
    }
}

} // namespace

std::optional<std::string> HomeFolder() {
    if (auto home = PathVariable("HOME")) {
        return home;
    }
    const passwd* user = ::getpwuid(::getuid());
    return user != nullptr && user->pw_dir[0] == '/' ? std::optional<std::string>(user->pw_dir)
                                                     : std::nullopt;
}

std::optional<std::string> PreferencesFolder() {
    const auto path = ConfigurationPath();
    if (!path) {
        return std::nullopt;
    }
    if (auto folder = Canonical(*path)) {
        return folder;
    }
    MakeFolders(*path);
    return Canonical(*path);
}

std::optional<std::string> DocumentsFolderOfLine(const std::string& line, const std::string& home) {
    constexpr std::string_view start = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view homeVariable = "$HOME/";
    std::string_view rest = line;
    rest.remove_prefix(std::min(rest.size(), rest.find_first_not_of(" \t")));
    if (!rest.starts_with(start)) {
        return std::nullopt;
    }
    rest.remove_prefix(start.size());
    std::string path;
    if (rest.starts_with(homeVariable)) {
        path = home + "/";
        rest.remove_prefix(homeVariable.size());
    } else if (!rest.starts_with('/')) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < rest.size() && rest[i] != '"'; ++i) {
        if (rest[i] == '\\' && i + 1 < rest.size()) {
            ++i;
        }
        path += rest[i];
    }
    return path;
}

std::optional<std::string> DocumentsFolder() {
    const auto home = HomeFolder();
    const auto configuration = ConfigurationPath();
    if (!home || !configuration) {
        return std::nullopt;
    }
    std::optional<std::string> configured;
    std::ifstream file(*configuration + "/user-dirs.dirs");
    for (std::string line; std::getline(file, line);) {
        if (auto path = DocumentsFolderOfLine(line, *home)) {
            configured = path;
        }
    }
    return Canonical(configured.value_or(*home + "/Documents"));
}

std::optional<std::string> ApplicationFolder() {
    std::error_code error;
    const auto program = fs::read_symlink("/proc/self/exe", error);
    return error ? std::nullopt : Canonical(program.parent_path());
}

} // namespace tessarolyne
