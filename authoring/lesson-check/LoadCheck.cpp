#include "lesson-check/LoadCheck.h"

#include "Tutorial/localisation/ScenarioTexts.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/TutorialItemData.h"

namespace {

constexpr int kShownCharacters = 80;

/// The scanner's messages end with all the text behind the place.
QString beginning(const QString &error)
{
    const QString line = error.section(QLatin1Char('\n'), 0, 0);
    return line.size() > kShownCharacters ? line.left(kShownCharacters) + QStringLiteral("...") : line;
}

} // namespace

Findings checkLoading(const Lesson &lesson, const QString &path)
{
    ScenarioTexts texts;
    texts.setContext(lesson.name);
    TutorialEditor::Manager document(&texts);
    const QStringList errors = document.setContents(path);
    ItemTree *tree = document.tree();
    const int found = tree->root.children.size();
    qDeleteAll(tree->items); // a document does not own its items, and there is no undo history that might
    tree->items.clear();

    Findings findings;
    const auto report = [&](const QString &text) {
        findings.append({Finding::Kind::kError, lesson.file, 0, {}, {}, text});
    };
    for (const QString &error : errors) {
        report(QStringLiteral("the companion cannot load it: %1").arg(beginning(error)));
    }
    if (found != lesson.steps.size()) {
        report(QStringLiteral("the companion finds %1 of the %2 items: it takes a text for something else, "
                              "such as the end of a name for qsTr(; write that text in other words")
                   .arg(found)
                   .arg(lesson.steps.size()));
    }
    return findings;
}
