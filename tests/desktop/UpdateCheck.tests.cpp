// The update check from the menu's command to its dialog, over real HTTP with a server of this process, which
// may answer whatever it likes. The deadline is the virtual clock's, so that nothing waits for it.
#include "app/Version.h"
#include "desktop/QtHttp.h"
#include "platform/MenuBar.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

enum class Server {
    Answers,    // and closes
    Refuses,    // the connection
    IsSilent,   // after it took the request
    Trickles,   // its answer, a byte at a time
    NeverStops, // repeating its answer's last part
};

// One connection after the other, each answered alike.
class Loopback {
public:
    Loopback(Server behaviour, std::string answer, std::string repeated)
        : behaviour_(behaviour), answer_(std::move(answer)), repeated_(std::move(repeated)) {
        REQUIRE(server_.listen(QHostAddress::LocalHost));
        site = "http://127.0.0.1:" + std::to_string(server_.serverPort());
        if (behaviour == Server::Refuses) {
            server_.close();
        }
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { Take(); });
    }

    std::string site;
    std::vector<std::string> requests; // each up to the empty line
    std::size_t sent = 0;

private:
    void Take() {
        QTcpSocket* const socket = server_.nextPendingConnection();
        requests.emplace_back();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            requests.back() += socket->readAll().toStdString();
            if (requests.back().ends_with("\r\n\r\n")) {
                Answer(*socket);
            }
        });
    }

    void Answer(QTcpSocket& socket) {
        if (behaviour_ == Server::Answers) {
            socket.write(answer_.data(), static_cast<qint64>(answer_.size()));
            socket.disconnectFromHost();
        } else if (behaviour_ == Server::NeverStops) {
            socket.write(answer_.data(), static_cast<qint64>(answer_.size()));
            QObject::connect(
                &socket, &QTcpSocket::bytesWritten, &socket, [this, &socket] { Repeat(socket); });
        } else if (behaviour_ == Server::Trickles) {
            auto* const drip = new QTimer(&socket);
            QObject::connect(drip, &QTimer::timeout, &socket, [this, &socket] {
                socket.write(&answer_.at(sent++ % answer_.size()), 1);
                socket.flush();
            });
            drip->start(1);
        }
    }

    void Repeat(QTcpSocket& socket) {
        socket.write(repeated_.data(), static_cast<qint64>(repeated_.size()));
        sent += repeated_.size();
    }

    const Server behaviour_;
    const std::string answer_;
    const std::string repeated_;
    QTcpServer server_;
};

// The program in the tests' world, but for the network.
struct NetworkWorld {
    explicit NetworkWorld(const std::string& site) : http(world.loop) {
        world.files.AddFile("/home/user/.config/Tessarolyne Prefs.txt", "Deja Envoye Don 03 :@: True\n");
        world.program = std::make_unique<Program>(services, site + "/prg/Xojo/Tessarolyne_V.txt");
        world.program->Start();
    }
    ~NetworkWorld() { world.program.reset(); } // it knows the services below

    void ChooseCheck() { world.program->app.GetMenuBar()->Find("AppleVMaJ")->UserChose(world.program->app); }
    // Lets Qt work, and no virtual time pass, until `done`.
    void Until(const std::function<bool()>& done) {
        QElapsedTimer real;
        real.start();
        while (!done()) {
            REQUIRE_MESSAGE(real.elapsed() < 20'000, "nothing came");
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            world.loop.Advance(0);
        }
    }
    bool ReplyIsThere() const { return !world.program->fncts.TexteVerMaJ.empty(); }

    TestWorld world{TestWorld::Launch::NotYet};
    QtHttp http;
    Services services{world.loop, world.loop, world.stage, world.dialogs, world.desktop, world.sounds, http,
        world.files, world.memory};
};

struct QtHere {
    int count = 1;
    char name[6] = "tests";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{count, arguments};
};

std::string Page(const std::string& content, const std::string& status = "200 OK",
    const std::string& moreHeaders = "", std::size_t missing = 0) {
    return "HTTP/1.1 " + status + "\r\n" + moreHeaders +
           "Content-Length: " + std::to_string(content.size() + missing) + "\r\n\r\n" + content;
}

const std::string download = "http://download.example/";

std::string File(const std::string& version, const std::string& address = download) {
    return "Release Notes\r" + address + "\r" + version + "\r-- One";
}

} // namespace

TEST_CASE("Whatever a server does, the check ends in time with the truth and opens nothing else") {
    QtHere qt;
    const std::string isNew = Localisation::Txt_Ver_Nouv();
    const std::string isSame = Localisation::Txt_Ver_a_jour();
    const std::string isBad = Localisation::Txt_Ver_MaJ_impo();
    const std::string here = std::string("v.") + shortVersion;
    const std::string lost = "Server Error 102";
    const std::string html = "<!DOCTYPE html><script>location='http://evil.example'</script>";
    const std::string bidi = "\u202Ehttp://evil.example\u202C\x1B]8;;\a";
    const std::string megabyte(std::size_t{1} << 20, 'x');
    const std::string rest(std::size_t{256} * 1024 - Page(File("v.9")).size() - 4, 'x'); // the length grows
    const auto opens = [](const std::string& address) { return Page(File("v.9", address)); };
    struct Case {
        std::string what;
        Server server;
        std::string answer;
        std::string message;
        std::string explanation;
        std::string opened = {}; // by the action button; empty: nothing
        std::string told = {};   // an address that is shown instead
        std::string repeated = {};
    };
    using enum Server;
    const std::string news = "v.9\n• One";
    const Case cases[] = {
        {"good", Answers, Page(File(here)), isSame, here},
        {"new", Answers, Page(File("v.9")), isNew, news, download},
        {"no length", Answers, "HTTP/1.0 200 OK\r\n\r\n" + File("v.9"), isNew, news, download},
        {"an error's page", Answers, Page(html, "404 Not Found"), isBad, ""},
        {"an error's page that is right", Answers, Page(File("v.9"), "500 Oh"), isNew, news, download},
        {"cut off", Answers, Page(File("v.9"), "200 OK", "", 1), isBad, lost},
        {"cut off in the header", Answers, "HTTP/1.1 200 OK\r\nContent-", isBad, lost},
        {"closed at once", Answers, "", isBad, lost},
        {"another protocol", Answers, "220 mail.example ESMTP\r\n", isBad, lost},
        {"redirected", Answers, Page("", "302 Found", "Location: /other\r\n"), isBad, ""},
        {"asking for a password", Answers,
            Page(html, "401 No", "WWW-Authenticate: Basic realm=\"Your password\"\r\n"), isBad, ""},
        {"packed", Answers, Page("\x1F\x8B\x08rest", "200 OK", "Content-Encoding: gzip\r\n"), isBad, ""},
        {"binary", Answers, Page(std::string("\x89PNG\r\n\x1A\n\0\0\xFF\xFE", 12)), isBad, ""},
        {"control and direction characters", Answers, Page(File("v." + bidi)), isNew, "v." + bidi + "\n• One",
            download},
        {"an address with user information", Answers, opens("http://a@b/"), isNew, news, "", "http://a@b/"},
        {"the largest page", Answers, Page(File("v.9") + rest), isNew, news + rest, download},
        {"one byte more", Answers, Page(File("v.9") + rest + "x"), isBad, lost},
        {"endless", NeverStops, "HTTP/1.1 200 OK\r\n\r\n" + File("v.9"), isBad, lost, "", "", megabyte},
        {"refused", Refuses, "", isBad, lost},
        {"silent", IsSilent, "", isBad, lost},
        {"slow", Trickles, Page(File("v.9") + megabyte), isBad, lost},
        {"an endless header", NeverStops, "HTTP/1.1 200 OK\r\n", isBad, lost, "", "", "X: y\r\n"},
    };
    for (const Case& c : cases) {
        CAPTURE(c.what);
        Loopback loopback(c.server, c.answer, c.repeated);
        NetworkWorld network(loopback.site);
        TestWorld& world = network.world;
        network.ChooseCheck();
        if (c.server == IsSilent || c.server == Trickles) {
            const std::size_t enough = c.server == Trickles ? 20 : 0;
            const auto asked = [&] { return !loopback.requests.empty() && loopback.sent >= enough; };
            network.Until(asked);
            world.loop.Advance(5000);
            loopback.sent = 0;
            network.Until(asked);
            world.loop.Advance(4999);
            CHECK_FALSE(network.ReplyIsThere());
            world.loop.Advance(1);
        }
        network.Until([&] { return network.ReplyIsThere(); });
        world.dialogs.Expect(DialogButton::Action);
        if (!c.told.empty()) {
            world.dialogs.ExpectTell();
        }
        world.loop.Advance(1);
        CHECK(world.dialogs.asked.at(0).message == c.message);
        CHECK(world.dialogs.asked.at(0).explanation == c.explanation);
        CHECK(
            world.desktop.opened == (c.opened.empty() ? std::vector<std::string>() : std::vector{c.opened}));
        CHECK(world.dialogs.told == (c.told.empty() ? std::vector<std::string>() : std::vector{c.told}));
        if (c.server != Refuses) {
            CHECK(loopback.requests == std::vector{"GET /prg/Xojo/Tessarolyne_V.txt HTTP/1.0\r\nHost: " +
                                                   loopback.site.substr(7) + "\r\n\r\n"});
        }
    }
}
