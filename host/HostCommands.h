#pragma once

#include <QMap>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

#include <optional>

/// What a step shows, as the companion is told it.
struct IndicatorUpdate
{
    /// Where the bubble's window goes, in global screen pixels; nothing takes the arrow away and leaves the
    /// bubble.
    std::optional<QPoint> place;
    /// Recorded by the companion, and not added to the place.
    QString windowKey;
    /// Plain text; a line feed begins a new line.
    QString hint;
    /// Next, or Yes and No: one of the two, as they have the same place.
    bool next = false;
    bool yesNo = false;
    bool arrow = true;
    /// 0 to 5 in the order of LessonWords::kIcons, 6 for none.
    int iconKind = 6;
};

/// Builds every command that a host editor may send: the text of one command, its fields joined by the byte
/// 0x01. No text that goes in may hold the bytes 0x00, 0x01 or 0x02. Positions and sizes are global screen
/// pixels.
namespace HostCommands {

QString alive();
/// Ends a playback. Nothing may follow it in the same frame.
QString bye();
/// Says hello in a language: en_US, ja_JP or zh_CN.
QString fromServer(const QString &locale);
QString tutorialList();
QString tutorial(const QString &lessonName);
QString requestPresetData(const QString &step);

/// Playback is on, in this area of the screen.
QString start(const QRect &area);
QString stop();
QString indicatorUpdate(const IndicatorUpdate &update);
/// Moves the bubble and nothing else.
QString indicatorUpdateXy(const QPoint &place);

QString windowPush(const QString &windowKey);
QString windowPop();
QString windowPosition(const QString &windowKey, const QPoint &origin);
QString controlPosition(const QString &controlName, const QPoint &position);
QString applicationWindowSize(const QSize &size);
/// The editor is visible, or minimised or hidden.
QString state(bool visible);

QString showTooltip(const QString &text, const QPoint &centre);
QString hideTooltip();

/// What is being taught, and a line for a log. A companion that shows neither ignores them.
QString contents(const QString &text);
QString logAppend(const QString &line);

} // namespace HostCommands

/// One command of the companion, read.
struct CompanionCommand
{
    enum class Kind {
        /// Not one that this kit knows; word tells it.
        kUnknown,
        kAlive,
        /// text is a lesson's script, id the item to begin with; no id when the companion named none.
        kStart,
        kNext,
        kYes,
        kNo,
        /// lessons.
        kTutorialList,
        /// files.
        kFeedbackPresetData,
        kTutorialReady,
        /// An author moved a step: place, windowKey in text.
        kIndicatorMoved,
    };

    struct Lesson
    {
        QString name;
        QString title;
    };

    Kind kind = Kind::kUnknown;
    QString word;
    QString text;
    std::optional<int> id;
    QVector<Lesson> lessons;
    /// Path inside the project to the file's whole text.
    QMap<QString, QString> files;
    QPoint place;
    /// What is wrong with it, for a log; empty when nothing is. The rest is read as well as it can be.
    QString problem;

    /// Reads the text of one command, fields joined by the byte 0x01.
    [[nodiscard]] static CompanionCommand read(const QString &command);
};
