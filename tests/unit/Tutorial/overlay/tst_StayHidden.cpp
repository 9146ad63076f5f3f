#include "EveryOverlay.h"
#include "Tutorial/overlay/StayHidden.h"

#include <QWindow>
#include <QtTest>

class tst_StayHidden : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dropsAWindowThatWasNeverMapped();
    void keepsAWindowThatWasMapped();
    void showsAgainAfterwards();
    void followsARecreatedWindow();
    void belongsToTheOverlays();

private:
    std::unique_ptr<QWidget> m_overlay;
};

void tst_StayHidden::init()
{
    m_overlay = std::make_unique<QWidget>(nullptr, Qt::Tool | Qt::FramelessWindowHint);
    new StayHidden(m_overlay.get());
    m_overlay->setGeometry(70, 50, 64, 48);
}

void tst_StayHidden::cleanup()
{
    m_overlay.reset();
}

void tst_StayHidden::dropsAWindowThatWasNeverMapped()
{
    m_overlay->show();
    QVERIFY(m_overlay->windowHandle()->handle() != nullptr);
    m_overlay->hide();
    QCOMPARE(m_overlay->windowHandle()->handle(), nullptr);
}

void tst_StayHidden::keepsAWindowThatWasMapped()
{
    m_overlay->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_overlay.get()));
    m_overlay->hide();
    QVERIFY(m_overlay->windowHandle()->handle() != nullptr);
    // Each show counts anew.
    m_overlay->show();
    m_overlay->hide();
    QCOMPARE(m_overlay->windowHandle()->handle(), nullptr);
}

void tst_StayHidden::showsAgainAfterwards()
{
    m_overlay->show();
    m_overlay->setWindowOpacity(0.5);
    m_overlay->hide();
    QCoreApplication::processEvents(); // what the platform still had to say about the window
    m_overlay->move(90, 80);
    m_overlay->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_overlay.get()));
    QVERIFY(m_overlay->windowHandle()->handle() != nullptr);
    QCOMPARE(m_overlay->windowHandle()->geometry(), QRect(90, 80, 64, 48));
    QCOMPARE(m_overlay->windowHandle()->flags(), m_overlay->windowFlags());
    QVERIFY(qAbs(m_overlay->windowHandle()->opacity() - 0.5) < 0.01);
}

void tst_StayHidden::followsARecreatedWindow()
{
    m_overlay->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_overlay.get()));
    m_overlay->setWindowFlags(Qt::Tool);
    m_overlay->setWindowFlags(Qt::Window);
    QCoreApplication::processEvents();
    m_overlay->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_overlay.get()));
    m_overlay->hide();
    QVERIFY(m_overlay->windowHandle()->handle() != nullptr);
    m_overlay->show();
    m_overlay->hide();
    QCOMPARE(m_overlay->windowHandle()->handle(), nullptr);
}

void tst_StayHidden::belongsToTheOverlays()
{
    const EveryOverlay every;
    const QList<const QWidget *> overlays = every.windows();
    for (const QWidget *overlay : overlays) {
        QCOMPARE(overlay->findChildren<StayHidden *>().size(), 1);
    }
}

QTEST_MAIN(tst_StayHidden)
#include "tst_StayHidden.moc"
