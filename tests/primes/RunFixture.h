#pragma once

#include "primes/engine/PrimeTable.h"
#include "primes/engine/RunControl.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <limits>
#include <memory_resource>
#include <new>
#include <vector>

namespace tessarolyne {

// Stands still until it has been asked `looksUntilLate` times; from then on it is past every time limit.
class CountingClock final : public Clock {
public:
    explicit CountingClock(std::int64_t looksUntilLate = std::numeric_limits<std::int64_t>::max())
        : left_(looksUntilLate) {}
    std::int64_t Milliseconds() const override { return left_-- > 0 ? 0 : 1'000'000; }
    Date Now() const override { return {}; }

private:
    mutable std::int64_t left_;
};

struct FixedMemory final : MemoryLimits {
    explicit FixedMemory(std::uint64_t available) : bytes(available) {}
    std::uint64_t AvailableBytes() const override { return bytes; }
    const std::uint64_t bytes;
};

// Everything a calculation needs, with nothing that ends it unless a test says so.
struct RunFixture {
    explicit RunFixture(std::int64_t looks = std::numeric_limits<std::int64_t>::max(),
        std::uint64_t availableBytes = std::uint64_t{4} << 30)
        : clock(looks), memory(availableBytes) {}

    std::atomic<bool> ArretUrg = false;
    CountingClock clock;
    FixedMemory memory;
    RunControl untimed{ArretUrg, clock, memory};
    RunControl timed{ArretUrg, clock, memory, 30};
};

// Refuses memory after a number of allocations.
class ShortMemory final : public std::pmr::memory_resource {
public:
    explicit ShortMemory(int allocations) : left(allocations) {}
    int left;

private:
    void* do_allocate(std::size_t bytes, std::size_t alignment) override {
        if (left-- <= 0) {
            throw std::bad_alloc();
        }
        return std::pmr::new_delete_resource()->allocate(bytes, alignment);
    }
    void do_deallocate(void* place, std::size_t bytes, std::size_t alignment) override {
        std::pmr::new_delete_resource()->deallocate(place, bytes, alignment);
    }
    bool do_is_equal(const memory_resource& other) const noexcept override { return this == &other; }
};

inline bool AppendAll(PrimeTable& table, const std::vector<std::uint64_t>& values) {
    return std::all_of(
        values.begin(), values.end(), [&](std::uint64_t value) { return table.Append(value); });
}

// A table of these numbers.
struct TableOf : PrimeTable {
    TableOf(const std::vector<std::uint64_t>& values = {2, 3, 5, 7}) {
        if (!AppendAll(*this, values)) {
            throw std::bad_alloc();
        }
    }
};

inline std::vector<std::uint64_t> Entries(const PrimeTable& table) {
    std::vector<std::uint64_t> values;
    if (table.Size() > 0) {
        PrimeTable::Cursor cursor(table, 0);
        do {
            values.push_back(cursor.Value());
        } while (cursor.Next());
    }
    return values;
}

} // namespace tessarolyne
