#include "SampleEvents.h"
#include "lesson/LessonWords.h"
#include "project/events/CommandList.h"

#include <QTest>

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

EventCommands commandsIn(const QString &locale, QStringList *errors)
{
    return EventCommands::read(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/commands"), locale,
                               errors);
}

/// Codes that stand in a list because another command needs them there.
QSet<int> partsOf(const EventCommands &table, const QJsonArray &list)
{
    QSet<int> parts{EventCommands::kEnd};
    for (const QJsonValue &entry : list) {
        if (const EventCommands::Command *command = table.find(sample::number(entry, "code"))) {
            parts.insert(command->followUp());
            const QVector<int> markers = command->markers();
            for (const int marker : markers) {
                parts.insert(marker);
            }
        }
    }
    return parts;
}

/// A letter for each parameter: its type, as a form writes it.
QString typesOf(const QJsonArray &parameters)
{
    QString types;
    for (const QJsonValue &value : parameters) {
        types += QString::number(int(value.type()));
    }
    return types;
}

} // namespace

/// The files of the event commands, held against the sample project: each command of each of its steps.
class tst_CommandFormsOfSample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWithoutAnErrorInEachLanguage();
    void everyCommandHasAForm_data() { steps(); }
    void everyCommandHasAForm();
    void aNewCommandHasTheParametersOfTheSample_data() { steps(); }
    void aNewCommandHasTheParametersOfTheSample();
    void acceptingWithoutAChangeChangesNothing_data() { steps(); }
    void acceptingWithoutAChangeChangesNothing();
    void aNewCommandStaysAsItIsWhenItIsEdited();

private:
    static void steps();
    static QVector<sample::CommandList> lists();

    QStringList m_errors;
    EventCommands m_table = commandsIn(str("en_US"), &m_errors);
};

void tst_CommandFormsOfSample::steps()
{
    QTest::addColumn<int>("step");
    for (int step = sample::kFirstStep; step <= sample::kLastStep; ++step) {
        QTest::newRow(qPrintable(sample::stepName(step))) << step;
    }
}

QVector<sample::CommandList> tst_CommandFormsOfSample::lists()
{
    QFETCH(int, step);
    return sample::commandLists(sample::readStep(step));
}

void tst_CommandFormsOfSample::readsWithoutAnErrorInEachLanguage()
{
    QCOMPARE(m_errors, QStringList());
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        QStringList errors;
        commandsIn(locale, &errors);
        QCOMPARE(errors, QStringList());
    }
}

void tst_CommandFormsOfSample::everyCommandHasAForm()
{
    const QVector<sample::CommandList> all = lists();
    QVERIFY(!all.isEmpty());
    for (const sample::CommandList &list : all) {
        const QSet<int> parts = partsOf(m_table, list.list);
        for (const QJsonValue &entry : list.list) {
            const int code = sample::number(entry, "code");
            const EventCommands::Command *command = m_table.find(code);
            const bool hasForm = command != nullptr && (command->hasForm || command->parameters.isEmpty());
            QVERIFY2(parts.contains(code) || hasForm, qPrintable(str("%1: %2").arg(list.place).arg(code)));
        }
    }
}

void tst_CommandFormsOfSample::aNewCommandHasTheParametersOfTheSample()
{
    const QVector<sample::CommandList> all = lists();
    for (const sample::CommandList &list : all) {
        for (const QJsonValue &entry : list.list) {
            const EventCommands::Command *command = m_table.find(sample::number(entry, "code"));
            if (command == nullptr || command->tab.isEmpty()) {
                continue;
            }
            const QString types = typesOf(sample::objectsIn(entry, "parameters"));
            // A message may have a speaker, too.
            QVERIFY2(types.startsWith(typesOf(command->parameters)),
                     qPrintable(str("%1: %2 with %3").arg(list.place).arg(command->code).arg(types)));
        }
    }
}

void tst_CommandFormsOfSample::acceptingWithoutAChangeChangesNothing()
{
    const QVector<sample::CommandList> all = lists();
    for (const sample::CommandList &list : all) {
        CommandList edited(&m_table, list.list);
        const QVector<int> rows = edited.rows();
        for (const int row : rows) {
            edited.change(row, edited.form(row));
            QCOMPARE(edited.entries(), list.list);
        }
    }
}

void tst_CommandFormsOfSample::aNewCommandStaysAsItIsWhenItIsEdited()
{
    int count = 0;
    const QStringList tabs = EventCommands::tabs();
    for (const QString &tab : tabs) {
        const QVector<int> codes = m_table.codesIn(tab);
        for (const int code : codes) {
            CommandList list(&m_table, {});
            const int place = list.insert(0, CommandList::newForm(m_table, code));
            QCOMPARE(list.codeAt(place), code);
            const QJsonArray before = list.entries();
            list.change(place, list.form(place));
            QCOMPARE(list.entries(), before);
            count += 1;
        }
    }
    QVERIFY(count > 60);
}

QTEST_GUILESS_MAIN(tst_CommandFormsOfSample)
#include "tst_CommandFormsOfSample.moc"
