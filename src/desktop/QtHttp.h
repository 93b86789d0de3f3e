#pragma once

#include "platform/Http.h"

#include <memory>

class QNetworkAccessManager;

namespace tessarolyne {

class EventLoop;

// Plain HTTP for small pages: no redirects, proxies, cookies, caches or encodings, ten seconds and 256 KiB at
// most. Made at the first request, since a program that asks nothing needn't pay for it.
class QtHttp final : public HttpService {
public:
    // Error codes of a reply without a page, in the framework's numbers.
    static constexpr int lostConnection = 102;
    static constexpr int notFound = 103;

    explicit QtHttp(EventLoop& loop);
    ~QtHttp() override;

    void Get(const std::string& url, std::function<void(const HttpReply&)> reply) override;

private:
    EventLoop& loop_;
    std::unique_ptr<QNetworkAccessManager> manager_;
};

} // namespace tessarolyne
