#pragma once

#include "platform/Http.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

// A server's answer to a GET as it comes in (RFC 9112): interim answers, which say nothing, then a status
// line, headers, an empty line, and a page that ends where its length or its chunks say, or with the
// connection. Lines end with CR LF or LF. Not for codings of the page. Any bytes are allowed.
class HttpAnswer {
public:
    // Time is linear in the bytes of all calls together.
    void Add(std::string_view bytes);
    // Of all bytes so far.
    std::size_t Size() const { return bytes_.size(); }

    // Nothing more is wanted: the page is whole, or no more bytes can make this an answer.
    bool IsOver() const { return part_ == Part::Over || part_ == Part::Broken; }
    // The page with its status and headers, if it came whole; `closed` says that no more bytes will come.
    std::optional<HttpReply> Page(bool closed) const;

private:
    enum class Part { Status, Header, Content, ChunkSize, ChunkEnd, Trailer, Over, Broken };

    bool TakePart();
    bool TakeContent();
    std::optional<std::string_view> TakeLine();
    Part ReadHeader(std::string_view line);
    Part ReadChunkSize(std::string_view line);

    std::string bytes_;
    std::size_t taken_ = 0;   // of bytes_
    std::size_t scanned_ = 0; // there is no line end between the two
    Part part_ = Part::Status;
    HttpReply page_; // its headers without their ends of lines
    std::optional<std::size_t> length_;
    std::size_t left_ = 0; // of the content, or of a chunk
    bool chunked_ = false;
};

} // namespace tessarolyne
