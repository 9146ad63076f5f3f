#include "author/ControlDump.h"
#include "lesson/description/DescriptionSet.h"
#include "lesson/description/Spot.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {

QJsonObject controlCalled(const QJsonObject &window, const QString &name)
{
    const QJsonArray controls = window.value(QStringLiteral("controls")).toArray();
    for (const QJsonValue &control : controls) {
        if (control.toObject().value(QStringLiteral("name")).toString() == name) {
            return control.toObject();
        }
    }
    return {};
}

QPoint position(const QJsonValue &value)
{
    return {value.toObject().value(QStringLiteral("x")).toInt(-1),
            value.toObject().value(QStringLiteral("y")).toInt(-1)};
}

} // namespace

class tst_ControlDump : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void hasEveryWindowAndControl();
    void hasThePositionsOfRowsTabsAndCells();

private:
    DescriptionSet m_windows;
    QJsonObject m_dump;
};

void tst_ControlDump::initTestCase()
{
    QStringList errors;
    m_windows = DescriptionSet::read(QStringLiteral(FIXTURE_DIR "/practice/descriptions"), nullptr, &errors);
    QCOMPARE(errors, QStringList());
    m_dump = QJsonDocument::fromJson(controlDump(m_windows)).object();
}

void tst_ControlDump::hasEveryWindowAndControl()
{
    QCOMPARE(m_dump.keys(), m_windows.keys());
    for (const QString &key : m_windows.keys()) {
        const QJsonObject window = m_dump.value(key).toObject();
        const QVector<ControlDescription> controls = m_windows.controlsIn(key);
        QCOMPARE(window.value(QStringLiteral("controls")).toArray().size(), controls.size());
        for (const ControlDescription &control : controls) {
            QCOMPARE(position(controlCalled(window, control.name)),
                     Spot(controls, {control.name}).position());
        }
    }
    const QSize size = m_windows.size(QStringLiteral("MainWindow"));
    QCOMPARE(m_dump.value(QStringLiteral("MainWindow")).toObject().value(QStringLiteral("size")).toArray(),
             (QJsonArray{size.width(), size.height()}));
}

void tst_ControlDump::hasThePositionsOfRowsTabsAndCells()
{
    const QJsonObject window = m_dump.value(QStringLiteral("MainWindow")).toObject();
    const QVector<ControlDescription> controls = m_windows.controlsIn(QStringLiteral("MainWindow"));
    const auto spot = [&](const QStringList &words) {
        return Spot(controls, words).position();
    };
    const QJsonArray rows =
        controlCalled(window, QStringLiteral("rows")).value(QStringLiteral("rows")).toArray();
    QVERIFY(rows.size() > 1);
    QCOMPARE(position(rows.at(1)),
             spot({QStringLiteral("rows"), QStringLiteral("row"), QStringLiteral("1")}));
    const QJsonArray tabs =
        controlCalled(window, QStringLiteral("tabs")).value(QStringLiteral("tabs")).toArray();
    QVERIFY(tabs.size() > 1);
    QCOMPARE(position(tabs.at(1)),
             spot({QStringLiteral("tabs"), QStringLiteral("tab"), QStringLiteral("1")}));
    const QJsonObject cells =
        controlCalled(window, QStringLiteral("map")).value(QStringLiteral("cells")).toObject();
    QCOMPARE(position(cells),
             spot({QStringLiteral("map"), QStringLiteral("cell"), QStringLiteral("0"), QStringLiteral("0")}));
    QCOMPARE(cells.value(QStringLiteral("next")).toInt(), 32);
}

QTEST_APPLESS_MAIN(tst_ControlDump)
#include "tst_ControlDump.moc"
