#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

struct ModelItem
{
    int id = -1;
    QString name;
    int translationId = -1;
    int x = -9999;
    QString hint;
    QString hint2;
    bool showArrow = true;
};
using ModelItemPtr = std::shared_ptr<ModelItem>;
using ModelItems = std::vector<ModelItemPtr>;

struct ModelNode
{
    int id = -1;
    bool folder = false;
    std::vector<ModelNode> children;
};

/// A part of a document that stands alone: a copied item, or a whole file.
struct ModelPart
{
    ModelNode root;
    ModelItems items;
};

struct ModelCommand;
using ModelCommandPtr = std::shared_ptr<ModelCommand>;

/// What the document, its undo history and its clipboard are expected to do, in plain values and without Qt's
/// undo stack. There is no translator, so a text identifier stays what it is.
class DocumentModel
{
public:
    void load(const ModelPart &file);
    /// Saves, and loads what was saved.
    void saveAndLoad();
    void save();
    void clear();
    void insert(int parentId, int index, const ModelItemPtr &item);
    void modify(int id, const QString &target, const QVariant &value);
    void setName(int id, const QString &name);
    bool copy(const QList<int> &ids);
    QList<int> paste();

    void beginSingle(const QString &name, qint64 nowMs);
    void endSingle();
    void beginSequence(const QString &name, qint64 nowMs);
    void endSequence();
    void setUnmergeable() { m_unmergeable = true; }
    void undo();
    void redo();
    void undoAndMakeUnredoable();

    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    [[nodiscard]] bool modified() const { return m_modified; }
    [[nodiscard]] QString shape() const { return shapeOf(m_root); }
    [[nodiscard]] QStringList itemTexts() const;
    [[nodiscard]] static QString textOf(const ModelItem &item);

private:
    [[nodiscard]] static QString shapeOf(const ModelNode &parent);
    static ModelNode *find(ModelNode *node, int id);
    static ModelNode *findParent(ModelNode *node, int id, int *place);
    [[nodiscard]] static int indexOf(const ModelItems &items, int id);
    void nameItems(const ModelNode &node);
    bool copyNode(const ModelNode &node, ModelNode *parent, ModelItems *items, bool forFile) const;
    int pasteNode(ModelPart *source, ModelNode *parent, int id);

    [[nodiscard]] ModelItem *item(int id) const;
    bool assign(int id, const QString &target, const QVariant &value, QVariant *old);
    void run(ModelCommand *command);
    void takeBack(ModelCommand *command);
    bool merge(ModelCommand *last, const ModelCommand &command);
    void add(const ModelCommandPtr &command);
    void push(const ModelCommandPtr &command);
    void limit();
    void setIndex(int index);
    void markerAndUndo();

    ModelNode m_root{-1, true, {}};
    ModelItems m_items;
    std::vector<ModelPart> m_clipboard;

    std::vector<ModelCommandPtr> m_steps;
    std::vector<ModelCommandPtr> m_openMacros;
    int m_index = 0;
    int m_saved = 0;
    bool m_modified = false;
    bool m_inTransaction = false;
    int m_depth = 0;
    int m_sequenceStart = -1;
    QString m_name;
    QString m_lastName;
    qint64 m_lastMs = 0;
    bool m_timeSet = false;
    bool m_mergeable = false;
    bool m_unmergeable = false;

    QList<int> m_usedIds;
    QList<int> m_usedTranslationIds;
    QStringList m_usedNames;
};
