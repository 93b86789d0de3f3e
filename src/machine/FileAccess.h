#pragma once

#include "machine/SaveTarget.h"

#include <string>

namespace tessarolyne {

// Gives a new, open file the owner, group, permissions and access control list of the file at the path that
// it is to replace, as far as the user may; what can't be had leaves it open to fewer people, never to more.
// False if more people could read it all the same, or if a list would be lost: it must not replace that file
// then. Throws IOException.
bool TakeOverAccess(int made, const std::string& path, const SaveTarget::Owner& old);

} // namespace tessarolyne
