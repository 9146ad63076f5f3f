#include "lesson/LessonWords.h"
#include "lesson/description/DescriptionSet.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

#include <algorithm>

namespace {

struct Trial
{
    QString name;
    QString path;
    QString source;
};

QVector<Trial> readTrials()
{
    QVector<Trial> trials;
    QDirIterator files(QStringLiteral(TRIALS), {QStringLiteral("*.js")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly)) {
            trials.append(
                {files.fileInfo().completeBaseName(), file.fileName(), QString::fromUtf8(file.readAll())});
        }
    }
    return trials;
}

} // namespace

/// Whether the trials leave nothing out. That they can be played shows when they are.
class tst_Trials : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyWindowHasATrial();
    void everyTrialHasStepsInItsWindow();
    void everyTrialSaysWhatItLeaves();
    void everyWordIsUsed_data();
    void everyWordIsUsed();

private:
    QVector<Trial> m_trials;
};

void tst_Trials::initTestCase()
{
    m_trials = readTrials();
    QVERIFY(!m_trials.isEmpty());
}

void tst_Trials::everyWindowHasATrial()
{
    QStringList errors;
    const DescriptionSet windows = DescriptionSet::read(QStringLiteral(DESCRIPTIONS), nullptr, &errors);
    QCOMPARE(errors, QStringList());
    QStringList keys = windows.keys();
    keys.removeOne(QString()); // the screen
    keys.sort();
    QStringList names;
    for (const Trial &trial : qAsConst(m_trials)) {
        names += trial.name;
    }
    names.sort();
    QCOMPARE(names, keys);
}

void tst_Trials::everyTrialHasStepsInItsWindow()
{
    for (const Trial &trial : qAsConst(m_trials)) {
        QVERIFY2(trial.source.contains(QStringLiteral("\"windowKey\":\"%1\"").arg(trial.name)),
                 qPrintable(trial.name));
    }
}

void tst_Trials::everyTrialSaysWhatItLeaves()
{
    for (const Trial &trial : qAsConst(m_trials)) {
        QString outcome = trial.path;
        outcome.replace(QLatin1String(".js"), QLatin1String(".outcome.json"));
        QFile file(outcome);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(outcome));
        QVERIFY2(file.readAll().contains("\"data/"), qPrintable(outcome));
    }
}

void tst_Trials::everyWordIsUsed_data()
{
    QTest::addColumn<QString>("word");
    for (const char *const condition :
         {"click,", "windowState,NewProject,open", "windowState,MapProperties,close", "list,",
          "action,fileSave,close", "action,drawRectangle,", "tabView,tabview,", "yesNo", "spinBox,=,",
          "comboBox,", "checked,", "popup,", "mouseEvent,Map,click", "mouseEvent,Location,click",
          "radioButton,RadioButton,", "pressed,0,0", "menuEvent,Map,click", "wait,", "textLength,"}) {
        QTest::newRow(condition) << QStringLiteral("\"condition\":\"") + QLatin1String(condition);
    }
    for (const char *const icon : LessonWords::kIcons) {
        QTest::newRow(icon) << QStringLiteral("\"icon\":\"%1\"").arg(QLatin1String(icon));
    }
    QTest::newRow("presetData") << QStringLiteral("\"command\":\"presetData,step");
}

void tst_Trials::everyWordIsUsed()
{
    QFETCH(QString, word);
    QVERIFY(std::any_of(m_trials.cbegin(), m_trials.cend(),
                        [&word](const Trial &trial) { return trial.source.contains(word); }));
}

QTEST_GUILESS_MAIN(tst_Trials)
#include "tst_Trials.moc"
