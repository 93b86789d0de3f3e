// Any bytes whatever as a prime file: the quick reader finds what the plain one finds, wherever the chunks
// end, and what it found comes back from the file that is written of it.
#include "fuzz/Fuzz.h"
#include "primes/engine/PlainPrimeFile.h"

using namespace tessarolyne;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const auto plain = ReadPlainly(bytes);
    Must(ReadQuickly(bytes, 4096) == plain, "both readers find the same");
    Must(ReadQuickly(bytes, 3 + size % 61) == plain, "the chunks don't matter");

    const TableOf table(plain.numbers);
    const int perLine = static_cast<int>(size % 12) - 1;
    Must(ReadQuickly(Written(table, perLine), 4096).numbers == plain.numbers, "what was read comes back");
    return 0;
}
