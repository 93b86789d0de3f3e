#include "desktop/QtText.h"

#include "platform/Text.h"

#include <QApplication>
#include <QChar>
#include <QFontInfo>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QList>
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
QString WithLongRunsBroken(const QString& text) {
    constexpr qsizetype longestRun = 80;
    QString broken;
    qsizetype run = 0;
    for (const QChar unit : text) {
        if (run >= longestRun && !unit.isLowSurrogate()) {
            broken += u'\n';
            run = 0;
        }
        broken += unit;
        run = unit.isSpace() ? 0 : run + 1;
    }
    return broken;
}

} // namespace

QString ToQt(const std::string& text) {
    // Qt drops U+FEFF at the start as a byte order mark; the models count it.
    const bool marked = text.starts_with("\xEF\xBB\xBF");
    const QString converted = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return marked ? QChar(QChar::ByteOrderMark) + converted : converted;
}

std::string FromQt(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

QString WithLineFeeds(const std::string& text) {
    QString shown = ToQt(text);
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    shown.replace(u'\r', u'\n');
    return shown;
}

int UnitOfCharacter(const std::string& text, int character) {
    return Walk(text, [&](const Reached& reached) { return reached.character >= character; }).unit;
}

int CharacterOfUnit(const std::string& text, int unit) {
    return Walk(text, [&](const Reached& reached) { return reached.unit >= unit; }).character;
}

QString LiteralCaption(const std::string& caption) {
    return ToQt(caption).replace(u'&', QLatin1String("&&"));
}

QString WithAltKey(const std::string& caption, const std::string& letter) {
    const QString whole = ToQt(caption);
    const QString key = ToQt(letter);
    qsizetype found = -1;
    for (qsizetype at = 0; !key.isEmpty() && (at = whole.indexOf(key, at, Qt::CaseInsensitive)) >= 0; ++at) {
        const bool beginsWord = at == 0 || !whole.at(at - 1).isLetterOrNumber();
        if (beginsWord || found < 0) {
            found = at;
        }
        if (beginsWord) {
            break;
        }
    }
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

namespace {

std::string MovingKey(int key) {
    switch (key) {
    case Qt::Key_PageUp:
        return "\x0B";
    case Qt::Key_PageDown:
        return "\x0C";
    case Qt::Key_Up:
        return "\x1E";
    case Qt::Key_Down:
        return "\x1F";
    default:
        return {};
    }
}

} // namespace

bool IsCommandKey(const QKeyEvent& event) {
#ifdef Q_OS_MACOS
    constexpr auto commands =
        Qt::NoModifier; // Option makes characters there, and Qt itself leaves Command out
#else
    constexpr auto commands = Qt::AltModifier | Qt::MetaModifier;
#endif
    return event.modifiers().testAnyFlags(commands) && !event.text().isEmpty();
}

std::string KeyText(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
        return "\r";
    case Qt::Key_Enter:
        return "\x03";
    case Qt::Key_Escape:
        return "\x1B";
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return "\t";
    default:
        break;
    }
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::NoModifier && !MovingKey(event.key()).empty()) {
        return MovingKey(event.key());
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

namespace {

constexpr int smallestTenths = 7;
constexpr int designed = 11; // pixels for which all controls have room, however large the desktop's font is

} // namespace

QFont FittingFont(const QWidget& widget, const QString& text, int width, int pixels) {
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
