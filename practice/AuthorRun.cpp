#include "AuthorRun.h"

#include "PracticeEditor.h"
#include "author/ControlDump.h"
#include "author/Recorder.h"
#include "author/ScenarioPlayer.h"
#include "lesson/description/DescriptionSet.h"
#include "window/EditorWindows.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QWindow>

#include <cstdio>

// Outside of any namespace, as the macro needs it: the files are compiled into a static library.
static void initDescriptions()
{
    Q_INIT_RESOURCE(descriptions);
}

namespace {

void say(const QString &line)
{
    std::fprintf(stderr, "%s\n", line.toUtf8().constData());
}

DescriptionSet descriptions(QStringList *errors)
{
    initDescriptions();
    return DescriptionSet::read(QStringLiteral(":/descriptions"), nullptr, errors);
}

/// Tells a recorder what the author does with mouse and keyboard in the windows of this program.
class AuthorsHand final : public QObject
{
public:
    explicit AuthorsHand(Recorder *recorder)
        : QObject(recorder)
        , m_recorder(recorder)
    {
        qGuiApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // A window passes on what it gets to the widgets in it.
        if (qobject_cast<QWindow *>(watched) != nullptr) {
            hear(event);
        } else if (event->type() == QEvent::Shortcut) {
            // Its key comes to no window.
            m_recorder->type(Recorder::Keys::kOther);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void hear(QEvent *event)
    {
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
            const auto *const mouse = static_cast<QMouseEvent *>(event);
            if ((mouse->flags() & Qt::MouseEventCreatedDoubleClick) != 0) {
                return; // the second press of a double click, which comes as one by itself
            }
            const bool isSecond = event->type() == QEvent::MouseButtonDblClick;
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
            const QPoint place = mouse->globalPosition().toPoint();
#else
            const QPoint place = mouse->globalPos();
#endif
            m_recorder->press(mouse->button() == Qt::RightButton ? Recorder::Press::kRightClick
                              : isSecond                         ? Recorder::Press::kDoubleClick
                                                                 : Recorder::Press::kClick,
                              place);
        } else if (event->type() == QEvent::KeyPress) {
            hearKey(*static_cast<QKeyEvent *>(event));
        }
    }

    void hearKey(const QKeyEvent &key)
    {
        switch (key.key()) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Meta:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_CapsLock:
        case Qt::Key_NumLock:
            return; // it is for the key or the click behind it
        default:
            break;
        }
        const bool isText = !key.text().isEmpty() && key.text().at(0).isPrint() &&
                            (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
        m_recorder->type(isText ? Recorder::Keys::kText : Recorder::Keys::kOther);
    }

    Recorder *m_recorder;
};

} // namespace

void AuthorOptions::addTo(QCommandLineParser *parser) const
{
    parser->addOptions({scenario, from, record, dumpControls});
}

QString AuthorOptions::problemOf(const QCommandLineParser &parser) const
{
    bool isNumber = true;
    const int id = parser.isSet(from) ? parser.value(from).toInt(&isNumber) : 0;
    if (!isNumber || id < 0) {
        return QStringLiteral("--from takes the id of an item, not \"%1\"").arg(parser.value(from));
    }
    if (parser.isSet(scenario) && parser.isSet(QStringLiteral("lesson"))) {
        return QStringLiteral("there is one lesson to play: --lesson or --scenario");
    }
    if (parser.isSet(from) && !parser.isSet(scenario) && !parser.isSet(QStringLiteral("lesson"))) {
        return QStringLiteral("--from needs a lesson to begin in: add --lesson N or --scenario FILE");
    }
    if (parser.isSet(scenario) && !QFileInfo(parser.value(scenario)).isReadable()) {
        return QStringLiteral("there is no file \"%1\" to be read").arg(parser.value(scenario));
    }
    return parser.isSet(record) ? LessonRecord(parser.value(record)).problem() : QString();
}

void AuthorOptions::apply(const QCommandLineParser &parser, const QString &locale, PracticeEditor *editor,
                          EditorWindows *windows) const
{
    LessonSession &session = editor->session();
    const int first = parser.isSet(from) ? parser.value(from).toInt() : -1;
    if (parser.isSet(scenario)) {
        auto *const player =
            new ScenarioPlayer(ScenarioFile(parser.value(scenario), locale), first, &session, editor);
        QObject::connect(player, &ScenarioPlayer::problemFound, editor, &say);
        editor->course().setOwnLesson(player->lessonName(), [player](bool goesOn) {
            if (goesOn) {
                player->goOn();
            } else {
                player->begin();
            }
        });
    } else if (parser.isSet(from)) {
        session.setFirstStep(first);
    }
    if (parser.isSet(record)) {
        QStringList errors; // the windows are made of the same descriptions, so there are none
        auto *const recorder =
            new Recorder(windows, descriptions(&errors), LessonRecord(parser.value(record)), editor);
        new AuthorsHand(recorder);
        QObject::connect(recorder, &Recorder::problemFound, editor, &say);
        QObject::connect(qGuiApp, &QCoreApplication::aboutToQuit, recorder, &Recorder::finish);
    }
}

QByteArray controlsForAuthors(QStringList *errors)
{
    const DescriptionSet windows = descriptions(errors);
    return errors->isEmpty() ? controlDump(windows) : QByteArray();
}
