#include "platform/IOException.h"
#include "primes/PlainPrimeFile.h"
#include "primes/PrimeGrowth.h"

#include <doctest/doctest.h>

#include <cmath>
#include <new>
#include <random>
#include <utility>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

using Numbers = std::vector<std::uint64_t>;

void Fill(PrimeTable& table, const Numbers& numbers) {
    for (const std::uint64_t number : numbers) {
        REQUIRE(table.Append(number));
    }
}

Numbers PrimesBelow(std::uint64_t limit) {
    std::vector<bool> composite(limit);
    Numbers primes;
    for (std::uint64_t n = 2; n < limit; ++n) {
        if (!composite[n]) {
            primes.push_back(n);
            for (std::uint64_t multiple = n * n; multiple < limit; multiple += n) {
                composite[multiple] = true;
            }
        }
    }
    return primes;
}

std::string WrittenNumbers(const Numbers& numbers, int perLine) {
    PrimeTable table;
    Fill(table, numbers);
    return Written(table, perLine);
}

// Numbers of every length, near and far from each other, rising and falling.
Numbers OddNumbers() {
    std::mt19937_64 random(20261122);
    Numbers numbers;
    for (int digits = 1; digits <= 15; ++digits) {
        const auto end = static_cast<std::uint64_t>(std::pow(10, digits));
        for (std::uint64_t i = 0; i < 300; ++i) {
            numbers.push_back(1 + random() % (end - 1));
            numbers.push_back(std::max<std::uint64_t>(end, 500) - 400 + 2 * i);
        }
    }
    return numbers;
}

// The same bytes again and again, then an end.
class LongFile final : public InputFile {
public:
    LongFile(char repeated, std::size_t count, std::string end)
        : repeated_(repeated), left_(count), end_(std::move(end)) {}
    std::size_t Read(std::span<char> bytes) override {
        const std::size_t count = std::min(left_, bytes.size());
        std::fill_n(bytes.begin(), count, repeated_);
        left_ -= count;
        return count + end_.Read(bytes.subspan(count));
    }

private:
    char repeated_;
    std::size_t left_;
    MemoryInputFile end_;
};

class BreakingFile final : public InputFile {
public:
    std::size_t Read(std::span<char> bytes) override {
        if (std::exchange(broken_, true)) {
            throw IOException("the disk is gone");
        }
        std::fill(bytes.begin(), bytes.end(), '3');
        return bytes.size();
    }

private:
    bool broken_ = false;
};

// Gives so many bytes and no more.
class ScarceMemory final : public std::pmr::memory_resource {
public:
    explicit ScarceMemory(std::size_t bytes) : left_(bytes) {}

private:
    void* do_allocate(std::size_t bytes, std::size_t alignment) override {
        if (bytes > left_) {
            throw std::bad_alloc();
        }
        left_ -= bytes;
        return std::pmr::new_delete_resource()->allocate(bytes, alignment);
    }
    void do_deallocate(void* place, std::size_t bytes, std::size_t alignment) override {
        left_ += bytes;
        std::pmr::new_delete_resource()->deallocate(place, bytes, alignment);
    }
    bool do_is_equal(const memory_resource& other) const noexcept override { return this == &other; }
    std::size_t left_;
};

} // namespace

TEST_CASE("A header and lines of numbers with tabs between them are written") {
    const Numbers primes = PrimesBelow(100);
    CHECK(WrittenNumbers(primes, 10) == "Label : 25\n"
                                        "2\t3\t5\t7\t11\t13\t17\t19\t23\t29\n"
                                        "31\t37\t41\t43\t47\t53\t59\t61\t67\t71\n"
                                        "73\t79\t83\t89\t97\n");
    const Numbers four(primes.begin(), primes.begin() + 4);
    CHECK(WrittenNumbers(four, 10) == "Label : 4\n2\t3\t5\t7\n");
    CHECK(WrittenNumbers(four, 4) == "Label : 4\n2\t3\t5\t7\n");
    CHECK(WrittenNumbers(four, 2) == "Label : 4\n2\t3\n5\t7\n");
    CHECK(WrittenNumbers(four, 1) == "Label : 4\n2\n3\n5\n7\n");
    CHECK(WrittenNumbers(four, 0) == "Label : 4\n2\t3\t5\t7\n");
    CHECK(WrittenNumbers(four, -3) == "Label : 4\n2\t3\t5\n7\n"); // a preferences file can say so
    CHECK(WrittenNumbers({}, 10) == "Label : 0\n");
    CHECK(WrittenNumbers({9007199254740993, UINT64_MAX}, 1) ==
          "Label : 2\n9007199254740992\n18446744073709551616\n");
}

TEST_CASE("Numbers of any length in any order are written digit by digit") {
    const Numbers numbers = OddNumbers();
    std::string plain = "Label : " + std::to_string(numbers.size()) + "\n";
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        plain += std::to_string(numbers[i]) + (i % 7 == 6 || i + 1 == numbers.size() ? "\n" : "\t");
    }
    CHECK(WrittenNumbers(numbers, 7) == plain);
}

TEST_CASE("What was written is read again, at every length of the lines") {
    const Numbers primes = PrimesBelow(2'000'000);
    for (const Numbers& numbers : {primes, OddNumbers(), Numbers{2, 3, 5, 7, UINT64_MAX, 1, 9, 9, 9, 4}}) {
        for (const int perLine : {0, 1, 9, 10, static_cast<int>(numbers.size())}) {
            const std::string bytes = WrittenNumbers(numbers, perLine);
            CHECK(ReadQuickly(bytes, 256 * 1024).numbers == numbers);
            CHECK(ReadQuickly(bytes, 1000).numbers == numbers);
        }
    }
}

TEST_CASE("A file that others wrote gives the numbers that it holds") {
    struct Case {
        const char* name;
        std::string bytes;
        Numbers numbers;
    };
    const std::vector<Case> cases = {
        {"nothing", "", {}},
        {"no line end at the end", "x : 4\n2\t3\n5\t7", {2, 3, 5, 7}},
        {"carriage returns", "x : 4\r2\t3\r5\t7\r", {2, 3, 5, 7}},
        {"pairs", "x : 4\r\n2\t3\r\n5\t7\r\n", {2, 3, 5, 7}},
        {"byte order mark and header", "\xEF\xBB\xBFx : 4\n2\t3\n", {2, 3}},
        {"byte order mark and no header",
            "\xEF\xBB\xBF"
            "2\t3\n",
            {2, 3}},
        {"no header", "2\t3\n5\t7\n", {2, 3, 5, 7}},
        {"data taken for a header", "2\t3 : 5\n7\n", {7}},
        {"only the first line is a header", "2\nx : 4\n3\n", {2, 3}},
        {"colon without blanks", "2\t3:5\t7\n", {2, 3, 7}},
        {"trailing blanks", "2 \t3  \n5 \n", {2, 3, 5}},
        {"leading blanks", " 2\t  3\n", {2, 3}},
        {"two tabs", "2\t\t3\n5\n", {2, 5}},
        {"leading tab", "\t2\t3\n5\n", {5}},
        {"trailing tab", "2\t3\t\n5\n", {2, 3, 5}},
        {"zero", "2\t0\t3\n5\n", {2, 5}},
        {"a fraction of one", "2\t0.9\t3\n5\n", {2, 5}},
        {"negative", "2\t-3\t3\n5\n", {2, 5}},
        {"text", "2\tthree\t3\n5\n", {2, 5}},
        {"fraction and exponent", "2.7\t1e3\t.5e1\t+7\t1e\t3e+x\n", {2, 1000, 5, 7, 1, 3}},
        {"beyond a double's exactness", "9007199254740993\n", {9007199254740992}},
        {"beyond 64 bits", "18446744073709551615\t99999999999999999999\t1e400\n",
            {UINT64_MAX, UINT64_MAX, UINT64_MAX}},
        {"1, repeated, falling", "1\t1\t9\t7\t7\n", {1, 1, 9, 7, 7}},
        {"zero bytes",
            std::string("2\0\t3\t\0"
                        "5\n7\n",
                10),
            {2, 3, 7}},
        {"leading zeros", "00002\t00003\t00100005\t00100007\n", {2, 3, 100005, 100007}},
    };
    for (const Case& bad : cases) {
        CAPTURE(bad.name);
        for (const std::size_t chunkSize : {3U, 4U, 5U, 20U, 4096U}) {
            CHECK(ReadQuickly(bad.bytes, chunkSize).numbers == bad.numbers);
        }
        CHECK(ReadPlainly(bad.bytes).numbers == bad.numbers);
    }
}

TEST_CASE("A line or a number of many megabytes is read like a short one") {
    constexpr std::size_t many = 20'000'000;
    const auto numbers = [](LongFile file) {
        PrimeTable table;
        RecordingProgress progress;
        ReadPrimeFile(file, table, progress);
        return NumbersOf(table);
    };
    CHECK(numbers({' ', many, "2\t3\n"}) == Numbers{2, 3});
    CHECK(numbers({'0', many, "2\t3\n"}) == Numbers{2, 3});
    CHECK(numbers({'7', many, "\t3\n"}) == Numbers{UINT64_MAX, 3});
    CHECK(numbers({'7', many, "e-19999999\t3\n"}) == Numbers{7, 3});
    CHECK(numbers({'x', many, "\n3\n"}) == Numbers{3});
    CHECK(numbers({'\t', many, "2\n3\n"}) == Numbers{3});
    // Taken for data until the mark turns up.
    CHECK(numbers({'7', many, "\t5 : 1\n2\t3\n"}) == Numbers{2, 3});
}

TEST_CASE("The indexes that are a multiple of a five hundredth of the count are told") {
    RecordingProgress progress;
    TextFile file;
    PrimeTable table;
    Fill(table, PrimesBelow(10'000)); // 1229 primes: every second one
    WritePrimeFile(table, "Label", 10, file, progress);
    CHECK(progress.maximum == 1229);
    REQUIRE(progress.reached.size() == 614);
    CHECK(progress.reached.front() == 2);
    CHECK(progress.reached.back() == 1228);
    CHECK(ReadQuickly(file.text, 1000).reached.size() == 615);

    PrimeTable small;
    Fill(small, {2, 3, 5, 7});
    WritePrimeFile(small, "Label", 10, file, progress);
    CHECK(progress.reached == std::vector<std::int64_t>{1, 2, 3});
    for (const std::string header : {"x : 4", "x : 0", "x : ", "x : -5000", "x : 499"}) {
        CHECK(ReadQuickly(header + "\n2\t3\t5\t7\n", 4096).reached == std::vector<std::int64_t>{0});
    }
    CHECK(ReadQuickly("x : 1000\n2\t3\t5\t7\n", 4096).reached == std::vector<std::int64_t>{0, 2});
    CHECK(ReadQuickly("x : 1e300\n2\t3\t5\t7\n", 4096).maximum == INT64_MAX);
    CHECK(ReadQuickly("2\t3\t5\t7\n", 4096).maximum == 200'000);
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
    CHECK(table.Bytes() < 300'000);

    for (const std::size_t bytes : {0U, 100'000U, 300'000U}) {
        ScarceMemory memory(bytes);
        PrimeTable poor(&memory);
        MemoryInputFile second(text);
        CHECK_THROWS_AS(ReadPrimeFile(second, poor, progress), IOException);
        ScarceMemory memoryForPrimes(bytes);
        PrimeTable poorInPrimes(&memoryForPrimes);
        MemoryInputFile third(WrittenNumbers(PrimesBelow(7'000'000), 10));
        CHECK_THROWS_AS(ReadPrimeFile(third, poorInPrimes, progress), IOException);
    }
}

TEST_CASE("The four first entries tell whether a table is one of primes") {
    const auto start = [](const Numbers& numbers) {
        PrimeTable table;
        Fill(table, numbers);
        return StartOf(table);
    };
    CHECK(start({2, 3, 5, 7}) == TableStart::Primes);
    CHECK(start({2, 3, 5, 7, 1}) == TableStart::Primes);
    CHECK(start({2, 3, 5}) == TableStart::Short);
    CHECK(start({2}) == TableStart::Short);
    CHECK(start({}) == TableStart::Empty);
    CHECK(start({4}) == TableStart::Other);
    CHECK(start({2, 3, 5, 8}) == TableStart::Other);
}

TEST_CASE("Entries are copied from any rank on, as many as there are and have room") {
    Numbers numbers = PrimesBelow(10'000);
    numbers.insert(numbers.end(), {UINT64_MAX, 4, 6});
    PrimeTable table;
    Fill(table, numbers);
    for (std::size_t rank = 0; rank < numbers.size(); rank += 37) {
        Numbers copied(300);
        const auto count = static_cast<std::size_t>(table.CopyTo(static_cast<std::int32_t>(rank), copied));
        CHECK(count == std::min(copied.size(), numbers.size() - rank));
        CHECK(std::equal(copied.begin(), copied.begin() + static_cast<std::ptrdiff_t>(count),
            numbers.begin() + static_cast<std::ptrdiff_t>(rank)));
    }
}

TEST_CASE("A table that was loaded grows like one that was computed") {
    const Numbers primes = PrimesBelow(100'000);
    PrimeTable table;
    RecordingProgress progress;
    MemoryInputFile file(WrittenNumbers(Numbers(primes.begin(), primes.begin() + 5000), 10));
    ReadPrimeFile(file, table, progress);
    CHECK(table.ConsecutiveCount() == 0);

    class Still final : public Clock, public MemoryLimits {
        std::int64_t Milliseconds() const override { return 0; }
        Date Now() const override { return {}; }
        std::uint64_t AvailableBytes() const override { return std::uint64_t{1} << 30U; }
    } still;
    std::atomic<bool> stop = false;
    RunControl run(stop, still, still);
    NbresPremCalc(table, 99'991, run);
    CHECK(NumbersOf(table) == primes);
}
