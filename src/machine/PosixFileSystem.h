#pragma once

#include "platform/FolderItem.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessarolyne {

// The machine's files by POSIX; what the desktop calls its folders, the desktop tells. Its making turns the
// signal for a file beyond the process's size limit off, since that is a failed write like any other and not
// the end of the program.
class PosixFileSystem final : public FileSystem {
public:
    using FindFolder = std::function<std::optional<std::string>(KnownFolder)>;

    // `mounts`: the table of what is mounted where.
    explicit PosixFileSystem(FindFolder find = {}, std::string mounts = "/proc/self/mounts");

    FileKind Kind(const std::string& path) const override;
    std::optional<FileStamp> Stamp(const std::string& path) const override;
    std::optional<std::string> Resolve(const std::string& path) const override;
    std::vector<Volume> Volumes() const override;
    std::optional<std::string> Find(KnownFolder folder) override {
        return find_ ? find_(folder) : std::nullopt;
    }
    bool MakeFolder(const std::string& path) override;
    std::unique_ptr<InputFile> OpenForReading(const std::string& path) override;
    std::unique_ptr<OutputFile> CreateSafely(const std::string& path, LinkPolicy links) override;
    bool CanReplace(const std::string& path, LinkPolicy links) const override;
    void KeepAs(const std::string& path, const std::string& copy) override;
    void SweepLeftovers(const std::string& folder) override;

private:
    const FindFolder find_;
    const std::string mounts_;
};

} // namespace tessarolyne
