#include "ManagerFixture.h"

#include <atomic>
#include <cstdlib>

// Every allocation of the process comes through here, those of the C library's callers too.
extern "C" {
void *__libc_malloc(std::size_t size);                    // NOLINT(bugprone-reserved-identifier)
void *__libc_calloc(std::size_t count, std::size_t size); // NOLINT(bugprone-reserved-identifier)
void *__libc_realloc(void *block, std::size_t size);      // NOLINT(bugprone-reserved-identifier)
}

namespace {
std::atomic<bool> counting{false};
std::atomic<int> allocations{0};

void count()
{
    if (counting) {
        ++allocations;
    }
}
} // namespace

extern "C" {
void *malloc(std::size_t size)
{
    count();
    return __libc_malloc(size);
}

void *calloc(std::size_t number, std::size_t size)
{
    count();
    return __libc_calloc(number, size);
}

void *realloc(void *block, std::size_t size)
{
    count();
    return __libc_realloc(block, size);
}
}

class tst_Allocations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsWhatIsAllocated();
    void allocatesNothingToKeepTheOverlaysInStep_data();
    void allocatesNothingToKeepTheOverlaysInStep();
};

void tst_Allocations::countsWhatIsAllocated()
{
    allocations = 0;
    counting = true;
    QByteArray bytes(1000, 'x');
    auto widget = std::make_unique<QObject>();
    counting = false;
    QVERIFY(allocations >= 2);
}

void tst_Allocations::allocatesNothingToKeepTheOverlaysInStep_data()
{
    QTest::addColumn<QStringList>("commands");
    const QString greeting = QStringLiteral("fromServer\x01"
                                            "en_US");
    const QString start = QStringLiteral("start\x01"
                                         "0\x01"
                                         "0\x01"
                                         "800\x01"
                                         "600");
    const QString tooltip = QStringLiteral("showTooltip\x01text\x01"
                                           "90\x01"
                                           "90");
    const QString next = QStringLiteral("indicator\x01update\x01"
                                        "9\x01"
                                        "9\x01MainWindow\x01hint\x01"
                                        "5\x01"
                                        "0");
    const QString yesNo = QStringLiteral("indicator\x01update\x01"
                                         "9\x01"
                                         "9\x01MainWindow\x01hint\x01"
                                         "6\x01"
                                         "0");
    const QString hide = QStringLiteral("state\x01hide");
    QTest::newRow("nothing made yet") << QStringList{};
    QTest::newRow("no playback") << QStringList{greeting, tooltip};
    QTest::newRow("shown with Next") << QStringList{greeting, start, next, tooltip};
    QTest::newRow("shown with Yes and No") << QStringList{greeting, start, yesNo, tooltip};
    QTest::newRow("started without greeting") << QStringList{start, tooltip};
    QTest::newRow("host hidden") << QStringList{greeting, start, next, tooltip, hide};
}

void tst_Allocations::allocatesNothingToKeepTheOverlaysInStep()
{
    QFETCH(QStringList, commands);
    ManagerFixture fixture;
    QVERIFY(fixture.start());
    for (const QString &command : commands) {
        fixture.manager->onReceived(command);
    }
    fixture.manager->onApplicationStateChanged(Qt::ApplicationInactive);
    fixture.manager->onTimerTimeout();
    QCoreApplication::processEvents();
    fixture.manager->onApplicationStateChanged(Qt::ApplicationInactive);
    fixture.manager->onTimerTimeout();

    allocations = 0;
    counting = true;
    for (int run = 0; run < 1000; ++run) {
        fixture.manager->onTimerTimeout();
    }
    counting = false;
    QCOMPARE(allocations.load(), 0);
    fixture.manager.reset();
    deleteOverlays();
}

int main(int argc, char **argv)
{
    return runWithKey<tst_Allocations>(argc, argv);
}
#include "tst_Allocations.moc"
