#include "author/LessonRecord.h"

#include "lesson/LessonWords.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

namespace {

constexpr auto kByteOrderMark = "\xEF\xBB\xBF";

QByteArray quoted(const QString &text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

QByteArray itemOf(const RecordedStep &step, int number)
{
    const QPoint position =
        step.position.value_or(QPoint(LessonWords::kNoPosition, LessonWords::kNoPosition));
    const QByteArray n = QByteArray::number(number);
    const QByteArray none = QByteArray::number(LessonWords::kNoJump);
    return "    {\n\"id\":" + n + ",\n\"name\":" + quoted(step.name) +
           ",\n\"folder\":false,\n\"translationId\":" + n + ",\n\"x\":" + QByteArray::number(position.x()) +
           ",\n\"y\":" + QByteArray::number(position.y()) + ",\n\"windowKey\":" + quoted(step.windowKey) +
           ",\n\"condition\":" + quoted(step.condition) + ",\n\"hint\":qsTr(\"#" + n +
           "\"),\n\"icon\":" + quoted(step.icon) + ",\n\"jump\":" + none + ",\n\"jumpNo\":" + none +
           ",\n\"command\":\"\",\n\"showArrow\":true,\n\"prohibited\":false    \n    }";
}

QString save(const QString &path, const QByteArray &contents)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.commit()) {
        return {};
    }
    return QStringLiteral("%1: it cannot be written: %2").arg(path, file.errorString());
}

} // namespace

QString LessonRecord::name() const
{
    return QFileInfo(m_path).completeBaseName();
}

QString LessonRecord::cataloguePath(const QString &locale) const
{
    return QFileInfo(m_path).dir().filePath(QStringLiteral("%1.%2.ts").arg(name(), locale));
}

QString LessonRecord::problem() const
{
    QStringList paths{m_path};
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        paths += cataloguePath(locale);
    }
    for (const QString &path : qAsConst(paths)) {
        if (QFileInfo::exists(path)) {
            return QStringLiteral("%1 is there already; record to another file, or move it away").arg(path);
        }
    }
    const QString folder = QFileInfo(m_path).path();
    return QFileInfo(folder).isDir()
               ? QString()
               : QStringLiteral("there is no folder %1 to record to; make it first").arg(folder);
}

QByteArray LessonRecord::scenario() const
{
    QByteArray text = QByteArray(kByteOrderMark) + "var scenario = [\n";
    for (int i = 0; i < m_steps.size(); ++i) {
        text += itemOf(m_steps.at(i), i + 1) + (i + 1 < m_steps.size() ? ",\n" : "\n");
    }
    return text + "];";
}

QByteArray LessonRecord::catalogue(const QString &locale) const
{
    QByteArray text =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"" +
        locale.toUtf8() + "\">\n<context>\n  <name>" + name().toHtmlEscaped().toUtf8() + "</name>\n";
    for (int number = 1; number <= m_steps.size(); ++number) {
        text += "  <message>\n    <source>#" + QByteArray::number(number) +
                "</source>\n    <translation type=\"unfinished\"></translation>\n  </message>\n";
    }
    return text + "</context>\n</TS>\n";
}

QString LessonRecord::write() const
{
    QString problem = save(m_path, scenario());
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        problem = problem.isEmpty() ? save(cataloguePath(locale), catalogue(locale)) : problem;
    }
    return problem;
}
