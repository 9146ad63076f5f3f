#pragma once

#include "TutorialEditor/ScenarioDocument.h"

#include <QList>
#include <QString>
#include <QStringList>

class ScenarioTexts;

namespace TutorialEditor {

/// The scenario document: the file that it came from, and its items.
class Manager : public ScenarioDocument
{
    Q_OBJECT

public:
    /// @p texts translates what is loaded and is used as long as this object lives. It is not owned, and must
    /// not be null. @p history is asked for the undo history; without it there is none. This object becomes
    /// the instance.
    explicit Manager(const ScenarioTexts *texts, HistorySource history = {});
    ~Manager() override;

    /// The document, or null.
    [[nodiscard]] static Manager *instance();

    /// Replaces the document by the scenario file @p fileName, and gives items without a name one. Returns
    /// one line for every error; with none the load succeeded, or the file did not open, which leaves the
    /// items as they are and is logged. In both cases @p fileName is where save() writes to from now on.
    ///
    /// A text that is no JSON array leaves no items. An item that cannot be read is left out, with an error
    /// line that names its place. The undo history stays as it is.
    QStringList setContents(const QString &fileName);

    /// Appends the children of @p parent, which is found in @p items, to @p out. See ScenarioWriter.
    void getJsonText(int level, TreeItem<TutorialItemData> *parent, QList<TutorialItemData *> *items,
                     QString *out, bool compact, bool translated);

    /// The whole document as the text of a scenario file, without a final line end. @p translated: hints are
    /// translation calls.
    [[nodiscard]] QString getScenario(bool translated);

    /// Writes the document to its file, hints as translation calls, and tells the undo history. Returns empty
    /// text, or a message for the author; then the document stays modified. The file is truncated first, so a
    /// failed write leaves it incomplete.
    [[nodiscard]] QString save();

    /// Drops all items and the undo history. The file stays the one to save to.
    void clear();

    [[nodiscard]] QString fileName() const { return m_fileName; }
    [[nodiscard]] const ScenarioTexts &texts() const { return *m_texts; }

    /// In a transaction of the undo history, a step of it that changes nothing.
    [[nodiscard]] bool recordName(const TutorialItemData &item, const QString &name) override;

private:
    void readItems(const QString &json, QStringList *errors);
    void nameItems();
    void dropItems();

    QString m_fileName;
    const ScenarioTexts *m_texts;
};

} // namespace TutorialEditor
