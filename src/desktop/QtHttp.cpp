#include "desktop/QtServices.h"
#include "desktop/QtText.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <QUrl>
#include <mutex>
#include <netdb.h>
#include <sys/socket.h>
#include <system_error>
#include <thread>

namespace tessarolyne {

namespace {

constexpr int httpPort = 80;
constexpr int attemptDelay = 250;            // milliseconds
constexpr int deadline = 10'000;             // milliseconds, from the request to the answer's last byte
constexpr qsizetype largestAnswer = 1 << 18; // bytes, its header included

// HTTP/1.0, so that the server closes; from one that doesn't, a whole page is taken at the deadline. A host
// may have several names, so it is told which one is meant.
QByteArray Request(const QUrl& url) {
    return "GET " + url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment) +
           " HTTP/1.0\r\nHost: " + url.authority(QUrl::FullyEncoded).toLatin1() + "\r\n\r\n";
}

// One exchange, with whichever address of the host answers first: the next is tried when one fails or after a
// quarter of a second (RFC 8305), so that a dead IPv6 holds nothing up. Deletes itself after its one answer.
class Exchange final : public QObject {
public:
    Exchange(QObject* parent, EventLoop& loop, const QUrl& url, std::function<void(const HttpReply&)> reply)
        : QObject(parent), loop_(loop), url_(url), reply_(std::move(reply)) {
        listener_->exchange = this;
        deadline_ = loop_.SetAlarm(deadline, [this] { Finish(false); });
    }
    ~Exchange() override {
        const std::lock_guard lock(listener_->mutex);
        listener_->exchange = nullptr;
        loop_.CancelAlarm(deadline_);
        loop_.CancelAlarm(nextTry_);
    }

    // Nothing waits for a resolver that doesn't answer, neither the destructor nor the end of the process, as
    // Qt's own look-up would.
    void Begin(const HostResolver& resolver) {
        const auto tell = [listener = listener_](std::vector<QHostAddress> addresses) {
            const std::lock_guard lock(listener->mutex);
            if (listener->exchange != nullptr) {
                listener->exchange->loop_.Post([listener, addresses = std::move(addresses)] {
                    if (listener->exchange != nullptr) {
                        listener->exchange->Try(addresses);
                    }
                });
            }
        };
        try {
            std::thread([=, host = url_.host(QUrl::FullyEncoded).toLatin1()] {
                tell(resolver(host));
            }).detach();
        } catch (const std::system_error&) {
            tell({}); // no thread to be had
        }
    }

private:
    // What the thread of a look-up knows of the exchange, which may be gone before it.
    struct Listener {
        std::mutex mutex;
        Exchange* exchange = nullptr;
    };

    void Try(const std::vector<QHostAddress>& addresses) {
        addresses_ = addresses;
        addresses.empty() ? Finish(false, QtHttp::notFound) : TryNext();
    }

    // A refusal may come before connectToHost returns.
    void TryNext() {
        loop_.CancelAlarm(nextTry_);
        if (tried_ == addresses_.size()) {
            return;
        }
        auto* const socket = new QTcpSocket(this);
        socket->setProxy(QNetworkProxy::NoProxy);
        connect(socket, &QTcpSocket::connected, this, [this, socket] { Ask(*socket); });
        connect(socket, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
            if (socket_ != nullptr) {
                Finish(error == QAbstractSocket::RemoteHostClosedError);
            } else if (++failed_ == addresses_.size()) {
                Finish(false);
            } else {
                TryNext();
            }
        });
        nextTry_ = loop_.SetAlarm(attemptDelay, [this] { TryNext(); });
        socket->connectToHost(addresses_[tried_++], static_cast<quint16>(url_.port(httpPort)));
    }

    void Ask(QTcpSocket& socket) {
        socket_ = &socket;
        loop_.CancelAlarm(nextTry_);
        for (QTcpSocket* const other : findChildren<QTcpSocket*>()) {
            if (other != socket_) {
                other->abort();
            }
        }
        socket.setReadBufferSize(largestAnswer + 1); // a fast sender waits for us
        connect(&socket, &QTcpSocket::readyRead, this, [this] {
            answer_ += socket_->readAll();
            if (answer_.size() > largestAnswer) {
                Finish(false);
            }
        });
        socket.write(Request(url_));
    }

    void Finish(bool closed, int error = QtHttp::lostConnection) {
        if (reply_ == nullptr) {
            return;
        }
        if (closed) {
            answer_ += socket_->readAll();
        }
        const auto page =
            answer_.size() <= largestAnswer ? ReadHttpAnswer(answer_.toStdString(), closed) : std::nullopt;
        loop_.Post([reply = std::exchange(reply_, nullptr),
                       result = page ? HttpReply{*page} : HttpReply{"", error}] { reply(result); });
        deleteLater();
    }

    EventLoop& loop_;
    const QUrl url_;
    std::function<void(const HttpReply&)> reply_; // none once it has its answer
    const std::shared_ptr<Listener> listener_ = std::make_shared<Listener>();
    std::vector<QHostAddress> addresses_;
    std::size_t tried_ = 0; // of the addresses
    std::size_t failed_ = 0;
    QTcpSocket* socket_ = nullptr; // the one that is connected
    QByteArray answer_;
    EventLoop::AlarmId deadline_ = 0;
    EventLoop::AlarmId nextTry_ = 0;
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

void QtHttp::Get(const std::string& url, std::function<void(const HttpReply&)> reply) {
    (new Exchange(exchanges_.get(), loop_, QUrl(ToQt(url), QUrl::StrictMode), std::move(reply)))
        ->Begin(resolver_);
}

} // namespace tessarolyne
