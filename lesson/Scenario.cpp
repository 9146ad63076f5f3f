#include "lesson/Scenario.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

namespace {

QString textOf(const QJsonObject &object, QLatin1String key)
{
    return object.value(key).toString();
}

struct Reading
{
    QVector<Step> steps;
    QVector<UnknownWord> unknownWords;
    QStringList *problems = nullptr;
};

Step readStep(const QJsonObject &object, QVector<UnknownWord> *unknownWords)
{
    Step step;
    step.id = object.value(QLatin1String("id")).toInt();
    step.x = object.value(QLatin1String("x")).toInt();
    step.y = object.value(QLatin1String("y")).toInt();
    step.windowKey = textOf(object, QLatin1String("windowKey"));
    step.conditionText = textOf(object, QLatin1String("condition"));
    step.hint = textOf(object, QLatin1String("hint"));
    step.icon = object.value(QLatin1String("icon")).toString(QStringLiteral("click"));
    step.jump = object.value(QLatin1String("jump")).toInt(LessonWords::kNoJump);
    step.jumpNo = object.value(QLatin1String("jumpNo")).toInt(LessonWords::kNoJump);
    step.command = textOf(object, QLatin1String("command"));
    step.showArrow = object.value(QLatin1String("showArrow")).toBool(true);
    if (!step.icon.isEmpty() && LessonWords::iconKind(step.icon) == int(LessonWords::kIcons.size())) {
        unknownWords->append(
            {step.id, step.icon,
             QStringLiteral("\"%1\" is not an icon; there are click, doubleClick, rightClick, eye, wait and "
                            "keyboard")
                 .arg(step.icon)});
    }
    QString problem;
    if (const std::optional<Condition> condition = Condition::parse(step.conditionText, &problem)) {
        step.condition = *condition;
    } else {
        unknownWords->append({step.id, step.conditionText, problem});
    }
    if (!step.command.isEmpty() && LessonWords::presetStep(step.command).isEmpty()) {
        unknownWords->append(
            {step.id, step.command,
             QStringLiteral("\"%1\" is not a command; there is presetData,stepN").arg(step.command)});
    }
    return step;
}

void readSteps(const QJsonArray &items, Reading *reading)
{
    for (const QJsonValue &item : items) {
        const QJsonObject object = item.toObject();
        if (object.value(QLatin1String("folder")).toBool()) {
            readSteps(object.value(QLatin1String("children")).toArray(), reading);
        } else if (object.value(QLatin1String("id")).isDouble()) {
            reading->steps.append(readStep(object, &reading->unknownWords));
        } else {
            reading->problems->append(QStringLiteral("an item after %1 steps has no id and is left out")
                                          .arg(reading->steps.size()));
        }
    }
}

} // namespace

Scenario Scenario::parse(const QString &text, QStringList *problems)
{
    const int begin = text.indexOf(QLatin1Char('['));
    const int end = text.lastIndexOf(QLatin1Char(']'));
    Scenario scenario;
    QJsonParseError error = {};
    const QJsonDocument document =
        QJsonDocument::fromJson(begin < 0 ? QByteArray() : text.mid(begin, end - begin + 1).toUtf8(), &error);
    if (!document.isArray()) {
        problems->append(QStringLiteral("the scenario is no list of steps: %1").arg(error.errorString()));
        return scenario;
    }
    Reading reading;
    reading.problems = problems;
    readSteps(document.array(), &reading);
    scenario.m_steps = reading.steps;
    scenario.m_unknownWords = reading.unknownWords;

    QSet<int> ids;
    for (const Step &step : qAsConst(scenario.m_steps)) {
        if (ids.contains(step.id)) {
            problems->append(QStringLiteral("step %1: the id stands twice").arg(step.id));
        }
        ids.insert(step.id);
    }
    for (const Step &step : qAsConst(scenario.m_steps)) {
        for (const int target : {step.jump, step.jumpNo}) {
            if (target != LessonWords::kNoJump && !ids.contains(target)) {
                problems->append(
                    QStringLiteral("step %1: no step has the id %2 that it jumps to; it goes on instead")
                        .arg(step.id)
                        .arg(target));
            }
        }
    }
    return scenario;
}

bool Scenario::isSameLesson(const Scenario &other) const
{
    const auto isSame = [](const Step &one, const Step &another) {
        return one.id == another.id && one.x == another.x && one.y == another.y &&
               one.windowKey == another.windowKey && one.conditionText == another.conditionText &&
               one.jump == another.jump && one.jumpNo == another.jumpNo && one.command == another.command;
    };
    return std::equal(m_steps.cbegin(), m_steps.cend(), other.m_steps.cbegin(), other.m_steps.cend(), isSame);
}

bool Scenario::hasStepIn(const QString &windowKey) const
{
    return std::any_of(m_steps.cbegin(), m_steps.cend(),
                       [&windowKey](const Step &step) { return step.windowKey == windowKey; });
}

int Scenario::indexOf(int id) const
{
    for (int index = 0; index < m_steps.size(); ++index) {
        if (m_steps.at(index).id == id) {
            return index;
        }
    }
    return -1;
}
