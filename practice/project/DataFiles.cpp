#include "project/DataFiles.h"

#include "project/DataPath.h"
#include "project/JsonDelta.h"
#include "project/JsonText.h"
#include "project/ProjectFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QUuid>

namespace {

constexpr int kSteps = 1000;

} // namespace

/// One step of the history: the files that it changes, as they are before and after it. A step that others
/// may still join has them whole; settle() leaves what differs, so that a thousand strokes on a large map do
/// not keep a thousand maps.
class DataStep : public QUndoCommand
{
public:
    DataStep(DataFiles *files, const DataRoots &before, const DataRoots &after, QString mergeKey)
        : m_files(files)
        , m_before(before)
        , m_after(after)
        , m_mergeKey(std::move(mergeKey))
    {
    }

    [[nodiscard]] QStringList names() const { return m_isSettled ? m_deltas.keys() : m_after.keys(); }
    /// The files as they were, while this is the last step that was done.
    [[nodiscard]] DataRoots before() const { return m_isSettled ? roots(&JsonDelta::undone) : m_before; }
    /// Unlike that of any other step of this run.
    [[nodiscard]] QString name() const { return QString::number(m_number); }

    void undo() override { m_files->assign(m_isSettled ? roots(&JsonDelta::undone) : m_before); }
    void redo() override { m_files->assign(m_isSettled ? roots(&JsonDelta::done) : m_after); }
    [[nodiscard]] int id() const override { return m_mergeKey.isEmpty() || m_isSettled ? -1 : 0; }

    /// Changes nothing that can be seen, but that no step joins this one any more.
    void settle() const
    {
        if (m_isSettled) {
            return;
        }
        for (auto file = m_after.cbegin(); file != m_after.cend(); ++file) {
            m_deltas.insert(file.key(), JsonDelta::between(m_before.value(file.key()), file.value()));
        }
        m_before.clear();
        m_after.clear();
        m_isSettled = true;
    }

    /// How many values it keeps.
    [[nodiscard]] int size() const
    {
        int size = 0;
        for (const JsonDelta &delta : qAsConst(m_deltas)) {
            size += delta.size();
        }
        return size;
    }

    bool mergeWith(const QUndoCommand *next) override
    {
        const auto *step = static_cast<const DataStep *>(next);
        if (step->m_mergeKey != m_mergeKey || step->names() != names()) {
            return false;
        }
        m_after = step->m_after;
        m_number = step->m_number;
        setObsolete(m_after == m_before);
        return true;
    }

private:
    [[nodiscard]] DataRoots roots(QJsonValue (JsonDelta::*way)(const QJsonValue &) const) const
    {
        DataRoots roots;
        for (auto delta = m_deltas.cbegin(); delta != m_deltas.cend(); ++delta) {
            roots.insert(delta.key(), (delta.value().*way)(m_files->file(delta.key())));
        }
        return roots;
    }

    DataFiles *m_files;
    mutable DataRoots m_before;
    mutable DataRoots m_after;
    mutable QMap<QString, JsonDelta> m_deltas;
    mutable bool m_isSettled = false;
    QString m_mergeKey;
    int m_number = nextNumber();

    static int nextNumber()
    {
        static int last = 0;
        return ++last;
    }
};

DataFiles::DataFiles(QObject *parent)
    : DataLayer(nullptr, parent)
{
    m_history.setUndoLimit(kSteps);
}

bool DataFiles::open(const QString &folder, QString *error)
{
    const auto texts = ProjectFolder::read(folder, error);
    const auto files = texts ? parsed(*texts, folder, error) : std::nullopt;
    if (!files) {
        return false;
    }
    take(QDir(folder).absolutePath(), *files);
    return true;
}

void DataFiles::close()
{
    if (isOpen()) {
        const QString folder = m_folder;
        const Files files = m_files;
        take(QString(), {});
        m_closedFolder = folder;
        m_closedFiles = files;
    }
}

void DataFiles::takeBack()
{
    if (!m_closedFolder.isEmpty()) {
        take(QString(m_closedFolder), Files(m_closedFiles));
    }
}

QStringList DataFiles::names() const
{
    QStringList names;
    for (auto file = m_files.begin(); file != m_files.end(); ++file) {
        if (!file->now.isUndefined()) {
            names.append(file.key());
        }
    }
    return names;
}

QJsonValue DataFiles::file(const QString &name) const
{
    const auto file = m_files.constFind(name);
    return file != m_files.constEnd() ? file->now : QJsonValue(QJsonValue::Undefined);
}

void DataFiles::change(const DataRoots &files, const QString &mergeKey)
{
    DataRoots before;
    DataRoots after;
    for (auto wanted = files.begin(); wanted != files.end(); ++wanted) {
        // What is only being made in a window has a name of another form, and is no part of the project.
        if (DataPath::isFile(wanted.key()) && file(wanted.key()) != wanted.value()) {
            before.insert(wanted.key(), file(wanted.key()));
            after.insert(wanted.key(), wanted.value());
        }
    }
    if (isOpen() && !after.isEmpty()) {
        m_history.push(new DataStep(this, before, after, mergeKey));
        if (m_history.index() > 1) {
            stepAt(m_history.index() - 2)->settle();
        }
        // Not before the history has the step: who hears of it asks what can be undone.
        Q_EMIT changed();
    }
}

const DataStep *DataFiles::stepAt(int index) const
{
    return static_cast<const DataStep *>(m_history.command(index));
}

int DataFiles::historySize() const
{
    int size = 0;
    for (int index = 0; index < m_history.count(); ++index) {
        size += stepAt(index)->size();
    }
    return size;
}

QStringList DataFiles::changedFiles() const
{
    QStringList names;
    for (auto file = m_files.begin(); file != m_files.end(); ++file) {
        if (file->now != file->saved) {
            names.append(file.key());
        }
    }
    return names;
}

QStringList DataFiles::undo()
{
    if (!m_history.canUndo()) {
        return {};
    }
    QStringList names = stepAt(m_history.index() - 1)->names();
    m_history.undo();
    Q_EMIT changed();
    return names;
}

QStringList DataFiles::redo()
{
    if (!m_history.canRedo()) {
        return {};
    }
    QStringList names = stepAt(m_history.index())->names();
    m_history.redo();
    Q_EMIT changed();
    return names;
}

QString DataFiles::lastStep() const
{
    const DataStep *step = stepAt(m_history.index() - 1);
    return m_opened + (step != nullptr ? step->name() : QString());
}

DataRoots DataFiles::beforeLastStep() const
{
    const DataStep *step = stepAt(m_history.index() - 1);
    return step != nullptr ? step->before() : DataRoots();
}

bool DataFiles::goToStep(const QString &name)
{
    for (int index = 0; index <= m_history.count(); ++index) {
        const DataStep *step = stepAt(index - 1);
        if (m_opened + (step != nullptr ? step->name() : QString()) == name) {
            m_history.setIndex(index);
            Q_EMIT changed();
            return true;
        }
    }
    return false;
}

bool DataFiles::save(QString *error)
{
    // Where somebody has taken a folder away, all there was in it goes into a new one.
    const auto isGone = [this](const QString &name) {
        return !QFileInfo(QDir(m_folder).filePath(name)).dir().exists();
    };
    QMap<QString, QByteArray> texts;
    QStringList gone;
    for (auto file = m_files.begin(); file != m_files.end(); ++file) {
        if (file->now.isUndefined()) {
            gone.append(file.key());
        } else if (file->now != file->saved || isGone(file.key())) {
            texts.insert(file.key(), JsonText::rewritten(file->text, file->now));
        }
    }
    QString reason;
    if (isOpen() && !ProjectFolder::write(m_folder, texts, gone, &reason)) {
        //: %1 is a sentence that names a file and says why it cannot be written.
        *error = tr("%1 Nothing is lost: the editor keeps all your changes. Make room on the disk, or permit "
                    "writing, and save again.")
                     .arg(reason);
        return false;
    }
    for (const QString &name : qAsConst(gone)) {
        m_files[name].saved = QJsonValue(QJsonValue::Undefined);
    }
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        File &file = m_files[text.key()];
        file.text = text.value();
        file.saved = file.now;
    }
    // What is typed from here on is a step of its own.
    m_history.setClean();
    Q_EMIT changed();
    return true;
}

bool DataFiles::replace(const Texts &texts, QString *error)
{
    QMap<QString, QByteArray> bytes;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        bytes.insert(text.key(), text.value().toUtf8());
    }
    QStringList gone;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        if (!texts.contains(file.key())) {
            gone.append(file.key());
        }
    }
    const auto files = parsed(bytes, m_folder, error);
    if (!isOpen() || !files || !ProjectFolder::write(m_folder, bytes, gone, error)) {
        return false;
    }
    take(m_folder, *files);
    return true;
}

std::optional<DataFiles::Files> DataFiles::parsed(const QMap<QString, QByteArray> &texts,
                                                  const QString &folder, QString *error)
{
    Files files;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        JsonText::Problem problem;
        const std::optional<QJsonValue> value = JsonText::parse(text.value(), &problem);
        if (!value) {
            //: %1 is a file's path, %2 the number of a line, %3 what the JSON reader says of it.
            *error =
                tr("The project's file “%1” is damaged at line %2 (%3). Mend that line, or put a whole "
                   "copy of the file in its place, and open the project again.")
                    .arg(QDir(folder).filePath(text.key()), QString::number(problem.line), problem.reason);
            return std::nullopt;
        }
        files.insert(text.key(), {text.value(), *value, *value});
    }
    return files;
}

void DataFiles::take(const QString &folder, const Files &files)
{
    m_history.clear();
    m_opened = QUuid::createUuid().toString() + QLatin1Char(' ');
    forgetSelections();
    forgetMarks();
    m_folder = folder;
    m_files = files;
    m_closedFolder.clear();
    m_closedFiles.clear();
    Q_EMIT left();
    Q_EMIT changed();
}

void DataFiles::assign(const DataRoots &files)
{
    for (auto file = files.begin(); file != files.end(); ++file) {
        m_files[file.key()].now = file.value();
    }
}
