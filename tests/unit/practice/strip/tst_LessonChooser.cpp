#include "PracticeTranslator.h"
#include "lesson/LessonWords.h"
#include "strip/LessonChooser.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

namespace {

LessonCourse::Entry entry(const char *name, int step = 0, bool isDone = false)
{
    LessonCourse::Entry entry;
    entry.name = QString::fromLatin1(name);
    entry.title = entry.name;
    entry.number = 1;
    entry.teaches = QStringLiteral("Draw a map.");
    entry.minutes = 12;
    entry.progress.step = step;
    entry.progress.steps = 86;
    entry.progress.isDone = isDone;
    return entry;
}

LessonCourse::Entry unwritten()
{
    LessonCourse::Entry lesson = entry("Unwritten");
    lesson.isWritten = false;
    return lesson;
}

LessonCourse::Entry refused()
{
    LessonCourse::Entry lesson = entry("Refused");
    lesson.isRefused = true;
    return lesson;
}

} // namespace

class tst_LessonChooser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsWhatIsKnownOfEachLesson();
    void lessonsThatCannotBePlayedAreGrey();
    void selectsWhatComesNext_data();
    void selectsWhatComesNext();
    void aLessonIsChosen_data();
    void aLessonIsChosen();
    void oneWithAPlaceGoesOnOrBeginsAgain();
    void theSelectionStaysWhenThingsChange();
    void captionsFit_data();
    void captionsFit();

private:
    [[nodiscard]] QPushButton *button(const char *name) const
    {
        return m_chooser->findChild<QPushButton *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QTreeWidget *list() const { return m_chooser->findChild<QTreeWidget *>(); }
    void show(const QVector<LessonCourse::Entry> &entries, const QString &present = {});

    std::unique_ptr<LessonChooser> m_chooser;
};

void tst_LessonChooser::init()
{
    m_chooser = std::make_unique<LessonChooser>(nullptr);
}

void tst_LessonChooser::cleanup()
{
    m_chooser.reset();
}

void tst_LessonChooser::show(const QVector<LessonCourse::Entry> &entries, const QString &present)
{
    m_chooser->setEntries(entries, present);
    m_chooser->show();
    m_chooser->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_chooser.get()));
}

void tst_LessonChooser::showsWhatIsKnownOfEachLesson()
{
    show({entry("A", 12), entry("B", 0, true), entry("C", 3, true), unwritten(), refused(), entry("D")});
    const auto row = [this](int number) {
        QStringList texts;
        for (int column = 0; column < list()->columnCount(); ++column) {
            texts.append(list()->topLevelItem(number)->text(column));
        }
        return texts.join(QLatin1Char('|'));
    };
    QCOMPARE(row(0), QStringLiteral("1. A|Draw a map.|12 min|step 12 of 86"));
    QCOMPARE(row(1), QStringLiteral("1. B|Draw a map.|12 min|✓ done"));
    QCOMPARE(row(2), QStringLiteral("1. C|Draw a map.|12 min|✓ done, step 3 of 86"));
    QCOMPARE(row(3), QStringLiteral("1. Unwritten|Draw a map.|12 min|not there yet"));
    QCOMPARE(row(4), QStringLiteral("1. Refused|Draw a map.|12 min|cannot be opened"));
    QCOMPARE(row(5), QStringLiteral("1. D|Draw a map.|12 min|"));
}

void tst_LessonChooser::lessonsThatCannotBePlayedAreGrey()
{
    show({entry("A"), unwritten(), refused()});
    QVERIFY(!list()->topLevelItem(0)->isDisabled());
    QVERIFY(list()->topLevelItem(1)->isDisabled());
    QVERIFY(list()->topLevelItem(2)->isDisabled());
    QSignalSpy begun(m_chooser.get(), &LessonChooser::beginRequested);
    const QPoint place = list()->visualItemRect(list()->topLevelItem(1)).center();
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(begun.size(), 0);
    show({unwritten()});
    QVERIFY(!button("beginButton")->isEnabled());
}

void tst_LessonChooser::selectsWhatComesNext_data()
{
    QTest::addColumn<QString>("present");
    QTest::addColumn<int>("row");
    QTest::newRow("the first that is not done") << QString() << 2;
    QTest::newRow("the one that is played") << QStringLiteral("D") << 3;
    QTest::newRow("not one that cannot be played") << QStringLiteral("Unwritten") << 2;
}

void tst_LessonChooser::selectsWhatComesNext()
{
    QFETCH(QString, present);
    show({entry("A", 0, true), unwritten(), entry("C"), entry("D")}, present);
    QTEST(list()->indexOfTopLevelItem(list()->currentItem()), "row");
}

void tst_LessonChooser::aLessonIsChosen_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"button", "double click", "return key"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void tst_LessonChooser::aLessonIsChosen()
{
    QFETCH(QString, way);
    show({entry("A"), entry("B")}, QStringLiteral("B"));
    QSignalSpy begun(m_chooser.get(), &LessonChooser::beginRequested);
    const QPoint place = list()->visualItemRect(list()->topLevelItem(1)).center();
    if (way == QLatin1String("button")) {
        QTest::mouseClick(button("beginButton"), Qt::LeftButton);
    } else if (way == QLatin1String("return key")) {
        list()->setFocus();
        QTest::keyClick(list(), Qt::Key_Return);
    } else {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    QCOMPARE(begun.size(), 1);
    QCOMPARE(begun.constFirst().constFirst().toString(), QStringLiteral("B"));
}

void tst_LessonChooser::oneWithAPlaceGoesOnOrBeginsAgain()
{
    show({entry("A", 12), entry("B")});
    QSignalSpy begun(m_chooser.get(), &LessonChooser::beginRequested);
    QSignalSpy goesOn(m_chooser.get(), &LessonChooser::goOnRequested);
    QVERIFY(button("goOnButton")->isVisible());
    QCOMPARE(button("beginButton")->text(), QStringLiteral("Start again"));
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Return);
    QCOMPARE(goesOn.size(), 1);
    QCOMPARE(begun.size(), 0);
    button("beginButton")->click();
    QCOMPARE(begun.size(), 1);
    QTest::keyClick(list(), Qt::Key_Down);
    QVERIFY(!button("goOnButton")->isVisible());
    QCOMPARE(button("beginButton")->text(), QStringLiteral("Start"));
    QTest::keyClick(list(), Qt::Key_Return);
    QCOMPARE(begun.size(), 2);
    QCOMPARE(begun.constLast().constFirst().toString(), QStringLiteral("B"));
}

void tst_LessonChooser::theSelectionStaysWhenThingsChange()
{
    show({entry("A"), entry("B"), entry("C")});
    list()->setCurrentItem(list()->topLevelItem(2));
    m_chooser->setEntries({entry("A", 0, true), entry("B"), entry("C", 4)}, QStringLiteral("A"));
    QCOMPARE(list()->indexOfTopLevelItem(list()->currentItem()), 2);
}

void tst_LessonChooser::captionsFit_data()
{
    QTest::addColumn<QString>("locale");
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

void tst_LessonChooser::captionsFit()
{
    QFETCH(QString, locale);
    const PracticeTranslator translator(locale);
    const LessonCatalog catalog(locale);
    m_chooser = std::make_unique<LessonChooser>(nullptr);
    QVector<LessonCourse::Entry> entries;
    for (int i = 1; i <= 19; ++i) {
        LessonCourse::Entry lesson = entry("A", 86, true);
        lesson.name = QStringLiteral("TutorialStep%1").arg(i);
        lesson.title = QStringLiteral("敵キャラとランダムエンカウント");
        lesson.number = 14;
        lesson.teaches = catalog.entry(lesson.name).teaches;
        entries.append(lesson);
    }
    show(entries);
    const QFontMetrics metrics = list()->fontMetrics();
    for (int row = 0; row < entries.size(); ++row) {
        for (int column = 0; column < list()->columnCount(); ++column) {
            const QString text = list()->topLevelItem(row)->text(column);
            QVERIFY2(metrics.horizontalAdvance(text) <= list()->columnWidth(column), qPrintable(text));
        }
    }
}

QTEST_MAIN(tst_LessonChooser)
#include "tst_LessonChooser.moc"
