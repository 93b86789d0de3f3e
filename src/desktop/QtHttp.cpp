#include "desktop/QtHttp.h"

#include "desktop/QtText.h"
#include "platform/EventLoop.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace tessarolyne {

namespace {

constexpr int deadline = 10'000; // milliseconds, for the whole exchange
constexpr qint64 largestPage = 256 * 1024;

QNetworkRequest Request(const QUrl& url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setRawHeader("Accept-Language", "*"); // else Qt sends the user's language
    request.setRawHeader("Accept-Encoding", "identity");
    request.setHeader(QNetworkRequest::UserAgentHeader,
        QString(QCoreApplication::applicationName() + u'/' + QCoreApplication::applicationVersion()));
    return request;
}

std::string Headers(const QNetworkReply& reply) {
    QByteArray text;
    for (const auto& [name, value] : reply.rawHeaderPairs()) {
        text += name + ": " + value + "\r\n";
    }
    return text.toStdString();
}

// One exchange; deletes itself after its one answer.
class Exchange final : public QObject {
public:
    Exchange(
        EventLoop& loop, QNetworkReply* reply, std::string url, std::function<void(const HttpReply&)> answer)
        : QObject(reply), loop_(loop), reply_(reply), url_(std::move(url)), answer_(std::move(answer)) {
        QTimer::singleShot(deadline, Qt::PreciseTimer, this, [this] { Finish(false); });
        connect(reply, &QNetworkReply::readyRead, this, [this] { Read(); });
        connect(reply, &QNetworkReply::finished, this, [this] { Finish(true); });
    }

private:
    void Read() {
        content_ += reply_->read(largestPage + 1 - content_.size());
        if (content_.size() > largestPage) {
            Finish(false);
        }
    }

    void Finish(bool ended) {
        if (answered_) {
            return;
        }
        answered_ = true;
        if (ended) {
            content_ += reply_->read(largestPage + 1 - content_.size());
        }
        const HttpReply result = Result(ended && content_.size() <= largestPage);
        reply_->deleteLater();
        reply_->abort();
        loop_.Post([answer = answer_, result] { answer(result); });
    }

    HttpReply Result(bool whole) const {
        HttpReply result;
        result.url = url_;
        const QVariant status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        // An error status is still a page; a connection that broke off in the middle isn't one.
        const auto error = reply_->error();
        const bool broken =
            error != QNetworkReply::NoError && error < QNetworkReply::ProxyConnectionRefusedError;
        if (whole && status.isValid() && !broken) {
            result.status = status.toInt();
            result.headers = Headers(*reply_);
            result.content = content_.toStdString();
        } else {
            const bool unknown = error == QNetworkReply::HostNotFoundError;
            result.errorCode = unknown ? QtHttp::notFound : QtHttp::lostConnection;
        }
        return result;
    }

    EventLoop& loop_;
    QNetworkReply* const reply_;
    const std::string url_;
    const std::function<void(const HttpReply&)> answer_;
    QByteArray content_;
    bool answered_ = false;
};

} // namespace

QtHttp::QtHttp(EventLoop& loop) : loop_(loop) {}
QtHttp::~QtHttp() = default;

void QtHttp::Get(const std::string& url, std::function<void(const HttpReply&)> reply) {
    const QUrl address(ToQt(url), QUrl::StrictMode);
    if (!address.isValid() || address.scheme() != u"http" || address.host().isEmpty()) {
        loop_.Post([url, reply = std::move(reply)] {
            HttpReply result;
            result.url = url;
            result.errorCode = notFound;
            reply(result);
        });
        return;
    }
    if (!manager_) {
        manager_ = std::make_unique<QNetworkAccessManager>();
        manager_->setProxy(QNetworkProxy::NoProxy);
    }
    new Exchange(loop_, manager_->get(Request(address)), url, std::move(reply));
}

} // namespace tessarolyne
