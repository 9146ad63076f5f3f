#include "Tutorial/overlay/KeepPlace.h"

#include "FakeOverlayHost.h"
#include "TestIndicator.h"
#include "Tutorial/overlay/EditorTooltip.h"

#include <QWindow>
#include <QtTest>

class TestKeepPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void answersAPushAfterShowing();
    void answersOncePerShow();
    void answersToTheLatestPlace();
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

void TestKeepPlace::init()
{
    m_overlay = std::make_unique<QWidget>(nullptr, Qt::Tool | Qt::FramelessWindowHint);
    new KeepPlace(m_overlay.get());
    m_overlay->setGeometry(700, 500, 640, 480);
    m_overlay->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_overlay.get()));
}

void TestKeepPlace::cleanup()
{
    m_overlay.reset();
}

void TestKeepPlace::answersAPushAfterShowing()
{
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(700, 500));
    QCOMPARE(m_overlay->windowHandle()->position(), QPoint(700, 500));
}

void TestKeepPlace::answersOncePerShow()
{
    push({160, 120});
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(160, 120));
    m_overlay->hide();
    m_overlay->move(600, 400);
    m_overlay->show();
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(600, 400));
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(160, 120));
}

void TestKeepPlace::answersToTheLatestPlace()
{
    m_overlay->move(650, 450);
    push({160, 120});
    QCOMPARE(m_overlay->pos(), QPoint(650, 450));
}

void TestKeepPlace::belongsToTheOverlays()
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

QTEST_MAIN(TestKeepPlace)
#include "tst_KeepPlace.moc"
