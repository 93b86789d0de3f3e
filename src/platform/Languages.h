#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

// Which catalogues of translations a user reads, the most particular first; what one lacks is looked up in
// the next, and in the end in the texts that are built into the program. `wanted` are the desktop's
// languages in the order of preference, as tags of any spelling ("fr_CH.UTF-8", "en-Latn-GB", "C");
// `available` the catalogues' names; `builtIn` the language of the built-in texts. The first wanted language
// that there is decides, a region falling back on its language; without any the chain is empty, and so it is
// for `builtIn`.
std::vector<std::string> CatalogueChain(const std::vector<std::string>& wanted,
    const std::vector<std::string>& available, std::string_view builtIn);

} // namespace tessarolyne
