#pragma once

#include "machine/Descriptor.h"
#include "machine/SaveTarget.h"
#include "machine/TemporaryFile.h"
#include "platform/FileSystem.h"

#include <memory>
#include <string>
#include <string_view>

namespace tessarolyne {

// The one writer of files: a temporary file beside the target takes the bytes, is synced, takes the target's
// name, and the folder is synced. A failure before the rename leaves the old file whole and no temporary;
// after it only the sync of the folder can still fail, with the new file whole in its place. The new file has
// the old one's permissions, owner and group as far as the user may give them; it doesn't take over access
// control lists, extended attributes or further hard links.
class SafeFile final : public OutputFile {
public:
    // Throws IOException, see FindSaveTarget.
    SafeFile(const std::string& path, LinkPolicy links);

    void Write(std::string_view bytes) override;
    void Commit() override;

private:
    void TakeOver(const SaveTarget::Owner& old);
    void WriteThrough(std::string_view bytes);
    void Finish();
    TemporaryFile& Unfinished();

    SaveTarget target_;
    Descriptor folder_;
    std::unique_ptr<TemporaryFile> temporary_; // none after a Commit or a failure
    std::string buffer_;
};

} // namespace tessarolyne
