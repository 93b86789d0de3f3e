#include "primes/engine/PrimeFile.h"

namespace tessarolyne {

namespace {

// Ends the reading once it has been decided.
class Comparison final : public PrimeFileProgress {
public:
    Comparison(const PrimeTable& inFile, const PrimeTable& table, PrimeFileProgress& progress)
        : inFile_(inFile), table_(table), progress_(progress) {}

    void Work() override { progress_.Work(); }
    bool MustStop() override { return inFile_.Size() > table_.Size(); }

private:
    const PrimeTable& inFile_;
    const PrimeTable& table_;
    PrimeFileProgress& progress_;
};

} // namespace

UnseenContent LookBeforeSaving(const FolderItem& item, const BoundFile& known, const PrimeTable& table,
    std::uint64_t mostBytes, PrimeFileProgress& progress) {
    const auto stamp = item.Stamp();
    if (!stamp || stamp == known.seen) {
        return UnseenContent::None;
    }
    PrimeTable inFile;
    Comparison comparison(inFile, table, progress);
    auto content = PrimeFileContent::Other;
    try {
        const auto file = item.Files().OpenForReading(item.NativePath());
        content = ReadPrimeFile(*file, inFile, comparison, mostBytes);
    } catch (const ReadingStopped&) {
        content = BeginsWithFirstPrimes(inFile) ? PrimeFileContent::Primes : PrimeFileContent::Other;
    } catch (const std::exception&) {
        return UnseenContent::Unreadable;
    }
    if (content == PrimeFileContent::Other) {
        return UnseenContent::Other;
    }
    return inFile.Size() > table.Size() ? UnseenContent::MorePrimes : UnseenContent::None;
}

} // namespace tessarolyne
