#include "fuzz/Fuzz.h"
#include "primes/engine/PlainPrimeFile.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

namespace {

using Reference::Numbers;
using Reference::Primes;

std::string WrittenNumbers(const Numbers& numbers, int perLine) {
    return Written(TableOf(numbers), perLine);
}

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

TEST_CASE("Any bytes whatever give the numbers that a plain reader finds in them") {
    // Rows as the program writes them: numbers that rise by small even gaps, of any length.
    const auto rows = [](Random& random) {
        std::string text = random() % 2 == 0 ? "x : 1000\n" : "";
        std::uint64_t number = 1;
        for (auto digits = random() % 15; digits > 0; --digits) {
            number = number * 10 + random() % 10;
        }
        for (auto count = 1 + random() % 60; count > 0; --count) {
            text += std::to_string(number) + (count % 7 == 0 ? '\n' : '\t');
            number += 2 * (random() % 40);
        }
        return text;
    };
    RunOnDamaged(rows,
        {"\r", "\n", "\r\n", "\t", "\t\t", " : ", " :", ": ", "\xEF\xBB\xBF", "-", "+", ".", " ", "e", "e5",
            "E-3", "0", "00000000", "999999999999", "99999999999999999999", "9007199254740993", "0.0000001e9",
            std::string(1, '\0'), "x", "1000003\t1000033\t1000037\t1000039\t1000081\t1000099\t", "/",
            "10000000001\t10000000003\t"},
        10'000);
}

TEST_CASE("A reading ends where the memory or the table does") {
    PrimeFileProgress nobody;
    std::string text;
    for (int i = 0; i < 100'000; ++i) {
        text += i % 2 == 0 ? "9\t" : "999999\t";
    }
    PrimeTable table;
    MemoryInputFile limited(text);
    CHECK_THROWS_AS(ReadPrimeFile(limited, table, nobody, 100'000, 4096), IOException);
    CHECK(table.Bytes() < 600'000);
    for (const std::string& bytes : {text, WrittenNumbers(Primes(7'000'000), 10)}) {
        for (const int allocations : {0, 1, 3}) {
            ShortMemory memory(allocations);
            PrimeTable poor(&memory);
            MemoryInputFile file(bytes);
            CHECK_THROWS_AS(ReadPrimeFile(file, poor, nobody), IOException);
        }
    }
}
