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
// name, and the folder is synced. A failure leaves the old file whole and no temporary. The new file has the
// old one's permissions, access control list, owner and group as far as the user may give them; it doesn't
// take over extended attributes or further hard links. Where the folder takes no new file, or none that may
// replace the old one, the old one is written in place, as the last thing.
class SafeFile final : public OutputFile {
public:
    // The new file is open to the same people as the file `like`, if one is named, else as the one that it
    // replaces. Throws IOException, see FindSaveTarget.
    SafeFile(const std::string& path, LinkPolicy links, const std::string& like = {});

    void Write(std::string_view bytes) override;
    void Commit() override;

private:
    int Content() const;
    void Append(std::string_view bytes);
    void Finish();
    void SyncFolder();
    void End();

    SaveTarget target_;
    Descriptor folder_;
    // One of these takes the bytes; none after a Commit or a failure.
    std::unique_ptr<TemporaryFile> temporary_;
    Descriptor aside_;
    std::string buffer_;
};

} // namespace tessarolyne
