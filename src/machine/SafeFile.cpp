#include "machine/SafeFile.h"

#include "machine/FileAccess.h"
#include "machine/FileBytes.h"

#include <cstddef>
#include <fcntl.h>

namespace tessarolyne {

namespace {

constexpr std::size_t bufferSize = std::size_t{256} * 1024;

} // namespace

SafeFile::SafeFile(const std::string& path, LinkPolicy links, const std::string& like)
    : target_(FindSaveTarget(path, links)),
      // A place to name files in: it need not be readable for that.
      folder_(
          Uninterrupted([&] { return ::open(target_.folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); })) {
    if (!folder_.IsOpen()) {
        ThrowErrno("open the folder " + target_.folder);
    }
    buffer_.reserve(bufferSize);
    SaveTarget model = target_;
    if (!like.empty()) {
        model = FindSaveTarget(like, LinkPolicy::ReplaceTarget);
        target_.old.reset(); // may be open to more people, so it can't be written in place
    }
    // Closed to others until it has the permissions of the file that it is to be like.
    temporary_ = TemporaryFile::Make(*folder_, model.old ? 0600 : 0666);
    if (temporary_ != nullptr &&
        (!model.old || TakeOverAccess(temporary_->Number(), model.Path(), *model.old))) {
        return;
    }
    if (!target_.old) {
        throw IOException("no file can be made in " + target_.folder);
    }
    temporary_.reset();
    aside_ = NamelessFile();
}

// Throws after the end.
int SafeFile::Content() const {
    if (temporary_ == nullptr && !aside_.IsOpen()) {
        throw IOException("this save has ended: " + target_.name);
    }
    return temporary_ == nullptr ? *aside_ : temporary_->Number();
}

void SafeFile::End() {
    temporary_.reset();
    aside_ = Descriptor();
}

void SafeFile::Write(std::string_view bytes) {
    Content();
    try {
        Append(bytes);
    } catch (...) {
        End();
        throw;
    }
}

void SafeFile::Append(std::string_view bytes) {
    if (bytes.size() > bufferSize - buffer_.size()) {
        WriteAll(Content(), buffer_);
        buffer_.clear();
    }
    if (bytes.size() > bufferSize) {
        WriteAll(Content(), bytes);
    } else {
        buffer_.append(bytes);
    }
}

void SafeFile::Commit() {
    Content();
    try {
        Finish();
    } catch (...) {
        End();
        throw;
    }
    End();
}

void SafeFile::Finish() {
    WriteAll(Content(), buffer_);
    buffer_.clear();
    if (temporary_ == nullptr) {
        Overwrite(*folder_, target_.name, *aside_);
        return;
    }
    if (!Sync(temporary_->Number())) {
        ThrowErrno("sync " + target_.name);
    }
    if (temporary_->TakeName(target_.name)) {
        SyncFolder();
    } else if (target_.old && IsRefusal(errno)) {
        Overwrite(*folder_, target_.name, temporary_->Number());
    } else {
        ThrowErrno("rename the temporary file");
    }
}

// A failure here isn't told: the file is saved, and a power cut in the next seconds would leave the old or
// the new one, whole in either case.
void SafeFile::SyncFolder() {
    const Descriptor folder(
        Uninterrupted([&] { return ::openat(*folder_, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (folder.IsOpen()) {
        Sync(*folder);
    }
}

} // namespace tessarolyne
