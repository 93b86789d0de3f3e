#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

// A kind of file that the program opens and saves.
struct FileType {
    std::string_view Name;
    std::string_view Extensions; // with the dot
    std::string_view MacType;
    std::string_view MacCreator;
    std::string_view MimeType;
    bool Imported;

    // The filter that file dialogs are given: the name.
    std::string Text() const { return std::string(Name); }
};

namespace FileTypes {

inline constexpr FileType QueText{"text", ".txt", "TEXT", "????", "", true};

// The program's file types.
inline const std::vector<const FileType*> pAllFileTypes = {&QueText};

// The type of which a dialog's filter speaks; null for none.
const FileType* OfFilter(std::string_view filter);

} // namespace FileTypes

} // namespace tessarolyne
