#pragma once

#include "platform/EventLoop.h"
#include "platform/Http.h"

#include <QByteArray>
#include <QHostAddress>
#include <QObject>
#include <functional>
#include <memory>
#include <vector>

namespace tessarolyne {

// The addresses of a host, best first; none if there is no such host. Called on a thread of its own.
using HostResolver = std::function<std::vector<QHostAddress>(const QByteArray& host)>;
std::vector<QHostAddress> SystemAddresses(const QByteArray& host);

// Plain HTTP for small pages over Qt's sockets: one request, which says nothing about the user, and its
// answer, of limited size and in limited time; no redirects, proxies, cookies or encodings. Not over Qt's own
// HTTP, which asks again where a server hangs up, names the user's language, takes headers of any length, and
// at the end of the process waits for a look-up that is under way.
class QtHttp final : public HttpService {
public:
    // Error codes of a reply without a page, in the framework's numbers.
    static constexpr int lostConnection = 102;
    static constexpr int notFound = 103;

    // `loop` is also the deadline's clock.
    explicit QtHttp(EventLoop& loop, HostResolver resolver = SystemAddresses)
        : loop_(loop), resolver_(std::move(resolver)), exchanges_(std::make_unique<QObject>()) {}

    void Get(const std::string& url, std::function<void(const HttpReply&)> reply) override;

private:
    EventLoop& loop_;
    const HostResolver resolver_;
    const std::unique_ptr<QObject> exchanges_; // the parent of those under way
};

} // namespace tessarolyne
