// Any bytes whatever as a server's answer: a page is made of its bytes, and whole before the end only if it
// stays the same whatever comes behind it.
#include "fuzz/Fuzz.h"
#include "platform/Http.h"

using namespace tessarolyne;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const auto open = ReadHttpAnswer(bytes, false);
    const auto closed = ReadHttpAnswer(bytes, true);
    const auto more = ReadHttpAnswer(bytes + "x", false);
    bool holds = !open || (open == closed && open == more);
    holds = holds && (!closed || (closed->size() < size && bytes.find(*closed) < size + 1));
    tests::Must(holds, "page");
    return 0;
}
