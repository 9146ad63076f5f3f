#pragma once

#include "project/DataLayer.h"

#include <QVector>

#include <memory>
#include <vector>

/// What was typed into a dialog and neither accepted nor dropped, with a history of its own. Files that it
/// did not touch are those of the layer below.
class Draft : public DataLayer
{
    Q_OBJECT

public:
    using DataLayer::DataLayer;

    [[nodiscard]] QJsonValue file(const QString &name) const override;
    void change(const DataRoots &files, const QString &mergeKey) override;
    /// The draft is empty afterwards and can be typed into again.
    void accept() override;
    [[nodiscard]] QJsonObject saveSelf() const override;
    void loadSelf(const QJsonObject &state) override;
    [[nodiscard]] QJsonObject saveTyped() const override;
    /// Drops what was typed.
    void clear();

    [[nodiscard]] bool canUndo() const { return !m_past.isEmpty(); }
    [[nodiscard]] bool canRedo() const { return !m_future.isEmpty(); }
    /// Takes the last change back, and selects what was selected before it; does nothing without one.
    void undo();
    void redo();
    /// What was changed so far stays.
    void forgetHistory();

private:
    /// Values are shared, so that a whole state costs little.
    struct State
    {
        DataRoots files;
        QHash<QString, int> selected;
    };

    [[nodiscard]] State state() const { return {m_files, selections()}; }
    void step(QVector<State> *from, QVector<State> *to);

    DataRoots m_files;
    QVector<State> m_past;
    QVector<State> m_future;
    QString m_mergeKey;
};

/// The drafts of the open dialogs, each on top of the one before.
class Drafts : public QObject
{
    Q_OBJECT

public:
    /// @p project outlives the drafts.
    explicit Drafts(DataLayer *project, QObject *parent = nullptr);

    /// The draft of the topmost dialog, or the project itself. Valid until it is dropped.
    [[nodiscard]] DataLayer *top() const;

    /// Begins a draft on top of the others.
    DataLayer *begin();

    /// Drops @p draft with all above it; does nothing for another layer.
    void drop(const DataLayer *draft);

    /// What was changed so far in the topmost one cannot be undone in it.
    void forgetHistory();

    /// Drops what was typed into all of them, which stay: there is another project below.
    void clear();

Q_SIGNALS:
    /// A draft changed, began or went away.
    void changed();

private:
    DataLayer *m_project;
    std::vector<std::unique_ptr<Draft>> m_drafts;
};
