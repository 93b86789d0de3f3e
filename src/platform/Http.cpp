#include "platform/Http.h"

namespace tessarolyne {

void HTTPSocket::Get(const std::string& url) {
    service_.Get(url, [this, alive = std::weak_ptr(alive_)](const HttpReply& reply) {
        if (alive.expired()) {
            return;
        }
        if (reply.errorCode != 0) {
            Error(reply.errorCode);
        } else {
            PageReceived(reply.url, reply.status, reply.headers, reply.content);
        }
    });
}

} // namespace tessarolyne
