#include "strip/PraiseCard.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

/// The praise at the end of a lesson.
class tst_PraiseCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void standsWhereTheLastHintWasRead();
    void staysInsideTheWindow();
    void leadsToTheNextLesson();
    void hasNoWayOnBehindTheLastLesson();
    void canBeClosed();

private:
    [[nodiscard]] QPushButton *button(const char *name) const
    {
        return m_card->findChild<QPushButton *>(QString::fromLatin1(name));
    }

    std::unique_ptr<QWidget> m_window;
    PraiseCard *m_card = nullptr;
};

void tst_PraiseCard::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(900, 600);
    m_card = new PraiseCard(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QVERIFY(!m_card->isVisible());
}

void tst_PraiseCard::standsWhereTheLastHintWasRead()
{
    m_card->praise(QStringLiteral("Well done!"), true, m_window->mapToGlobal(QPoint(450, 300)));
    QVERIFY(m_card->isVisible());
    QVERIFY((m_card->geometry().center() - QPoint(450, 300)).manhattanLength() <= 2);
    QVERIFY(m_card->rect().contains(button("praiseNextButton")->geometry()));
}

void tst_PraiseCard::staysInsideTheWindow()
{
    m_card->praise(QStringLiteral("Well done!"), true, m_window->mapToGlobal(QPoint(890, 590)));
    QVERIFY(m_window->rect().contains(m_card->geometry()));
    m_window->resize(600, 400);
    QTRY_VERIFY(m_window->rect().contains(m_card->geometry()));
}

void tst_PraiseCard::leadsToTheNextLesson()
{
    QSignalSpy wanted(m_card, &PraiseCard::nextLessonRequested);
    m_card->praise(QStringLiteral("Well done!"), true, m_window->mapToGlobal(QPoint(450, 300)));
    QTest::mouseClick(button("praiseNextButton"), Qt::LeftButton);
    QCOMPARE(wanted.size(), 1);
    QVERIFY(!m_card->isVisible());
}

void tst_PraiseCard::hasNoWayOnBehindTheLastLesson()
{
    m_card->praise(QStringLiteral("Well done!"), false, m_window->mapToGlobal(QPoint(450, 300)));
    QVERIFY(!button("praiseNextButton")->isVisible());
}

void tst_PraiseCard::canBeClosed()
{
    QSignalSpy wanted(m_card, &PraiseCard::nextLessonRequested);
    m_card->praise(QStringLiteral("Well done!"), true, m_window->mapToGlobal(QPoint(450, 300)));
    QTest::mouseClick(button("praiseCloseButton"), Qt::LeftButton);
    QVERIFY(!m_card->isVisible());
    QVERIFY(wanted.isEmpty());
}

QTEST_MAIN(tst_PraiseCard)
#include "tst_PraiseCard.moc"
