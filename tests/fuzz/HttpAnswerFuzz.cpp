// Any bytes whatever as a server's answer: it reads the same however the network cuts it up, and a page is
// made of its bytes.
#include "fuzz/Must.h"
#include "platform/HttpAnswer.h"

#include <algorithm>

using namespace tessarolyne;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    HttpAnswer whole;
    HttpAnswer pieces;
    whole.Add(bytes);
    const std::size_t step = size == 0 ? 1 : data[0] % 5 + 1;
    for (std::size_t i = 0; i < size; i += step) {
        pieces.Add(std::string_view(bytes).substr(i, step));
    }
    for (const bool closed : {false, true}) {
        const auto page = whole.Page(closed);
        const auto other = pieces.Page(closed);
        bool holds = whole.IsOver() == pieces.IsOver() && page.has_value() == other.has_value();
        if (page) {
            holds = holds && page->status == other->status && page->content == other->content &&
                    page->headers == other->headers && page->status > 0 && page->status <= 999 &&
                    page->headers.size() + page->content.size() < size && (closed || whole.IsOver());
        }
        tests::Must(holds, "pieces and page");
    }
    return 0;
}
