#pragma once

#include "platform/FileSystem.h"

#include <istream>
#include <string>
#include <vector>

namespace tessarolyne {

// The name that the root file system has in a colon path.
constexpr const char* rootVolumeName = "Root";

// Whether a path lies where desktops mount what the user plugs in: under /media, /run/media or /mnt.
bool LiesUnderMountFolders(const std::string& path);

// The root file system, then what is mounted under those folders, each by the last part of its mount point.
// Reads a table in the form of /proc/self/mountinfo (proc(5)) and touches no mounted file system, since one
// that has died would hang the program. An unreadable table gives the root alone.
std::vector<Volume> MountedVolumes(std::istream& mountTable);

} // namespace tessarolyne
