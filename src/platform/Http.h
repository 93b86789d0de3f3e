#pragma once

#include "platform/Event.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

// What became of a request: a page of any status, or an error code.
struct HttpReply {
    std::string url;
    int status = 0;
    std::string headers;
    std::string content;
    int errorCode = 0; // not 0: no page
};

// Fetches pages over plain HTTP. The reply comes on the main thread, exactly once for each request.
class HttpService {
public:
    virtual ~HttpService() = default;
    virtual void Get(const std::string& url, std::function<void(const HttpReply&)> reply) = 0;
};

// One fetcher of a window. A reply that comes after the socket's end is dropped.
class HTTPSocket {
public:
    explicit HTTPSocket(HttpService& service) : service_(service) {}

    // Returns at once; one of the two events follows.
    void Get(const std::string& url);

    Event<void(const std::string& url, int status, const std::string& headers, const std::string& content)>
        PageReceived;
    Event<void(int code)> Error;

private:
    HttpService& service_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

// What a server answers to a GET by HTTP/1.0 (RFC 9112): a status line, headers, an empty line, and a page
// that ends with its length, or else with the connection. Lines end with CR LF or LF; any bytes are allowed.
// Nothing if that isn't whole; `closed` says that no more bytes will come. Interim answers and codings of the
// transfer, which no server may send to one who asks by HTTP/1.0, make it none.
std::optional<HttpReply> ReadHttpAnswer(std::string_view bytes, bool closed);

} // namespace tessarolyne
