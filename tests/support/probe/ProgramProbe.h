#pragma once

#include <QObject>
#include <QtGui/QGenericPlugin>

/// Looks into the running program through its meta-objects, for what neither its link nor its log tells. Qt
/// loads it into the program when the environment asks for it; the test reads what it writes to a file.
///
/// It says "watching", then a line for each change of the window stack: the key that is on top. With the
/// argument "history" it first tries what the undo history does to the manager, see its definition.
class ProgramProbe : public QObject
{
    Q_OBJECT

public:
    explicit ProgramProbe(const QString &argument);

private Q_SLOTS:
    void writeWindowKey();

private:
    void watch();
    void tryHistory();
    void write(const QString &line) const;

    QString m_argument;
    QObject *m_manager = nullptr;
};

class ProgramProbePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "ProgramProbe.json")

public:
    QObject *create(const QString &key, const QString &argument) override;
};
