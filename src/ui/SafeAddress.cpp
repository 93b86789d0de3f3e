#include "ui/SafeAddress.h"

#include <regex>

namespace tessarolyne {

namespace {

std::regex SafeAddress() {
    // What may follow the host or "mailto:". A backslash isn't among it: browsers read it as a slash, so that
    // it could part off another host than the one seen here.
    const std::string plain = "[-A-Za-z0-9._~:/?@!$&'()*+,;=]*";
    const std::string text = plain + "(?:%[0-9A-Fa-f]{2}" + plain + ")*";
    const std::string fragment = "(?:#" + text + ")?";
    // Four numbers up to 255 without leading zeros.
    const std::string byte = "(?:25[0-5]|2[0-4][0-9]|1[0-9]{2}|[1-9]?[0-9])";
    const std::string dottedNumber = byte + "(?:\\." + byte + "){3}";
    // A name of the domain system: labels of letters, digits, hyphens and underscores. No other number:
    // browsers take a host for one whose last label is a number, maybe in hexadecimal (WHATWG URL), and
    // 2130706433, 0177.1 and 0x7f.1 lead to 127.0.0.1 too, and don't look like it.
    const std::string label = "[-A-Za-z0-9_]+";
    const std::string number = "(?:[0-9]+|0[xX][0-9A-Fa-f]*)(?!" + label + ")";
    const std::string name = "(?:" + label + "\\.)*(?!" + number + ")" + label + "\\.?";
    const std::string inBrackets = "\\[[0-9A-Fa-f:.]{2,}\\]";
    const std::string upTo65535 =
        "(?:[1-5]?[0-9]{1,4}|6[0-4][0-9]{3}|65[0-4][0-9]{2}|655[0-2][0-9]|6553[0-5])";
    const std::string port = "(?::(?!0+(?![0-9]))0*" + upTo65535 + ")?";
    // User information would show as an "@" in front of the host, which has none.
    return std::regex("https?://(?:" + dottedNumber + "|" + name + "|" + inBrackets + ")" + port + "(?:[/?]" +
                      text + ")?" + fragment + "|mailto:(?=.)" + text + fragment);
}

} // namespace

bool IsSafeAddress(std::string_view address) {
    static const std::regex safeAddress = SafeAddress();
    return address.size() <= longestAddress && std::regex_match(address.begin(), address.end(), safeAddress);
}

} // namespace tessarolyne
