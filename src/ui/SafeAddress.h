#pragma once

#include <cstddef>
#include <string_view>

namespace tessarolyne {

// No address that people use is longer; what is longer hides something.
inline constexpr std::size_t longestAddress = 2048;

// Whether an address may be handed to the desktop: "mailto:", or "http://" or "https://" with a host, in the
// characters and the shape of RFC 3986, no user information in front of the host, no longer than
// longestAddress.
bool IsSafeAddress(std::string_view address);

} // namespace tessarolyne
