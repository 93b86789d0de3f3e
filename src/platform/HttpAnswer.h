#pragma once

#include "platform/Http.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

// A server's answer to a request of HTTP/1.0 as it comes in: a status line, headers, an empty line, and a
// page that ends where its length says or with the connection. Not for chunks and codings, which such a
// request rules out. Any bytes are allowed.
class HttpAnswer {
public:
    // Time is linear in the bytes of all calls together.
    void Add(std::string_view bytes);
    std::size_t Size() const { return bytes_.size(); }

    // Nothing more is wanted: the page has its length, or no more bytes can make this an answer.
    bool IsOver() const;
    // The page with its status and headers, if it came whole; `closed` says that no more bytes will come.
    std::optional<HttpReply> Page(bool closed) const;

private:
    void ReadHeader();

    std::string bytes_;
    std::size_t pageStart_ = 0; // 0 until the empty line is there
    std::optional<std::size_t> length_;
    int status_ = 0;
    bool broken_ = false;
};

} // namespace tessarolyne
