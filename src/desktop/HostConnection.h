#pragma once

#include "platform/EventLoop.h"

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

} // namespace tessarolyne
