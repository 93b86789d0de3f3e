#include "desktop/QtTranslations.h"

#include "desktop/QtText.h"
#include "desktop/Resources.h"
#include "platform/Languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

#include <utility>

namespace tessarolyne {

namespace {

// Of the defaults in the string table.
constexpr const char* builtInLanguage = "fr";

constexpr QLatin1String prefix("tessarolyne_");
constexpr QLatin1String suffix(".qm");

std::vector<std::string> DesktopLanguages() {
    std::vector<std::string> languages;
    for (const QString& tag : QLocale::system().uiLanguages()) {
        languages.push_back(FromQt(tag));
    }
    return languages;
}

} // namespace

QtTranslations::QtTranslations() : QtTranslations(ResourceFolder("translations"), DesktopLanguages()) {}

QtTranslations::QtTranslations(const QString& folder, const std::vector<std::string>& wanted) {
    // An empty path would be the working directory to QDir.
    const QStringList files =
        folder.isEmpty() ? QStringList() : QDir(folder).entryList({prefix + u'*' + suffix}, QDir::Files);
    for (const QString& file : files) {
        auto catalogue = std::make_unique<QTranslator>();
        if (catalogue->load(file, folder)) {
            const QString language = file.mid(prefix.size()).chopped(suffix.size());
            catalogues_.emplace(FromQt(language), std::move(catalogue));
        }
    }
    chain_ = ChainFor(wanted);
    LoadQtTexts();
}

std::optional<std::string> QtTranslations::Find(std::string_view key, std::string_view language) const {
    const std::string name(key);
    for (const std::string& link : language.empty() ? chain_ : ChainFor({std::string(language)})) {
        const QString text = catalogues_.at(link)->translate("", name.c_str());
        if (!text.isNull()) {
            return FromQt(text);
        }
    }
    return std::nullopt;
}

std::vector<std::string> QtTranslations::ChainFor(const std::vector<std::string>& wanted) const {
    std::vector<std::string> available;
    for (const auto& [language, catalogue] : catalogues_) {
        available.push_back(language);
    }
    return CatalogueChain(wanted, available, builtInLanguage);
}

void QtTranslations::LoadQtTexts() {
    const QLocale locale(ToQt(chain_.empty() ? builtInLanguage : chain_.front()));
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (qtTexts_.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), folder)) {
        QCoreApplication::installTranslator(&qtTexts_);
    }
}

} // namespace tessarolyne
