#pragma once

#include "platform/Http.h"

#include <optional>
#include <string_view>

namespace tessarolyne {

// What a server answers to a GET by HTTP/1.0 (RFC 9112): a status line, headers, an empty line, and a page
// that ends with its length, or else with the connection. Lines end with CR LF or LF; any bytes are allowed.
// Nothing if that isn't whole; `closed` says that no more bytes will come. Interim answers and codings of the
// transfer, which no server may send to one who asks by HTTP/1.0, make it none.
std::optional<HttpReply> ReadHttpAnswer(std::string_view bytes, bool closed);

} // namespace tessarolyne
