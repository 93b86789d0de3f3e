#pragma once

#include "platform/FolderItem.h"

#include <optional>
#include <string>

namespace tessarolyne {

class Window;

// What a message dialog shows. Empty captions mean no such button, but for the action button, which then has
// the desktop's own caption. Texts are plain text, whatever they hold; carriage returns are line breaks.
struct MessageDialog {
    std::string message;
    std::string explanation;
    std::string actionCaption;
    std::string cancelCaption;
    std::string alternateCaption;
    std::string actionHelpTag;
    std::string cancelHelpTag;
    std::string alternateHelpTag;
    int icon = 0; // 0 note, 1 caution
    Window* sheetOf = nullptr;
};

enum class DialogButton { None, Action, Cancel, Alternate };

// A chooser for a file to open, or to save under a suggested name.
struct FileDialog {
    std::string prompt;
    std::string filterName;      // "text"
    std::string filterExtension; // ".txt"
    std::optional<FolderItem> initialFolder;
    std::string suggestedName;
    Window* sheetOf = nullptr;
};

// The desktop's dialogs. Each call returns when the user has answered or the program quits; the latter counts
// as no answer.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    // The button that was pressed, None without an answer.
    virtual DialogButton Ask(const MessageDialog& dialog) = 0;
    // One text and one button to put it away.
    virtual void Tell(const std::string& text) = 0;
    // The chosen item, nil when the user cancels.
    virtual std::optional<FolderItem> ChooseFile(const FileDialog& dialog) = 0;
    virtual std::optional<FolderItem> ChooseTarget(const FileDialog& dialog) = 0;
};

} // namespace tessarolyne
