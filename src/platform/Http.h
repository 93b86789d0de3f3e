#pragma once

#include "platform/Event.h"

#include <functional>
#include <memory>
#include <string>

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

} // namespace tessarolyne
