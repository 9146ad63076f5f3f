#include "DataFilesTest.h"
#include "Unprivileged.h"

#include <QJsonArray>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <sys/stat.h>

class tst_DataFiles : public DataFilesTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsOpenAtFirst();
    void opensWhatIsThere();
    void aMissingFileIsNoError();
    void refusesABrokenFileWithItsLine();
    void refusesAFolderWithoutData();
    void refusesAFileThatCannotBeRead();
    void changesAreStepsOfOneHistory();
    void typingInOnePlaceIsOneStep();
    void typingThatEndsAsItBeganIsNoStep();
    void aPlaceThatIsNotThereIsNotChanged();
    void filesComeAndGo();
    void stepsKeepWhatDiffers();
    void anySequenceIsUndoneAndRedone();
    void selectionsEndWithTheProject();
};

void tst_DataFiles::nothingIsOpenAtFirst()
{
    QVERIFY(!m_files->isOpen());
    QVERIFY(m_files->names().isEmpty());
    QVERIFY(m_files->file(kItems).isUndefined());
    m_files->change({{kItems, QJsonArray()}}, QString());
    QVERIFY(m_files->file(kItems).isUndefined());
    QVERIFY(m_files->undo().isEmpty());
    QVERIFY(m_files->save(&m_error));
}

void tst_DataFiles::opensWhatIsThere()
{
    QSignalSpy changed(m_files.get(), &DataLayer::changed);
    m_folder->write(QStringLiteral("data/notes.txt"), "no JSON");
    open();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(m_files->folder(), m_folder->path());
    QCOMPARE(m_files->names(), (QStringList{kActors, kItems}));
    QCOMPARE(m_files->value(kItems, name(1)).toString(), QStringLiteral("Herb"));
    QVERIFY(m_files->changedFiles().isEmpty());
    m_files->close();
    QVERIFY(!m_files->isOpen());
    QVERIFY(m_files->file(kItems).isUndefined());
}

void tst_DataFiles::aMissingFileIsNoError()
{
    open();
    QVERIFY(m_files->file(QStringLiteral("data/Skills.json")).isUndefined());
    QVERIFY(m_files->value(QStringLiteral("data/Skills.json"), name(1)).isUndefined());
    QVERIFY(!m_files->set(QStringLiteral("data/Skills.json"), name(1), 1));
    QVERIFY(m_files->changedFiles().isEmpty());
}

void tst_DataFiles::refusesABrokenFileWithItsLine()
{
    open();
    const Folder other;
    other.write(kItems, "[\n  null,\n  {\"name\" \"Herb\"}\n]\n");
    QVERIFY(!m_files->open(other.path(), &m_error));
    QVERIFY2(m_error.contains(other.path(kItems)), qPrintable(m_error));
    QVERIFY2(m_error.contains(QStringLiteral("line 3")), qPrintable(m_error));
    QVERIFY2(m_error.contains(QStringLiteral("Mend that line")), qPrintable(m_error));
    QCOMPARE(m_files->folder(), m_folder->path());
    QCOMPARE(m_files->value(kItems, name(1)).toString(), QStringLiteral("Herb"));
}

void tst_DataFiles::refusesAFolderWithoutData()
{
    const QTemporaryDir empty;
    QVERIFY(!m_files->open(empty.path(), &m_error));
    QVERIFY2(m_error.contains(empty.path()), qPrintable(m_error));
    QVERIFY(!m_files->isOpen());
}

void tst_DataFiles::refusesAFileThatCannotBeRead()
{
    QCOMPARE(chmod(qPrintable(m_folder->path()), 0755), 0);
    QCOMPARE(chmod(qPrintable(m_folder->path(kItems)), 0), 0);
    {
        const Unprivileged nobody;
        QVERIFY(!m_files->open(m_folder->path(), &m_error));
    }
    QVERIFY2(m_error.contains(m_folder->path(kItems)) &&
                 m_error.contains(QStringLiteral("Permission denied")),
             qPrintable(m_error));
}

void tst_DataFiles::changesAreStepsOfOneHistory()
{
    open();
    QVERIFY(m_files->set(kItems, name(1), QStringLiteral("Bread")));
    QVERIFY(m_files->set(kActors, QStringLiteral("/1"), QStringLiteral("Mila")));
    QCOMPARE(m_files->changedFiles(), (QStringList{kActors, kItems}));
    QCOMPARE(m_files->undo(), QStringList{kActors});
    QVERIFY(m_files->value(kActors, QStringLiteral("/1")).isUndefined());
    QCOMPARE(m_files->value(kItems, name(1)).toString(), QStringLiteral("Bread"));
    QCOMPARE(m_files->undo(), QStringList{kItems});
    QCOMPARE(m_files->undo(), QStringList());
    QCOMPARE(m_files->value(kItems, name(1)).toString(), QStringLiteral("Herb"));
    QCOMPARE(m_files->redo(), QStringList{kItems});
    QCOMPARE(m_files->value(kItems, name(1)).toString(), QStringLiteral("Bread"));
    QCOMPARE(m_files->redo(), QStringList{kActors});
    QCOMPARE(m_files->redo(), QStringList());
}

void tst_DataFiles::typingInOnePlaceIsOneStep()
{
    open();
    for (const char *text : {"B", "Br", "Bre"}) {
        m_files->set(kItems, name(1), QString::fromLatin1(text));
    }
    m_files->set(kItems, QStringLiteral("/1/price"), 9);
    m_files->set(kItems, name(1), QStringLiteral("Brea"));
    QCOMPARE(m_files->history().count(), 3);
    m_files->undo();
    m_files->undo();
    QCOMPARE(m_files->value(kItems, name(1)).toString(), QStringLiteral("Bre"));
    m_files->undo();
    QCOMPARE(m_files->value(kItems, name(1)).toString(), QStringLiteral("Herb"));
}

void tst_DataFiles::typingThatEndsAsItBeganIsNoStep()
{
    open();
    m_files->set(kItems, name(1), QStringLiteral("Her"));
    m_files->set(kItems, name(1), QStringLiteral("Herb"));
    m_files->set(kItems, name(1), QStringLiteral("Herb"));
    QCOMPARE(m_files->history().count(), 0);
    QVERIFY(m_files->changedFiles().isEmpty());
}

void tst_DataFiles::aPlaceThatIsNotThereIsNotChanged()
{
    open();
    QSignalSpy changed(m_files.get(), &DataLayer::changed);
    QVERIFY(!m_files->set(kItems, name(7), QStringLiteral("Bread")));
    QVERIFY(!m_files->set(kItems, QStringLiteral("name"), QStringLiteral("Bread")));
    QCOMPARE(changed.size(), 0);
    QCOMPARE(m_files->history().count(), 0);
}

void tst_DataFiles::filesComeAndGo()
{
    open();
    const QString made = QStringLiteral("data/Map001.json");
    const QJsonValue gone(QJsonValue::Undefined);
    m_files->change({{made, QJsonArray{1}}, {kActors, gone}}, QString());
    QCOMPARE(m_files->names(), (QStringList{kItems, made}));
    QVERIFY(m_files->save(&m_error));
    QCOMPARE(m_folder->read(made), QByteArray("[1]"));
    QVERIFY(!QFile::exists(m_folder->path(kActors)));
    m_files->undo();
    QCOMPARE(m_files->names(), (QStringList{kActors, kItems}));
    QCOMPARE(m_files->changedFiles(), (QStringList{kActors, made}));
    QVERIFY(m_files->save(&m_error));
    QCOMPARE(m_folder->all(), (QStringList{QStringLiteral("Actors.json"), QStringLiteral("Items.json")}));
}

/// Random steps, undone and redone at random, against a plain list of all states there were.
void tst_DataFiles::stepsKeepWhatDiffers()
{
    constexpr int kCells = 20000;
    constexpr int kStrokes = 200;
    QJsonArray cells;
    for (int cell = 0; cell < kCells; ++cell) {
        cells.append(0);
    }
    open();
    m_files->change({{kItems, QJsonObject{{QStringLiteral("data"), cells}}}}, QString());
    const QJsonValue blank = m_files->file(kItems);
    for (int stroke = 0; stroke < kStrokes; ++stroke) {
        const QString key = QStringLiteral("stroke %1").arg(stroke);
        for (int cell = 0; cell < 3; ++cell) {
            QJsonObject file = m_files->file(kItems).toObject();
            cells.replace(stroke * 7 + cell, stroke + 1);
            file.insert(QStringLiteral("data"), cells);
            m_files->change({{kItems, file}}, key);
        }
    }
    QCOMPARE(m_files->history().count(), 1 + kStrokes);
    // The first step replaces the list that the file was; each other one has three cells, before and after.
    QVERIFY2(m_files->historySize() <= 2 * kCells + kStrokes * 6,
             qPrintable(QString::number(m_files->historySize())));
    const QJsonValue drawn = m_files->file(kItems);
    while (m_files->history().index() > 1) {
        m_files->undo();
    }
    QCOMPARE(m_files->file(kItems), blank);
    while (m_files->history().canRedo()) {
        m_files->redo();
    }
    QCOMPARE(m_files->file(kItems), drawn);
}

void tst_DataFiles::anySequenceIsUndoneAndRedone()
{
    const QStringList names{kItems, kActors, QStringLiteral("data/Map001.json")};
    for (quint32 seed = 1; seed <= 60; ++seed) {
        QRandomGenerator dice(seed);
        DataFiles files;
        QVERIFY(files.open(m_folder->path(), &m_error));
        using State = QVector<QJsonValue>;
        const auto state = [&files, &names] {
            State now;
            for (const QString &file : names) {
                now.append(files.file(file));
            }
            return now;
        };
        QVector<State> states{state()};
        int at = 0;
        for (int step = 0; step < 60; ++step) {
            const int what = dice.bounded(4);
            if (what == 0) {
                QCOMPARE(files.undo().isEmpty(), at == 0);
                at = qMax(0, at - 1);
            } else if (what == 1) {
                QCOMPARE(files.redo().isEmpty(), at == states.size() - 1);
                at = qMin(int(states.size()) - 1, at + 1);
            } else {
                DataRoots roots;
                for (const QString &file : names) {
                    if (dice.bounded(2) == 0) {
                        roots.insert(file, dice.bounded(4) == 0 ? QJsonValue(QJsonValue::Undefined)
                                                                : QJsonArray{dice.bounded(5)});
                    }
                }
                files.change(roots, QString());
                if (state() != states.at(at)) {
                    states.resize(at + 1);
                    states.append(state());
                    ++at;
                }
            }
            QVERIFY2(state() == states.at(at), qPrintable(QStringLiteral("seed %1").arg(seed)));
            QStringList differing;
            for (int i = 0; i < names.size(); ++i) {
                if (states.at(at).at(i) != states.at(0).at(i)) {
                    differing.append(names.at(i));
                }
            }
            differing.sort();
            QCOMPARE(files.changedFiles(), differing);
        }
    }
}

void tst_DataFiles::selectionsEndWithTheProject()
{
    open();
    const QString list = QStringLiteral("data/Items");
    QCOMPARE(m_files->selected(list), -1);
    m_files->select(list, 1);
    QCOMPARE(m_files->selected(list), 1);
    open();
    QCOMPARE(m_files->selected(list), -1);
}

QTEST_APPLESS_MAIN(tst_DataFiles)
#include "tst_DataFiles.moc"
