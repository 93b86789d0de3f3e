#include "desktop/Resources.h"

#include "desktop/QtText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tessarolyne {

namespace {

// From the folder of the program: bin/ of an installed tree (with the icons in the desktop's own place), a
// bundle, the top of a build, a folder inside it, and what the build itself has made.
constexpr const char* places[] = {INSTALLED_DATA "/tessarolyne", INSTALLED_DATA, "../Resources", "resources",
    "../resources", "share/tessarolyne"};

QString FirstPlace(const std::string& name, bool (QFileInfo::*fits)() const) {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* place : places) {
        const QFileInfo item(program.filePath(QLatin1String(place) + u'/' + ToQt(name)));
        if ((item.*fits)()) {
            return item.canonicalFilePath();
        }
    }
    return {};
}

} // namespace

QString ResourcePath(const std::string& name) {
    return FirstPlace(name, &QFileInfo::isFile);
}

QString ResourceFolder(const std::string& name) {
    return FirstPlace(name, &QFileInfo::isDir);
}

std::optional<std::string> FindFolder(KnownFolder folder) {
    constexpr auto userAlone = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    using enum QStandardPaths::StandardLocation;
    QString path = QCoreApplication::applicationDirPath();
    if (folder == KnownFolder::Home) {
        return QStandardPaths::writableLocation(HomeLocation)
            .toStdString(); // as it stands there, links included
    }
    if (folder == KnownFolder::Documents) {
        path = QStandardPaths::writableLocation(DocumentsLocation);
    } else if (folder == KnownFolder::Preferences) {
        path = QStandardPaths::writableLocation(GenericConfigLocation);
        if (!QFileInfo::exists(path) && QDir().mkpath(path)) {
            QFile::setPermissions(path, userAlone);
        }
    }
    const QFileInfo found(path);
    return found.isDir() ? std::optional(FromQt(found.canonicalFilePath())) : std::nullopt;
}

} // namespace tessarolyne
