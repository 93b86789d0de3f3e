#include "desktop/QtText.h"

#include "platform/Utf8.h"

#include <cstddef>

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

} // namespace tessarolyne
