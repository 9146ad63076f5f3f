#include "player/scene/TalkPanels.h"

#include "player/scene/TalkText.h"

namespace player::TalkPanels {

namespace {

constexpr int kBottom = 2;

/// The rows that are left beside a message: above one at the bottom, else below it.
QRect besides(int messagePlace, const QSize &size, int left)
{
    const QRect messageRect = message(messagePlace);
    const int room = messagePlace == kBottom ? messageRect.top() - 2 * kMargin
                                             : Frame::kHeight - messageRect.bottom() - 1 - 2 * kMargin;
    const int height = qMin(size.height(), room);
    const int top = messagePlace == kBottom ? messageRect.top() - kMargin / 2 - height
                                            : messageRect.bottom() + kMargin / 2;
    return {left, top, size.width(), height};
}

} // namespace

QRect message(int place)
{
    const int room = Frame::kHeight - kMessageHeight - 2 * kMargin;
    return {kMargin, kMargin + room * qBound(0, place, 2) / 2, Frame::kWidth - 2 * kMargin, kMessageHeight};
}

QRect choices(const QStringList &texts, int place, int messagePlace)
{
    int widest = 0;
    for (const QString &text : texts) {
        widest = qMax(widest, TalkText::width(text));
    }
    const int width = qBound(96, widest + 4 * kPadding, Frame::kWidth - 2 * kMargin);
    const int room = Frame::kWidth - 2 * kMargin - width;
    return besides(messagePlace, {width, int(texts.size()) * kRowHeight + 2 * kPadding},
                   kMargin + room * qBound(0, place, 2) / 2);
}

QRect number(int digits, int messagePlace)
{
    const int width = digits * 32 + 2 * kPadding;
    return besides(messagePlace, {width, kRowHeight + 2 * kPadding}, (Frame::kWidth - width) / 2);
}

QRect items(int messagePlace)
{
    constexpr int kRows = 5;
    return besides(messagePlace, {Frame::kWidth - 2 * kMargin, kRows * kRowHeight + 2 * kPadding}, kMargin);
}

QRect all()
{
    return {0, 0, Frame::kWidth, Frame::kHeight};
}

int lineOf(const QRect &panel)
{
    return panel.width() - 2 * kPadding;
}

} // namespace player::TalkPanels
