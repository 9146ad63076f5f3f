#include "CatalogueTexts.h"
#include "PracticeTranslator.h"
#include "lesson/LessonWords.h"
#include "strip/LessonStrip.h"

#include <QAccessible>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(StripState)

namespace {

/// As wide as the main window is on the smallest screen.
constexpr int kNarrow = 1000;

StripState playing()
{
    StripState state;
    state.phase = StripState::Phase::kPlaying;
    state.title = QStringLiteral("1. Your first map");
    state.step = 12;
    state.steps = 86;
    state.minutesLeft = 9;
    state.text = QStringLiteral("Click “New”.");
    state.canGoBack = true;
    return state;
}

/// A step with everything that a step can have, so that the text has the least room.
StripState crowded(const QString &text)
{
    StripState state = playing();
    state.text = text;
    state.hasYesNo = true;
    state.drags = true;
    state.offersHelp = true;
    state.canPutBack = true;
    return state;
}

/// What a control of the editor's windows says.
QString labelOf(const char *window, const char *control, const QString &locale)
{
    QFile file(
        QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/%1.json").arg(QLatin1String(window)));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QJsonObject description = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonArray controls = description.value(QLatin1String("controls")).toArray();
    for (const QJsonValue &value : controls) {
        const QJsonObject object = value.toObject();
        if (object.value(QLatin1String("name")).toString() == QLatin1String(control)) {
            return object.value(QLatin1String("label")).toObject().value(locale).toString();
        }
    }
    return {};
}

} // namespace

class tst_LessonStrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsHowFarTheLessonIs();
    void putBackStandsStillWhenHelpIsOffered();
    void hasTheButtonsOfTheStep_data();
    void hasTheButtonsOfTheStep();
    void aButtonTellsWhatIsWanted_data();
    void aButtonTellsWhatIsWanted();
    void aKeyPressesItsButton_data();
    void aKeyPressesItsButton();
    void aKeyWorksInADialogToo();
    void aKeyOfAButtonThatIsNotThereDoesNothing();
    void aClickLeavesTheFocusWhereItIs();
    void aScreenReaderFindsTheTextThatIsShown();
    void everythingHasANameForScreenReaders();
    void textsAndCaptionsFit_data();
    void textsAndCaptionsFit();
    void puttingBackIsNoUndo_data();
    void puttingBackIsNoUndo();
    void everyHintFits_data();
    void everyHintFits();

private:
    [[nodiscard]] QPushButton *button(const char *name) const
    {
        return m_strip->findChild<QPushButton *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QLabel *label(const char *name) const
    {
        return m_strip->findChild<QLabel *>(QString::fromLatin1(name));
    }
    /// Names of the buttons that are to be seen and can be pressed.
    [[nodiscard]] QStringList usable() const;

    std::unique_ptr<LessonStrip> m_strip;
};

void tst_LessonStrip::init()
{
    m_strip = std::make_unique<LessonStrip>();
    m_strip->resize(kNarrow, m_strip->sizeHint().height());
    m_strip->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_strip.get()));
}

void tst_LessonStrip::cleanup()
{
    m_strip.reset();
}

QStringList tst_LessonStrip::usable() const
{
    QStringList names;
    const QList<QPushButton *> buttons = m_strip->findChildren<QPushButton *>();
    for (const QPushButton *found : buttons) {
        if (found->isVisible() && found->isEnabled()) {
            names.append(found->objectName().remove(QStringLiteral("Button")));
        }
    }
    names.sort();
    return names;
}

void tst_LessonStrip::showsHowFarTheLessonIs()
{
    m_strip->setState(playing());
    QCOMPARE(label("titleLabel")->text(), QStringLiteral("1. Your first map"));
    const auto *const bar = m_strip->findChild<QProgressBar *>();
    QCOMPARE(bar->text(), QStringLiteral("12 of 86"));
    QCOMPARE(bar->value(), 12);
    QCOMPARE(bar->maximum(), 86);
    QCOMPARE(label("minutesLabel")->text(), QStringLiteral("about 9 minutes left"));
    StripState last = playing();
    last.minutesLeft = 1;
    m_strip->setState(last);
    QCOMPARE(label("minutesLabel")->text(), QStringLiteral("about a minute left"));
    m_strip->setState(StripState());
    QVERIFY(!bar->isVisible());
    QVERIFY(!label("minutesLabel")->isVisible());
}

void tst_LessonStrip::putBackStandsStillWhenHelpIsOffered()
{
    LessonStrip strip;
    strip.resize(kNarrow, strip.sizeHint().height());
    strip.show();
    StripState state = playing();
    state.canPutBack = true;
    strip.setState(state);
    const auto *const putBack = strip.findChild<QPushButton *>(QStringLiteral("putBackButton"));
    const auto *const help = strip.findChild<QPushButton *>(QStringLiteral("helpButton"));
    QTRY_VERIFY(putBack->isVisible() && putBack->x() > kNarrow / 2);
    const QRect before = putBack->geometry();
    state.offersHelp = true;
    strip.setState(state);
    QTRY_VERIFY(help->isVisible() && help->x() >= before.right());
    QCOMPARE(putBack->geometry(), before);
}

void tst_LessonStrip::hasTheButtonsOfTheStep_data()
{
    QTest::addColumn<StripState>("state");
    QTest::addColumn<QString>("names");
    const QString always = QStringLiteral("leave lessons %1 skip startAgain");
    StripState state;
    QTest::newRow("no lesson") << state << QStringLiteral("lessons");
    state.phase = StripState::Phase::kFinished;
    QTest::newRow("the last lesson is finished") << state << QStringLiteral("lessons");
    state.hasNextLesson = true;
    QTest::newRow("a lesson is finished") << state << QStringLiteral("lessons nextLesson");
    state = playing();
    QTest::newRow("a step at a control")
        << state << QStringLiteral("back ") + always.arg(QString()).simplified();
    state.canGoBack = false;
    QTest::newRow("the first step") << state << always.arg(QString()).simplified();
    state.hasNext = true;
    QTest::newRow("a step to read") << state << always.arg(QStringLiteral("next"));
    state.hasNext = false;
    state.hasYesNo = true;
    QTest::newRow("a question") << state << QStringLiteral("leave lessons no skip startAgain yes");
    state.hasYesNo = false;
    state.offersHelp = true;
    QTest::newRow("help") << state << QStringLiteral("help leave lessons skip startAgain");
    state.offersHelp = false;
    state.canPutBack = true;
    QTest::newRow("something to put back")
        << state << QStringLiteral("leave lessons putBack skip startAgain");
}

void tst_LessonStrip::hasTheButtonsOfTheStep()
{
    QFETCH(StripState, state);
    m_strip->setState(state);
    QTEST(usable().join(QLatin1Char(' ')), "names");
    QCOMPARE(label("dragPicture")->isVisible(), false);
    if (state.phase == StripState::Phase::kPlaying) {
        state.drags = true;
        m_strip->setState(state);
        QVERIFY(label("dragPicture")->isVisible());
    }
}

void tst_LessonStrip::aButtonTellsWhatIsWanted_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("next") << QByteArray("nextButton") << QByteArray(SIGNAL(nextPressed()));
    QTest::newRow("yes") << QByteArray("yesButton") << QByteArray(SIGNAL(answered(bool)));
    QTest::newRow("no") << QByteArray("noButton") << QByteArray(SIGNAL(answered(bool)));
    QTest::newRow("back") << QByteArray("backButton") << QByteArray(SIGNAL(backRequested()));
    QTest::newRow("show me") << QByteArray("helpButton") << QByteArray(SIGNAL(helpRequested()));
    QTest::newRow("put it back") << QByteArray("putBackButton") << QByteArray(SIGNAL(putBackRequested()));
    QTest::newRow("skip") << QByteArray("skipButton") << QByteArray(SIGNAL(skipRequested()));
    QTest::newRow("start again") << QByteArray("startAgainButton")
                                 << QByteArray(SIGNAL(startAgainRequested()));
    QTest::newRow("leave") << QByteArray("leaveButton") << QByteArray(SIGNAL(leaveRequested()));
    QTest::newRow("lessons") << QByteArray("lessonsButton") << QByteArray(SIGNAL(lessonsRequested()));
    QTest::newRow("next lesson") << QByteArray("nextLessonButton")
                                 << QByteArray(SIGNAL(nextLessonRequested()));
}

void tst_LessonStrip::aButtonTellsWhatIsWanted()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, signal);
    StripState state = playing();
    state.hasNext = true;
    m_strip->setState(state);
    QSignalSpy wanted(m_strip.get(), signal.constData());
    QSignalSpy used(m_strip.get(), &LessonStrip::used);
    button(name)->click();
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(used.size(), 1);
    if (!wanted.constFirst().isEmpty()) {
        QCOMPARE(wanted.constFirst().constFirst().toBool(), name == "yesButton");
    }
}

void tst_LessonStrip::aKeyPressesItsButton_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("next") << Qt::Key_F7 << QByteArray("nextButton") << QStringLiteral("(F7)");
    QTest::newRow("yes") << Qt::Key_F8 << QByteArray("yesButton") << QStringLiteral("(F8)");
    QTest::newRow("no") << Qt::Key_F9 << QByteArray("noButton") << QStringLiteral("(F9)");
    QTest::newRow("back") << Qt::Key_F6 << QByteArray("backButton") << QStringLiteral("(F6)");
    QTest::newRow("show me") << Qt::Key_F1 << QByteArray("helpButton") << QStringLiteral("(F1)");
}

void tst_LessonStrip::aKeyPressesItsButton()
{
    QFETCH(Qt::Key, key);
    QFETCH(QByteArray, name);
    QFETCH(QString, shown);
    StripState state = crowded(QString());
    state.hasYesNo = name == "yesButton" || name == "noButton";
    state.hasNext = !state.hasYesNo;
    m_strip->setState(state);
    m_strip->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_strip.get()));
    QVERIFY2(button(name)->text().endsWith(shown), qPrintable(button(name)->text()));
    QSignalSpy clicked(button(name), &QPushButton::clicked);
    QTest::keyClick(m_strip.get(), key);
    QCOMPARE(clicked.size(), 1);
}

void tst_LessonStrip::aKeyWorksInADialogToo()
{
    StripState state = playing();
    state.hasNext = true;
    m_strip->setState(state);
    QLineEdit dialog;
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QSignalSpy next(m_strip.get(), &LessonStrip::nextPressed);
    QTest::keyClick(&dialog, Qt::Key_F7);
    QCOMPARE(next.size(), 1);
    QCOMPARE(dialog.text(), QString());
}

void tst_LessonStrip::aKeyOfAButtonThatIsNotThereDoesNothing()
{
    m_strip->setState(playing()); // Next is grey, Yes and No are not there
    m_strip->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_strip.get()));
    QSignalSpy next(m_strip.get(), &LessonStrip::nextPressed);
    QSignalSpy answered(m_strip.get(), &LessonStrip::answered);
    QTest::keyClick(m_strip.get(), Qt::Key_F7);
    QTest::keyClick(m_strip.get(), Qt::Key_F8);
    QTest::keyClick(m_strip.get(), Qt::Key_F9);
    QCOMPARE(next.size() + answered.size(), 0);
}

void tst_LessonStrip::aClickLeavesTheFocusWhereItIs()
{
    QLineEdit edit(m_strip.get());
    edit.show();
    m_strip->setState(playing());
    m_strip->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_strip.get()));
    edit.setFocus();
    QTest::mouseClick(button("skipButton"), Qt::LeftButton);
    QVERIFY(edit.hasFocus());
    QCOMPARE(button("skipButton")->focusPolicy(), Qt::TabFocus);
}

void tst_LessonStrip::aScreenReaderFindsTheTextThatIsShown()
{
    QAccessibleInterface *const object = QAccessible::queryAccessibleInterface(label("textLabel"));
    m_strip->setState(playing());
    QCOMPARE(object->role(), QAccessible::StaticText);
    QCOMPARE(object->text(QAccessible::Name), playing().text);
    StripState state = playing();
    state.text = QStringLiteral("Type a name.\nThen press Enter.");
    m_strip->setState(state);
    QCOMPARE(object->text(QAccessible::Name), QStringLiteral("Type a name. Then press Enter."));
    QVERIFY(!object->state().invisible);
    QVERIFY(object->parent()->object() == m_strip.get());
}

void tst_LessonStrip::everythingHasANameForScreenReaders()
{
    StripState state = crowded(QStringLiteral("Press here and drag."));
    m_strip->setState(state);
    const QList<QWidget *> widgets = m_strip->findChildren<QWidget *>();
    int count = 0;
    for (QWidget *widget : widgets) {
        QAccessibleInterface *const object = QAccessible::queryAccessibleInterface(widget);
        if (!widget->isVisible() || object == nullptr || object->role() == QAccessible::Separator ||
            object->role() == QAccessible::Border) {
            continue;
        }
        QVERIFY2(!object->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
        ++count;
    }
    QVERIFY(count > 10);
    QAccessibleInterface *const yes = QAccessible::queryAccessibleInterface(button("yesButton"));
    QCOMPARE(yes->role(), QAccessible::PushButton);
    QCOMPARE(yes->text(QAccessible::Name), QStringLiteral("Yes (F8)"));
    QSignalSpy answered(m_strip.get(), &LessonStrip::answered);
    yes->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(answered.size(), 1);
    QAccessibleInterface *const text = QAccessible::queryAccessibleInterface(label("textLabel"));
    QCOMPARE(text->text(QAccessible::Name), QStringLiteral("Press here and drag."));
}

void tst_LessonStrip::textsAndCaptionsFit_data()
{
    QTest::addColumn<QString>("locale");
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

void tst_LessonStrip::textsAndCaptionsFit()
{
    QFETCH(QString, locale);
    const PracticeTranslator translator(locale);
    LessonStrip strip;
    StripState state = crowded(QString());
    state.title = QStringLiteral("14. 敵キャラとランダムエンカウント");
    strip.setState(state);
    QVERIFY2(strip.minimumSizeHint().width() <= kNarrow,
             qPrintable(QString::number(strip.minimumSizeHint().width())));
    strip.resize(kNarrow, strip.sizeHint().height());
    strip.show();
    QVERIFY(QTest::qWaitForWindowExposed(&strip));
    const QList<QPushButton *> buttons = strip.findChildren<QPushButton *>();
    for (const QPushButton *found : buttons) {
        if (found->isVisible()) {
            QVERIFY2(found->width() >= found->sizeHint().width(), qPrintable(found->text()));
            QVERIFY2(strip.rect().contains(found->geometry()), qPrintable(found->text()));
        }
    }
}

void tst_LessonStrip::puttingBackIsNoUndo_data()
{
    textsAndCaptionsFit_data();
}

void tst_LessonStrip::puttingBackIsNoUndo()
{
    QFETCH(QString, locale);
    const PracticeTranslator translator(locale);
    const LessonStrip strip;
    const QString text = strip.findChild<QPushButton *>(QStringLiteral("putBackButton"))->text();
    const QString undo = labelOf("MainWindow", "editUndo", locale);
    QVERIFY(!undo.isEmpty());
    QVERIFY2(text != undo, qPrintable(text));
    // The window without a project tells of the same button.
    const QString told = labelOf("FileDialog", "noProjectsInLesson", locale);
    QVERIFY2(told.contains(text), qPrintable(told));
}

void tst_LessonStrip::everyHintFits_data()
{
    textsAndCaptionsFit_data();
}

void tst_LessonStrip::everyHintFits()
{
    QFETCH(QString, locale);
    const PracticeTranslator translator(locale);
    LessonStrip strip;
    strip.resize(kNarrow, strip.sizeHint().height());
    strip.show();
    const auto *const text = strip.findChild<QLabel *>(QStringLiteral("textLabel"));
    const QVector<CatalogueText> texts = textsOf(
        catalogueBytes(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/translations/%1.ts").arg(locale)));
    int count = 0;
    for (const CatalogueText &hint : texts) {
        if (!hint.context.startsWith(QLatin1String("TutorialStep"))) {
            continue;
        }
        ++count;
        StripState state = playing();
        state.text = hint.translation;
        state.hasNext = true;
        state.drags = LessonWords::saysDrag(hint.translation);
        strip.setState(state);
        QCoreApplication::sendPostedEvents();
        QVERIFY2(text->heightForWidth(text->width()) <= text->height(), qPrintable(hint.translation));
    }
    QVERIFY(count > 0);
}

QTEST_MAIN(tst_LessonStrip)
#include "tst_LessonStrip.moc"
