#pragma once

#include "Tutorial/localisation/TranslationOutput.h"
#include "UndoRedo/UndoHistory.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class Languages;

namespace TutorialEditor {
class Manager;
}

/// What an author's tool asks of the scenario that is open, and what the host editor is handed of it: load,
/// save, clipboard, hand-over.
///
/// The document is made with this object and becomes the process's one document.
class AuthoringCalls final : public QObject
{
    Q_OBJECT

public:
    /// @p languages gives the texts and the locales, and must outlive this. @p history is asked for the undo
    /// history. @p translationPath gives the path of a translation source from its relative name; without it
    /// they are looked for in the resources, where nothing can be written.
    AuthoringCalls(Languages &languages, HistorySource history,
                   TranslationOutput::Resolve translationPath = {}, QObject *parent = nullptr);
    ~AuthoringCalls() override;

    /// Loads a scenario file into the document. Empty, or one error a line. The name is that of the file,
    /// without folders and one ".js"; it is taken whatever comes of the load.
    QString load(const QString &fileName);
    /// The same for the lesson with this name among the program's own.
    QString loadLesson(const QString &name);
    /// Drops the document, the undo history and the name.
    void unload();
    /// Writes the document to the file that it was loaded from. Empty, or a message for the author.
    [[nodiscard]] QString save();
    /// Writes the translation sources of both locales, then the scenario. Empty, or a message for the author.
    [[nodiscard]] QString saveWithTranslations();
    /// Writes the translation sources of both locales; true if both were written.
    [[nodiscard]] bool saveTranslations() const;

    /// The list of lessons as a JSON array with translated titles; empty when it cannot be read.
    [[nodiscard]] QString lessonList() const;
    /// The command that hands the document over to the host editor, all texts translated, to be played from
    /// the item with this id; -1 is the first.
    [[nodiscard]] QString startCommand(int id) const;

    /// Copies items, folders with their children, to the clipboard. An unknown id leaves it as it was.
    void copyItems(const QList<int> &ids);
    /// Adds the items of the clipboard at the end of the document. Their new ids, in order.
    [[nodiscard]] QList<int> pasteItems();
    void emptyClipboard();
    /// What the clipboard holds: the type of items, "Empty" when it was emptied, and nothing at first.
    [[nodiscard]] QString mimeType() const { return m_mimeType; }

    [[nodiscard]] QString tutorialName() const { return m_tutorialName; }

    [[nodiscard]] bool modified() const { return m_modified; }
    void setModified(bool modified);
    /// What the last undo or redo was about; empty for nothing.
    [[nodiscard]] QString undoNote() const { return m_undoNote; }
    void setUndoNote(const QString &note) { m_undoNote = note; }

Q_SIGNALS:
    void modifiedChanged();
    void mimeTypeChanged();
    void tutorialNameChanged();

private:
    void setMimeType(const QString &mimeType);
    void setTutorialName(const QString &name);

    Languages &m_languages;
    std::unique_ptr<TutorialEditor::Manager> m_document;
    TranslationOutput m_translationOutput;
    QByteArray m_clipboard;
    QString m_mimeType;
    QString m_tutorialName;
    bool m_modified = false;
    QString m_undoNote;
};
