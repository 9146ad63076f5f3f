#pragma once

#include "EditorFixture.h"
#include "author/ScenarioFile.h"
#include "host/LessonSession.h"
#include "project/LessonProject.h"

#include <QDir>
#include <QJsonDocument>
#include <QRandomGenerator>

/// A learner with a session of a lesson, whose scenario is a file on disk, in an editor of her own. The
/// companion is played by this.
class StrayLearner
{
    Editor m_editor;
    QWidget m_game;

public:
    /// @p games is where projects are, and are made. What she draws by lot is drawn by @p seed.
    StrayLearner(const QString &scenarioPath, quint32 seed, const QString &games, bool answersYes = true)
        : m_answersYes(answersYes)
        , m_lesson(ScenarioFile(scenarioPath, str("en_US")).name())
        , m_random(seed)
    {
        QStringList problems;
        m_scenario = ScenarioFile(scenarioPath, str("en_US")).read(&problems);
        if (m_scenario.isEmpty() || !problems.isEmpty()) {
            qFatal("%s", qPrintable(problems.join(QLatin1Char('\n'))));
        }
        m_editor->setUnattended(true);
        m_editor->setProjectsFolder(games);
        // What is played is a window that lies over half of the editor.
        m_editor->setPlayer([this](const PlayRequest &) { beginGame(); });
        QObject::connect(m_editor.operator->(), &EditorWindows::playEndAsked, &m_game, [this] { endGame(); });
        QObject::connect(m_editor.operator->(), &EditorWindows::projectLeft, &m_game, [this] { endGame(); });
        m_editor->open(str("MainWindow"));
        QObject::connect(&session, &LessonSession::sends, &session,
                         [this](const QString &command) { answer(command); });
        QObject::connect(&session, &LessonSession::finished, &session, [this] { m_hasFinished = true; });
        connectProject();
    }

    LessonSession session{m_editor.operator->()};

    /// Begins the lesson, or goes on with it where @p bookmark was set.
    void begin(const QJsonObject &bookmark = {})
    {
        if (bookmark.isEmpty()) {
            session.request(m_lesson);
        } else {
            session.resume(bookmark);
        }
        session.receive(str("start\u0001%1\u0001-1").arg(m_scenario));
        turn();
    }

    static void turn()
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] bool isPlaying() const { return session.runner().isRunning(); }
    /// The lesson was played to its end.
    [[nodiscard]] bool hasFinished() const { return m_hasFinished; }
    [[nodiscard]] int id() const { return isPlaying() ? session.runner().step().id : -1; }
    /// The step goes on by itself.
    [[nodiscard]] bool isWaiting() const
    {
        return isPlaying() && (session.runner().step().icon == str("wait") ||
                               session.runner().step().condition.type() == Condition::Type::kWait);
    }

    /// Does what the step asks for; whether it is over then.
    bool doStep()
    {
        const int before = id();
        const Step step = session.runner().step();
        const std::optional<ControlSpot> pointed = m_editor->controlFor(step);
        if (step.condition.type() == Condition::Type::kNext) {
            session.next();
        } else if (step.condition.type() == Condition::Type::kYesNo) {
            session.answer(m_answersYes);
        } else if (isWaiting()) {
            return QTest::qWaitFor([this, before] { return id() != before; }, 5000);
        } else if (endsTheGame(step)) {
            endGame();
        } else if (!step.hasPosition() && step.icon == str("keyboard")) {
            typeTheNumber(step.hint);
        } else if (!pointed || !m_editor->perform(ControlUse::of(step, *pointed))) {
            return false;
        }
        turn();
        return id() != before;
    }

    /// The project's data files, as they would be with what the open dialogs hold.
    [[nodiscard]] QJsonObject data()
    {
        const QString member = str("files");
        const QJsonObject state = m_editor->state().toJson();
        const auto filesOf = [&member](const QJsonValue &roots) {
            return roots.toObject().value(member).toObject();
        };
        QJsonObject files = filesOf(state.value(str("project")).toObject().value(member));
        const QJsonArray windows = state.value(str("windows")).toArray();
        for (const QJsonValue &window : windows) {
            const QJsonObject layer = window.toObject().value(str("layer")).toObject();
            const QJsonObject draft = filesOf(layer.value(str("draft")));
            for (auto file = draft.begin(); file != draft.end(); ++file) {
                files.insert(file.key(), file.value());
            }
        }
        return files;
    }

    /// Something that the step does not ask for, and that the editor can know to be wrong: nothing is typed.
    void doAnythingWrong()
    {
        const std::optional<ControlSpot> pointed = m_editor->controlFor(session.runner().step());
        doAnything([&pointed](const ControlUse &use) {
            return use.kind != ControlUse::Kind::kType && !(pointed && use.spot.isSameControl(*pointed));
        });
    }

    /// Anything at all that a person can do with mouse and keyboard, of what @p isMeant admits.
    void doAnything(const std::function<bool(const ControlUse &)> &isMeant = {})
    {
        if (draw(12) == 0) {
            m_log.append(str("Esc"));
            pressEsc();
            turn();
            return;
        }
        const QVector<ControlSpot> spots = usableControls();
        if (spots.isEmpty()) {
            QTest::qWait(20);
            return;
        }
        using Kind = ControlUse::Kind;
        const QVector<Kind> kinds{Kind::kClick, Kind::kClick,      Kind::kClick, Kind::kDoubleClick,
                                  Kind::kDrag,  Kind::kRightClick, Kind::kType};
        ControlUse use{
            spots.at(draw(int(spots.size()))), kinds.at(draw(int(kinds.size()))), {}, draw(3) == 0};
        use.text = draw(2) == 0 ? QString() : str("stray");
        if (isMeant && !isMeant(use)) {
            return;
        }
        if (isMeant) {
            m_log.append(str("%1 %2").arg(int(use.kind)).arg(nameOf(use.spot)));
        }
        m_editor->perform(use);
        turn();
    }

    /// Does nothing but what the arrow, or the button to put things back, says, until the step can go on.
    bool followsTheArrow()
    {
        for (int used = 0; used < kMostUses; ++used) {
            turn();
            if (!isPlaying() || !session.isAstray()) {
                return true;
            }
            const std::optional<Way> way = session.wayBack();
            if (way && way->icon == str("wait")) {
                QTest::qWait(100);
            } else if (way && way->by.control == ControlSpot::dismiss() && !PlayCover::isWayOut(way->by)) {
                pressEsc();
            } else if (way) {
                m_editor->perform(ControlUse::of(*way));
            } else if (session.canPutBack()) {
                session.putBack();
            } else {
                QTest::qWait(100);
            }
            m_log.append(way ? way->icon + QLatin1Char(' ') + nameOf(way->by) : str("put back or wait"));
        }
        return false;
    }

    /// Follows the arrow, and puts back whatever is offered to be put back.
    void putsBackAll()
    {
        for (int times = 0; times < kMostAttempts && followsTheArrow(); ++times) {
            if (!isPlaying() || !session.canPutBack()) {
                return;
            }
            session.putBack();
            m_log.append(str("put back"));
        }
    }

    /// Follows the arrow up to a step that asks for something, and does that. Whatever has gone wrong may
    /// have to be put back for it, which leads to a step before.
    bool goesOn()
    {
        int tries = 0;
        for (int attempt = 0; attempt < kMostAttempts && followsTheArrow(); ++attempt) {
            if (!isPlaying()) {
                return true;
            }
            const bool isToRead = session.runner().stepBehind() != nullptr;
            if (doStep()) {
                if (!isToRead) {
                    return true;
                }
                tries = 0;
            } else if (!session.canPutBack()) {
                // She tries it again.
                if (++tries > kMostTries) {
                    return false;
                }
            } else {
                session.putBack();
                m_log.append(str("put back"));
            }
        }
        return false;
    }

    /// What there is to see, for a message.
    [[nodiscard]] QString state()
    {
        if (!isPlaying()) {
            return str("at the end");
        }
        const Step step = session.runner().step();
        const std::optional<ControlSpot> pointed = m_editor->controlFor(step);
        const std::optional<Way> way = session.wayBack();
        return str("step %1 %2; open %3; points at %4, which %5; %6; way back %7; last %8")
            .arg(step.id)
            .arg(step.conditionText, m_editor->openWindows().join(QLatin1Char(' ')),
                 pointed ? nameOf(*pointed) : QString(),
                 pointed && m_editor->rectOf(*pointed) ? str("shows") : str("is hidden"),
                 session.isAstray() ? str("astray") : str("on track"),
                 !way                        ? str("none")
                 : m_editor->rectOf(way->by) ? nameOf(way->by)
                                             : nameOf(way->by) + str(", hidden"),
                 QStringList(m_editor.told.mid(qMax(0, int(m_editor.told.size()) - 12))).join(str("; ")));
    }

    /// What the arrow has said, and what was done wrong.
    [[nodiscard]] QString log() const { return m_log.join(str("; ")); }

private:
    /// More uses of a control than any way back has.
    static constexpr int kMostUses = 60;
    /// More steps to read and to do again than lessons have in a row.
    static constexpr int kMostAttempts = 60;
    /// Of one step, before she gives up.
    static constexpr int kMostTries = 8;

    void beginGame()
    {
        const QWidget *const main = m_editor->window(str("MainWindow"))->window();
        m_game.setAttribute(Qt::WA_ShowWithoutActivating);
        m_game.setGeometry(main->x(), main->y() + main->height() / 3, main->width() / 2, main->height() / 2);
        m_game.show();
        m_editor->setPlayWindow(&m_game, [this] { return m_game.frameGeometry(); });
    }
    void endGame()
    {
        if (m_game.isVisible()) {
            m_game.hide();
            m_editor->tellPlayed();
        }
    }

    static bool endsTheGame(const Step &step)
    {
        return step.condition.type() == Condition::Type::kAction && step.condition.target() == str("play") &&
               step.condition.value() == str("close");
    }

    /// Into what has the keyboard.
    static void typeTheNumber(const QString &hint)
    {
        Editor::key(Qt::Key_A, Qt::ControlModifier);
        Editor::type(LessonWords::numberToType(hint).toLatin1().constData());
        Editor::key(Qt::Key_Return);
    }

    static QString nameOf(const ControlSpot &spot)
    {
        return str("%1.%2 %3").arg(spot.windowKey, spot.control, QString::number(spot.part));
    }

    int draw(int count) { return int(m_random.bounded(quint32(count))); }

    void pressEsc()
    {
        const QString top = m_editor->openWindows().constLast();
        QWidget *window = top == str("Popup") ? m_editor->window(str("MainWindow")) : m_editor->window(top);
        QTest::keyClick(window, Qt::Key_Escape);
    }

    QVector<ControlSpot> usableControls()
    {
        QVector<ControlSpot> spots;
        const QStringList keys = m_descriptions.keys();
        for (const QString &key : keys) {
            if (!m_editor->origin(key)) {
                continue; // closed, like most
            }
            const QVector<ControlDescription> controls = m_descriptions.controlsIn(key);
            for (const ControlDescription &control : controls) {
                const QVector<int> parts{
                    -1, 0, 1, 2, 3, 4, 5, ControlSpot::cell(4, 4), ControlSpot::cell(9, 7)};
                const ControlSpot spot{key, control.name, parts.at(draw(int(parts.size())))};
                const std::optional<QPoint> place = m_editor->spotOf(spot);
                if (place && !m_editor->activities().constFirst().rect.contains(*place)) {
                    spots.append(spot);
                }
            }
        }
        return spots;
    }

    /// As PracticeEditor does it.
    void connectProject()
    {
        EditorWindows *const windows = m_editor.operator->();
        QObject::connect(&session, &LessonSession::started, &m_project, &LessonProject::drop);
        QObject::connect(&session, &LessonSession::filesRequested, &m_project, &LessonProject::begin);
        QObject::connect(&session, &LessonSession::filesReceived, &m_project, &LessonProject::takeFiles);
        QObject::connect(windows, &EditorWindows::projectLeft, &m_project, &LessonProject::leaveProject);
        QObject::connect(windows, &EditorWindows::projectCreated, &m_project, &LessonProject::takeProject);
        QObject::connect(&m_project, &LessonProject::complete, windows,
                         [this, windows](const LessonProject::Files &files) {
                             if (windows->replaceFiles(files)) {
                                 m_project.drop();
                             }
                         });
    }

    /// Gives the data files that are asked for. Their texts are numbers, as in the source files.
    void answer(const QString &command)
    {
        const QStringList fields = command.split(QChar(1));
        if (fields.constFirst() != str("requestPresetData")) {
            return;
        }
        QJsonObject files;
        const QDir data(str(TUTORIAL_SOURCE_DIR "/resource/preset/%1/data").arg(fields.value(1)));
        const QStringList names = data.entryList(QDir::Files);
        for (const QString &name : names) {
            QFile file(data.filePath(name));
            if (file.open(QIODevice::ReadOnly)) {
                files.insert(str("data/") + name, QString::fromUtf8(file.readAll()));
            }
        }
        const QString text = QString::fromUtf8(QJsonDocument(files).toJson(QJsonDocument::Compact));
        QMetaObject::invokeMethod(
            &session, [this, text] { session.receive(str("feedbackPresetData\u0001") + text); },
            Qt::QueuedConnection);
    }

    DescriptionSet m_descriptions = [] {
        QStringList errors;
        return DescriptionSet::read(str(":/descriptions"), nullptr, &errors);
    }();
    bool m_answersYes;
    QString m_lesson;
    QString m_scenario;
    LessonProject m_project;
    QRandomGenerator m_random;
    QStringList m_log;
    bool m_hasFinished = false;
};
