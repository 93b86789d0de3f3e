#pragma once

#include "platform/System.h"

#include <QString>
#include <QTranslator>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

// The translations of the program's texts, from compiled Qt catalogues; and, for as long as it lives, Qt's
// own texts (the file chooser, context menus) in the same language, where they are installed. Made after
// Qt's application object.
class QtTranslations final : public Translations {
public:
    // The catalogues beside the program, in the languages of the user's desktop.
    QtTranslations();
    // The catalogues "tessarolyne_<language>.qm" of `folder`, for a desktop that wants these languages, in
    // the order of preference.
    QtTranslations(const QString& folder, const std::vector<std::string>& wanted);

    std::optional<std::string> Find(std::string_view key, std::string_view language) const override;

private:
    std::vector<std::string> ChainFor(const std::vector<std::string>& wanted) const;
    void LoadQtTexts();

    // By language.
    std::map<std::string, std::unique_ptr<QTranslator>> catalogues_;
    // Of the language in which the program runs.
    std::vector<std::string> chain_;
    QTranslator qtTexts_;
};

} // namespace tessarolyne
