#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

// What became of a request: a page of any status, or an error code.
struct HttpReply {
    std::string content;
    int errorCode = 0; // not 0: no page
};

// Fetches pages over plain HTTP. The reply comes on the main thread, exactly once for each request.
class HttpService {
public:
    virtual ~HttpService() = default;
    virtual void Get(const std::string& url, std::function<void(const HttpReply&)> reply) = 0;
};

// The page in a server's answer to a GET by HTTP/1.0 (RFC 9112): a status line, headers, an empty line, and
// the page, which ends with its length, or else with the connection. Lines end with CR LF or LF; any bytes
// are allowed. Nothing if that isn't whole; `closed` says that no more bytes will come. Interim answers and
// codings of the transfer, which no server may send to one who asks by HTTP/1.0, make it none.
std::optional<std::string> ReadHttpAnswer(std::string_view bytes, bool closed);

} // namespace tessarolyne
