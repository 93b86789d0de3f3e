#include "desktop/QtHttp.h"

#include "desktop/QtText.h"
#include "platform/EventLoop.h"
#include "platform/HttpAnswer.h"

#include <QTcpSocket>
#include <QUrl>

#include <optional>
#include <utility>

namespace tessarolyne {

namespace {

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
