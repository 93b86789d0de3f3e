#pragma once

#include "machine/Descriptor.h"

#include <string>
#include <string_view>

namespace tessarolyne {

// Whether a system call that failed with this error says that it can't be done here, as with a folder that
// isn't the user's or a file system without the means; and not that the disk is full or broken.
bool IsRefusal(int error);

// Writes all bytes at the file's place. Throws IOException.
void WriteAll(int file, std::string_view bytes);

// Brings the file or folder to the disk. False with errno; a file system that has no sync counts as done.
bool Sync(int file);

// An empty file without a name, for the user alone, gone when it is closed. Throws IOException.
Descriptor NamelessFile();

// Whether the folder has the open file under this name, and it is a regular one.
bool IsNamed(int folder, const std::string& name, int file);

// Puts the content of one open file into another that stays what it is, with its name, owner, permissions and
// further names. Its old content is kept aside meanwhile and put back if this fails; only the end of the
// process in the middle leaves it in part. Throws IOException.
void Overwrite(int folder, const std::string& name, int content);

} // namespace tessarolyne
