#include "desktop/QtHttp.h"

#include "desktop/QtText.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <QUrl>
#include <algorithm>
#include <mutex>
#include <netdb.h>
#include <sys/socket.h>
#include <system_error>
#include <thread>

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

constexpr int httpPort = 80;

// HTTP/1.0, so that the server closes; from one that doesn't, a whole page is taken at the deadline. A host
// may have several names, so it is told which one is meant.
QByteArray Request(const QUrl& url) {
    const QUrl page = url.adjusted(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
    const QUrl site = url.adjusted(QUrl::RemoveUserInfo);
    const QByteArray path = page.toEncoded();
    return "GET " + (path.isEmpty() ? "/" : path) +
           " HTTP/1.0\r\nHost: " + site.authority(QUrl::FullyEncoded).toLatin1() + "\r\n\r\n";
}

HttpReply Failure(const std::string& url, int errorCode) {
    HttpReply reply;
    reply.url = url;
    reply.errorCode = errorCode;
    return reply;
}

// One exchange; deletes itself after its one answer.
class Exchange final : public QObject {
public:
    Exchange(QObject* parent, EventLoop& loop, const HttpLimits& limits, std::string url,
        std::function<void(const HttpReply&)> reply)
        : QObject(parent), loop_(loop), largestAnswer_(static_cast<qsizetype>(limits.largestAnswer)),
          url_(std::move(url)), reply_(std::move(reply)) {
        deadline_ = loop_.SetAlarm(limits.deadline, [this] { Finish(false); });
    }
    ~Exchange() override { loop_.CancelAlarm(deadline_); }

    void Begin(const QUrl& url, const HostResolver& resolver) {
        auto* const connection =
            new HostConnection(this, loop_, static_cast<std::uint16_t>(url.port(httpPort)),
                [this, request = Request(url)](HostConnection::Result result) {
                    if (result.socket != nullptr) {
                        Ask(*result.socket, request);
                    } else {
                        error_ = result.unknownHost ? QtHttp::notFound : QtHttp::lostConnection;
                        Finish(false);
                    }
                });
        connection->Begin(resolver, url.host(QUrl::FullyEncoded).toLatin1());
    }

private:
    void Ask(QTcpSocket& socket, const QByteArray& request) {
        socket_ = &socket;
        socket.setReadBufferSize(largestAnswer_ + 1); // a fast sender waits for us
        connect(&socket, &QTcpSocket::readyRead, this, [this] { Read(); });
        connect(&socket, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
            Finish(error == QAbstractSocket::RemoteHostClosedError);
        });
        socket.write(request);
    }

    void Read() {
        answer_ += socket_->readAll();
        if (answer_.size() > largestAnswer_) {
            Finish(false);
        }
    }

    void Finish(bool closed) {
        if (finished_) {
            return;
        }
        finished_ = true;
        if (closed) {
            answer_ += socket_->readAll();
        }
        loop_.Post([reply = std::move(reply_), result = Page(closed).value_or(Failure(url_, error_))] {
            reply(result);
        });
        deleteLater();
    }

    std::optional<HttpReply> Page(bool closed) const {
        auto page = answer_.size() <= largestAnswer_
                        ? ReadHttpAnswer({answer_.data(), static_cast<std::size_t>(answer_.size())}, closed)
                        : std::nullopt;
        if (page) {
            page->url = url_;
        }
        return page;
    }

    EventLoop& loop_;
    const qsizetype largestAnswer_;
    const std::string url_;
    std::function<void(const HttpReply&)> reply_;
    QByteArray answer_;
    int error_ = QtHttp::lostConnection;
    EventLoop::AlarmId deadline_ = 0;
    bool finished_ = false;
    QTcpSocket* socket_ = nullptr; // the connection's
};

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

QtHttp::QtHttp(EventLoop& loop, HttpLimits limits, HostResolver resolver)
    : loop_(loop), limits_(limits), resolver_(std::move(resolver)), exchanges_(std::make_unique<QObject>()) {}
QtHttp::~QtHttp() = default;

void QtHttp::Get(const std::string& url, std::function<void(const HttpReply&)> reply) {
    const QUrl address(ToQt(url), QUrl::StrictMode);
    if (!address.isValid() || address.scheme() != u"http" || address.host().isEmpty()) {
        loop_.Post([url, reply = std::move(reply)] { reply(Failure(url, notFound)); });
        return;
    }
    (new Exchange(exchanges_.get(), loop_, limits_, url, std::move(reply)))->Begin(address, resolver_);
}

} // namespace tessarolyne
