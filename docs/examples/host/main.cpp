// A host editor in small: its button "New" opens a second window, and it plays the first lesson as far as
// these two windows carry it. "example-host PROGRAM" takes another companion than the installed one.
#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QScreen>
#include <QtDebug>

#include <host/HostEditor.h>
#include <host/HostLink.h>
#include <host/LessonSession.h>

class Editor : public HostEditor
{
public:
    Editor()
    {
        m_main.setWindowTitle("Example host");
        m_main.setGeometry(90, 190, 1100, 720);
        m_dialog.setWindowTitle("New project");
        m_dialog.resize(440, 190);
        auto *button = new QPushButton("New", &m_main);
        button->setGeometry(8, 4, 60, 48); // where the step that asks for it points
        connect(button, &QPushButton::clicked, this, [this] {
            m_dialog.open();
            Q_EMIT pushed("NewProject");
            Q_EMIT moved("NewProject", m_dialog.mapToGlobal(QPoint()));
            Q_EMIT happened({"windowState", "NewProject", "open", "NewProject"});
        });
        connect(&m_dialog, &QDialog::finished, this, [this] {
            Q_EMIT popped("NewProject");
            Q_EMIT happened({"windowState", "NewProject", "close", "NewProject"});
        });
        m_main.installEventFilter(this);
        m_dialog.installEventFilter(this);
        m_main.show();
    }

    QStringList openWindows() const override
    {
        return m_dialog.isVisible() ? QStringList{"MainWindow", "NewProject"} : QStringList{"MainWindow"};
    }
    std::optional<QPoint> origin(const QString &key) const override
    {
        return openWindows().contains(key) ? std::optional(m_windows[key]->mapToGlobal(QPoint()))
                                           : std::nullopt;
    }
    QRect screenRect() const override
    {
        // When a window moves, its own screen() is told of it later.
        const QScreen *screen = QApplication::screenAt(m_main.geometry().center());
        return (screen != nullptr ? screen : QApplication::primaryScreen())->geometry();
    }
    QSize applicationSize() const override { return m_main.size(); }

    void activateTop() { m_windows[openWindows().constLast()]->activateWindow(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Move) {
            auto *window = static_cast<QWidget *>(watched);
            Q_EMIT moved(m_windows.key(window), window->mapToGlobal(QPoint()));
        } else if (event->type() == QEvent::WindowStateChange && watched == &m_main) {
            Q_EMIT visibilityChanged(!m_main.isMinimized());
        }
        return false;
    }

private:
    QWidget m_main;
    QDialog m_dialog{&m_main};
    QMap<QString, QWidget *> m_windows{{"MainWindow", &m_main}, {"NewProject", &m_dialog}};
};

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Editor editor;
    LessonSession session(&editor);
    HostLink link(argc > 1 ? argv[1] : COMPANION, QString(), "en_US");
    QObject::connect(&session, &LessonSession::sends, &link, &HostLink::send);
    QObject::connect(&link, &HostLink::received, &session, &LessonSession::receive);
    QObject::connect(&link, &HostLink::connected, &session, [&] { session.greet("en_US"); });
    QObject::connect(&session, &LessonSession::lessonsListed, &session,
                     [&](const auto &lessons) { session.request(lessons.value(0).name); });
    QObject::connect(&session, &LessonSession::stepReached, &session, [&] {
        qInfo("step %d of %d", session.runner().index() + 1, session.runner().scenario().size());
    });
    // The companion's button has taken the focus: Enter is for the window on top again.
    QObject::connect(&session, &LessonSession::nextArrived, &editor, &Editor::activateTop);
    QObject::connect(&session, &LessonSession::refused, &session, [](const QString &lesson) {
        qWarning("The companion does not have the lesson %s.", qPrintable(lesson));
    });
    QObject::connect(&session, &LessonSession::stopped, &session,
                     [](const LessonFault &fault) { qWarning("%s", qPrintable(fault.message())); });
    QObject::connect(&session, &LessonSession::finished, &session, [] { qInfo("The lesson is done."); });
    QObject::connect(&link, &HostLink::lost, &session, [&](const QString &lastWords) {
        session.abandon();
        qWarning("The companion is gone. Its last words were:\n%s", qPrintable(lastWords));
    });
    HostLink::Failure failure;
    if (!link.start(&failure)) {
        qWarning("%s: %s", qPrintable(failure.name), qPrintable(failure.reason));
        return 1;
    }
    return QApplication::exec();
}
