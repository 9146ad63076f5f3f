#include "XWindows.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>

namespace {

constexpr int kLimitMs = 60000; // only what never happens takes this long
constexpr QSize kBubble(640, 480);
constexpr QSize kButton(64, 32);
constexpr QPoint kInButton(21, 16);
constexpr QPoint kTip(38, 132);
constexpr int kRestingShort = 3;

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool clickOn(quintptr window, const QPoint &spot)
{
    if (!QTest::qWaitFor([&] { return XWindows::takesClick(window, spot); }, kLimitMs)) {
        return false;
    }
    XWindows::click(spot);
    return true;
}

/// The window with this title; 0 when there is none.
quintptr windowCalled(const QString &title)
{
    const QString ids = XWindows::run(QStringLiteral("xdotool"),
                                      {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                       QStringLiteral("--name"), QStringLiteral("^%1$").arg(title)});
    return ids.section(QLatin1Char('\n'), 0, 0).toULongLong();
}

/// Closes it as the cross in its frame does.
bool close(const QString &title)
{
    XWindows::run(QStringLiteral("wmctrl"), {QStringLiteral("-F"), QStringLiteral("-c"), title});
    return QTest::qWaitFor([&] { return windowCalled(title) == 0; }, kLimitMs);
}

} // namespace

/// The example hosts of docs/, built with the installed kit and run with the installed companion, and a
/// learner at the mouse. The companion's log tells where a step points, and its heartbeats are the clock.
class tst_ExampleHosts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theInstalledPackageCanBeMoved();
    void theInstalledPackageNamesItsCompanion();
    void playsTheFirstThreeSteps_data();
    void playsTheFirstThreeSteps();

private:
    /// Waits until the host has said that it reached the step with this number, counted from 1, and the
    /// companion was told.
    [[nodiscard]] bool reaches(int step);
    /// The companion's window of this size, once none of its windows has moved for ten of its ticks: a bubble
    /// that still glides moves with each, and takes its buttons along.
    [[nodiscard]] std::optional<XWindows::Window> windowAtRest(const QSize &size) const;
    [[nodiscard]] bool clickNext() const;
    [[nodiscard]] bool clickWhereTheArrowPoints() const;
    [[nodiscard]] QByteArray log() const { return contentsOf(m_room->filePath(QStringLiteral("log"))); }
    [[nodiscard]] int heartbeats() const { return log().count("TutorialManager::send 1396 \"alive\""); }
    [[nodiscard]] qint64 companionPid() const
    {
        return contentsOf(m_room->filePath(QStringLiteral("pid"))).trimmed().toLongLong();
    }

    std::unique_ptr<QTemporaryDir> m_room;
    std::unique_ptr<QProcess> m_host;
    QByteArray m_said;
};

void tst_ExampleHosts::init()
{
    m_room = std::make_unique<QTemporaryDir>();
    m_said.clear();
}

void tst_ExampleHosts::cleanup()
{
    if (QTest::currentTestFailed()) {
        qWarning("The host said:\n%s\nThe companion said:\n%s", m_said.constData(), log().constData());
    }
    m_host.reset();
}

void tst_ExampleHosts::theInstalledPackageCanBeMoved()
{
    QDirIterator files(QStringLiteral(INSTALLED), {QStringLiteral("TutorialHost*.cmake")}, QDir::Files,
                       QDirIterator::Subdirectories);
    int count = 0;
    while (files.hasNext()) {
        const QByteArray text = contentsOf(files.next());
        QVERIFY2(!text.contains(TUTORIAL_SOURCE_DIR) && !text.contains(INSTALLED),
                 qPrintable(files.filePath()));
        ++count;
    }
    QVERIFY(count >= 3);
}

void tst_ExampleHosts::theInstalledPackageNamesItsCompanion()
{
    QVERIFY(QFile::exists(QStringLiteral(INSTALLED_PROGRAM)));
    QVERIFY(contentsOf(QStringLiteral(EXAMPLE_HOST)).contains(INSTALLED_PROGRAM));
}

void tst_ExampleHosts::playsTheFirstThreeSteps_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::newRow("C++") << QStringList{QStringLiteral(EXAMPLE_HOST)};
    QTest::newRow("Python") << QStringList{QStringLiteral(PYTHON),
                                           QStringLiteral(TUTORIAL_SOURCE_DIR "/docs/examples/host.py")};
}

void tst_ExampleHosts::playsTheFirstThreeSteps()
{
    QFETCH(QStringList, command);
    QFile companion(m_room->filePath(QStringLiteral("companion")));
    QVERIFY(companion.open(QIODevice::WriteOnly));
    companion.write(QStringLiteral("#!/bin/sh\necho $$ >'%1/pid'\nexec '%2' \"$@\" 2>'%1/log'\n")
                        .arg(m_room->path(), QStringLiteral(INSTALLED_PROGRAM))
                        .toUtf8());
    QVERIFY(companion.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    companion.close();

    m_host = std::make_unique<QProcess>();
    m_host->setProcessChannelMode(QProcess::MergedChannels);
    connect(m_host.get(), &QProcess::readyRead, this, [this] { m_said += m_host->readAll(); });
    m_host->start(command.constFirst(), command.mid(1) + QStringList{companion.fileName()});

    QVERIFY(reaches(1));
    QVERIFY(clickNext());
    QVERIFY(reaches(2));
    QVERIFY(clickNext());
    QVERIFY(reaches(3));
    QVERIFY(clickWhereTheArrowPoints());
    QVERIFY(reaches(4));
    QCOMPARE(log().count("TutorialManager::send 1396 \"next\""), 2);

    QVERIFY(close(QStringLiteral("New project")));
    QVERIFY(close(QStringLiteral("Example host")));
    QVERIFY(m_host->state() == QProcess::NotRunning || m_host->waitForFinished(kLimitMs));
    QCOMPARE(m_host->exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_host->exitCode(), 0);
    QVERIFY(!QFile::exists(QStringLiteral("/proc/%1").arg(companionPid())));
}

bool tst_ExampleHosts::reaches(int step)
{
    return QTest::qWaitFor(
        [this, step] {
            return m_said.contains(QByteArray("step ") + QByteArray::number(step) + " of ") &&
                   log().count("TutorialIndicator::setTargetWindowOffset 102") >= step;
        },
        kLimitMs);
}

std::optional<XWindows::Window> tst_ExampleHosts::windowAtRest(const QSize &size) const
{
    QElapsedTimer clock;
    clock.start();
    QStringList before = XWindows::placesOf(XWindows::mapped(companionPid()));
    while (!clock.hasExpired(kLimitMs)) {
        const int second = heartbeats() + 2; // ten ticks behind the one that comes next
        if (!QTest::qWaitFor([this, second] { return heartbeats() >= second; }, kLimitMs)) {
            return {};
        }
        const QVector<XWindows::Window> windows = XWindows::mapped(companionPid());
        const QStringList now = XWindows::placesOf(windows);
        const auto window = std::find_if(windows.cbegin(), windows.cend(), [&size](const auto &candidate) {
            return candidate.rect.size() == size;
        });
        if (now == before && window != windows.cend()) {
            return *window;
        }
        before = now;
    }
    return {};
}

bool tst_ExampleHosts::clickNext() const
{
    const std::optional<XWindows::Window> button = windowAtRest(kButton);
    return button && clickOn(XWindows::idOf(*button), button->rect.topLeft() + kInButton);
}

bool tst_ExampleHosts::clickWhereTheArrowPoints() const
{
    static const QRegularExpression told(
        QStringLiteral("TutorialIndicator::setTargetWindowOffset 102 (-?\\d+) (-?\\d+) "));
    QRegularExpressionMatchIterator matches = told.globalMatch(QString::fromUtf8(log()));
    QRegularExpressionMatch last;
    while (matches.hasNext()) {
        last = matches.next();
    }
    const QPoint place(last.captured(1).toInt(), last.captured(2).toInt());
    const std::optional<XWindows::Window> bubble = windowAtRest(kBubble);
    if (!bubble) {
        return false;
    }
    const QPoint off = bubble->rect.topLeft() - place;
    if (qAbs(off.x()) > kRestingShort || qAbs(off.y()) > kRestingShort) {
        qWarning("the bubble rests %d,%d from where the host sent it", off.x(), off.y());
        return false;
    }
    return clickOn(windowCalled(QStringLiteral("Example host")), bubble->rect.topLeft() + kTip);
}

QTEST_GUILESS_MAIN(tst_ExampleHosts)
#include "tst_ExampleHosts.moc"
