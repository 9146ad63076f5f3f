#include "window/Blink.h"

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class tst_Blink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void framesWhatIsShownAndGoes();
    void takesNoClicks();
    void nothingBlinksWhereNoWindowIs();

private:
    [[nodiscard]] QRect onScreen() const { return {m_button->mapToGlobal(QPoint()), m_button->size()}; }
    [[nodiscard]] QWidget *blink() const { return m_window->findChild<QWidget *>(QStringLiteral("blink")); }

    std::unique_ptr<QWidget> m_window;
    QPushButton *m_button = nullptr;
};

void tst_Blink::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(100, 100, 300, 200);
    m_button = new QPushButton(QStringLiteral("New"), m_window.get());
    m_button->setGeometry(80, 60, 60, 48);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_Blink::cleanup()
{
    m_window.reset();
}

void tst_Blink::framesWhatIsShownAndGoes()
{
    QVERIFY(Blink::around(onScreen()));
    const QPointer<QWidget> shown(blink());
    QVERIFY(shown != nullptr && shown->isVisible());
    QVERIFY(shown->geometry().contains(m_button->geometry()));
    // It shows outside of what it frames, and does not hide it.
    const QImage with = m_window->grab().toImage();
    const QImage of = m_button->grab().toImage();
    QCOMPARE(with.copy(m_button->geometry()), of.convertToFormat(with.format()));
    QVERIFY(with.pixelColor(m_button->geometry().topLeft() - QPoint(5, -20)) != with.pixelColor(2, 2));
    QTRY_VERIFY(!shown->isVisible());
    QTRY_VERIFY(shown->isVisible());
    QTRY_VERIFY(shown == nullptr);
}

void tst_Blink::takesNoClicks()
{
    QVERIFY(Blink::around(onScreen()));
    QCOMPARE(QApplication::widgetAt(onScreen().center()), m_button);
    const QPoint edge = blink()->mapToGlobal(QPoint(2, 2));
    QCOMPARE(QApplication::widgetAt(edge), m_window.get());
}

void tst_Blink::nothingBlinksWhereNoWindowIs()
{
    QVERIFY(!Blink::around(QRect(700, 500, 20, 20)));
    QVERIFY(blink() == nullptr);
}

QTEST_MAIN(tst_Blink)
#include "tst_Blink.moc"
