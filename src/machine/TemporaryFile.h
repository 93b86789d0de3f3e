#pragma once

#include "machine/Descriptor.h"

#include <memory>
#include <string>
#include <sys/types.h>
#include <utility>

namespace tessarolyne {

// A new, empty file with a name of the program's own, locked as long as this object lives so that a sweep
// knows it for a save under way. Removed when the object goes, unless it was renamed.
class TemporaryFile {
public:
    // Made in the open folder, which must outlive this. Nothing, with errno, where the folder takes no new
    // file; IOException for any other failure.
    static std::unique_ptr<TemporaryFile> Make(int folder, mode_t permissions);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    int Number() const { return *file_; }
    // Gives the file its final name. False with errno.
    bool TakeName(const std::string& name);

private:
    TemporaryFile(int folder, std::string name, Descriptor file)
        : folder_(folder), name_(std::move(name)), file_(std::move(file)) {}
    bool Lock();

    int folder_;
    std::string name_; // empty once renamed
    Descriptor file_;
};

// Removes the files in the folder that have such a name and that no living process holds, as far as the
// folder can be read.
void SweepTemporaryFiles(const std::string& folder);

} // namespace tessarolyne
