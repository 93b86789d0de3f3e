#include "platform/FolderItem.h"
#include "primes/RunFixture.h"
#include "primes/engine/PlainPrimeFile.h"
#include "primes/engine/Reference.h"

#include <doctest/doctest.h>

#include <utility>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

using Reference::Numbers;
using Reference::Primes;

std::string WrittenNumbers(const Numbers& numbers, int perLine) {
    PrimeTable table;
    REQUIRE(AppendAll(table, numbers));
    return Written(table, perLine);
}

struct BreakingFile final : InputFile {
    bool broken = false;
    FileStamp Stamp() const override { return {}; }
    std::size_t Read(std::span<char> bytes) override {
        if (std::exchange(broken, true)) {
            throw IOException("the disk is gone");
        }
        std::fill(bytes.begin(), bytes.end(), '3');
        return bytes.size();
    }
};

} // namespace

TEST_CASE("A header and lines of numbers with tabs between them are written") {
    const Numbers primes = Primes(100);
    CHECK(WrittenNumbers(primes, 10) == "Label : 25\n"
                                        "2\t3\t5\t7\t11\t13\t17\t19\t23\t29\n"
                                        "31\t37\t41\t43\t47\t53\t59\t61\t67\t71\n"
                                        "73\t79\t83\t89\t97\n");
    const Numbers four(primes.begin(), primes.begin() + 4);
    CHECK(WrittenNumbers(four, 2) == "Label : 4\n2\t3\n5\t7\n");
    CHECK(WrittenNumbers(four, 0) == "Label : 4\n2\t3\t5\t7\n");
    CHECK(WrittenNumbers(four, -3) == "Label : 4\n2\t3\t5\n7\n"); // a preferences file can say so
    CHECK(WrittenNumbers({}, 10) == "Label : 0\n");
    CHECK(WrittenNumbers({9007199254740993, UINT64_MAX}, 1) ==
          "Label : 2\n9007199254740992\n18446744073709551616\n");
}

TEST_CASE("A file that others wrote gives the numbers that it holds") {
    const std::pair<std::string, Numbers> cases[] = {
        {"", {}},
        {"x : 4\r2\t3\r5\t7\r", {2, 3, 5, 7}},
        {"\xEF\xBB\xBFx : 4\n2\t3\n", {2, 3}},
        {"\xEF\xBB\xBF\t\n2\t3\n", {2, 3}},
        {"2\t3 : 5\n7\n", {7}}, // data taken for a header
        {"2\t3:5\t7\n", {2, 3, 7}},
        {" 2\t  3\n", {2, 3}},
        {"2\t\t3\n5\t\n7\t0\t9\n1\t-3\t3\n4\tthree\t3\n", {2, 5, 7, 1, 4}}, // what ends a line
        {"2.7\t1e3\t.5e1\t+7\t1e\t3e+x\n", {2, 1000, 5, 7, 1, 3}},
        {"9007199254740993\n", {9007199254740992}},
        {"18446744073709551615\t99999999999999999999\t1e400\n", {UINT64_MAX, UINT64_MAX, UINT64_MAX}},
        {"1\t1\t9\t7\t7\n", {1, 1, 9, 7, 7}},
        {std::string("2\0\t3\t\0\n7\n", 9), {2, 3, 7}},
        {"00002\t00003\t00100005\t00100007\n", {2, 3, 100005, 100007}},
    };
    for (const auto& [bytes, numbers] : cases) {
        CAPTURE(bytes);
        for (const std::size_t chunkSize : {3U, 4U, 5U, 20U, 4096U}) {
            CHECK(ReadQuickly(bytes, chunkSize).numbers == numbers);
        }
        CHECK(ReadPlainly(bytes).numbers == numbers);
    }
}

TEST_CASE("Whatever ends the reading early is reported") {
    RecordingProgress progress;
    BreakingFile breaking;
    PrimeTable table;
    CHECK_THROWS_AS(ReadPrimeFile(breaking, table, progress), IOException);

    std::string text;
    for (int i = 0; i < 100'000; ++i) {
        text += i % 2 == 0 ? "9\t" : "999999\t";
    }
    MemoryInputFile first(text);
    CHECK_THROWS_AS(ReadPrimeFile(first, table, progress, 100'000, 4096), IOException);
    CHECK(table.Bytes() < 600'000);

    for (const int allocations : {0, 1, 4}) {
        ShortMemory memory(allocations);
        PrimeTable poor(&memory);
        MemoryInputFile second(text);
        CHECK_THROWS_AS(ReadPrimeFile(second, poor, progress), IOException);
        ShortMemory memoryForPrimes(allocations);
        PrimeTable poorInPrimes(&memoryForPrimes);
        MemoryInputFile third(WrittenNumbers(Primes(7'000'000), 10));
        CHECK_THROWS_AS(ReadPrimeFile(third, poorInPrimes, progress), IOException);
    }
}
