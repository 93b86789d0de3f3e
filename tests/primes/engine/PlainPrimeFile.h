#pragma once

#include "platform/Numbers.h"
#include "primes/RunFixture.h"
#include "primes/engine/PrimeFile.h"
#include "support/MemoryFileSystem.h"

#include <sstream>

namespace tessarolyne {

// What is in a prime file and what is told while it is read.
struct PrimeFileReading {
    std::vector<std::uint64_t> numbers;
    std::int64_t maximum = -1;
    std::vector<std::int64_t> reached;

    bool operator==(const PrimeFileReading&) const = default;
};

// A reader that takes the whole file apart line by line and field by field: slow, and plainly the format.
inline PrimeFileReading ReadPlainly(std::string bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.erase(0, 3);
    }
    std::replace(bytes.begin(), bytes.end(), '\r', '\n'); // CRLF makes an empty line, which says nothing
    std::istringstream lines(bytes);
    PrimeFileReading reading;
    reading.maximum = 200'000;
    std::string line;
    for (bool isFirst = true; std::getline(lines, line); isFirst = false) {
        if (const auto mark = line.find(" : "); isFirst && mark != std::string::npos) {
            const auto count = ToUInt64(Val(line.substr(mark + 3)));
            reading.maximum = static_cast<std::int64_t>(std::min<std::uint64_t>(count, INT64_MAX));
            continue;
        }
        const std::int64_t step = reading.maximum / 500;
        std::istringstream fields(line);
        std::uint64_t number = 0;
        for (std::string field; std::getline(fields, field, '\t') && (number = ToUInt64(Val(field))) != 0;) {
            const auto index = static_cast<std::int64_t>(reading.numbers.size());
            if (step == 0 ? index == 0 : index % step == 0) {
                reading.reached.push_back(index);
            }
            reading.numbers.push_back(number);
        }
    }
    return reading;
}

// Remembers what it is told.
struct RecordingProgress final : PrimeFileProgress {
    void Expect(std::int64_t maximum) override { reading.maximum = maximum; }
    void Reach(std::int64_t index) override { reading.reached.push_back(index); }
    PrimeFileReading reading;
};

inline PrimeFileReading ReadQuickly(const std::string& bytes, std::size_t chunkSize) {
    MemoryInputFile file(bytes);
    PrimeTable table;
    RecordingProgress progress;
    ReadPrimeFile(file, table, progress, UINT64_MAX, chunkSize);
    progress.reading.numbers = Entries(table);
    return progress.reading;
}

inline std::string Written(const PrimeTable& table, int perLine) {
    MemoryFileSystem files;
    PrimeFileProgress nobody;
    const auto file = files.CreateSafely("/file", LinkPolicy::ReplaceTarget);
    WritePrimeFile(table, "Label", perLine, *file, nobody);
    file->Commit();
    return files.entries["/file"].content;
}

} // namespace tessarolyne
