#include "ProgramProbe.h"

#include <QCoreApplication>
#include <QFile>
#include <QMetaMethod>
#include <QTimer>
#include <QVariant>

namespace {

QObject *objectOf(const char *className)
{
    const QList<QObject *> objects = QCoreApplication::instance()->findChildren<QObject *>();
    for (QObject *object : objects) {
        if (qstrcmp(object->metaObject()->className(), className) == 0) {
            return object;
        }
    }
    return nullptr;
}

QMetaMethod methodOf(const QObject *object, const char *signature)
{
    const QMetaObject *meta = object->metaObject();
    return meta->method(meta->indexOfMethod(signature));
}

QString truth(const QVariant &value)
{
    return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

ProgramProbe::ProgramProbe(const QString &argument)
    : m_argument(argument)
{
    // The program makes its objects before it enters the event loop.
    QTimer::singleShot(0, this, &ProgramProbe::watch);
}

void ProgramProbe::watch()
{
    m_manager = objectOf("TutorialManager");
    if (m_manager == nullptr) {
        write(QStringLiteral("no manager"));
        return;
    }
    connect(m_manager, methodOf(m_manager, "currentWindowKeyChanged()"), this,
            methodOf(this, "writeWindowKey()"));
    if (m_argument == QLatin1String("history")) {
        tryHistory();
    }
    write(QStringLiteral("watching"));
}

// The manager is told by the history that nothing is modified any more; and what is pasted into its document
// stands in the history.
void ProgramProbe::tryHistory()
{
    QObject *history = objectOf("UndoRedo");
    if (history == nullptr) {
        write(QStringLiteral("no history"));
        return;
    }
    m_manager->setProperty("modified", true);
    QMetaObject::invokeMethod(history, "clear");
    write(QStringLiteral("modified ") + truth(m_manager->property("modified")));

    QString errors;
    QMetaObject::invokeMethod(m_manager, "loadTutorial", Q_RETURN_ARG(QString, errors),
                              Q_ARG(QString, QStringLiteral(":/qml/Tutorial/TutorialStep1.js")));
    write(QStringLiteral("errors ") + errors);
    QMetaObject::invokeMethod(m_manager, "copyTutorialItemList", Q_ARG(QList<int>, QList<int>{1}));
    QMetaObject::invokeMethod(history, "beginSingle");
    QList<int> pasted;
    QMetaObject::invokeMethod(m_manager, "pasteTutorialItemList", Q_RETURN_ARG(QList<int>, pasted));
    QMetaObject::invokeMethod(history, "endSingle");
    write(QStringLiteral("pasted %1").arg(pasted.size()));
    write(QStringLiteral("canUndo ") + truth(history->property("canUndo")));
    write(QStringLiteral("modified ") + truth(m_manager->property("modified")));
    QMetaObject::invokeMethod(history, "undo");
    write(QStringLiteral("modified ") + truth(m_manager->property("modified")));
}

void ProgramProbe::writeWindowKey()
{
    write(m_manager->property("currentWindowKey").toString());
}

void ProgramProbe::write(const QString &line) const
{
    QFile file(qEnvironmentVariable("TUTORIAL_PROBE_FILE"));
    if (file.open(QIODevice::Append)) {
        file.write(line.toUtf8() + '\n');
    }
}

QObject *ProgramProbePlugin::create(const QString &key, const QString &argument)
{
    Q_UNUSED(key)
    return new ProgramProbe(argument);
}
