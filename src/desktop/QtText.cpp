#include "desktop/QtText.h"

#include "platform/Text.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QWidget>

#include <algorithm>

namespace tessarolyne {

namespace {

// Walks through the text until `stop(character, unit)` says so or the text ends; the numbers reached.
struct Reached {
    int character = 0;
    int unit = 0;
};
template <typename Stop>
Reached Walk(const std::string& text, Stop stop) {
    Reached reached;
    for (std::size_t at = 0; at < text.size() && !stop(reached);) {
        const std::size_t length = CharacterAt(text, at).size;
        const bool halfOfLineEnd = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
        reached.character += 1;
        reached.unit += halfOfLineEnd ? 0 : length == 4 ? 2 : 1;
        at += length;
    }
    return reached;
}

// An address has no blank to be broken at, and may be longer than the screen is wide.
QString WithLongRunsBroken(QString text) {
    static const QRegularExpression longRun(
        QStringLiteral("(\\S{80})(?=\\S)"), QRegularExpression::UseUnicodePropertiesOption);
    return text.replace(longRun, QStringLiteral("\\1\n"));
}

struct KeyOfModels {
    int key;
    const char* text;
    bool alone = false; // without modifiers
};
constexpr KeyOfModels keysOfModels[] = {{Qt::Key_Return, "\r"}, {Qt::Key_Enter, "\x03"},
    {Qt::Key_Escape, "\x1B"}, {Qt::Key_Tab, "\t"}, {Qt::Key_Backtab, "\t"}, {Qt::Key_PageUp, "\x0B", true},
    {Qt::Key_PageDown, "\x0C", true}, {Qt::Key_Up, "\x1E", true}, {Qt::Key_Down, "\x1F", true}};

bool IsHidden(char32_t code) {
    constexpr QChar::Category hidden[] = {QChar::Other_Control, QChar::Other_Format, QChar::Other_Surrogate,
        QChar::Separator_Line, QChar::Separator_Paragraph};
    return code != U'\n' && code != U'\t' && std::ranges::count(hidden, QChar::category(code)) > 0;
}

} // namespace

QString ToQt(const std::string& text) {
    // Qt drops U+FEFF at the start as a byte order mark; the models count it.
    const bool marked = text.starts_with("\xEF\xBB\xBF");
    const QString converted = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return marked ? QChar(QChar::ByteOrderMark) + converted : converted;
}

std::string FromQt(const QString& text) {
    return text.toStdString();
}

QString WithLineFeeds(const std::string& text) {
    return ToQt(ReplaceLineEndings(text, "\n"));
}

int UnitOfCharacter(const std::string& text, int character) {
    return Walk(text, [&](const Reached& reached) { return reached.character >= character; }).unit;
}

int CharacterOfUnit(const std::string& text, int unit) {
    return Walk(text, [&](const Reached& reached) { return reached.unit >= unit; }).character;
}

QString WithAltKey(const std::string& caption, const std::string& letter) {
    const QString whole = ToQt(caption);
    const QString key = ToQt(letter);
    const qsizetype first = key.isEmpty() ? -1 : whole.indexOf(key, 0, Qt::CaseInsensitive);
    qsizetype found = first;
    while (found > 0 && whole.at(found - 1).isLetterOrNumber()) {
        found = whole.indexOf(key, found + 1, Qt::CaseInsensitive);
    }
    found = found < 0 ? first : found;
    const auto literal = [](QString part) { return part.replace(u'&', QLatin1String("&&")); };
    return found < 0 ? literal(whole) : literal(whole.left(found)) + u'&' + literal(whole.mid(found));
}

QString PlainToolTip(const std::string& text) {
    if (text.empty()) {
        return QString();
    }
    return QLatin1String("<p style='white-space:pre'>") +
           WithLongRunsBroken(WithLineFeeds(text)).toHtmlEscaped() + QLatin1String("</p>");
}

Qt::Alignment QtAlignment(Alignment alignment) {
    const Qt::Alignment across = alignment == Alignment::Right    ? Qt::AlignRight
                                 : alignment == Alignment::Center ? Qt::AlignHCenter
                                                                  : Qt::AlignLeft;
    return across | Qt::AlignVCenter;
}

bool IsCommandKey(const QKeyEvent& event) {
#ifdef Q_OS_MACOS
    // Option makes characters there, and Qt itself leaves Command out.
    constexpr auto commands = Qt::NoModifier;
#else
    constexpr auto commands = Qt::AltModifier | Qt::MetaModifier;
#endif
    return event.modifiers().testAnyFlags(commands) && !event.text().isEmpty();
}

std::string KeyText(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    for (const auto& [key, text, alone] : keysOfModels) {
        if (event.key() == key && (!alone || modifiers == Qt::NoModifier)) {
            return text;
        }
    }
    // AltGr may come with Ctrl, from a remote desktop, and then types a character that can be seen. Ctrl with
    // a letter types a control character, which must not pass for Enter or Return.
    const QString text = event.text();
    const bool command = event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::MetaModifier);
    if (text.isEmpty() || IsCommandKey(event) || (command && !text.at(0).isPrint())) {
        return {};
    }
    return FromQt(text);
}

QString VisibleText(const std::string& text) {
    constexpr qsizetype longestText = 10'000; // more than anyone reads, and laid out in a few milliseconds
    QString all = WithLineFeeds(text);
    const bool cut = all.size() > longestText;
    all.truncate(longestText);
    QString visible;
    visible.reserve(all.size());
    for (const char32_t code : all.toUcs4()) {
        if (IsHidden(code)) {
            visible +=
                QStringLiteral("⟨U+%1⟩").arg(static_cast<uint>(code), 4, 16, QLatin1Char('0')).toUpper();
        } else {
            visible += QChar::fromUcs4(code);
        }
    }
    return cut ? visible + u'…' : visible;
}

QFont FittingFont(const QWidget& widget, const QString& text, int width, int pixels) {
    constexpr int smallestTenths = 7;
    constexpr int designed = 11; // pixels for which all controls have room, however large the desktop's font
    QFont font = QApplication::font(&widget);
    if (pixels > 0) {
        font.setPixelSize(pixels);
    }
    const auto fits = [&] {
        const QFontMetrics metrics(font);
        return metrics.horizontalAdvance(text) <= width && metrics.height() <= widget.height();
    };
    const int full = QFontInfo(font).pixelSize();
    const int smallest = std::min(full * smallestTenths / 10, designed);
    for (int size = full; size > smallest && !fits();) {
        font.setPixelSize(--size);
    }
    return font;
}

} // namespace tessarolyne
