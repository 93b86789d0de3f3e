#include "desktop/Replacement.h"

#include <QStringView>

#include <algorithm>

namespace tessarolyne {

namespace {

qsizetype CommonStart(QStringView left, QStringView right) {
    const auto ends = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    return ends.first - left.begin();
}

qsizetype CommonEnd(QStringView left, QStringView right) {
    const auto ends = std::mismatch(left.rbegin(), left.rend(), right.rbegin(), right.rend());
    return ends.first - left.rbegin();
}

bool SplitsPair(QStringView text, qsizetype at) {
    return at > 0 && at < text.size() && text[at].isLowSurrogate() && text[at - 1].isHighSurrogate();
}

} // namespace

Replacement FindReplacement(
    const QString& before, const QString& after, qsizetype selectionStart, qsizetype caret) {
    const QStringView old(before);
    const QStringView now(after);
    qsizetype tail = now.size() - std::clamp(caret, qsizetype(0), now.size());
    if (!old.endsWith(now.last(tail))) {
        tail = CommonEnd(old, now); // an undo may leave the caret anywhere
    }
    while (SplitsPair(now, now.size() - tail) || SplitsPair(old, old.size() - tail)) {
        --tail;
    }
    qsizetype start = CommonStart(old.chopped(tail), now.chopped(tail));
    start = std::min(start, std::max(selectionStart, qsizetype(0)));
    while (SplitsPair(now, start) || SplitsPair(old, start)) {
        --start;
    }
    return {start, old.size() - tail - start, now.sliced(start, now.size() - tail - start).toString()};
}

} // namespace tessarolyne
