#include "desktop/WavLength.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cstdint>

namespace tessarolyne {

namespace {

// Longer than any sound of a desktop program; a broken header can't make anyone wait more.
constexpr std::int64_t longest = 10'000;

constexpr qsizetype chunkHeader = 8;
constexpr qsizetype formChunk = 12;       // "RIFF", the size, "WAVE"
constexpr qsizetype bytesPerSecondAt = 8; // in the "fmt " chunk

std::uint32_t NumberAt(const QByteArray& bytes, qsizetype at) {
    return at + 4 <= bytes.size() ? qFromLittleEndian<std::uint32_t>(bytes.constData() + at) : 0;
}

} // namespace

int WavMilliseconds(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray head = file.read(4096);
    if (!head.startsWith("RIFF") || head.mid(8, 4) != "WAVE") {
        return 0;
    }
    std::int64_t bytesPerSecond = 0;
    for (qsizetype at = formChunk; at + chunkHeader <= head.size();) {
        const QByteArray name = head.mid(at, 4);
        const std::int64_t size = NumberAt(head, at + 4);
        if (name == "fmt ") {
            bytesPerSecond = NumberAt(head, at + chunkHeader + bytesPerSecondAt);
        } else if (name == "data" && bytesPerSecond > 0) {
            return static_cast<int>(std::min(size * 1000 / bytesPerSecond, longest));
        }
        at += chunkHeader + static_cast<qsizetype>(size + size % 2);
    }
    return 0;
}

} // namespace tessarolyne
