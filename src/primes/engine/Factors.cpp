#include "primes/engine/Factors.h"

#include "primes/engine/PrimeGrowth.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>

namespace tessarolyne {

namespace {

// The number whose product with the odd `n` is 1 modulo 2^64. By Newton's iteration: each step doubles the
// right bits, of which n itself has three.
constexpr std::uint64_t InverseModulo2To64(std::uint64_t n) {
    std::uint64_t inverse = n;
    for (int step = 0; step < 5; ++step) {
        inverse *= 2 - n * inverse;
    }
    return inverse;
}

// The upper 64 bits of a product.
constexpr std::uint64_t HighHalf(std::uint64_t a, std::uint64_t b) {
#ifdef __SIZEOF_INT128__
    __extension__ using Wide = unsigned __int128;
    return static_cast<std::uint64_t>(Wide{a} * b >> 64);
#else // where the machine has 32 bits
    constexpr std::uint64_t low = 0xFFFFFFFF;
    const std::uint64_t middle = (a >> 32) * (b & low) + ((a & low) * (b & low) >> 32);
    const std::uint64_t other = (a & low) * (b >> 32) + (middle & low);
    return (a >> 32) * (b >> 32) + (middle >> 32) + (other >> 32);
#endif
}

// Products modulo one odd number without divisions (P. L. Montgomery, "Modular multiplication without trial
// division", 1985). Values are kept times 2^64; only sums, products and comparisons with One() and MinusOne()
// are needed here, so nothing ever converts back.
class Montgomery {
public:
    // `modulus` is odd and above 1.
    explicit Montgomery(std::uint64_t modulus)
        : modulus_(modulus), inverse_(InverseModulo2To64(modulus)), one_((~modulus + 1) % modulus),
          square_(PlusOne(one_)) {
        for (int power = 1; power < 64; power *= 2) {
            square_ = Multiply(square_, square_); // the form of 2^power becomes that of its square
        }
    }

    std::uint64_t One() const { return one_; }
    std::uint64_t MinusOne() const { return modulus_ - one_; }

    // The form of any number.
    std::uint64_t From(std::uint64_t value) const { return Multiply(value % modulus_, square_); }

    std::uint64_t Multiply(std::uint64_t a, std::uint64_t b) const {
        const std::uint64_t high = HighHalf(a, b);
        const std::uint64_t taken = HighHalf(a * b * inverse_, modulus_);
        return high < taken ? high - taken + modulus_ : high - taken;
    }

    // a + 1 in ordinary terms, for a form below the modulus.
    std::uint64_t PlusOne(std::uint64_t a) const {
        return a >= modulus_ - one_ ? a - (modulus_ - one_) : a + one_;
    }

private:
    std::uint64_t modulus_;
    std::uint64_t inverse_;
    std::uint64_t one_;
    std::uint64_t square_; // 2^128 mod modulus
};

constexpr std::uint64_t trialEnd = 512;

// The odd primes below trialEnd.
constexpr auto trialDivisors = [] {
    std::array<std::uint16_t, 96> primes{};
    std::size_t count = 0;
    for (std::uint16_t n = 3; n < trialEnd; n += 2) {
        if (std::none_of(
                primes.begin(), primes.begin() + count, [n](auto prime) { return n % prime == 0; })) {
            primes[count++] = n;
        }
    }
    return primes;
}();

bool PassesMillerRabin(const Montgomery& field, std::uint64_t n, std::uint64_t base) {
    std::uint64_t power = field.From(base);
    if (power == 0) {
        return true;
    }
    const int twos = std::countr_zero(n - 1);
    const std::uint64_t exponent = (n - 1) >> twos;
    const std::uint64_t factor = power;
    for (int bit = static_cast<int>(std::bit_width(exponent)) - 2; bit >= 0; --bit) {
        power = field.Multiply(power, power);
        if ((exponent >> bit) % 2 != 0) {
            power = field.Multiply(power, factor);
        }
    }
    if (power == field.One() || power == field.MinusOne()) {
        return true;
    }
    for (int i = 1; i < twos; ++i) {
        power = field.Multiply(power, power);
        if (power == field.MinusOne()) {
            return true;
        }
    }
    return false;
}

// For odd n that no trial divisor divides.
bool IsPrimeWithoutSmallFactor(std::uint64_t n) {
    if (n < trialEnd * trialEnd) {
        return true;
    }
    const Montgomery field(n);
    const auto passes = [&](std::uint64_t base) { return PassesMillerRabin(field, n, base); };
    // Bases that leave no composite below the bound: G. Jaeschke (1993).
    if (n < 1122004669633) {
        constexpr std::array<std::uint64_t, 4> bases = {2, 13, 23, 1662803};
        return std::all_of(bases.begin(), bases.end(), passes);
    }
    // And none below 2^64: J. Sinclair (2011), verified with J. Feitsma's list of pseudoprimes.
    constexpr std::array<std::uint64_t, 7> bases = {2, 325, 9375, 28178, 450775, 9780504, 1795265022};
    return std::all_of(bases.begin(), bases.end(), passes);
}

// A proper factor of the odd composite n, or n itself when the walk from `start` finds none.
// R. P. Brent, "An improved Monte Carlo factorization algorithm" (1980).
std::uint64_t FactorByWalk(std::uint64_t n, std::uint64_t start) {
    constexpr std::uint64_t stride = 64; // differences gathered before a greatest common divisor is taken
    const Montgomery field(n);
    const auto step = [&](std::uint64_t x) { return field.PlusOne(field.Multiply(x, x)); };
    const auto distance = [](std::uint64_t a, std::uint64_t b) { return a > b ? a - b : b - a; };
    std::uint64_t walker = field.From(start);
    std::uint64_t anchor = walker;
    std::uint64_t before = walker;
    std::uint64_t divisor = 1;
    for (std::uint64_t length = 1; divisor == 1; length *= 2) {
        anchor = walker;
        for (std::uint64_t i = 0; i < length; ++i) {
            walker = step(walker);
        }
        for (std::uint64_t done = 0; done < length && divisor == 1; done += stride) {
            before = walker;
            std::uint64_t product = field.One();
            for (std::uint64_t i = std::min(stride, length - done); i > 0; --i) {
                walker = step(walker);
                product = field.Multiply(product, distance(walker, anchor));
            }
            divisor = std::gcd(product, n);
        }
    }
    if (divisor == n) {
        do {
            before = step(before);
            divisor = std::gcd(distance(before, anchor), n);
        } while (divisor == 1);
    }
    return divisor;
}

// Adds the factors of n, which has none below trialEnd or is prime and below trialEnd squared.
void Split(std::uint64_t n, std::vector<std::uint64_t>& factors) {
    if (IsPrimeWithoutSmallFactor(n)) {
        factors.push_back(n);
        return;
    }
    std::uint64_t divisor = n;
    for (std::uint64_t start = 2; divisor == n; ++start) {
        divisor = FactorByWalk(n, start);
    }
    Split(divisor, factors);
    Split(n / divisor, factors);
}

// At least so many primes are not above `n`, to within a thousandth for large n; 0 below the formula's range.
// P. Dusart, "Estimates of some functions over primes without R.H." (2010): for x >= 88783,
// pi(x) >= x/ln x (1 + 1/ln x + 2/ln^2 x).
double LeastPrimeCount(std::uint64_t n) {
    const auto x = static_cast<double>(n);
    const double log = std::log(x);
    return n < 88783 ? 0 : x / log * (1 + 1 / log + 2 / (log * log));
}

// The largest size that the table may have at the end of a timed run.
std::int32_t TimedSize(const PrimeTable& table) {
    return table.Size() + std::min(timedRunEntries, table.LargestSize() - table.Size());
}

// How far the table must reach for `factors` to be certain when it can't hold the last of them.
std::uint64_t LeastReach(const std::vector<std::uint64_t>& factors) {
    const auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(factors.back())));
    return factors.size() < 2 ? root : std::max(root, factors[factors.size() - 2]);
}

// Has a table of consecutive primes reach the last factor, or as far as it has to.
bool GrowToFactors(PrimeTable& table, const std::vector<std::uint64_t>& factors, RunControl& run) {
    const std::uint64_t largest = factors.back();
    const std::uint64_t leastReach = run.IsTimed() ? largest : LeastReach(factors);
    const std::int32_t withinBudget = SizeWithinBudget(table, run);
    const bool timeEndsFirst = run.IsTimed() && TimedSize(table) <= withinBudget;
    const bool outOfReach = LeastPrimeCount(largest) > static_cast<double>(withinBudget);
    const std::uint64_t goal = outOfReach ? leastReach : largest;
    run.Aim(goal);
    const RunEnd end = GrowConsecutive(table, goal, timeEndsFirst ? TimedSize(table) : withinBudget, run);
    // The estimate takes some numbers for reachable that are not; the full table has passed the root by then.
    if (end == RunEnd::TableFull && table.Back() < leastReach) {
        timeEndsFirst ? run.StopFor(RunEnd::OutOfTime) : StopForWantOfRoom(table, run);
        return false;
    }
    return end != RunEnd::Stopped;
}

// Divides what the known primes leave of a number by the entries that follow them, and by new ones, until
// nothing is left.
bool DivideByEntries(PrimeTable& table, std::vector<std::uint64_t>& factors, RunControl& run) {
    // The clock is slow beside a division, so the entries in between go without it.
    constexpr std::int32_t entriesPerLook = 64;
    const std::int32_t timedSize = TimedSize(table);
    std::uint64_t rest = 1;
    for (; !factors.empty() && factors.back() > table.ConsecutiveBack(); factors.pop_back()) {
        rest *= factors.back();
    }
    PrimeTable::Cursor entry(table, table.ConsecutiveCount());
    for (bool isNew = false;;) {
        if ((isNew || entry.Rank() % entriesPerLook == 0) && run.MustStop()) {
            return false;
        }
        if (entry.Value() == 1) { // it would divide for ever, so it ends the run as the user would have to
            run.StopFor(RunEnd::Stopped);
            return false;
        }
        for (; entry.Value() > 1 && rest % entry.Value() == 0; rest /= entry.Value()) {
            factors.push_back(entry.Value());
        }
        if (rest == 1) {
            return true;
        }
        if (!entry.Next()) {
            if (run.IsTimed() && table.Size() >= timedSize) {
                run.StopFor(RunEnd::OutOfTime);
                return false;
            }
            NbresPremCalc(table, 0, run);
            entry = PrimeTable::Cursor(table, table.UpperBound());
            isNew = true;
        }
    }
}

bool Factorise(std::uint64_t n, PrimeTable& table, std::vector<std::uint64_t>& factors, RunControl& run) {
    FindFactors(n, factors);
    const std::uint64_t largest = factors.back();
    if (!BeginTable(table, run) || !VerifyPrimes(table, largest, run)) {
        return false;
    }
    if (table.ConsecutiveBack() >= largest) {
        return true;
    }
    run.Aim(largest);
    return table.IsConsecutive() ? GrowToFactors(table, factors, run) : DivideByEntries(table, factors, run);
}

} // namespace

bool IsPrime(std::uint64_t n) {
    if (n % 2 == 0) {
        return n == 2;
    }
    for (const std::uint64_t prime : trialDivisors) {
        if (n % prime == 0) {
            return n == prime;
        }
    }
    return n > 1 && IsPrimeWithoutSmallFactor(n);
}

void FindFactors(std::uint64_t n, std::vector<std::uint64_t>& factors) {
    for (; n % 2 == 0; n /= 2) {
        factors.push_back(2);
    }
    for (const std::uint64_t prime : trialDivisors) {
        for (; n % prime == 0; n /= prime) {
            factors.push_back(prime);
        }
        if (prime * prime > n) {
            break;
        }
    }
    if (n > 1) {
        Split(n, factors);
        std::sort(factors.begin(), factors.end());
    }
}

void DecompPremCalc(
    std::uint64_t n, PrimeTable& table, std::vector<std::uint64_t>& Nbre_Decompose, RunControl& run) {
    constexpr std::uint64_t firstRefused = std::uint64_t{1} << 63;
    constexpr std::size_t mostFactors = 64; // so that the single entry below never needs memory
    Nbre_Decompose.clear();
    Nbre_Decompose.reserve(mostFactors);
    if (n <= 1 || n >= firstRefused) {
        Nbre_Decompose.push_back(n == 1 ? 1 : 0);
        return;
    }
    if (run.MustStop() || !Factorise(n, table, Nbre_Decompose, run) || run.MustStop()) {
        Nbre_Decompose.assign(1, 0);
    }
}

} // namespace tessarolyne
