#include "AuthoringTest.h"

/// Where the authoring calls surprise. All of it is told in docs/authoring.md, with what a tool does instead.
class tst_AuthoringLimits : public AuthoringTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsBehindTenAndASaveDoNotModify();
    void aStepInThePlaceOfTheSavedOneDoesNotModify();
    void aDragThatGoesOnBehindASaveDoesNotModify();
    void aDragThatIsKeptApartFromTheSaveModifies();
    void aStepBackForgetsThatTheToolSetModified();

    void aDragBehindAnUndoJoinsTheStepBefore();
    void aDragThatIsKeptApartFromTheUndoIsAStep();
    void aDragBehindARedoJoinsTheStepOfTheRedo_data();
    void aDragBehindARedoJoinsTheStepOfTheRedo();

    void aStepBackDoesNothingInASequence();
    void anEmptySequenceLeavesNoStep();
    void anEmptySequenceOnAFullHistoryCostsAStep();
    void aFieldOfTwoItemsInASequenceIsTakenForOne();
    void changesThatAreNotMergeableStayApartInASequence();

    void translationsThatAreThereAreEmptied();
    void aNestedFolderLosesWhatIsBelowIt();
    void aNameThatIsTakenForSomethingElseRuinsTheFile_data();
    void aNameThatIsTakenForSomethingElseRuinsTheFile();
    void aTextWithTheEndOfTheLessonLosesItsSemicolonOnTheWay();

private:
    /// Whether the document differs from what was saved last.
    [[nodiscard]] bool differs() const
    {
        return TutorialEditor::Manager::instance()->getScenario(true) != m_saved;
    }
    [[nodiscard]] bool save()
    {
        m_saved = TutorialEditor::Manager::instance()->getScenario(true);
        return m_tool->text("save").isEmpty();
    }
    /// One step of a history with @p count steps, each with another value.
    void makeSteps(int count) const
    {
        for (int i = 1; i <= count; ++i) {
            m_tool->change(QStringLiteral("step %1").arg(i), 1, "x", 100 + i);
        }
    }
    [[nodiscard]] int stepsToUndo() const
    {
        int steps = 0;
        while (m_tool->canUndo() && m_tool->undo()) {
            ++steps;
        }
        return steps;
    }
    void addChange(int id, int x, bool mergeable) const
    {
        PropertyHash properties;
        properties.insert(QStringLiteral("target"), QStringLiteral("x"));
        auto command = std::make_unique<ModifyTutorialItemDataCommand>(TutorialEditor::Manager::instance(),
                                                                       id, properties, x, QString());
        command->setMergeable(mergeable);
        m_tool->history()->addCommand(std::move(command));
    }

    QString m_saved;
};

void tst_AuthoringLimits::stepsBehindTenAndASaveDoNotModify()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    makeSteps(10);
    QVERIFY(save());
    for (int i = 1; i <= 3; ++i) {
        m_tool->change(QStringLiteral("further %1").arg(i), 1, "y", 200 + i);
        QVERIFY(!m_tool->modified());
        QVERIFY(differs());
    }
}

void tst_AuthoringLimits::aStepInThePlaceOfTheSavedOneDoesNotModify()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    makeSteps(1);
    QVERIFY(save());
    QVERIFY(m_tool->undo());
    QVERIFY(m_tool->modified());
    m_tool->change(QStringLiteral("other"), 1, "x", 200);
    QVERIFY(!m_tool->modified());
    QVERIFY(differs());
}

void tst_AuthoringLimits::aDragThatGoesOnBehindASaveDoesNotModify()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->change(QStringLiteral("drag"), 1, "x", 100);
    QVERIFY(save());
    m_tool->change(QStringLiteral("drag"), 1, "x", 101);
    QVERIFY(!m_tool->modified());
    QVERIFY(differs());
}

void tst_AuthoringLimits::aDragThatIsKeptApartFromTheSaveModifies()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->change(QStringLiteral("drag"), 1, "x", 100);
    QVERIFY(save());
    QVERIFY(m_tool->call(m_tool->history(), "setUnmergeable"));
    m_tool->change(QStringLiteral("drag"), 1, "x", 101);
    QVERIFY(m_tool->modified());
    QVERIFY(m_tool->undo());
    QVERIFY(!m_tool->modified());
    QVERIFY(!differs());
}

void tst_AuthoringLimits::aStepBackForgetsThatTheToolSetModified()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QVERIFY(save());
    m_tool->item(1)->setName(QStringLiteral("Welcome"));
    QVERIFY(m_tool->manager()->setProperty("modified", true));
    makeSteps(1);
    QVERIFY(m_tool->undo());
    QVERIFY(!m_tool->modified());
    QVERIFY(differs());
}

void tst_AuthoringLimits::aDragBehindAnUndoJoinsTheStepBefore()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->change(QStringLiteral("other"), 1, "y", 50);
    m_tool->change(QStringLiteral("drag"), 1, "x", 100);
    QVERIFY(m_tool->undo());
    m_tool->change(QStringLiteral("drag"), 1, "x", 101);
    QVERIFY(m_tool->canRedo()); // what was undone would come back over the new value
    QCOMPARE(stepsToUndo(), 1);
    QCOMPARE(m_tool->item(1)->y, 20);
}

void tst_AuthoringLimits::aDragThatIsKeptApartFromTheUndoIsAStep()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->change(QStringLiteral("other"), 1, "y", 50);
    m_tool->change(QStringLiteral("drag"), 1, "x", 100);
    QVERIFY(m_tool->undo());
    QVERIFY(m_tool->call(m_tool->history(), "setUnmergeable"));
    m_tool->change(QStringLiteral("drag"), 1, "x", 101);
    QVERIFY(!m_tool->canRedo());
    QCOMPARE(stepsToUndo(), 2);
}

void tst_AuthoringLimits::aDragBehindARedoJoinsTheStepOfTheRedo_data()
{
    QTest::addColumn<bool>("apart");
    QTest::newRow("joins") << false;
    QTest::newRow("kept apart") << true;
}

void tst_AuthoringLimits::aDragBehindARedoJoinsTheStepOfTheRedo()
{
    QFETCH(bool, apart);
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->change(QStringLiteral("drag"), 1, "x", 100);
    QVERIFY(save());
    QVERIFY(m_tool->undo());
    QVERIFY(m_tool->redo());
    QVERIFY(!differs());
    if (apart) {
        QVERIFY(m_tool->call(m_tool->history(), "setUnmergeable"));
    }
    m_tool->change(QStringLiteral("drag"), 1, "x", 101);
    QVERIFY(differs());
    QCOMPARE(m_tool->modified(), apart);
    QCOMPARE(stepsToUndo(), apart ? 2 : 1);
}

void tst_AuthoringLimits::aStepBackDoesNothingInASequence()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    makeSteps(2);
    QVERIFY(m_tool->undo());
    QVERIFY(m_tool->call(m_tool->history(), "beginSequence", QStringLiteral("both")));
    addChange(3, 33, true);
    const QString inside = m_tool->document();
    QVERIFY(m_tool->undo());
    QVERIFY(m_tool->redo());
    QCOMPARE(m_tool->document(), inside);
    QVERIFY(m_tool->call(m_tool->history(), "endSequence"));
    QCOMPARE(stepsToUndo(), 2);
}

void tst_AuthoringLimits::anEmptySequenceLeavesNoStep()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    makeSteps(9);
    QVERIFY(m_tool->call(m_tool->history(), "beginSequence", QStringLiteral("nothing")));
    QVERIFY(m_tool->call(m_tool->history(), "endSequence"));
    QCOMPARE(stepsToUndo(), 9);
    QCOMPARE(m_tool->item(1)->x, 10);
}

void tst_AuthoringLimits::anEmptySequenceOnAFullHistoryCostsAStep()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    makeSteps(10);
    QVERIFY(m_tool->call(m_tool->history(), "beginSequence", QStringLiteral("nothing")));
    QVERIFY(m_tool->call(m_tool->history(), "endSequence"));
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->item(1)->x, 110); // the empty step
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->item(1)->x, 109);
    QCOMPARE(stepsToUndo(), 8);
    QCOMPARE(m_tool->item(1)->x, 101); // the first step is gone
}

void tst_AuthoringLimits::aFieldOfTwoItemsInASequenceIsTakenForOne()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QVERIFY(m_tool->call(m_tool->history(), "beginSequence", QStringLiteral("move both")));
    addChange(1, 11, true);
    addChange(3, 33, true);
    QVERIFY(m_tool->call(m_tool->history(), "endSequence"));
    QCOMPARE(m_tool->item(1)->x, 33);
    QCOMPARE(m_tool->item(3)->x, 33);
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->item(1)->x, 10);
    QCOMPARE(m_tool->item(3)->x, 33); // not undone
}

void tst_AuthoringLimits::changesThatAreNotMergeableStayApartInASequence()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    const QString before = m_tool->document();
    QVERIFY(m_tool->call(m_tool->history(), "beginSequence", QStringLiteral("move both")));
    addChange(1, 11, false);
    addChange(3, 33, false);
    QVERIFY(m_tool->call(m_tool->history(), "endSequence"));
    QCOMPARE(m_tool->item(1)->x, 11);
    QCOMPARE(m_tool->item(3)->x, 33);
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->document(), before);
    QVERIFY(!m_tool->canUndo());
    QVERIFY(m_tool->redo());
    QCOMPARE(m_tool->item(1)->x, 11);
    QCOMPARE(m_tool->item(3)->x, 33);
}

void tst_AuthoringLimits::translationsThatAreThereAreEmptied()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    const QStringList files{QStringLiteral("translations/en_US.ts"), QStringLiteral("translations/ja_JP.ts")};
    for (const QString &file : files) {
        QVERIFY(!m_tool->file(file, "<TS><context><name>Lesson</name></context></TS>").isEmpty());
    }
    QCOMPARE(m_tool->text("feedbackTranslation"), QString());
    for (const QString &file : files) {
        QCOMPARE(m_tool->contentOf(m_tool->path(file)).trimmed(), QByteArray());
    }
}

void tst_AuthoringLimits::aNestedFolderLosesWhatIsBelowIt()
{
    // The folder 4 gets the id 1 in the empty lesson, 5 gets 2, and 6 gets 3: a number that a folder has.
    const QString nested =
        m_tool->file(QStringLiteral("Nested.js"),
                     R"([{"id":4,"folder":true,"children":[{"id":5,"folder":true,"children":[{"id":6}]},
            {"id":3,"folder":true,"children":[{"id":7}]}]}])");
    QCOMPARE(m_tool->load(nested), QString());
    QVERIFY(m_tool->copy({4}));
    const QString empty = m_tool->file(QStringLiteral("Empty.js"), "[]");
    QCOMPARE(m_tool->load(empty), QString());
    QCOMPARE(m_tool->paste(), QList<int>{1});
    QCOMPARE(m_tool->shape(), QStringLiteral("1[]"));
    QCOMPARE(TutorialEditor::Manager::instance()->tree()->items.size(), 4); // 7 is not even among the items

    // In a transaction nothing is lost.
    QCOMPARE(m_tool->load(empty), QString());
    QVERIFY(m_tool->call(m_tool->history(), "beginSequence", QStringLiteral("paste")));
    QCOMPARE(m_tool->paste(), QList<int>{1});
    QVERIFY(m_tool->call(m_tool->history(), "endSequence"));
    QCOMPARE(TutorialEditor::Manager::instance()->tree()->items.size(), 5);
}

void tst_AuthoringLimits::aNameThatIsTakenForSomethingElseRuinsTheFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QString>("loadedName");
    QTest::newRow("harmless") << QStringLiteral("a[0] ;") << QString() << QStringLiteral("1 2[3] 4")
                              << QStringLiteral("a[0] ;");
    QTest::newRow("end of the lesson")
        << QStringLiteral("a[0];") << QStringLiteral("json is not array") << QString() << QString();
    QTest::newRow("comment") << QStringLiteral("a /* b */ c") << QString() << QStringLiteral("1 2[3] 4")
                             << QStringLiteral("a  c");
    QTest::newRow("translation call")
        << QStringLiteral("see qsTr(") << QStringLiteral("json is not array") << QString() << QString();
}

void tst_AuthoringLimits::aNameThatIsTakenForSomethingElseRuinsTheFile()
{
    QFETCH(QString, name);
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->item(1)->setName(name);
    QCOMPARE(m_tool->text("save"), QString());
    QTEST(m_tool->load(lesson()), "message");
    QTEST(m_tool->shape(), "shape");
    QFETCH(QString, loadedName);
    if (m_tool->item(1) != nullptr) {
        QCOMPARE(m_tool->item(1)->name, loadedName);
    }
}

void tst_AuthoringLimits::aTextWithTheEndOfTheLessonLosesItsSemicolonOnTheWay()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->item(1)->hint = QStringLiteral("a[0]; b[1];");
    QVERIFY(m_tool->call(m_tool->manager(), "startFromId"));
    const QString handedOver = m_tool->nextPayload();
    QVERIFY2(handedOver.contains(QStringLiteral("\"hint\":\"a[0] b[1];\"")), qPrintable(handedOver));
    QCOMPARE(handedOver.section(QChar(1), 1, 1).right(3), QStringLiteral("];;"));
}

int main(int argc, char **argv)
{
    return runWithKey<tst_AuthoringLimits>(argc, argv);
}

#include "tst_AuthoringLimits.moc"
