#include "machine/SaveProof.h"

#include "machine/PosixFileSystem.h"
#include "machine/SavedContent.h"
#include "machine/TemporaryFolder.h"
#include "machine/Tracer.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstring>
#include <random>
#include <sched.h>
#include <set>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tessarolyne {

namespace {

using Faults = SaveProof::Faults;

constexpr unsigned oldSeed = 1;
constexpr unsigned newSeed = 2;

// A folder with the old file in it, and what is asked of it after a save.
class Scene {
public:
    Scene(const SaveProof& proof, std::string folder) : proof_(proof), folder_(std::move(folder)) {
        WriteFile(Path(), SavedContent(proof.writer, proof.oldSize, oldSeed));
    }

    std::string Path() const { return folder_ + "/saved"; }

    std::vector<std::string> Command(const char* mode) const {
        return {SAVE_WRITER, mode, proof_.writer, Path(), std::to_string(proof_.newSize),
            std::to_string(newSeed)};
    }

    // What is wrong after a run that ended thus; nothing stands for a kill.
    Faults Judge(const std::string& when, std::optional<int> ending) const {
        Faults faults;
        const auto text = ReadFile(Path());
        const bool isOld = text == SavedContent(proof_.writer, proof_.oldSize, oldSeed);
        // A run that saves on and on has a second new content.
        const bool isNew = text == SavedContent(proof_.writer, proof_.newSize, newSeed) ||
                           text == SavedContent(proof_.writer, proof_.newSize, newSeed + 1);
        if (!isOld && !isNew) {
            faults.push_back(when + ": the file is neither the old nor the new one");
        }
        if (ending == 0 && !isNew) {
            faults.push_back(when + ": success reported for a failure");
        }
        if (!ending) {
            PosixFileSystem().SweepLeftovers(folder_);
        }
        if (NamesIn(folder_) != std::set<std::string>{"saved"}) {
            faults.push_back(when + ": a temporary file is left");
        }
        return faults;
    }

private:
    const SaveProof& proof_;
    std::string folder_;
};

void Append(Faults& faults, const Faults& more) {
    faults.insert(faults.end(), more.begin(), more.end());
}

bool IsRename(long call) {
#ifdef SYS_rename
    if (call == SYS_rename) {
        return true;
    }
#endif
    return call == SYS_renameat || call == SYS_renameat2;
}

// Calls whose failure costs the save nothing: the language's runtime helps itself in another way, or the save
// is done and only numbers are given back.
bool MayFailSilently(const std::vector<long>& calls, std::size_t place) {
    static const std::set<long> harmless = {SYS_brk, SYS_mmap, SYS_munmap, SYS_mprotect, SYS_madvise,
        SYS_mremap, SYS_rt_sigprocmask, SYS_futex, SYS_getrandom, SYS_exit_group};
    const bool renamed =
        std::any_of(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(place), IsRename);
    return harmless.contains(calls[place]) || (calls[place] == SYS_close && renamed);
}

TracedRun UndisturbedRun(const SaveProof& proof) {
    const TemporaryFolder folder;
    auto run = Trace(Scene(proof, folder.Path()).Command("once"), std::nullopt);
    if (run.ending != 0) {
        throw std::runtime_error("the writer fails without being disturbed");
    }
    return run;
}

} // namespace

Faults SaveProof::WhenKilledAtEachCall() const {
    Faults faults;
    const auto calls = UndisturbedRun(*this).calls;
    for (std::size_t call = 0; call < calls.size(); ++call) {
        const TemporaryFolder folder;
        const Scene scene(*this, folder.Path());
        const auto run = Trace(scene.Command("once"), Meddling{call});
        Append(faults, scene.Judge("killed at call " + std::to_string(call), run.ending));
    }
    return faults;
}

Faults SaveProof::WhenEachCallFails(int error) const {
    Faults faults;
    const auto calls = UndisturbedRun(*this).calls;
    for (std::size_t call = 0; call < calls.size(); ++call) {
        const TemporaryFolder folder;
        const Scene scene(*this, folder.Path());
        const auto run = Trace(scene.Command("once"), Meddling{call, error});
        const std::string when = "call " + std::to_string(call) + " (number " + std::to_string(calls[call]) +
                                 ") failing with " + std::strerror(error);
        Append(faults, scene.Judge(when, run.ending));
        if (run.ending != 1 && !MayFailSilently(calls, call)) {
            faults.push_back(when + (run.ending ? ": the failure isn't reported" : ": the program died"));
        }
    }
    return faults;
}

Faults SaveProof::InOrderOfSyncs() const {
    const auto calls = UndisturbedRun(*this).calls;
    const auto rename = std::find_if(calls.begin(), calls.end(), IsRename);
    Faults faults;
    if (std::find(calls.begin(), rename, SYS_fsync) == rename) {
        faults.push_back("the file takes its name before it is synced");
    }
    if (std::find(rename, calls.end(), SYS_fsync) == calls.end()) {
        faults.push_back("the folder isn't synced after the rename");
    }
    return faults;
}

Faults SaveProof::WhenKilledAtRandom(int times, unsigned seed) const {
    Faults faults;
    std::mt19937 random(seed);
    for (int i = 0; i < times; ++i) {
        const TemporaryFolder folder;
        const Scene scene(*this, folder.Path());
        int ends[2];
        if (::pipe(ends) != 0) {
            throw std::runtime_error("pipe");
        }
        const int process = Start(scene.Command("forever"), ends[1]);
        ::close(ends[1]);
        char started = 0;
        const auto count = ::read(ends[0], &started, 1);
        ::close(ends[0]);
        const auto until = std::chrono::steady_clock::now() + std::chrono::microseconds(random() % 10'000);
        while (std::chrono::steady_clock::now() < until) {
            ::sched_yield();
        }
        ::kill(process, SIGKILL);
        if (WaitFor(process) || count != 1) {
            faults.push_back("the writer ended by itself");
        }
        Append(faults, scene.Judge("killed at random, turn " + std::to_string(i), std::nullopt));
    }
    return faults;
}

namespace {

// Enters a name space of its own in which disks may be mounted; an ordinary user is the superuser in there.
bool MayMount() {
    if (::unshare(CLONE_NEWNS) != 0) {
        const auto user = std::to_string(::getuid());
        const auto group = std::to_string(::getgid());
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
            return false;
        }
        WriteFile("/proc/self/setgroups", "deny");
        WriteFile("/proc/self/uid_map", "0 " + user + " 1");
        WriteFile("/proc/self/gid_map", "0 " + group + " 1");
    }
    return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

// Saves on a memory disk with these options and unmounts it; nothing if it can't be mounted.
std::optional<Faults> SaveOnDisk(
    const SaveProof& proof, const std::string& place, const std::string& options, std::set<int>& endings) {
    if (::mount("none", place.c_str(), "tmpfs", 0, options.c_str()) != 0) {
        return std::nullopt;
    }
    const Scene scene(proof, place);
    const auto ending = WaitFor(Start(scene.Command("once")));
    auto faults = scene.Judge("on a disk with " + options, ending);
    endings.insert(ending.value_or(-1));
    ::umount(place.c_str());
    return faults;
}

// In a process of its own: one letter for a disk that can't be had, else the faults.
std::string DiskReport(const SaveProof& proof, const std::string& place) {
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    const auto pages = [&](std::size_t size) { return (size + page - 1) / page; };
    const auto most = pages(proof.oldSize) + pages(proof.newSize) + 2;
    if (!MayMount()) {
        return "?";
    }
    std::set<int> endings;
    std::vector<std::string> disks{"nr_inodes=2"};
    for (auto size = pages(proof.oldSize); size <= most; ++size) {
        disks.push_back("size=" + std::to_string(size * page));
    }
    std::string report;
    for (const auto& options : disks) {
        const auto faults = SaveOnDisk(proof, place, options, endings);
        if (!faults) {
            return "?";
        }
        for (const auto& fault : *faults) {
            report += fault + "\n";
        }
    }
    if (endings != std::set<int>{0, 1}) {
        report += "the disks were not both too small and large enough\n";
    }
    return report;
}

} // namespace

std::optional<Faults> SaveProof::OnDiskOfEachSize() const {
    const TemporaryFolder folder;
    const std::string place = folder.Path() + "/disk";
    const std::string report = folder.Path() + "/report";
    std::filesystem::create_directory(place);
    const int process = ::fork();
    if (process == 0) {
        try {
            WriteFile(report, DiskReport(*this, place));
        } catch (const std::exception&) {
            std::_Exit(1);
        }
        std::_Exit(0);
    }
    if (WaitFor(process) != 0) {
        return Faults{"the saves to memory disks came to no end"};
    }
    const auto text = ReadFile(report);
    if (text == "?") {
        return std::nullopt;
    }
    Faults faults;
    for (std::size_t start = 0; start < text.size(); start = text.find('\n', start) + 1) {
        faults.push_back(text.substr(start, text.find('\n', start) - start));
    }
    return faults;
}

} // namespace tessarolyne
