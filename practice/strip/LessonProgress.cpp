#include "strip/LessonProgress.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

namespace {

const QLatin1String kRecords("progress.json");
const QLatin1String kFormat("format");
const QLatin1String kLessons("lessons");
const QLatin1String kDone("done");
const QLatin1String kStep("step");
const QLatin1String kSteps("steps");

/// Of progress.json. A file of another format is put aside like a damaged one.
constexpr int kPresentFormat = 1;

QJsonObject toJson(const LessonProgress::Record &record)
{
    return {{kDone, record.isDone}, {kStep, record.step}, {kSteps, record.steps}};
}

LessonProgress::Record fromJson(const QJsonObject &object)
{
    LessonProgress::Record record;
    record.isDone = object.value(kDone).toBool();
    record.steps = qMax(0, object.value(kSteps).toInt());
    record.step = qBound(0, object.value(kStep).toInt(), record.steps);
    return record;
}

} // namespace

LessonProgress::LessonProgress(const QString &folder)
    : m_folder(folder)
{
    readRecords();
}

void LessonProgress::readRecords()
{
    const QJsonObject object = read(kRecords);
    if (object.isEmpty()) {
        return;
    }
    if (object.value(kFormat).toInt() != kPresentFormat || !object.value(kLessons).isObject()) {
        putAside(kRecords);
        return;
    }
    const QJsonObject lessons = object.value(kLessons).toObject();
    for (auto lesson = lessons.constBegin(); lesson != lessons.constEnd(); ++lesson) {
        m_records.insert(lesson.key(), fromJson(lesson.value().toObject()));
    }
}

void LessonProgress::reach(const QString &lessonName, int step, int steps, const QJsonObject &bookmark)
{
    m_bookmarks.insert(lessonName, bookmark);
    write(bookmarkFile(lessonName), bookmark);
    keep(lessonName, {record(lessonName).isDone, step, steps});
}

void LessonProgress::finish(const QString &lessonName)
{
    m_records[lessonName].isDone = true;
    forgetPlace(lessonName);
}

void LessonProgress::forgetPlace(const QString &lessonName)
{
    m_bookmarks.remove(lessonName);
    const Record old = record(lessonName);
    keep(lessonName, {old.isDone, 0, old.steps});
    if (!m_folder.isEmpty()) {
        QFile::remove(pathOf(bookmarkFile(lessonName)));
    }
}

QJsonObject LessonProgress::bookmark(const QString &lessonName)
{
    if (record(lessonName).step == 0) {
        return {};
    }
    if (!m_bookmarks.contains(lessonName)) {
        m_bookmarks.insert(lessonName, read(bookmarkFile(lessonName)));
    }
    return m_bookmarks.value(lessonName);
}

QStringList LessonProgress::takeProblems()
{
    return std::exchange(m_problems, {});
}

QString LessonProgress::pathOf(const QString &fileName) const
{
    return QDir(m_folder).filePath(fileName);
}

QString LessonProgress::bookmarkFile(const QString &lessonName)
{
    // A name comes from the companion: whatever it is, it stays in the folder.
    return QStringLiteral("bookmark-%1.json")
        .arg(QString::fromLatin1(lessonName.toUtf8().toPercentEncoding()));
}

QJsonObject LessonProgress::read(const QString &fileName)
{
    QFile file(pathOf(fileName));
    if (m_folder.isEmpty() || !file.exists()) {
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        if (m_unreadable.contains(fileName)) {
            return {}; // told already
        }
        m_unreadable.insert(fileName);
        //: %1 is the path of a file, %2 the system's reason.
        complain(tr("Your progress cannot be read from “%1” (%2). Permit reading the file and start the "
                    "editor again.")
                     .arg(file.fileName(), file.errorString()));
        return {};
    }
    m_unreadable.remove(fileName);
    QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    file.close();
    if (object.isEmpty()) {
        putAside(fileName);
    }
    return object;
}

void LessonProgress::putAside(const QString &fileName)
{
    QString aside;
    int number = 0;
    do {
        ++number;
        aside = pathOf(QStringLiteral("%1.damaged%2").arg(fileName).arg(number));
    } while (QFile::exists(aside));
    if (QFile::rename(pathOf(fileName), aside)) {
        //: %1 and %2 are paths of files.
        complain(tr("The file “%1” with your progress is damaged, so the lessons begin anew. It is kept as "
                    "“%2”.")
                     .arg(pathOf(fileName), aside));
    }
}

void LessonProgress::write(const QString &fileName, const QJsonObject &object)
{
    if (m_folder.isEmpty()) {
        return;
    }
    QSaveFile file(pathOf(fileName));
    const QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact);
    const bool isWritten = QDir().mkpath(m_folder) && file.open(QIODevice::WriteOnly) &&
                           file.write(text) == text.size() && file.commit();
    if (!isWritten && !m_cannotWrite) {
        //: %1 is the path of a file, %2 the system's reason.
        complain(
            tr("Your progress cannot be kept in “%1” (%2). Make room on the disk, or permit writing. You "
               "can play on meanwhile.")
                .arg(file.fileName(), file.errorString()));
    }
    // Told once, and again when it worked meanwhile.
    m_cannotWrite = !isWritten;
}

void LessonProgress::keep(const QString &lessonName, Record record)
{
    // Another editor may have come on in another lesson meanwhile.
    readRecords();
    record.isDone = record.isDone || m_records.value(lessonName).isDone;
    m_records.insert(lessonName, record);
    QJsonObject lessons;
    for (auto kept = m_records.constBegin(); kept != m_records.constEnd(); ++kept) {
        lessons.insert(kept.key(), toJson(*kept));
    }
    write(kRecords, {{kFormat, kPresentFormat}, {kLessons, lessons}});
}

void LessonProgress::complain(const QString &problem)
{
    m_problems.append(problem);
}
