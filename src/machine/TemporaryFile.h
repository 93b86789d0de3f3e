#pragma once

#include "machine/Descriptor.h"

#include <string>
#include <sys/types.h>

namespace tessarolyne {

// A new, empty file with a name of the program's own, locked as long as this object lives so that a sweep
// knows it for a save under way. Removed when the object goes, unless it was renamed.
class TemporaryFile {
public:
    // Made in the open folder, which must outlive this. Throws IOException.
    TemporaryFile(int folder, mode_t permissions);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    int Number() const { return *file_; }
    // Closes the file for writing, with the lock kept, and gives it its final name. Throws IOException.
    void CloseAndRename(const std::string& name);

private:
    bool Lock();

    int folder_;
    std::string name_; // empty once renamed
    Descriptor file_;
};

// Removes the files in the folder that have such a name and that no living process holds, as far as the
// folder can be read.
void SweepTemporaryFiles(const std::string& folder);

} // namespace tessarolyne
