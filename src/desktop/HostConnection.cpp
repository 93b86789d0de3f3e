#include "desktop/HostConnection.h"

#include <QNetworkProxy>
#include <QTcpSocket>

#include <netdb.h>
#include <sys/socket.h>

#include <algorithm>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace tessarolyne {

namespace {

constexpr int attemptDelay = 250; // milliseconds

// One of the first's family, then one of the other, and so on.
std::vector<QHostAddress> WithFamiliesInTurn(const std::vector<QHostAddress>& addresses) {
    std::vector<QHostAddress> families[2];
    for (const QHostAddress& address : addresses) {
        families[address.protocol() == addresses.front().protocol() ? 0 : 1].push_back(address);
    }
    std::vector<QHostAddress> turns;
    for (std::size_t i = 0; turns.size() < addresses.size(); ++i) {
        for (const auto& family : families) {
            if (i < family.size()) {
                turns.push_back(family[i]);
            }
        }
    }
    return turns;
}

} // namespace

std::vector<QHostAddress> SystemAddresses(const QByteArray& host) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* list = nullptr;
    std::vector<QHostAddress> addresses;
    if (::getaddrinfo(host.constData(), nullptr, &hints, &list) == 0) {
        for (const addrinfo* entry = list; entry != nullptr; entry = entry->ai_next) {
            addresses.emplace_back(entry->ai_addr);
        }
        ::freeaddrinfo(list);
    }
    return addresses;
}

// What the thread of a look-up knows of the connection, which may be gone before it.
struct HostConnection::Listener {
    std::mutex mutex;
    HostConnection* connection = nullptr;
};

HostConnection::HostConnection(
    QObject* parent, EventLoop& loop, std::uint16_t port, std::function<void(Result)> done)
    : QObject(parent), loop_(loop), port_(port), done_(std::move(done)),
      listener_(std::make_shared<Listener>()) {
    listener_->connection = this;
}

HostConnection::~HostConnection() {
    const std::lock_guard lock(listener_->mutex);
    listener_->connection = nullptr;
    loop_.CancelAlarm(nextTry_);
}

void HostConnection::Begin(const HostResolver& resolver, const QByteArray& host) {
    const auto tell = [listener = listener_](std::vector<QHostAddress> addresses) {
        const std::lock_guard lock(listener->mutex);
        if (listener->connection == nullptr) {
            return;
        }
        listener->connection->loop_.Post([listener, addresses = std::move(addresses)] {
            if (HostConnection* const self = listener->connection) {
                self->addresses_ = WithFamiliesInTurn(addresses);
                addresses.empty() ? self->done_({nullptr, true}) : self->TryNext();
            }
        });
    };
    try {
        std::thread([=] { tell(resolver(host)); }).detach();
    } catch (const std::system_error&) {
        tell({}); // no thread to be had
    }
}

// A refusal may come before connectToHost returns.
void HostConnection::TryNext() {
    loop_.CancelAlarm(nextTry_);
    if (tried_ == addresses_.size()) {
        return;
    }
    auto* const socket = new QTcpSocket(this);
    attempts_.push_back(socket);
    socket->setProxy(QNetworkProxy::NoProxy);
    connect(socket, &QTcpSocket::connected, this, [this, socket] { Connected(socket); });
    connect(socket, &QTcpSocket::errorOccurred, this, [this, socket] { Failed(socket); });
    nextTry_ = loop_.SetAlarm(attemptDelay, [this] { TryNext(); });
    socket->connectToHost(addresses_[tried_++], port_);
}

void HostConnection::Connected(QTcpSocket* socket) {
    loop_.CancelAlarm(nextTry_);
    for (QTcpSocket* const attempt : std::exchange(attempts_, {})) {
        attempt->disconnect(this);
        if (attempt != socket) {
            attempt->abort();
            attempt->deleteLater();
        }
    }
    done_({socket, false});
}

void HostConnection::Failed(QTcpSocket* socket) {
    attempts_.erase(std::find(attempts_.begin(), attempts_.end(), socket));
    socket->disconnect(this);
    socket->deleteLater();
    if (tried_ < addresses_.size()) {
        TryNext();
    } else if (attempts_.empty()) {
        loop_.CancelAlarm(nextTry_);
        done_({});
    }
}

} // namespace tessarolyne
