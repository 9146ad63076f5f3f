#pragma once

#include "project/DataLayer.h"

#include <QUndoStack>

#include <optional>

class DataStep;

/// The data files of the open project, the one history of all their changes, and the one way to save them. A
/// file that was not changed is not written, and one that was keeps every byte that the change leaves alone.
class DataFiles : public DataLayer
{
    Q_OBJECT

public:
    /// Texts of files by name, such as "data/Items.json".
    using Texts = QMap<QString, QString>;

    /// No project is open at first.
    explicit DataFiles(QObject *parent = nullptr);

    /// Opens the project in @p folder. False with a text for the person when a file cannot be read or is no
    /// JSON; what was open stays open.
    [[nodiscard]] bool open(const QString &folder, QString *error);
    /// What was open, with all that was not saved, can be taken back until the next project is open.
    void close();
    /// Opens what was closed last as it was then, but for its history. Does nothing when that is past.
    void takeBack();

    [[nodiscard]] bool isOpen() const { return !m_folder.isEmpty(); }
    /// Full path; empty while no project is open.
    [[nodiscard]] QString folder() const { return m_folder; }

    /// Names of all files there are, in alphabetical order.
    [[nodiscard]] QStringList names() const;
    [[nodiscard]] QJsonValue file(const QString &name) const override;
    void change(const DataRoots &files, const QString &mergeKey) override;
    void accept() override {}

    /// Files that differ from what is saved.
    [[nodiscard]] QStringList changedFiles() const;

    /// Takes the last step back, or does it again. Gives the names of the files that it changed; none when
    /// there is no step.
    QStringList undo();
    QStringList redo();
    [[nodiscard]] const QUndoStack &history() const { return m_history; }
    /// How many values the history keeps in all steps but the last.
    [[nodiscard]] int historySize() const;

    /// A name for what the data are now: that of the project as it was opened with the last step of its
    /// history, unlike those of all other steps, projects and runs.
    [[nodiscard]] QString lastStep() const;
    /// The files that the last step changed, as they were before it; none when there is no step.
    [[nodiscard]] DataRoots beforeLastStep() const;
    /// Undoes or does again until the data are what they were when lastStep() said this. False, with nothing
    /// done, when the history has no such step.
    bool goToStep(const QString &name);

    /// Writes the changed files into the project's folder: all of them, or none but for a disk that fails in
    /// the last moment. False with a text for the person; the changes are kept then, and can be saved again.
    [[nodiscard]] bool save(QString *error);

    /// Gives the open project these files in place of its own, on the disk, too, and begins a new history.
    /// False with a text for the person when one of them is no JSON or cannot be written; the project stays
    /// as it was then.
    [[nodiscard]] bool replace(const Texts &texts, QString *error);

Q_SIGNALS:
    /// What was open is gone: another project is open now, none, or the same one with other files.
    void left();

private:
    friend class DataStep;

    struct File
    {
        /// As it is on the disk, or was there last; empty when it never was.
        QByteArray text;
        QJsonValue saved = QJsonValue::Undefined;
        QJsonValue now = QJsonValue::Undefined;
    };
    using Files = QMap<QString, File>;

    static std::optional<Files> parsed(const QMap<QString, QByteArray> &texts, const QString &folder,
                                       QString *error);
    void take(const QString &folder, const Files &files);
    /// Tells nobody.
    void assign(const DataRoots &files);
    /// nullptr for an index that no step has.
    [[nodiscard]] const DataStep *stepAt(int index) const;

    QString m_folder;
    Files m_files;
    /// What was closed last; no folder when there is nothing to take back.
    QString m_closedFolder;
    Files m_closedFiles;
    QUndoStack m_history;
    /// Name of the project as it was opened, or given its files.
    QString m_opened;
};
