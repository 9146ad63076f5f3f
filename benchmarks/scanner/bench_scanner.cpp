// Time to resolve the translation calls of a scenario, per item, for scenarios of growing length. The time
// per item must stay flat: the program fails when the slowest length takes more than kFlatWithin times the
// fastest.

#include "Tutorial/localisation/ScenarioTexts.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>

namespace {

constexpr double kFlatWithin = 2.0;

/// A scenario of @p count items in the form that the lessons have.
QString scenario(int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i) {
        items.append(QStringLiteral("    {\n\"id\":%1,\n\"name\":\"item %1\",\n\"folder\":false,\n"
                                    "\"translationId\":%2,\n\"x\":120,\n\"y\":-40,\n"
                                    "\"windowKey\":\"MainWindow\",\n\"condition\":\"click,\",\n"
                                    "\"hint\":qsTr(\"#%2\"),\n\"icon\":\"click\",\n\"jump\":-1,\n"
                                    "\"jumpNo\":-1,\n\"command\":\"\",\n\"showArrow\":true,\n"
                                    "\"prohibited\":false    \n    }")
                         .arg(i + 1)
                         .arg(i % 137 + 1));
    }
    return QStringLiteral("var scenario = [\n") + items.join(QStringLiteral(",\n")) + QStringLiteral("];\n");
}

/// Processor time since @p begin: on a busy machine the time on the wall would say more about its neighbours.
double cpuSeconds(std::clock_t begin)
{
    return double(std::clock() - begin) / CLOCKS_PER_SEC;
}

/// Log lines are written as ever, and dropped at the door.
void dropLine(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*line*/) {}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(dropLine);
    ScenarioTexts texts;
    if (!texts.loadSecond()) {
        std::puts("the catalogue \"en_US\" is not there");
        return 1;
    }
    texts.setContext(QStringLiteral("TutorialStep1"));

    double fastest = std::numeric_limits<double>::max();
    double slowest = 0;
    std::puts("   items  microseconds per item");
    for (const int count : {100, 1000, 10000, 100000}) {
        const QString script = scenario(count);
        double best = std::numeric_limits<double>::max();
        for (int run = 0; run < std::max(3, 20000 / count); ++run) {
            QStringList errors;
            const std::clock_t begin = std::clock();
            const QString result = texts.translateScript(script, &errors);
            best = std::min(best, cpuSeconds(begin) * 1e6 / count);
            if (!errors.isEmpty() || result.contains(QStringLiteral("qsTr("))) {
                std::puts("a call was not resolved");
                return 1;
            }
        }
        std::printf("%8d  %.3f\n", count, best);
        fastest = std::min(fastest, best);
        slowest = std::max(slowest, best);
    }
    const double spread = slowest / fastest;
    std::printf("slowest to fastest: %.2f, at most %.1f\n", spread, kFlatWithin);
    return spread <= kFlatWithin ? 0 : 1;
}
