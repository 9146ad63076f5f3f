#pragma once

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QMap>
#include <QObject>

#include <optional>

/// Whole data files by name, such as "data/Items.json"; undefined where there is to be no file.
using DataRoots = QMap<QString, QJsonValue>;

/// A place in a data file: the file's name, and a JSON pointer in it.
struct DataPlace
{
    QString file;
    QString pointer;

    bool operator==(const DataPlace &other) const { return file == other.file && pointer == other.pointer; }
};

/// What a window shows and changes: the project's data files, and which entry of each list is selected. The
/// lowest layer is what the project holds; each one above it is a draft that hides what it has changed until
/// it is accepted.
class DataLayer : public QObject
{
    Q_OBJECT

public:
    /// @p below outlives the layer; nullptr makes the lowest one.
    explicit DataLayer(DataLayer *below, QObject *parent = nullptr);

    [[nodiscard]] DataLayer *below() const { return m_below; }

    /// The value that the file holds; undefined when there is no such file.
    [[nodiscard]] virtual QJsonValue file(const QString &name) const = 0;

    /// The merge key of what is no step of its own: a window notes what it works at.
    [[nodiscard]] static QString noStep() { return QStringLiteral("no step"); }

    /// Gives the files these values, as one step. It joins the step before when both have this @p mergeKey
    /// and it is not empty.
    virtual void change(const DataRoots &files, const QString &mergeKey) = 0;

    /// Hands down what was changed and selected here, as one step; there is nothing to do for the lowest
    /// layer.
    virtual void accept() = 0;

    /// What stands at the JSON @p pointer in the file; undefined when nothing does.
    [[nodiscard]] QJsonValue value(const QString &name, const QString &pointer) const;

    /// Changes what stands there as JsonPointer::withWay() does. False when the way there leads nowhere.
    /// Changes of one place that follow each other are one step.
    bool set(const QString &name, const QString &pointer, const QJsonValue &value);

    /// Number of the entry that is selected in a list; -1 when none was.
    [[nodiscard]] int selected(const QString &list) const;
    void select(const QString &list, int number);

    /// A place that something has marked here or below, under this name; nothing when none was. A mark is not
    /// handed down.
    [[nodiscard]] std::optional<DataPlace> mark(const QString &name) const;
    void setMark(const QString &name, const DataPlace &place);

    /// What the layer has of its own and nobody else keeps, as JSON, and back.
    [[nodiscard]] virtual QJsonObject saveSelf() const;
    virtual void loadSelf(const QJsonObject &state);
    /// Of that, what was typed and not only selected.
    [[nodiscard]] virtual QJsonObject saveTyped() const { return {}; }

Q_SIGNALS:
    /// A file or a selection did.
    void changed();

protected:
    [[nodiscard]] const QHash<QString, int> &selections() const { return m_selected; }
    void setSelections(const QHash<QString, int> &selected) { m_selected = selected; }
    void forgetSelections() { m_selected.clear(); }
    void forgetMarks() { m_marks.clear(); }

private:
    DataLayer *m_below;
    QHash<QString, int> m_selected;
    QHash<QString, DataPlace> m_marks;
};
