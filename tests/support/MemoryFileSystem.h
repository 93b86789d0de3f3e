#pragma once

#include "platform/FolderItem.h"

#include <algorithm>
#include <map>
#include <set>

namespace tessarolyne {

// Bytes as a file to read.
class MemoryInputFile final : public InputFile {
public:
    explicit MemoryInputFile(std::string bytes, FileStamp stamp = {})
        : bytes_(std::move(bytes)), stamp_(stamp) {}

    FileStamp Stamp() const override { return stamp_; }

    std::size_t Read(std::span<char> bytes) override {
        const auto count = bytes_.copy(bytes.data(), bytes.size(), next_);
        next_ += count;
        return count;
    }

private:
    std::string bytes_;
    FileStamp stamp_;
    std::size_t next_ = 0;
};

// Files in memory for tests: a path is what it is set to, links are not followed inside a path, and any path
// can be made to fail.
class MemoryFileSystem : public FileSystem {
public:
    struct Entry {
        FileKind kind = FileKind::Regular;
        std::string content = {}; // of a link: the path that it leads to
        std::int64_t changed = 0;
        std::uint64_t claimedSize = 0; // in place of the content's own
    };

    std::map<std::string, Entry> entries{{"/", {FileKind::Folder}}};
    std::vector<Volume> volumes{{"Root", "/"}};
    std::map<KnownFolder, std::string> known;
    std::set<std::string> unreadable;
    std::set<std::string> unwritable;
    std::set<std::string> packages;
    bool isFull = false; // which only the end of a save finds out
    std::vector<std::string> swept;

    FolderItem At(std::string_view path) { return FolderItem::FromNativePath(*this, path).value(); }
    void AddFolder(const std::string& path) { entries[path] = {FileKind::Folder}; }
    void AddFile(const std::string& path, std::string text = {}) {
        entries[path] = {FileKind::Regular, text, ++lastChange_};
    }
    void AddLink(const std::string& path, std::string to) { entries[path] = {FileKind::Link, to}; }

    FileKind Kind(const std::string& path) const override {
        const auto entry = entries.find(path);
        return entry == entries.end() ? FileKind::None : entry->second.kind;
    }
    std::optional<FileStamp> Stamp(const std::string& path) const override {
        const auto place = Resolve(path);
        if (!place || Kind(*place) != FileKind::Regular) {
            return std::nullopt;
        }
        const Entry& entry = entries.at(*place);
        return FileStamp{
            1, 1, std::max<std::uint64_t>(entry.content.size(), entry.claimedSize), entry.changed};
    }
    std::optional<std::string> Resolve(const std::string& path) const override {
        std::string place = path;
        for (int i = 0; i < 40 && Kind(place) == FileKind::Link; ++i) {
            place = entries.at(place).content;
        }
        const auto kind = Kind(place);
        return kind == FileKind::None || kind == FileKind::Link ? std::nullopt : std::optional(place);
    }
    std::vector<Volume> Volumes() const override { return volumes; }
    std::optional<std::string> Find(KnownFolder folder) override {
        const auto found = known.find(folder);
        return found == known.end() ? std::nullopt : std::optional(found->second);
    }
    bool MakeFolder(const std::string& path) override {
        return !unwritable.contains(path) && entries.emplace(path, Entry{FileKind::Folder}).second;
    }

    std::unique_ptr<InputFile> OpenForReading(const std::string& path) override {
        const auto place = Resolve(path);
        if (!place || Kind(*place) != FileKind::Regular || unreadable.contains(*place)) {
            throw IOException("open " + path);
        }
        return std::make_unique<MemoryInputFile>(entries.at(*place).content, *Stamp(*place));
    }
    std::unique_ptr<OutputFile> CreateSafely(const std::string& path, LinkPolicy links) override {
        if (!CanReplace(path, links)) {
            throw IOException("create " + path);
        }
        return std::make_unique<Output>(*this, Target(path, links));
    }
    bool CanReplace(const std::string& path, LinkPolicy links) const override {
        const auto kind = Kind(Target(path, links));
        return (kind == FileKind::None || kind == FileKind::Regular || kind == FileKind::Link) &&
               !unwritable.contains(Target(path, links));
    }
    void KeepAs(const std::string& path, const std::string& copy) override {
        const auto place = Resolve(path);
        if (!place || unwritable.contains(copy)) {
            throw IOException("keep " + path);
        }
        entries[copy] = entries.at(*place);
    }
    void SweepLeftovers(const std::string& folder) override { swept.push_back(folder); }
    bool IsPackage(const std::string& path) const override { return packages.contains(path); }

private:
    class Output final : public OutputFile {
    public:
        Output(MemoryFileSystem& files, std::string path) : files_(files), path_(std::move(path)) {}
        void Write(std::string_view bytes) override { content_ += bytes; }
        void Commit() override {
            if (files_.isFull) {
                throw IOException("commit " + path_);
            }
            files_.AddFile(path_, content_);
        }

    private:
        MemoryFileSystem& files_;
        std::string path_;
        std::string content_;
    };

    std::int64_t lastChange_ = 0;

    std::string Target(const std::string& path, LinkPolicy links) const {
        return links == LinkPolicy::ReplaceTarget ? Resolve(path).value_or(path) : path;
    }
};

} // namespace tessarolyne
