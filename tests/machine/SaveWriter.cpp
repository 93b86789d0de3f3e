// The program that the proof of the safe writer kills, starves and feeds with errors. It saves a content that
// both sides can compute, with the real writer or with one that has a known fault.
//
// SaveWriter once <writer> <file> <size> <seed>: stops itself, saves, ends with 0 (saved) or 1 (failed).
// SaveWriter forever <writer> <file> <size> <seed>: prints a byte, saves with seed and seed + 1 in turn.
#include "machine/SafeFile.h"
#include "machine/SavedContent.h"
#include "platform/IOException.h"
#include "primes/PrimeFile.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

using namespace tessarolyne;

namespace {

void SaveSafely(const std::string& path, const std::string& content) {
    SafeFile file(path, LinkPolicy::ReplaceTarget);
    // In pieces, so that the buffer is filled and written more than once.
    for (std::size_t place = 0; place < content.size(); place += 10000) {
        file.Write(std::string_view(content).substr(place, 10000));
    }
    file.Commit();
}

void Must(bool success) {
    if (!success) {
        throw IOException("faulty writer");
    }
}

void WriteAll(int file, const std::string& content, bool checked) {
    for (std::size_t place = 0; place < content.size();) {
        const auto count = ::write(file, content.data() + place, content.size() - place);
        Must(!checked || count > 0);
        place += count > 0 ? static_cast<std::size_t>(count) : content.size();
    }
}

// A writer with one fault that its name tells; otherwise it does what the real one does.
void SaveWithFault(const std::string& fault, const std::string& path, const std::string& content) {
    const bool inPlace = fault == "in-place";
    const std::string temporary = inPlace ? path : path + ".tmp";
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    Must(file >= 0);
    try {
        WriteAll(file, content, fault != "unchecked-write");
        Must(fault == "no-sync" || ::fsync(file) == 0 || fault == "unchecked-sync");
        Must(::close(file) == 0);
        Must(inPlace || ::rename(temporary.c_str(), path.c_str()) == 0);
        const auto folderPath = path.substr(0, path.rfind('/'));
        const auto folder = ::open(folderPath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        Must(folder >= 0 && ::fsync(folder) == 0);
    } catch (...) {
        if (!inPlace && fault != "leaves-temporary") {
            ::unlink(temporary.c_str());
        }
        throw;
    }
}

void SavePrimeFile(const std::string& path, const PrimeTable& table) {
    SafeFile file(path, LinkPolicy::ReplaceTarget);
    PrimeFileProgress nobody;
    WritePrimeFile(table, "Label", primeFileLine, file, nobody);
    file.Commit();
}

// What one save saves: a text, or a table.
struct Saved {
    Saved(const std::string& writer, std::size_t size, unsigned seed) {
        if (writer != primeFileWriter) {
            content = SavedContent(size, seed);
            return;
        }
        for (const auto number : SavedNumbers(size, seed)) {
            Must(table.Append(number));
        }
    }
    std::string content;
    PrimeTable table;
};

void Save(const std::string& writer, const std::string& path, const Saved& saved) {
    const std::string& content = saved.content;
    if (writer == primeFileWriter) {
        SavePrimeFile(path, saved.table);
    } else if (writer == "safe") {
        SaveSafely(path, content);
    } else {
        SaveWithFault(writer, path, content);
    }
}

} // namespace

int main(int, char** arguments) {
    const std::string writer = arguments[2];
    const std::string path = arguments[3];
    const auto size = std::strtoull(arguments[4], nullptr, 10);
    const auto seed = static_cast<unsigned>(std::strtoul(arguments[5], nullptr, 10));
    const Saved contents[] = {{writer, size, seed}, {writer, size, seed + 1}};
    if (std::string(arguments[1]) == "forever") {
        std::putchar('.');
        std::fflush(stdout);
        for (unsigned i = 0;; ++i) {
            Save(writer, path, contents[i % 2]);
        }
    }
    std::raise(SIGSTOP);
    try {
        Save(writer, path, contents[0]);
    } catch (const std::exception&) {
        std::_Exit(1);
    }
    std::_Exit(0);
}
