#pragma once

#include "../UndoRedo/RecordingHost.h"
#include "Tutorial/localisation/ScenarioTexts.h"
#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/TutorialItemData.h"
#include "UndoRedo/UndoRedo.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <QTranslator>

using Node = TreeItem<TutorialItemData>;

/// A translator whose texts the test gives.
class FixedTranslator final : public QTranslator
{
public:
    FixedTranslator() { QCoreApplication::installTranslator(this); }

    [[nodiscard]] QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                                    int /*n*/) const override
    {
        return texts.value(QString::fromUtf8(context) + QLatin1Char('|') + QString::fromUtf8(source));
    }
    [[nodiscard]] bool isEmpty() const override { return false; }

    /// By "context|source".
    QHash<QString, QString> texts;
};

/// A document with an undo history, as the program has them, and files in a directory of its own.
class DocumentFixture
{
public:
    DocumentFixture()
        : m_undoRedo(nullptr, &host)
        , document(&texts, &UndoRedo::instance)
    {
        UndoRedo::publish(&m_undoRedo);
        texts.setContext(QStringLiteral("Lesson"));
    }
    ~DocumentFixture() { UndoRedo::publish(nullptr); }
    Q_DISABLE_COPY(DocumentFixture)

    [[nodiscard]] QString path(const QString &name) const { return directory.filePath(name); }
    /// Writes @p bytes into a file and returns its path.
    [[nodiscard]] QString file(const QByteArray &bytes,
                               const QString &name = QStringLiteral("Lesson.js")) const
    {
        QFile target(path(name));
        return target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() ? target.fileName()
                                                                                        : QString();
    }
    QStringList load(const QByteArray &bytes) { return document.setContents(file(bytes)); }
    [[nodiscard]] UndoRedo &undoRedo() { return m_undoRedo; }
    [[nodiscard]] ItemTree *tree() { return document.tree(); }
    [[nodiscard]] TutorialItemData *item(int id) { return findData(&tree()->items, id); }

    /// The tree as text: ids in order, the children of a node in brackets, F behind a folder.
    [[nodiscard]] QString shape() { return shapeOf(tree()->root); }
    [[nodiscard]] static QString shapeOf(const Node &parent)
    {
        QStringList nodes;
        for (const Node &node : parent.children) {
            QString text = QString::number(node.id);
            if (node.folder) {
                text += QLatin1Char('F');
            }
            if (!node.children.isEmpty()) {
                text += QLatin1Char('[') + shapeOf(node) + QLatin1Char(']');
            }
            nodes << text;
        }
        return nodes.join(QLatin1Char(' '));
    }
    [[nodiscard]] QString ids()
    {
        QStringList numbers;
        for (const TutorialItemData *data : qAsConst(tree()->items)) {
            numbers << QString::number(data->id);
        }
        return numbers.join(QLatin1Char(' '));
    }

    RecordingHost host;

private:
    UndoRedo m_undoRedo;

public:
    ScenarioTexts texts;
    TutorialEditor::Manager document;
    QTemporaryDir directory;
};
