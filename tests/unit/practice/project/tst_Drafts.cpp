#include "project/DataFiles.h"
#include "project/Drafts.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString kItems = QStringLiteral("data/Items.json");
const QString kName = QStringLiteral("/1/name");
const QString kList = QStringLiteral("data/Items");

} // namespace

class tst_Drafts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void withoutADialogTheProjectIsChanged();
    void whatIsTypedIsInTheDraftOnly();
    void whatIsAcceptedIsOneStep();
    void whatIsDroppedIsGone();
    void aDraftGoesOnAfterItWasAccepted();
    void anUntouchedDraftIsNoStep();
    void aDialogAboveAnotherAcceptsIntoIt();
    void droppingADraftDropsThoseAbove();
    void selectionsAreDraftedToo();
    void filesComeAndGoInADraft();
    void droppingTheProjectItselfDoesNothing();
    void clearedDraftsShowWhatIsBelow();
    void changesOfADraftAreUndoneOneByOne();
    void changesOfOnePlaceAreOneStepOfADraft();
    void whatWasAcceptedIsUndoneAsOneStepBelow();
    void aForgottenHistoryLeavesWhatWasDone();

private:
    [[nodiscard]] QString name(const DataLayer &layer) const { return layer.value(kItems, kName).toString(); }

    QTemporaryDir m_folder;
    std::unique_ptr<DataFiles> m_files;
    std::unique_ptr<Drafts> m_drafts;
};

void tst_Drafts::init()
{
    QDir(m_folder.path()).mkdir(QStringLiteral("data"));
    QFile file(m_folder.filePath(kItems));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"([null, {"name": "Herb", "price": 8}])");
    file.close();
    m_files = std::make_unique<DataFiles>();
    QString error;
    QVERIFY2(m_files->open(m_folder.path(), &error), qPrintable(error));
    m_drafts = std::make_unique<Drafts>(m_files.get());
}

void tst_Drafts::cleanup()
{
    m_drafts.reset();
    m_files.reset();
}

void tst_Drafts::withoutADialogTheProjectIsChanged()
{
    QCOMPARE(m_drafts->top(), m_files.get());
}

void tst_Drafts::whatIsTypedIsInTheDraftOnly()
{
    DataLayer *draft = m_drafts->begin();
    QCOMPARE(m_drafts->top(), draft);
    QCOMPARE(name(*draft), QStringLiteral("Herb"));
    QSignalSpy changed(m_drafts.get(), &Drafts::changed);
    QVERIFY(draft->set(kItems, kName, QStringLiteral("Bread")));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(name(*draft), QStringLiteral("Bread"));
    QCOMPARE(name(*m_files), QStringLiteral("Herb"));
    QCOMPARE(m_files->history().count(), 0);
}

void tst_Drafts::whatIsAcceptedIsOneStep()
{
    DataLayer *draft = m_drafts->begin();
    draft->set(kItems, kName, QStringLiteral("Bread"));
    draft->set(kItems, QStringLiteral("/1/price"), 3);
    draft->set(kItems, kName, QStringLiteral("White bread"));
    draft->accept();
    m_drafts->drop(draft);
    QCOMPARE(name(*m_files), QStringLiteral("White bread"));
    QCOMPARE(m_files->history().count(), 1);
    m_files->undo();
    QCOMPARE(name(*m_files), QStringLiteral("Herb"));
    QCOMPARE(m_files->value(kItems, QStringLiteral("/1/price")).toInt(), 8);
}

void tst_Drafts::whatIsDroppedIsGone()
{
    DataLayer *draft = m_drafts->begin();
    draft->set(kItems, kName, QStringLiteral("Bread"));
    m_drafts->drop(draft);
    QCOMPARE(m_drafts->top(), m_files.get());
    QCOMPARE(name(*m_files), QStringLiteral("Herb"));
    QCOMPARE(name(*m_drafts->begin()), QStringLiteral("Herb"));
}

void tst_Drafts::aDraftGoesOnAfterItWasAccepted()
{
    DataLayer *draft = m_drafts->begin();
    draft->set(kItems, kName, QStringLiteral("Bread"));
    draft->accept();
    draft->set(kItems, kName, QStringLiteral("Cake"));
    QCOMPARE(name(*m_files), QStringLiteral("Bread"));
    m_drafts->drop(draft);
    QCOMPARE(name(*m_files), QStringLiteral("Bread"));
    QCOMPARE(m_files->history().count(), 1);
}

void tst_Drafts::anUntouchedDraftIsNoStep()
{
    DataLayer *draft = m_drafts->begin();
    draft->set(kItems, kName, QStringLiteral("Bread"));
    draft->set(kItems, kName, QStringLiteral("Herb"));
    draft->accept();
    QCOMPARE(m_files->history().count(), 0);
}

void tst_Drafts::aDialogAboveAnotherAcceptsIntoIt()
{
    DataLayer *lower = m_drafts->begin();
    lower->set(kItems, kName, QStringLiteral("Bread"));
    DataLayer *upper = m_drafts->begin();
    QCOMPARE(name(*upper), QStringLiteral("Bread"));
    upper->set(kItems, kName, QStringLiteral("Cake"));
    QCOMPARE(name(*lower), QStringLiteral("Bread"));
    upper->accept();
    QCOMPARE(name(*lower), QStringLiteral("Cake"));
    QCOMPARE(name(*m_files), QStringLiteral("Herb"));
    m_drafts->drop(upper);
    lower->accept();
    QCOMPARE(name(*m_files), QStringLiteral("Cake"));
    QCOMPARE(m_files->history().count(), 1);
}

void tst_Drafts::droppingADraftDropsThoseAbove()
{
    DataLayer *lower = m_drafts->begin();
    m_drafts->begin();
    m_drafts->begin();
    m_drafts->drop(lower);
    QCOMPARE(m_drafts->top(), m_files.get());
}

void tst_Drafts::selectionsAreDraftedToo()
{
    m_files->select(kList, 1);
    DataLayer *draft = m_drafts->begin();
    QCOMPARE(draft->selected(kList), 1);
    draft->select(kList, 2);
    QCOMPARE(draft->selected(kList), 2);
    QCOMPARE(m_files->selected(kList), 1);
    draft->accept();
    QCOMPARE(m_files->selected(kList), 2);
    draft->select(kList, 3);
    m_drafts->drop(draft);
    QCOMPARE(m_files->selected(kList), 2);
}

void tst_Drafts::filesComeAndGoInADraft()
{
    const QString skills = QStringLiteral("data/Skills.json");
    DataLayer *draft = m_drafts->begin();
    draft->change({{skills, QJsonArray{1}}, {kItems, QJsonValue(QJsonValue::Undefined)}}, QString());
    QVERIFY(draft->file(kItems).isUndefined());
    QVERIFY(!m_files->file(kItems).isUndefined());
    draft->accept();
    QCOMPARE(m_files->names(), QStringList{skills});
    QCOMPARE(m_files->history().count(), 1);
}

void tst_Drafts::droppingTheProjectItselfDoesNothing()
{
    DataLayer *draft = m_drafts->begin();
    m_drafts->drop(m_files.get());
    QCOMPARE(m_drafts->top(), draft);
}

void tst_Drafts::clearedDraftsShowWhatIsBelow()
{
    DataLayer *lower = m_drafts->begin();
    lower->set(kItems, kName, QStringLiteral("Bread"));
    DataLayer *upper = m_drafts->begin();
    upper->select(kList, 2);
    m_drafts->clear();
    QCOMPARE(m_drafts->top(), upper);
    QCOMPARE(name(*upper), QStringLiteral("Herb"));
    QCOMPARE(upper->selected(kList), -1);
    upper->accept();
    lower->accept();
    QCOMPARE(m_files->history().count(), 0);
}

void tst_Drafts::changesOfADraftAreUndoneOneByOne()
{
    auto *const draft = qobject_cast<Draft *>(m_drafts->begin());
    QVERIFY(!draft->canUndo());
    draft->select(kList, 1);
    draft->set(kItems, kName, QStringLiteral("Bread"));
    draft->change({{kItems, QJsonArray()}}, QString());
    draft->select(kList, 0);
    QSignalSpy changed(m_drafts.get(), &Drafts::changed);
    draft->undo();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(name(*draft), QStringLiteral("Bread"));
    QCOMPARE(draft->selected(kList), 1);
    draft->undo();
    QCOMPARE(name(*draft), QStringLiteral("Herb"));
    QVERIFY(!draft->canUndo());
    draft->undo();
    QCOMPARE(name(*draft), QStringLiteral("Herb"));
    draft->redo();
    QCOMPARE(name(*draft), QStringLiteral("Bread"));
    draft->redo();
    QCOMPARE(draft->file(kItems).toArray(), QJsonArray());
    QCOMPARE(draft->selected(kList), 0);
    QVERIFY(!draft->canRedo());
    // A new change leaves nothing to do again.
    draft->undo();
    draft->set(kItems, kName, QStringLiteral("Rope"));
    QVERIFY(!draft->canRedo());
}

void tst_Drafts::changesOfOnePlaceAreOneStepOfADraft()
{
    auto *const draft = qobject_cast<Draft *>(m_drafts->begin());
    for (const QString &typed : {QStringLiteral("R"), QStringLiteral("Ro"), QStringLiteral("Rope")}) {
        draft->set(kItems, kName, typed);
    }
    draft->set(kItems, QStringLiteral("/1/price"), 9);
    draft->undo();
    QCOMPARE(name(*draft), QStringLiteral("Rope"));
    draft->undo();
    QCOMPARE(name(*draft), QStringLiteral("Herb"));
    // What a window notes for itself is none.
    draft->change({{QStringLiteral("commands"), QStringLiteral("a list")}}, DataLayer::noStep());
    QVERIFY(draft->canRedo() && !draft->canUndo());
    // What comes next there is a step of its own.
    draft->redo();
    draft->set(kItems, kName, QStringLiteral("Ropes"));
    draft->undo();
    QCOMPARE(name(*draft), QStringLiteral("Rope"));
}

void tst_Drafts::whatWasAcceptedIsUndoneAsOneStepBelow()
{
    auto *const lower = qobject_cast<Draft *>(m_drafts->begin());
    auto *const upper = qobject_cast<Draft *>(m_drafts->begin());
    upper->set(kItems, kName, QStringLiteral("Bread"));
    upper->set(kItems, QStringLiteral("/1/price"), 9);
    upper->accept();
    QVERIFY(!upper->canUndo());
    lower->undo();
    QVERIFY(!lower->canUndo());
    QCOMPARE(name(*lower), QStringLiteral("Herb"));
    QCOMPARE(lower->value(kItems, QStringLiteral("/1/price")), QJsonValue(8));
}

void tst_Drafts::aForgottenHistoryLeavesWhatWasDone()
{
    auto *const draft = qobject_cast<Draft *>(m_drafts->begin());
    draft->set(kItems, kName, QStringLiteral("Bread"));
    m_drafts->forgetHistory();
    QVERIFY(!draft->canUndo());
    draft->undo();
    QCOMPARE(name(*draft), QStringLiteral("Bread"));
}

QTEST_APPLESS_MAIN(tst_Drafts)
#include "tst_Drafts.moc"
