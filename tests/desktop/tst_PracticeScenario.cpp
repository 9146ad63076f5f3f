#include "PracticeTest.h"
#include "author/ScenarioPlayer.h"

#include <QFile>
#include <QLabel>
#include <QSignalSpy>

namespace {

const QString kName = QStringLiteral("Harbor");

QString item(int id)
{
    return QStringLiteral(R"({"id":%1,"x":-9999,"y":-9999,"windowKey":"MainWindow","condition":"click,",)"
                          R"("hint":qsTr("#%1"),"icon":"eye"})")
        .arg(id);
}

QByteArray catalogue(const QStringList &hints)
{
    QString messages;
    for (int id = 1; id <= hints.size(); ++id) {
        messages += QStringLiteral("<message><source>#%1</source><translation>%2</translation></message>")
                        .arg(QString::number(id), hints.at(id - 1));
    }
    return QStringLiteral("<TS version=\"2.1\" language=\"en_US\"><context><name>%1</name>%2</context></TS>")
        .arg(kName, messages)
        .toUtf8();
}

} // namespace

/// An author's scenario file from disk, played with the real companion.
class tst_PracticeScenario : public PracticeTest
{
    Q_OBJECT

private Q_SLOTS:
    void staysAtTheStepWhenTheFileChanges();

private:
    void write(const QString &fileName, const QByteArray &text) const;

    QTemporaryDir m_folder;
};

void tst_PracticeScenario::write(const QString &fileName, const QByteArray &text) const
{
    QFile file(m_folder.filePath(fileName));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

void tst_PracticeScenario::staysAtTheStepWhenTheFileChanges()
{
    const QString scenario = kName + QStringLiteral(".js");
    const QString texts = kName + QStringLiteral(".en_US.ts");
    write(scenario, QStringLiteral("var scenario = [%1,%2,%3];").arg(item(1), item(2), item(3)).toUtf8());
    write(texts, catalogue({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")}));
    PracticeEditor::Options options = this->options();
    options.hasLessonOfItsOwn = true;
    options.lesson = 0;
    start(options);
    ScenarioPlayer player(ScenarioFile(m_folder.filePath(scenario), options.locale), -1,
                          &m_editor->session());
    QSignalSpy reloaded(&player, &ScenarioPlayer::reloaded);
    waitForTheLesson();
    XWindows::click(overlays().buttons.constFirst().rect.center());
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 2, kSoonMs);
    QCOMPARE(stripText()->text(), QStringLiteral("Two"));
    write(texts, catalogue({QStringLiteral("One"), QStringLiteral("Second"), QStringLiteral("Three")}));
    QTRY_COMPARE_WITH_TIMEOUT(reloaded.size(), 1, kSoonMs);
    QCOMPARE(stepId(), 2);
    QCOMPARE(stripText()->text(), QStringLiteral("Second"));
    // A step in front of it, and the present one is still the same.
    write(scenario, QStringLiteral("var scenario = [%1,%2,%3];").arg(item(3), item(1), item(2)).toUtf8());
    QTRY_COMPARE_WITH_TIMEOUT(reloaded.size(), 2, kSoonMs);
    QCOMPARE(stepId(), 2);
    QTRY_VERIFY_WITH_TIMEOUT(isReadable(), kSoonMs);
}

QTEST_MAIN(tst_PracticeScenario)
#include "tst_PracticeScenario.moc"
