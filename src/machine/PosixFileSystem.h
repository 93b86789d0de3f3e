#pragma once

#include "machine/Foundation.h"
#include "platform/FileSystem.h"

namespace tessarolyne {

// The machine's files by POSIX. Its making turns the signal for a file beyond the process's size limit off,
// since that is a failed write like any other and not the end of the program.
class PosixFileSystem final : public FileSystem {
public:
    PosixFileSystem();

    FileKind Kind(const std::string& path) const override;
    std::optional<FileStamp> Stamp(const std::string& path) const override;
    std::optional<std::string> Resolve(const std::string& path) const override;
    std::vector<Volume> Volumes() const override;
    std::optional<std::string> VolumeNameAt(const std::string& path) const override;
    std::optional<std::string> Find(KnownFolder folder) override;
    bool MakeFolder(const std::string& path) override;
    std::unique_ptr<InputFile> OpenForReading(const std::string& path) override;
    std::unique_ptr<OutputFile> CreateSafely(const std::string& path, LinkPolicy links) override;
    bool CanReplace(const std::string& path, LinkPolicy links) const override;
    void KeepAs(const std::string& path, const std::string& copy) override;
    void SweepLeftovers(const std::string& folder) override;
    bool GetFileValue(const std::string& urlPath, const std::string& key, void*& value) override;
    bool BoolValue(void* value) override;

private:
    Foundation foundation_;
};

} // namespace tessarolyne
