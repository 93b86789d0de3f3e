#pragma once

#include "platform/EventLoop.h"
#include "platform/Http.h"

#include <QByteArray>
#include <QHostAddress>
#include <QObject>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class QTcpSocket;
namespace tessarolyne {

// The addresses of a host, best first; none if there is no such host. Called on a thread of its own.
using HostResolver = std::function<std::vector<QHostAddress>(const QByteArray& host)>;
std::vector<QHostAddress> SystemAddresses(const QByteArray& host);

// Connects to whichever address of a host answers first: the next is tried when one fails or after a quarter
// of a second (RFC 8305), so that a dead IPv6 holds nothing up. Nothing waits for a resolver that doesn't
// answer, neither the destructor nor the end of the process, as Qt's own look-up would.
class HostConnection final : public QObject {
public:
    struct Result {
        QTcpSocket* socket = nullptr; // a child of the HostConnection; none if nothing could be reached
        bool unknownHost = false;
    };
    // `done` is called once, on the main thread.
    HostConnection(QObject* parent, EventLoop& loop, std::uint16_t port, std::function<void(Result)> done);
    ~HostConnection() override;

    void Begin(const HostResolver& resolver, const QByteArray& host);

private:
    struct Listener;

    void TryNext();
    void Connected(QTcpSocket* socket);
    void Failed(QTcpSocket* socket);

    EventLoop& loop_;
    const std::uint16_t port_;
    const std::function<void(Result)> done_;
    const std::shared_ptr<Listener> listener_;
    std::vector<QHostAddress> addresses_;
    std::size_t tried_ = 0; // of the addresses
    std::vector<QTcpSocket*> attempts_;
    EventLoop::AlarmId nextTry_ = 0;
};

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
