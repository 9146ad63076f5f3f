#include "TestPlayRun.h"

#include "PracticeTranslator.h"
#include "ScriptedPlay.h"

#include <QCommandLineParser>

#include <cstdio>

namespace {

constexpr int kAsExpected = 0;
constexpr int kOtherwise = 1;
constexpr int kUnreadable = 2;

int complain(const QString &text)
{
    std::fprintf(stderr, "PracticeEditor: %s\n", text.toUtf8().constData());
    return kUnreadable;
}

} // namespace

void TestPlayOptions::addTo(QCommandLineParser *parser) const
{
    parser->addOptions({testPlay, script});
}

int TestPlayOptions::run(const QCommandLineParser &parser, const QString &locale) const
{
    if (!parser.isSet(script)) {
        return complain(QStringLiteral("--test-play needs a script: add --script FILE"));
    }
    const PracticeTranslator translator(locale);
    const ScriptedPlay played =
        ScriptedPlay::run(parser.value(testPlay), parser.value(script), [](const QString &line) {
            std::fprintf(stdout, "%s\n", line.toUtf8().constData());
        });
    if (played.end == ScriptedPlay::End::kUnreadable) {
        return complain(played.failure);
    }
    return played.end == ScriptedPlay::End::kAsExpected ? kAsExpected : kOtherwise;
}
