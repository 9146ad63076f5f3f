#include "FakeOverlayHost.h"
#include "TestIndicator.h"
#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/KeepPlace.h"

#include <QWindow>
#include <QtTest>

class tst_KeepPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void answersAPushAfterShowing();
    void answersALatePushAndASecondOne();
    void givesWayToOneThatInsists();
    void eachShowAndEachMoveIsKeptAnew();
    void showsWhereItWasAskedForWhateverQtHas();
    void answersToTheLatestPlace();
    void knowsThePlaceThatWasAskedFor();
    void belongsToTheOverlays();

private:
    // As a window manager does it: the native window moves and the widget hears of it.
    void push(const QPoint &to)
    {
        m_overlay->windowHandle()->setPosition(to);
        QCoreApplication::processEvents();
    }

    std::unique_ptr<QWidget> m_overlay;
};

void tst_KeepPlace::init()
{
    m_overlay = std::make_unique<QWidget>(nullptr, Qt::Tool | Qt::FramelessWindowHint);
    m_overlay->setGeometry(700, 500, 640, 480);
    new KeepPlace(m_overlay.get());
    m_overlay->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_overlay.get()));
}

void tst_KeepPlace::cleanup()
{
    m_overlay.reset();
}

void tst_KeepPlace::answersAPushAfterShowing()
{
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(700, 500));
    QCOMPARE(m_overlay->windowHandle()->position(), QPoint(700, 500));
}

void tst_KeepPlace::answersALatePushAndASecondOne()
{
    push({0, 0});
    QCOMPARE(m_overlay->pos(), QPoint(700, 500));
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(700, 500));
}

void tst_KeepPlace::givesWayToOneThatInsists()
{
    for (int round = 0; round < KeepPlace::kAnswers; ++round) {
        push({160, 120});
        QCOMPARE(m_overlay->pos(), QPoint(700, 500));
    }
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(160, 120));
}

void tst_KeepPlace::eachShowAndEachMoveIsKeptAnew()
{
    for (int round = 0; round <= KeepPlace::kAnswers; ++round) {
        push({160, 120});
    }
    QCOMPARE(m_overlay->pos(), QPoint(160, 120));
    KeepPlace::moveTo(m_overlay.get(), {600, 400});
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(600, 400));
    for (int round = 0; round <= KeepPlace::kAnswers; ++round) {
        push({160, 120});
    }
    m_overlay->hide();
    m_overlay->show();
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(600, 400));
}

void tst_KeepPlace::showsWhereItWasAskedForWhateverQtHas()
{
    for (int round = 0; round <= KeepPlace::kAnswers; ++round) {
        push({0, 0});
    }
    m_overlay->hide();
    QCOMPARE(m_overlay->pos(), QPoint(0, 0));
    m_overlay->show();
    QCOMPARE(m_overlay->pos(), QPoint(700, 500));
    QCOMPARE(m_overlay->windowHandle()->position(), QPoint(700, 500));
}

void tst_KeepPlace::answersToTheLatestPlace()
{
    KeepPlace::moveTo(m_overlay.get(), {650, 450});
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(650, 450));
}

void tst_KeepPlace::knowsThePlaceThatWasAskedFor()
{
    KeepPlace::moveTo(m_overlay.get(), {650, 450});
    for (int round = 0; round <= KeepPlace::kAnswers; ++round) {
        push({0, 0});
    }
    QCOMPARE(m_overlay->pos(), QPoint(0, 0));
    QCOMPARE(KeepPlace::placeOf(m_overlay.get()), QPoint(650, 450));
    QWidget other;
    KeepPlace::moveTo(&other, {30, 40});
    QCOMPARE(other.pos(), QPoint(30, 40));
    QCOMPARE(KeepPlace::placeOf(&other), QPoint(30, 40));
}

void tst_KeepPlace::belongsToTheOverlays()
{
    FakeOverlayHost host;
    const TestIndicator indicator(&host);
    const EditorTooltip tooltip(nullptr, &host);
    const QList<const QWidget *> overlays{indicator.tooltip(), TestIndicator::next(), TestIndicator::yes(),
                                          TestIndicator::no(), &tooltip};
    for (const QWidget *overlay : overlays) {
        QCOMPARE(overlay->findChildren<KeepPlace *>().size(), 1);
    }
}

QTEST_MAIN(tst_KeepPlace)
#include "tst_KeepPlace.moc"
