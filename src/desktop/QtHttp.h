#pragma once

#include "desktop/HostConnection.h"
#include "platform/Http.h"

#include <cstddef>
#include <memory>

namespace tessarolyne {

// What one exchange may take; beyond either it is an error.
struct HttpLimits {
    int deadline = 10'000;               // milliseconds, from the request to the answer's last byte
    std::size_t largestAnswer = 1 << 18; // bytes, its header included
};

// Plain HTTP for small pages over Qt's sockets: one request, which says nothing about the user, and its
// answer; no redirects, proxies, cookies or encodings. Not over Qt's own HTTP, which asks up to four times
// where a server hangs up, names the user's language, takes headers of any length, and at the end of the
// process waits for a look-up that is under way.
class QtHttp final : public HttpService {
public:
    // Error codes of a reply without a page, in the framework's numbers.
    static constexpr int lostConnection = 102;
    static constexpr int notFound = 103;

    // `loop` is also the deadline's clock.
    explicit QtHttp(EventLoop& loop, HttpLimits limits = {}, HostResolver resolver = SystemAddresses);
    ~QtHttp() override;

    void Get(const std::string& url, std::function<void(const HttpReply&)> reply) override;

private:
    EventLoop& loop_;
    const HttpLimits limits_;
    const HostResolver resolver_;
    const std::unique_ptr<QObject> exchanges_; // the parent of those under way
};

} // namespace tessarolyne
