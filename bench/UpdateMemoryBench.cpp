// The memory that an update check takes over an idle program, when a server sends as much as it can, beside
// curl, which throws the same away. Ours is the whole program, UpdateMemoryCheck, in a process of its own for
// each check, since memory once taken is kept. Exits with 1 when a check takes more than the bar.

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <netinet/in.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr long barKiB = 8'000'000 / 1024;
const std::string versionFile = "Release Notes\rhttp://download.example/\rv.9\r";

[[noreturn]] void Stop(const char* reason) {
    std::fprintf(stderr, "%s\n", reason);
    std::exit(2);
}

// A server that answers each path in its own bad way, as quickly as the other side takes it.
class Server {
public:
    Server() {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* const place = reinterpret_cast<sockaddr*>(&address);
        if (bind(socket_, place, size) != 0 || listen(socket_, 4) != 0 ||
            getsockname(socket_, place, &size) != 0) {
            Stop("no server on the loopback");
        }
        site = "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port));
        std::thread([socket = socket_] { Serve(socket); }).detach();
    }

    std::string site;

private:
    static void Serve(int socket) {
        for (;;) {
            const int client = accept4(socket, nullptr, nullptr, SOCK_CLOEXEC);
            std::array<char, 4096> request{};
            const auto size = read(client, request.data(), request.size());
            Answer(
                client, std::string_view(request.data(), static_cast<std::size_t>(std::max<long>(size, 0))));
            close(client);
        }
    }

    static void Answer(int client, std::string_view request) {
        const bool endlessHeader = request.starts_with("GET /header ");
        const bool huge = request.starts_with("GET /huge ");
        std::string answer = "HTTP/1.1 200 OK\r\n";
        if (request.starts_with("GET /largest ")) {
            answer += "\r\n" + versionFile;
            answer.resize(std::size_t{256} * 1024, 'x');
            Send(client, answer);
            return;
        }
        answer += huge ? "Content-Length: 10000000000\r\n\r\n" : endlessHeader ? "" : "\r\n";
        const std::string more(std::size_t{64} * 1024, 'x');
        for (bool taken = Send(client, answer); taken;) {
            taken = Send(client, endlessHeader ? "Name: " + more + "\r\n" : more);
        }
    }

    static bool Send(int client, std::string_view bytes) {
        while (!bytes.empty()) {
            const auto sent = send(client, bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (sent <= 0) {
                return false;
            }
            bytes.remove_prefix(static_cast<std::size_t>(sent));
        }
        return true;
    }

    const int socket_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

long TakenByCheck(const std::string& url) {
    std::FILE* const child = popen(("'" UPDATE_MEMORY_CHECK "' " + url).c_str(), "r");
    long taken = 0;
    if (child == nullptr || std::fscanf(child, "%ld", &taken) != 1 || pclose(child) != 0) {
        Stop("a check did not end by itself");
    }
    return taken;
}

// The peak of another program, if it is above our own: a child counts from what its parent holds.
long PeakKiB(std::vector<std::string> command) {
    std::vector<char*> arguments;
    for (std::string& argument : command) {
        arguments.push_back(argument.data());
    }
    arguments.push_back(nullptr);
    pid_t id = 0;
    if (posix_spawn(&id, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) {
        Stop("can't start a process");
    }
    int status = 0;
    rusage usage{};
    if (wait4(id, &status, 0, &usage) != id || !WIFEXITED(status)) {
        Stop("a process did not end by itself");
    }
    return usage.ru_maxrss;
}

} // namespace

int main() {
    const Server server;
    const std::vector<std::string> curl = {CURL, "--silent", "--output", "/dev/null", "--max-time", "2"};
    std::vector<std::string> nothing = curl;
    nothing.push_back("file:///dev/null");
    const long curlIdle = PeakKiB(nothing);
    std::printf("KiB over idle (bar: %ld)\n%-28s %12s %12s\n", barKiB, "", "Tessarolyne", "curl");
    bool held = true;
    for (const char* path : {"/largest", "/huge", "/endless", "/header"}) {
        const long ours = TakenByCheck(server.site + path);
        std::vector<std::string> peer = curl;
        peer.push_back(server.site + path);
        const long theirs = PeakKiB(peer) - curlIdle;
        held = held && ours <= barKiB;
        std::printf("%-28s %12ld %12ld%s\n", path, ours, theirs, ours <= barKiB ? "" : "  above the bar");
    }
    return held ? EXIT_SUCCESS : EXIT_FAILURE;
}
