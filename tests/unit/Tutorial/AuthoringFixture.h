#pragma once

#include "ManagerFixture.h"
#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ModifyTutorialItemDataCommand.h"
#include "TutorialEditor/TutorialItemData.h"
#include "UndoRedo/UndoRedo.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QMetaObject>
#include <QSettings>
#include <QTemporaryDir>
#include <QTime>

/// What an author's tool has: the manager and the undo history, called by name, the items of the document,
/// and lessons in files. The history takes its time from the test.
class AuthoringFixture
{
public:
    bool start()
    {
        QSettings().clear();
        if (!QDir(m_directory.path()).mkdir(QStringLiteral("translations")) ||
            !m_fixture.start([this](const QString &name) { return path(name); })) {
            return false;
        }
        m_history = std::make_unique<UndoRedo>(nullptr, m_fixture.manager.get());
        m_history->setClock([this] { return now; });
        UndoRedo::publish(m_history.get());
        return true;
    }

    [[nodiscard]] TutorialManager *manager() const { return m_fixture.manager.get(); }
    [[nodiscard]] UndoRedo *history() const { return m_history.get(); }
    [[nodiscard]] QString undoNote() const { return manager()->undoNote(); }
    [[nodiscard]] bool modified() const { return manager()->property("modified").toBool(); }
    [[nodiscard]] bool canUndo() const { return history()->property("canUndo").toBool(); }
    [[nodiscard]] bool canRedo() const { return history()->property("canRedo").toBool(); }

    static bool call(QObject *object, const char *method)
    {
        return QMetaObject::invokeMethod(object, method);
    }
    static bool call(QObject *object, const char *method, const QString &name)
    {
        return QMetaObject::invokeMethod(object, method, Q_ARG(QString, name));
    }
    bool undo() const { return call(history(), "undo"); }
    bool redo() const { return call(history(), "redo"); }

    /// What the manager sends next.
    [[nodiscard]] QString nextPayload() { return m_fixture.nextPayload(); }

    /// The text that a method of the manager returns.
    [[nodiscard]] QString text(const char *method) const
    {
        QString result = QStringLiteral("not called");
        QMetaObject::invokeMethod(manager(), method, Q_RETURN_ARG(QString, result));
        return result;
    }
    [[nodiscard]] QString load(const QString &fileName) const
    {
        QString result = QStringLiteral("not called");
        QMetaObject::invokeMethod(manager(), "loadTutorial", Q_RETURN_ARG(QString, result),
                                  Q_ARG(QString, fileName));
        return result;
    }
    bool copy(const QList<int> &ids) const
    {
        return QMetaObject::invokeMethod(manager(), "copyTutorialItemList", Q_ARG(QList<int>, ids));
    }
    [[nodiscard]] QList<int> paste() const
    {
        QList<int> ids{-1};
        QMetaObject::invokeMethod(manager(), "pasteTutorialItemList", Q_RETURN_ARG(QList<int>, ids));
        return ids;
    }

    [[nodiscard]] static TutorialItemData *item(int id)
    {
        return findData(&TutorialEditor::Manager::instance()->tree()->items, id);
    }
    /// Changes a field of an item in a step of its own.
    void change(const QString &step, int id, const char *field, const QVariant &value) const
    {
        call(history(), "beginSingle", step);
        changeItem(TutorialEditor::Manager::instance(), id, QLatin1String(field), value);
        call(history(), "endSingle");
    }
    /// The whole document.
    [[nodiscard]] static QString document()
    {
        return TutorialEditor::Manager::instance()->getScenario(false);
    }
    /// The tree: ids in order, the children of a node in brackets.
    [[nodiscard]] static QString shape()
    {
        return shapeOf(TutorialEditor::Manager::instance()->tree()->root);
    }

    [[nodiscard]] QString path(const QString &name) const { return m_directory.filePath(name); }
    /// Writes @p bytes into a file and returns its path; empty when that fails.
    [[nodiscard]] QString file(const QString &name, const QByteArray &bytes) const
    {
        QFile target(path(name));
        return target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() ? target.fileName()
                                                                                        : QString();
    }
    [[nodiscard]] static QByteArray contentOf(const QString &fileName)
    {
        QFile source(fileName);
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray("<unreadable>");
    }

    QTime now = QTime(12, 0);

private:
    [[nodiscard]] static QString shapeOf(const TreeItem<TutorialItemData> &parent)
    {
        QStringList nodes;
        for (const TreeItem<TutorialItemData> &node : parent.children) {
            QString text = QString::number(node.id);
            if (node.folder || !node.children.isEmpty()) {
                text += QLatin1Char('[') + shapeOf(node) + QLatin1Char(']');
            }
            nodes << text;
        }
        return nodes.join(QLatin1Char(' '));
    }

    QTemporaryDir m_directory;
    ManagerFixture m_fixture;
    std::unique_ptr<UndoRedo> m_history; // goes first, as it tells the manager
};
