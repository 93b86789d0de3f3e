// The figures of the prime arithmetic, each beside its peer in the same run. Ends with 1 when a bar is
// missed.

#include "PrimesBench.h"

#include <cstdio>
#include <cstring>

#include <malloc.h>

namespace tessarolyne::PrimesBench {

void Begin(PrimeTable& table) {
    table.Clear();
    for (const std::uint64_t prime : {2U, 3U, 5U, 7U}) {
        static_cast<void>(table.Append(prime));
    }
}

bool Keeps(const char* what, bool kept) {
    std::printf("    %s: %s\n", kept ? "bar kept" : "BAR MISSED", what);
    return kept;
}

} // namespace tessarolyne::PrimesBench

int main(int argc, char** argv) {
    using namespace tessarolyne::PrimesBench;
    const auto isGiven = [&](const char* option) {
        for (int i = 1; i < argc; ++i) {
            if (std::strcmp(argv[i], option) == 0) {
                return true;
            }
        }
        return false;
    };
    if (isGiven("--help")) {
        std::puts("PrimesBench [--to-1e10] [--division-to-1e8] [--to-last-rank]\n"
                  "  --to-1e10          grow to 10^10 too (the peer's vector takes 3.7 GB)\n"
                  "  --division-to-1e8  measure the division candidate by candidate to 10^8 (minutes) "
                  "instead of to 10^7\n"
                  "  --to-last-rank     grow to 2 147 483 647 entries (2.2 GB)");
        return 0;
    }
    // Freed memory stays with the process, so that all but the first of several runs find theirs touched.
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
    bool kept = Growth(isGiven("--to-1e10"), isGiven("--division-to-1e8"));
    kept = Table(isGiven("--to-last-rank")) && kept;
    kept = Factoring() && kept;
    std::puts(kept ? "All bars kept." : "A bar was missed.");
    return kept ? 0 : 1;
}
