#include "desktop/Resources.h"

#include "desktop/QtText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <QStandardPaths>

namespace tessarolyne {

namespace {

// From the folder of the program: bin/ of an installed tree (with the icons in the desktop's own place), a
// bundle, the top of a build, a folder inside it, and what the build itself has made.
constexpr const char* installed = INSTALLED_DATA "/tessarolyne";
constexpr const char* places[] = {
    installed, INSTALLED_DATA, "../Resources", "resources", "../resources", "share/tessarolyne"};

// Of the defaults in the string table.
constexpr QLatin1String builtInLanguage("fr");

constexpr QLatin1String prefix("tessarolyne_");
constexpr QLatin1String suffix(".qm");

} // namespace

QString ResourcePath(const std::string& name) {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* place : places) {
        const QFileInfo item(program.filePath(QLatin1String(place) + u'/' + ToQt(name)));
        if (item.exists()) {
            return item.canonicalFilePath();
        }
    }
    return {};
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

void DrawPicture(QPainter& painter, const Picture& picture, const QRect& area) {
    const QSize given(picture.width, picture.height);
    if (picture.resource.empty()) {
        painter.fillRect(QRect(area.topLeft(), given), QColor::fromRgb(picture.fill));
        return;
    }
    const QPixmap pixmap(ResourcePath("pictures/" + picture.resource + ".png")); // Qt caches it
    const QSize size = given.isEmpty() ? pixmap.deviceIndependentSize().toSize() : given;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(area.topLeft(), size), pixmap);
}

QColor TextColorOn(const Picture& picture, const QPalette& palette) {
    if (!picture.resource.empty() || picture.width == 0) {
        return palette.color(QPalette::ButtonText);
    }
    return qGray(picture.fill) > 128 ? Qt::black : Qt::white;
}

QtTranslations::QtTranslations()
    : QtTranslations(ResourcePath("translations"), QLocale::system().uiLanguages()) {}

QtTranslations::QtTranslations(const QString& folder, const QStringList& wanted) {
    // An empty path would be the working directory to QDir.
    const QStringList files =
        folder.isEmpty() ? QStringList() : QDir(folder).entryList({prefix + u'*' + suffix}, QDir::Files);
    for (const QString& file : files) {
        auto catalogue = std::make_unique<QTranslator>();
        if (catalogue->load(file, folder)) {
            catalogues_.emplace(file.mid(prefix.size()).chopped(suffix.size()), std::move(catalogue));
        }
    }
    chain_ = ChainFor(wanted);
    System::UseTranslations([this](auto key, auto language) { return Find(key, language); });
    const QLocale locale(chain_.empty() ? builtInLanguage : chain_.front());
    const QString qtFolder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (qtTexts_.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), qtFolder)) {
        QCoreApplication::installTranslator(&qtTexts_);
    }
}

std::optional<std::string> QtTranslations::Find(std::string_view key, std::string_view language) const {
    const std::string name(key);
    for (const QString& catalogue : language.empty() ? chain_ : ChainFor({ToQt(std::string(language))})) {
        const QString text = catalogues_.at(catalogue)->translate("", name.c_str());
        if (!text.isNull()) {
            return FromQt(text);
        }
    }
    return std::nullopt;
}

QStringList QtTranslations::ChainFor(const QStringList& wanted) const {
    for (const QString& tag : wanted) {
        const QLocale locale(tag); // C for what names no language; a region too where the tag has none
        const QString language = QLocale::languageToCode(locale.language());
        const QString region = QLocale::territoryToCode(locale.territory());
        QStringList chain;
        if (tag.indexOf(region, language.size(), Qt::CaseInsensitive) >= 0) {
            chain += language + u'_' + region;
        }
        chain += language;
        chain.removeIf([this](const QString& name) { return catalogues_.count(name) == 0; });
        if (!chain.empty() || language == builtInLanguage) {
            return chain;
        }
    }
    return {};
}

} // namespace tessarolyne
