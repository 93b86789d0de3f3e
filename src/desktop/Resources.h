#pragma once

#include "platform/Controls.h"
#include "platform/FolderItem.h"
#include "platform/System.h"

#include <QColor>
#include <QStringList>
#include <QTranslator>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QPainter;
class QPalette;
class QRect;
namespace tessarolyne {

// The path of one of the program's resources, a file ("sounds/Bip.wav") or a folder ("translations"), in the
// installed tree or beside the build. Empty if there is none.
QString ResourcePath(const std::string& name);

// Where the desktop keeps things, without a link in the path; nothing if there is no such folder. The one for
// preferences is made if it is missing, readable to the user alone.
std::optional<std::string> FindFolder(KnownFolder folder);

// Draws the picture with its top left at that of `area`: a resource (its name with ".png") at its own or its
// size that is given, or an area of one colour. A resource that isn't there draws nothing.
void DrawPicture(QPainter& painter, const Picture& picture, const QRect& area);

// A colour that can be read on the picture: black or white on a fill, else the palette's button text.
QColor TextColorOn(const Picture& picture, const QPalette& palette);

// The translations of the program's texts, from compiled Qt catalogues, and Qt's own texts (the file chooser,
// context menus) in the same language, where they are installed: both are used for as long as it lives. Made
// after Qt's application object.
class QtTranslations final {
public:
    // The catalogues beside the program, in the languages of the user's desktop.
    QtTranslations();
    // The catalogues "tessarolyne_<language>.qm" of `folder`, for a desktop that wants these languages, in
    // the order of preference, as tags of any spelling ("fr_CH.UTF-8", "en-Latn-GB", "C").
    QtTranslations(const QString& folder, const QStringList& wanted);
    ~QtTranslations() { System::UseTranslations(nullptr); }

private:
    std::optional<std::string> Find(std::string_view key, std::string_view language) const;
    // The catalogues of the first wanted language that there is: its region's, where one is told, then its
    // own. None for the language of the built-in texts, in which what they lack is looked up in the end.
    QStringList ChainFor(const QStringList& wanted) const;

    // By language.
    std::map<QString, std::unique_ptr<QTranslator>> catalogues_;
    // Of the language in which the program runs.
    QStringList chain_;
    QTranslator qtTexts_;
};

} // namespace tessarolyne
