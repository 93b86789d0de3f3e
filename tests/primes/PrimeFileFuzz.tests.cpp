#include <doctest/doctest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t limit) {
    return random() % limit;
}

// Bytes on which a reader of numbers may stumble.
const std::vector<std::string> pieces = {"\r", "\n", "\r\n", "\t", "\t\t", " : ", " :", ": ", "\xEF\xBB\xBF",
    "-", "+", ".", " ", "e", "e5", "E-3", "0", "00000000", "999999999999", "99999999999999999999",
    "9007199254740993", "0.0000001e9", std::string(1, '\0'), "x",
    "1000003\t1000033\t1000037\t1000039\t1000081\t1000099\t", "/", "10000000001\t10000000003\t"};

// Rows as the program writes them: numbers that rise by small even gaps, of any length.
std::string Rows(Random& random) {
    std::string text = Below(random, 2) == 0 ? "x : 1000\n" : "";
    std::uint64_t number = 1;
    for (auto digits = Below(random, 15); digits > 0; --digits) {
        number = number * 10 + Below(random, 10);
    }
    for (auto count = 1 + Below(random, 60); count > 0; --count) {
        text += std::to_string(number) + (count % 7 == 0 ? '\n' : '\t');
        number += 2 * Below(random, 40);
    }
    return text;
}

std::string Mutated(std::string text, Random& random) {
    for (std::size_t changes = Below(random, 4); changes > 0; --changes) {
        const auto place = Below(random, text.size() + 1);
        switch (Below(random, 4)) {
        case 0:
            text.erase(place, Below(random, 20));
            break;
        case 1:
            text.insert(place, text.substr(Below(random, text.size() + 1), Below(random, 80)));
            break;
        case 2:
            if (place < text.size()) {
                text[place] = static_cast<char>(Below(random, 256));
            }
            break;
        default:
            text.insert(place, pieces[Below(random, pieces.size())]);
        }
    }
    return text;
}

} // namespace

TEST_CASE("Any bytes whatever give the numbers that a plain reader finds in them") {
    Random random(20261122);
    int runs = 0;
    for (; runs < 10'000; ++runs) {
        const std::string bytes = Mutated(Rows(random), random);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    CHECK(runs == 10'000);
}
