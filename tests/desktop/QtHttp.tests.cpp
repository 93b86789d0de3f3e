// Over real HTTP with a server of this process, which may answer whatever it likes. Time is the virtual
// clock's, so that nothing waits for it.
#include "desktop/Offscreen.h"
#include "desktop/QtServices.h"
#include "support/VirtualLoop.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

using namespace tessarolyne;

namespace {

// One connection after the other, each answered alike. One that isn't closed goes on with what is repeated,
// which may be nothing.
class Loopback : public QTcpServer {
public:
    explicit Loopback(const std::string& answer, bool closes = true, const std::string& repeated = "") {
        REQUIRE(listen(QHostAddress::LocalHost));
        QObject::connect(this, &QTcpServer::newConnection, this, [=, this] {
            QTcpSocket* const socket = nextPendingConnection();
            requests.emplace_back();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [=, this] {
                requests.back() += socket->readAll().toStdString();
                if (requests.back().ends_with("\r\n\r\n")) {
                    socket->write(QByteArray::fromStdString(answer));
                    if (closes) {
                        return socket->disconnectFromHost();
                    }
                    QObject::connect(socket, &QTcpSocket::bytesWritten, socket,
                        [=] { socket->write(QByteArray::fromStdString(repeated)); });
                }
            });
        });
    }

    std::string Authority(const std::string& host) const { return host + ":" + std::to_string(serverPort()); }

    std::vector<std::string> requests; // each up to the empty line
};

// A client on Qt's sockets and a clock that stands still.
struct Client {
    explicit Client(HostResolver resolver = SystemAddresses) : http(loop, std::move(resolver)) { UseQt(); }

    void Get(const std::string& url) {
        http.Get(url, [this](const HttpReply& reply) { replies.push_back(reply); });
    }
    // Lets Qt work, and no virtual time pass, until `done`.
    void Until(const std::function<bool()>& done) {
        QElapsedTimer real;
        real.start();
        while (!done()) {
            REQUIRE_MESSAGE(real.elapsed() < 20'000, "nothing came");
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            loop.Advance(0);
        }
    }
    const HttpReply& Reply(std::size_t number = 1) {
        Until([&] { return replies.size() == number; });
        return replies.back();
    }

    VirtualLoop loop;
    std::vector<HttpReply> replies;
    QtHttp http;
};

std::string Page(const std::string& content, const std::string& moreHeaders = "") {
    return "HTTP/1.1 200 OK\r\n" + moreHeaders + "Content-Length: " + std::to_string(content.size()) +
           "\r\n\r\n" + content;
}

} // namespace

TEST_CASE("Whatever a server does, it is asked once, and the answer is its whole page or none, in time") {
    const std::string ok = "HTTP/1.1 200 OK\r\n";
    const std::string rest(std::size_t{256} * 1024 - Page("page").size() - 5, 'x'); // the length grows
    const std::string megabyte(std::size_t{1} << 20, 'x');
    const std::string none;
    const struct {
        std::string what, answer, content; // no content: error 102
        bool closes = true;
        std::string repeated = {};
    } rows[] = {
        {"its length", Page("page") + "more", "page"},
        {"no length", "HTTP/1.0 200 OK\r\nX: y\r\n\r\npage", "page"},
        {"an error's page", "HTTP/1.1 404 No\r\n\r\n<html>", "<html>"},
        {"redirected", "HTTP/1.1 302 Found\r\nLocation: /other\r\n\r\n-", "-"},
        {"LF alone", "HTTP/1.1 200\nContent-Length: 1\n\np", "p"},
        {"binary", Page(std::string("\0\r\n\r\n\xFF", 6)), std::string("\0\r\n\r\n\xFF", 6)},
        {"the largest page", Page("page" + rest), "page" + rest},
        {"one byte more", Page("page" + rest + "x"), none},
        {"cut off", ok + "Content-Length: 5\r\n\r\npage", none},
        {"chunks", ok + "transfer-encoding: Chunked\r\n\r\n4\r\npage\r\n0\r\n\r\n", none},
        {"an interim answer", "HTTP/1.1 100 Go\r\n\r\n" + Page("p"), none},
        {"a length that is none", ok + "Content-Length: -4\r\n\r\npage", none},
        {"two lengths", Page("page", "Content-Length: 3\r\n"), none},
        {"closed at once", "", none},
        {"another protocol", "220 mail.example ESMTP\r\n\r\n", none},
        {"refused", "", none},
        {"slow", Page("pag").substr(0, 40), none, false},
        {"whole, and not closed", Page("page"), "page", false},
        {"endless", ok + "\r\n", none, false, megabyte},
        {"an endless header", ok, none, false, "X: y\r\n"},
    };
    for (const auto& row : rows) {
        CAPTURE(row.what);
        Client client;
        Loopback server(row.answer, row.closes, row.repeated);
        const std::vector<std::string> request = {
            "GET /a?b HTTP/1.0\r\nHost: " + server.Authority("127.0.0.1") + "\r\n\r\n"};
        const bool isRefused = row.what == "refused";
        if (isRefused) {
            server.close();
        }
        client.Get("http://" + server.Authority("127.0.0.1") + "/a?b");
        if (!row.closes && row.repeated.empty()) {
            client.Until([&] { return server.requests == request; });
            client.loop.Advance(9999);
            CHECK(client.replies.empty());
            client.loop.Advance(1);
        }
        CHECK(client.Reply().errorCode == (row.content.empty() ? QtHttp::lostConnection : 0));
        CHECK(client.Reply().content == row.content);
        CHECK(server.requests == (isRefused ? decltype(request)() : request));
        client.loop.Advance(60'000);
        CHECK(client.replies.size() == 1);
    }
}

TEST_CASE(
    "The next address of a host has its turn at a refusal or after 250 ms, an unknown host none, and nothing "
    "waits at the end for a name server that doesn't answer") {
    UseQt();
    std::promise<void> end;
    const auto ended = end.get_future().share();
    Loopback server(Page("page"));
    const QHostAddress live(QHostAddress::LocalHost);
    const QHostAddress dead(QStringLiteral("127.0.0.2")); // whose queue is full: it drops what comes
    QTcpServer full;
    std::optional<Client> clients(std::in_place, [ended, live, dead](const QByteArray& host) {
        if (host == "silent.example") {
            ended.wait();
        }
        return host == "none.example"      ? std::vector<QHostAddress>()
               : host == "refused.example" ? std::vector{QHostAddress(QStringLiteral("127.0.0.3")), live}
                                           : std::vector{dead, dead, live};
    });
    Client& client = *clients;
    full.setListenBacklogSize(0);
    REQUIRE(full.listen(dead, server.serverPort()));
    full.pauseAccepting();
    QTcpSocket filler;
    filler.connectToHost(dead, server.serverPort());
    client.Until([&] { return filler.state() == QAbstractSocket::ConnectedState; });

    client.Get("http://" + server.Authority("dead.example") + "/");
    client.Until([&] { return client.loop.Alarms() == 2; }); // the deadline and the next address
    client.loop.Advance(499);
    QCoreApplication::processEvents();
    CHECK(server.requests.empty());
    client.loop.Advance(1);
    CHECK(client.Reply().content == "page");
    client.Get("http://" + server.Authority("refused.example") + "/");
    CHECK(client.Reply(2).content == "page");
    client.Get("http://" + server.Authority("none.example") + "/");
    CHECK(client.Reply(3).errorCode == QtHttp::notFound);
    client.Get("http://" + server.Authority("silent.example") + "/");
    clients.reset();
    end.set_value();
}
