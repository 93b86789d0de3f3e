#include "desktop/VisibleText.h"

#include "desktop/QtText.h"

#include <QChar>
#include <QList>

namespace tessarolyne {

namespace {

// More than anyone reads in a dialog, and laid out in a few milliseconds.
constexpr qsizetype longestText = 10'000;

bool IsHidden(char32_t code) {
    if (code == U'\n' || code == U'\t') {
        return false;
    }
    switch (QChar::category(code)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

QString Escape(char32_t code) {
    return QStringLiteral("⟨U+%1⟩").arg(static_cast<uint>(code), 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace

QString VisibleText(const std::string& text) {
    QString all = WithLineFeeds(text);
    const bool cut = all.size() > longestText;
    if (cut) {
        all.truncate(longestText);
    }
    QString visible;
    visible.reserve(all.size());
    for (const char32_t code : all.toUcs4()) {
        if (IsHidden(code)) {
            visible += Escape(code);
        } else {
            visible += QChar::fromUcs4(code);
        }
    }
    return cut ? visible + u'…' : visible;
}

} // namespace tessarolyne
