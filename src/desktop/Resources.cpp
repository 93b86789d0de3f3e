#include "desktop/Resources.h"

#include "desktop/QtText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tessarolyne {

namespace {

// From the folder of the program: bin/ of an installed tree, a bundle, the top of a build, a folder inside
// it.
constexpr const char* places[] = {"../share/tessarolyne", "../Resources", "resources", "../resources"};

} // namespace

QString ResourcePath(const std::string& name) {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* place : places) {
        const QFileInfo file(program.filePath(QLatin1String(place) + u'/' + ToQt(name)));
        if (file.isFile()) {
            return file.canonicalFilePath();
        }
    }
    return {};
}

} // namespace tessarolyne
