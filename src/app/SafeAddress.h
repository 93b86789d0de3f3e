#pragma once

#include <cstddef>
#include <string_view>

namespace tessarolyne {

// No address that people use is longer; what is longer hides something.
inline constexpr std::size_t longestAddress = 2048;

// Whether an address from outside may be handed to the desktop: "http://" with a host, in the characters and
// the shape of RFC 3986, no user information in front of the host, no longer than longestAddress.
bool IsSafeAddress(std::string_view address);

// The same for the program's own addresses, which may also begin with "https://" or "mailto:".
bool IsSafeOwnAddress(std::string_view address);

} // namespace tessarolyne
